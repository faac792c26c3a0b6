#include "ui/grid_sort.h"

#include <gtest/gtest.h>

#include "ui/row_filter.h"

namespace store {
namespace {

Grid GridOf(const GridColumn& column, const std::vector<std::string>& cells) {
  Grid grid;
  grid.SetColumns({column});
  for (const std::string& cell : cells) {
    grid.SetRows(grid.Rows() + 1);
    grid.SetTextMatrix(grid.Rows() - 1, 0, cell);
  }
  return grid;
}

std::string Sorted(const GridColumn& column, const std::vector<std::string>& cells,
                   bool descending = false) {
  const Grid grid = GridOf(column, cells);
  std::string sorted;
  for (const int row : SortedRows(grid, 0, descending)) {
    sorted += grid.TextMatrix(row, 0) + std::to_string(row) + ";";
  }
  return sorted;
}

TEST(SortedRows, GoByWhatTheColumnHolds) {
  const GridColumn money{.Alignment = Align::Right, .Format = "#,###"};
  const GridColumn name{.Alignment = Align::Left};
  const GridColumn middle{.Alignment = Align::Center};
  const std::string entry(30, ' ');
  const struct {
    GridColumn Column;
    std::vector<std::string> Cells;
    std::string Want;  // each with its number in the grid
  } cases[] = {
      {money, {"1,000", "9", "", "-5", "200.5"}, "3;-54;92;200.55;1,0001;"},
      {{.Alignment = Align::Right}, {"10", "9", "9.0"}, "92;9.03;101;"},
      {middle, {"10", "9", "1"}, "13;92;101;"},
      {middle, {"10", "9", "가"}, "101;92;가3;"},
      {middle, {"2026.10.01", "2026.09.30", "2025.12.31"}, "2025.12.313;2026.09.302;2026.10.011;"},
      {name, {"10", "9"}, "101;92;"},
      {name, {"콜라", "사이다", "가나", "까치", "나비"}, "가나3;까치4;나비5;사이다2;콜라1;"},
      {name, {"b1", "A2", "a1", "B0", "우유", "1"}, "16;a13;A22;B04;b11;우유5;"},
      {name, {"우유 대", "우유", "우유  ", "우유 "}, "우유2;우유  3;우유 4;우유 대1;"},
      {name,
       {"8802\r 콜라", "8803\r 사이다", "8801\r 콜라"},
       "8803\r 사이다2;8801\r 콜라3;8802\r 콜라1;"},
      {name,
       {"음료" + entry + "009", "음" + entry + "010"},
       "음" + entry + "0102;음료" + entry + "0091;"},
      {{.CheckBox = true}, {"-1", "0", "", "1"}, "3;-11;02;14;"},
  };
  for (const auto& each : cases) EXPECT_EQ(Sorted(each.Column, each.Cells), each.Want);
}

TEST(SortedRows, EqualOnesStayInTheirOrderBothWays) {
  const GridColumn name{.Alignment = Align::Left};
  EXPECT_EQ(Sorted(name, {"나", "가", "나", "가"}), "가2;가4;나1;나3;");
  EXPECT_EQ(Sorted(name, {"나", "가", "나", "가"}, true), "나1;나3;가2;가4;");
  EXPECT_EQ(Sorted({.Alignment = Align::Right}, {"5", "", "5", "7"}, true), "74;51;53;2;");
}

TEST(RowFilter, FindsEveryWordInAnyColumn) {
  Grid grid;
  grid.SetColumns({{}, {}, {}, {}});
  grid.AddItem("8801\t고운 콜라 1.5L\t1234567\tABC");
  grid.AddItem("8802\t사이다\t1,234\tabd");
  grid.AddItem("8803\t콜라비" + std::string(30, ' ') + "990\t5\tㅋ");
  RowFilter filter(grid, {0, 1, 2, 3});
  const struct {
    const char* Text;
    const char* Rows;
  } cases[] = {
      {"콜라", "13"},      {"콜라 1.5", "1"}, {"  비   콜라 ", "3"}, {"aB", "12"},
      {"콜라 사이다", ""}, {"1,234", "12"},   {"1234", "12"},        {"1,234,567", "1"},
      {"ㅋㄹ", "13"},      {"ㅅㅇㄷ", "2"},   {"ㅋㄹㅂ", "3"},       {"ㅋ", "13"},
      {"ㄱㅇ ㅋㄹ", "1"},  {"990", ""},       {"88", "123"},         {"8804", ""},
  };
  for (const auto& each : cases) {
    std::string found;
    const std::vector<bool> rows = filter.Find(each.Text);
    for (size_t row = 0; row < rows.size(); ++row) {
      if (rows[row]) found += std::to_string(row);
    }
    EXPECT_EQ(found, each.Rows) << each.Text;
  }
}

}  // namespace
}  // namespace store
