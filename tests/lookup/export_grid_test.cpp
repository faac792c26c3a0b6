#include "lookup/export_grid.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "lookup/HELP_ST.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

TEST(ColumnLetters, AreChosenByTheRowPastTheAlphabet) {
  const struct {
    int row;
    int column;
    const char* before;
    const char* letters;
  } cases[] = {
      {0, 0, "", "A"},
      {500, 25, "Y", "Z"},
      {0, 26, "Z", "AA"},
      {52, 51, "AY", "AZ"},
      {52, 26, "Z", "AA"},
      // From row 53 on the count begins at the 53rd column; before it the last letters stay.
      {53, 26, "Z", "Z"},
      {53, 51, "Z", "Z"},
      {53, 52, "Z", "BA"},
      {78, 77, "BY", "BZ"},
      {53, 78, "BZ", "BZ"},
      // Up to row 52 nothing is left past the second alphabet, further down nothing at all.
      {0, 52, "AZ", "AZ"},
      {79, 26, "Z", "Z"},
      {79, 52, "Z", "Z"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ColumnLetters(c.row, c.column, c.before), c.letters) << c.row << ", " << c.column;
}

class ExportGridTest : public testing::Test {
 protected:
  /// Workbooks are made in the folder for temporary files; here they go with the test.
  ExportGridTest() { setenv("TMPDIR", host.Folder.c_str(), 1); }
  ~ExportGridTest() override { unsetenv("TMPDIR"); }

  Grid Staff(int rows) {
    Grid grid;
    grid.SetColumns(StaffColumns());
    for (int row = 1; row <= rows; ++row)
      grid.AddItem("u" + std::to_string(row) + "\t이름 " + std::to_string(row * 7919));
    return grid;
  }
  /// The workbook that was opened last.
  std::string Workbook() {
    if (host.Addresses.empty()) return {};
    std::ifstream file(host.Addresses.back(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  ScriptedHost host;
};

TEST_F(ExportGridTest, OpensAWorkbookThatHoldsEveryRow) {
  ExportGrid(Staff(0));
  const std::string header = Workbook();
  EXPECT_EQ(header.substr(0, 4), "PK\x03\x04");
  ExportGrid(Staff(200));
  const std::string filled = Workbook();
  EXPECT_EQ(filled.substr(0, 4), "PK\x03\x04");
  EXPECT_GT(filled.size(), header.size() + 1000);
  // One that is still open on the screen is never written over.
  ASSERT_EQ(host.Addresses.size(), 2u);
  EXPECT_NE(host.Addresses.at(0), host.Addresses[1]);
  EXPECT_EQ(std::filesystem::path(host.Addresses.at(0)).extension(), ".xlsx");
  EXPECT_EQ(host.Pointers,
            (std::vector<int>{PointerHourglass, PointerNormal, PointerHourglass, PointerNormal}));
}

TEST_F(ExportGridTest, IsBoundToAKeyInTheLookups) {
  HELP_ST form;
  form.FLEX1_KeyDown(Key::F12);
  EXPECT_EQ(host.Addresses.size(), 1u);
  EXPECT_FALSE(form.IsClosed());
}

TEST_F(ExportGridTest, TellsWhenNoProgramOpensIt) {
  host.OpensAddresses = false;
  host.ExpectBox("호환가능한 엑셀이 설치되어있지 않거나 다른오류가 발생했습니다.              ");
  ExportGrid(Staff(1));
  EXPECT_EQ(host.Boxes.at(0).Title, "엑셀호환오류");
  EXPECT_EQ(host.Pointers.back(), PointerNormal);
}

TEST_F(ExportGridTest, TellsWhenItCannotBeWritten) {
  setenv("TMPDIR", "/proc/self/fdinfo", 1);  // a folder that takes no file, whoever asks
  host.ExpectBox("사용자  작업   취소              ");
  ExportGrid(Staff(1));
  EXPECT_EQ(host.Boxes.at(0).Title, "강제취소");
  EXPECT_TRUE(host.Addresses.empty());
  EXPECT_EQ(host.Pointers.back(), PointerNormal);
}

}  // namespace
}  // namespace store
