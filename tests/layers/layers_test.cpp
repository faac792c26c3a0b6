#include "tests/layers/layers.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>

namespace store {
namespace {

TEST(Layers, EachFolderIncludesOnlyWhatLiesBelowAndLinksJustThat) {
  EXPECT_EQ(BrokenLayers(STORE_TREE), std::vector<std::string>());
}

TEST(Layers, WhatBreaksThemIsNamed) {
  std::string folder = (std::filesystem::temp_directory_path() / "layers_XXXXXX").string();
  ASSERT_NE(mkdtemp(folder.data()), nullptr);
  const std::filesystem::path tree = folder;
  const auto write = [&](const std::string& file, const std::string& text) {
    std::filesystem::create_directories((tree / file).parent_path());
    std::ofstream(tree / file) << text;
  };
  write("basics/CMakeLists.txt", "store_library(basics SOURCES a.cpp)");
  write("basics/a.cpp", "#include \"basics/a.h\"\n#include <string>\n");
  write("slips/CMakeLists.txt",
        "store_library(slips SOURCES a.cpp LINKS store_basics store_forms)");
  write("slips/a.cpp", "#include \"basics/a.h\"\n#include \"order/b.h\"\n");
  write("order/CMakeLists.txt", "store_library(order SOURCES b.cpp LINKS store_slips)");
  write("order/b.h", "#include \"slips/a.h\"\n#include \"basics/a.h\"\n#include <QString>\n");
  EXPECT_EQ(
      BrokenLayers(tree),
      (std::vector<std::string>{"order includes basics and does not link it", "order includes Qt",
                                "slips includes order", "slips includes order and does not link it",
                                "slips links forms and includes nothing of it"}));
  std::filesystem::remove_all(tree);
}

}  // namespace
}  // namespace store
