#include "tests/layers/layers.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>

namespace store {
namespace {

using Texts = std::vector<std::string>;

TEST(Layers, OfTheProgramPointOneWay) {
  const auto folders = ReadLayers(STORE_ROOT);
  for (const char* name : {"basics", "gateway", "lookup", "board", "ui"})
    EXPECT_TRUE(folders.contains(name)) << name << " is not read at all";
  EXPECT_EQ(LayerFaults(folders), Texts());
  if (std::getenv("STORE_DRAW_LAYERS") != nullptr) std::cout << LayerGraph(folders);
}

/// A small program in a folder of its own, gone with this object.
class MadeUpProgram : public testing::Test {
 protected:
  MadeUpProgram() {
    std::string folder = (std::filesystem::temp_directory_path() / "layers_XXXXXX").string();
    EXPECT_NE(mkdtemp(folder.data()), nullptr);
    root = folder;
    Library("basics", "");
    Library("gateway", "store_basics odbc");
    File("gateway/gateway.cpp", "#include <sql.h>\n#include \"basics/text.h\"\n");
    Library("board", "store_gateway PkgConfig::X");
    File("board/deep/board.h", "#include \"gateway/gateway.h\"\n#include \"board/other.h\"\n");
    File("ui/CMakeLists.txt",
         "add_library(store_ui STATIC a.cpp)\n"
         "target_link_libraries(store_ui\n  PUBLIC store_board Qt6::Widgets)\n");
    File("ui/a.cpp", "#include <QWidget>\n#include \"board/deep/board.h\"\n");
  }
  ~MadeUpProgram() override { std::filesystem::remove_all(root); }

  void File(const std::string& path, const std::string& text) const {
    std::filesystem::create_directories((root / path).parent_path());
    std::ofstream(root / path) << text;
  }
  void Library(const std::string& name, const std::string& links) const {
    File(name + "/CMakeLists.txt", "store_library(" + name + "\n  SOURCES a.cpp" +
                                       (links.empty() ? "" : "\n  LINKS " + links) + ")\n");
  }
  Texts Faults() const { return LayerFaults(ReadLayers(root)); }

  std::filesystem::path root;
};

TEST_F(MadeUpProgram, IsSoundAndDrawn) {
  EXPECT_EQ(Faults(), Texts());
  EXPECT_EQ(LayerGraph(ReadLayers(root)),
            "graph TD\n  board --> gateway\n  gateway --> basics\n  ui --> board\n");
}

TEST_F(MadeUpProgram, EveryKindOfFaultIsNamed) {
  File("basics/up.h", "#include \"gateway/gateway.h\"\n");
  File("gateway/text.cpp", "  #  include <QString>\n");
  Library("order", "store_board");
  File("order/aside.cpp", "#include \"board/deep/board.h\"\n");
  Library("receipt", "store_basics");
  File("receipt/unlinked.cpp", "#include \"gateway/gateway.h\"\n");
  Library("strange", "");
  Library("demo", "");
  File("ui/b.cpp", "#include \"demo/franchise.h\"\n");
  Library("handheld", "store_basics store_gateway");
  File("handheld/form.cpp", "#include \"gateway/gateway.h\"\n");
  File("handheld/wire/line.cpp",
       "#include \"handheld/wire/line.h\"\n#include \"basics/text.h\"\n"
       "#include \"gateway/gateway.h\"\n#include \"handheld/form.h\"\n");
  EXPECT_EQ(Faults(),
            (Texts{"basics/up.h: gateway/gateway.h is against the layers",
                   "gateway/text.cpp: <QString> is of the toolkit",
                   "handheld/wire/line.cpp: gateway/gateway.h does not belong into handheld/wire",
                   "handheld/wire/line.cpp: handheld/form.h does not belong into handheld/wire",
                   "order/aside.cpp: board/deep/board.h is against the layers",
                   "receipt/unlinked.cpp: gateway/gateway.h is of a folder that receipt does not "
                   "link",
                   "receipt links basics and includes nothing of it",
                   "strange has no place in the layers",
                   "ui/b.cpp: demo/franchise.h is against the layers"}));
}

}  // namespace
}  // namespace store
