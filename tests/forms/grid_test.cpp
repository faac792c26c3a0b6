#include "forms/grid.h"

#include <gtest/gtest.h>

namespace store {
namespace {

class GridTest : public testing::Test {
 protected:
  GridTest() {
    grid.SetColumns({{.Header = "가"}, {.Header = "나"}, {.Header = "다"}});
    grid.RowColChange = [this] { ++moves; };
  }
  std::string Column(int col) const {
    std::string joined;
    for (int row = 1; row < grid.Rows(); ++row) joined += grid.TextMatrix(row, col) + ";";
    return joined;
  }
  Grid grid;
  int moves = 0;
};

TEST_F(GridTest, TakesTabJoinedRowsAndDropsWhatHasNoColumn) {
  grid.AddItem("1\t2\t3\t4");
  grid.AddItem("5", 1);
  grid.AddItem("6\t\t7", 99);
  EXPECT_EQ(Column(0), "5;1;6;");
  EXPECT_EQ(Column(1), ";2;;");
  EXPECT_EQ(Column(2), ";3;7;");
  EXPECT_EQ(grid.TextMatrix(0, 1), "나");
  EXPECT_EQ(grid.TextMatrix(9, 9), "");
}

TEST_F(GridTest, ForgetsTheCurrentRowWhenItIsCutOff) {
  for (int i = 0; i < 3; ++i) grid.AddItem(std::to_string(i));
  grid.SetRow(3);
  grid.RemoveItem(3);
  EXPECT_EQ(grid.Row(), 2);
  grid.RemoveItem(1);
  grid.RemoveItem(1);
  EXPECT_EQ(grid.Row(), 0);
  grid.AddItem("x");
  grid.SetRow(1);
  grid.SetRows(1);
  EXPECT_EQ(grid.Row(), 0);
  EXPECT_EQ(grid.Rows(), 1);
  Grid without;  // a header
  without.SetColumns({{}, {}}, 0);
  without.SetRows(3);
  without.Select(2, 1);
  without.SetRows(0);
  EXPECT_EQ(without.Row(), 0);
}

TEST_F(GridTest, TellsOnlyRealMovesOfTheCurrentCell) {
  grid.AddItem("1");
  grid.SetRow(1);
  grid.SetRow(1);
  grid.SetRow(7);
  grid.Select(1, 2);
  grid.Select(1, 3);
  EXPECT_EQ(moves, 2);
}

TEST_F(GridTest, MovesItsRevisionOnEveryChangeOfWhatIsShown) {
  grid.AddItem("1");
  const std::vector<std::function<void()>> changes = {
      [&] { grid.SetTextMatrix(1, 0, "2"); },
      [&] { grid.SetBackColor(1, 0, 0xFFFF00); },
      [&] { grid.SetRowHidden(1, true); },
      [&] { grid.Column(1).Width = 5; },
      [&] { grid.AddItem("3"); },
      [&] { grid.RemoveItem(1); },
      [&] { grid.SetRows(5); },
  };
  for (size_t i = 0; i < changes.size(); ++i) {
    const unsigned before = grid.Revision();
    changes[i]();
    EXPECT_NE(grid.Revision(), before) << "change " << i;
  }
}

TEST_F(GridTest, LooksTravelWithTheirRow) {
  grid.AddItem("1");
  grid.SetLook(1, 2, {.BackColor = 0xFFFF00, .Bold = true});
  grid.AddItem("0", 1);
  EXPECT_EQ(grid.Look(1, 2).BackColor, -1);
  EXPECT_EQ(grid.Look(2, 2).BackColor, 0xFFFF00);
  EXPECT_TRUE(grid.Look(2, 2).Bold);
  grid.Column(2).BackColor = 0xE0E0E0;
  EXPECT_EQ(grid.Look(0, 2).BackColor, -1) << "a column's colour is that of its data";
  EXPECT_EQ(grid.Look(1, 2).BackColor, 0xE0E0E0);
  EXPECT_EQ(grid.Look(2, 2).BackColor, 0xFFFF00);
}

TEST_F(GridTest, MakesTheCellsOfARowWhenTheyAreFirstLookedAt) {
  std::vector<int> made;
  grid.SetRowsMadeLater(1000, [&](int row) {
    made.push_back(row);
    return std::vector<std::string>{std::to_string(row)};
  });
  EXPECT_EQ(grid.Rows(), 1001);
  EXPECT_EQ(grid.TextMatrix(500, 0) + grid.TextMatrix(500, 2), "499");
  grid.RemoveItem(1);
  grid.SetTextMatrix(1, 1, "x");
  EXPECT_EQ(grid.TextMatrix(1, 0) + grid.TextMatrix(1, 1), "1x");
  grid.AddItem("new", 1);
  EXPECT_EQ(grid.TextMatrix(1, 0) + grid.TextMatrix(2, 0), "new1");
  EXPECT_EQ(made, (std::vector<int>{499, 1}));
}

}  // namespace
}  // namespace store
