#include "lookup/export_grid.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <filesystem>

#include "lookup/party_lookups.h"
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
      // From row 53 on the count begins at the 53rd column; before it the last letters stay.
      {53, 26, "Z", "Z"},
      {53, 52, "Z", "BA"},
      {78, 77, "BY", "BZ"},
      {53, 78, "BZ", "BZ"},
      // Up to row 52 nothing is left past the second alphabet, further down nothing at all.
      {0, 52, "AZ", "AZ"},
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
    grid.SetColumns({{.Header = "사원코드"}, {.Header = "사원명"}, {.Header = "연락처"}});
    for (int row = 1; row <= rows; ++row)
      grid.AddItem("u" + std::to_string(row) + "\t이름 " + std::to_string(row * 7919));
    return grid;
  }
  /// A part of the workbook that was opened last.
  std::string Part(const std::string& name) {
    const std::string command = "unzip -p '" + host.Addresses.back() + "' " + name;
    std::string text;
    FILE* pipe = popen(command.c_str(), "r");
    for (int letter = fgetc(pipe); letter != EOF; letter = fgetc(pipe)) text += char(letter);
    EXPECT_EQ(pclose(pipe), 0) << command;
    return text;
  }
  /// What the workbook's cells hold, as "A1=text" for texts and "A1:number" for numbers.
  std::string Cells() {
    const auto between = [](const std::string& text, const char* begin, const char* end) {
      std::vector<std::string> found;
      for (size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1)) {
        const size_t from = at + strlen(begin);
        found.push_back(text.substr(from, text.find(end, from) - from));
      }
      return found;
    };
    const std::vector<std::string> texts = between(Part("xl/sharedStrings.xml"), "<t>", "</t>");
    std::string cells;
    for (const std::string& cell : between(Part("xl/worksheets/sheet1.xml"), "<c r=\"", "</c>")) {
      const std::string value = between(cell, "<v>", "</v>").at(0);
      const bool isText = cell.find("t=\"s\"") != std::string::npos;
      cells += cell.substr(0, cell.find('"'));
      cells += isText ? "=" + texts.at(std::stoul(value)) : ":" + value;
      cells += ' ';
    }
    return cells;
  }

  ScriptedHost host;
};

TEST_F(ExportGridTest, TheSheetHoldsTheGridsCellsInTheirOrder) {
  Grid grid = Staff(0);
  ExportGrid(grid);
  EXPECT_EQ(Cells(), "A1=사원코드 B1=사원명 C1=연락처 ");
  // Amounts become numbers; a code is a text, or it would lose its zeros and its last digits.
  grid.AddItem("007\t1,234.5\t-2");
  grid.AddItem("8801234567890\t\t0");
  grid.AddItem("a&b\t0.5\t2026.11.25");
  grid.AddItem("1,2\t1,23,456\t-12,345,678");  // only a thousands grouping makes a number
  ExportGrid(grid);
  EXPECT_EQ(Cells(),
            "A1=사원코드 B1=사원명 C1=연락처 A2=007 B2:1234.5 C2:-2 A3=8801234567890 C3:0 "
            "A4=a&amp;b B4:0.5 C4=2026.11.25 "
            "A5=1,2 B5=1,23,456 C5:-12345678 ");
  // One that is still open on the screen is never written over.
  ASSERT_EQ(host.Addresses.size(), 2u);
  EXPECT_NE(host.Addresses.at(0), host.Addresses[1]);
  EXPECT_EQ(std::filesystem::path(host.Addresses.at(0)).extension(), ".xlsx");
  EXPECT_EQ(host.Pointers,
            (std::vector<int>{PointerHourglass, PointerNormal, PointerHourglass, PointerNormal}));
}

TEST_F(ExportGridTest, IsBoundToAKeyInTheLookups) {
  HELP_ST form;
  form.FLEX1.KeyDown(Key::F12);
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
