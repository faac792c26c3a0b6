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
  ExportGridTest() { host.Clock = {2026, 11, 26, 10, 31, 7}; }

  void Export(const Grid& grid) { ExportGrid(grid, "발주 현황", where); }
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
  Label where;
};

TEST_F(ExportGridTest, TheSheetHoldsTheGridsCellsInTheirOrder) {
  Grid grid = Staff(0);
  Export(grid);
  EXPECT_EQ(Cells(), "A1=사원코드 B1=사원명 C1=연락처 ");
  // Amounts become numbers; a code is a text, or it would lose its zeros and its last digits.
  grid.AddItem("007\t1,234.5\t-2");
  grid.AddItem("8801234567890\t\t0");
  grid.AddItem("a&b\t0.5\t2026.11.25");
  grid.AddItem("1,2\t1,23,456\t-12,345,678");  // only a thousands grouping makes a number
  Export(grid);
  EXPECT_EQ(Cells(),
            "A1=사원코드 B1=사원명 C1=연락처 A2=007 B2:1234.5 C2:-2 A3=8801234567890 C3:0 "
            "A4=a&amp;b B4:0.5 C4=2026.11.25 "
            "A5=1,2 B5=1,23,456 C5:-12345678 ");
  ASSERT_EQ(host.Addresses.size(), 2u);
  EXPECT_EQ(host.Pointers,
            (std::vector<int>{PointerHourglass, PointerNormal, PointerHourglass, PointerNormal}));
}

// A clerk has to find the sheet again, next week and beside the one of a minute ago.
TEST_F(ExportGridTest, GoesToTheDocumentsUnderItsWindowAndTime) {
  const std::string folder = (host.Folder / "documents").string();
  Export(Staff(1));
  EXPECT_EQ(host.Addresses.back(), folder + "/발주 현황_2026-11-26_1031.xlsx");
  EXPECT_EQ(where.Caption, "엑셀 저장: " + host.Addresses.back());
  const auto firstSize = std::filesystem::file_size(host.Addresses.back());
  Export(Staff(50));
  Export(Staff(2));
  EXPECT_EQ(host.Addresses.back(), folder + "/발주 현황_2026-11-26_1031_3.xlsx");
  EXPECT_EQ(std::filesystem::file_size(host.Addresses.front()), firstSize)
      << "one that is there is never written over";
  ExportGrid(Staff(1), " 단가/수량: \"A\"? ", where);
  EXPECT_EQ(host.Addresses.back(), folder + "/단가_수량_ _A___2026-11-26_1031.xlsx");
}

TEST_F(ExportGridTest, IsBoundToAKeyInTheLookups) {
  HELP_ST form;
  form.FLEX1.KeyDown(Key::F12);
  ASSERT_EQ(host.Addresses.size(), 1u);
  EXPECT_NE(host.Addresses[0].find(form.Caption + "_2026"), std::string::npos);
  EXPECT_NE(form.LaSheet.Caption.find(host.Addresses[0]), std::string::npos);
  EXPECT_FALSE(form.IsClosed());
}

TEST_F(ExportGridTest, TellsWhenNoProgramOpensIt) {
  host.OpensAddresses = false;
  host.ExpectBox("호환가능한 엑셀이 설치되어있지 않거나 다른오류가 발생했습니다.              ");
  Export(Staff(1));
  EXPECT_EQ(host.Boxes.at(0).Title, "엑셀호환오류");
  EXPECT_TRUE(std::filesystem::exists(host.Addresses.at(0))) << "another program may open it";
  EXPECT_EQ(host.Pointers.back(), PointerNormal);
}

TEST_F(ExportGridTest, TellsWhenItCannotBeWritten) {
  where.Caption = "엑셀 저장: 어제";
  Host.DocumentsFolder = "/proc/self/fdinfo";  // a folder that takes no file, whoever asks
  host.ExpectBox("사용자  작업   취소              ");
  Export(Staff(1));
  EXPECT_EQ(host.Boxes.at(0).Title, "강제취소");
  EXPECT_TRUE(host.Addresses.empty());
  EXPECT_EQ(where.Caption, "");
  EXPECT_EQ(host.Pointers.back(), PointerNormal);
}

}  // namespace
}  // namespace store
