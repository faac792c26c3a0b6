#include "ui/grid_model.h"

#include <gtest/gtest.h>

#include <QBrush>
#include <QFont>
#include <QSignalSpy>

namespace store {
namespace {

constexpr int kYellow = 0xFFFF00;

Grid SmallGrid() {
  Grid grid;
  grid.SetColumns({{.Header = "품명", .Alignment = Align::Left},
                   {.Header = "수량", .Alignment = Align::Right, .Format = "#,###.##"},
                   {.Header = "S", .CheckBox = true}});
  return grid;
}

QString Shown(const GridModel& model, int row, int column) {
  return model.index(row, column).data().toString();
}

TEST(GridModel, ShowsByFormatAndHoldsTheText) {
  Grid grid = SmallGrid();
  GridModel model(grid);
  grid.AddItem("8801\r 우유\t1234.5\t-1");
  grid.AddItem("음료                              001000000000000\t0\t0");
  ASSERT_TRUE(model.Follow());

  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "수량");
  EXPECT_EQ(Shown(model, 0, 0), "8801\n 우유") << "a two-line cell";
  EXPECT_EQ(Shown(model, 0, 1), "1,234.5");
  EXPECT_EQ(model.index(0, 1).data(Qt::EditRole).toString(), "1234.5");
  EXPECT_EQ(Shown(model, 1, 0), "음료") << "the code behind the blanks stays out of view";
  EXPECT_EQ(Shown(model, 1, 1), "") << "the mask prints nothing for zero";
  EXPECT_EQ(model.index(0, 2).data(Qt::CheckStateRole).toInt(), Qt::Checked);
  EXPECT_EQ(model.index(1, 2).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  EXPECT_FALSE(model.index(0, 0).data(Qt::CheckStateRole).isValid());
  grid.SetTextMatrix(2, 2, "1");
  EXPECT_EQ(model.index(1, 2).data(Qt::CheckStateRole).toInt(), Qt::Checked);
  EXPECT_EQ(grid.TextMatrix(1, 1), "1234.5");
}

TEST(GridModel, ShowsTheLookOfACell) {
  Grid grid = SmallGrid();
  grid.AddItem("우유\t5");
  grid.SetLook(1, 1, {.BackColor = kYellow, .Bold = true, .Picture = false});
  const GridModel model(grid);
  EXPECT_EQ(model.index(0, 1).data(Qt::BackgroundRole).value<QBrush>().color(),
            QColor(255, 255, 0));
  EXPECT_TRUE(model.index(0, 1).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(model.index(0, 0).data(Qt::BackgroundRole).isValid());
  grid.SetLook(1, 0, {.BackColor = -1, .Bold = false, .Picture = true});
  EXPECT_FALSE(model.index(0, 0).data().isValid()) << "a mark stands instead of the text";
}

TEST(GridModel, TellsTheViewsNoMoreThanWhatChanged) {
  Grid grid = SmallGrid();
  grid.AddItem("우유\t5");
  GridModel model(grid);
  QSignalSpy resets(&model, &GridModel::modelReset);
  QSignalSpy changes(&model, &GridModel::dataChanged);
  EXPECT_FALSE(model.Follow());
  grid.SetTextMatrix(1, 1, "7");
  EXPECT_TRUE(model.Follow());
  EXPECT_EQ(resets.count(), 0) << "the place in the list must not be lost by a typed quantity";
  EXPECT_EQ(changes.count(), 1);
  grid.AddItem("콜라\t1");
  EXPECT_TRUE(model.Follow());
  EXPECT_EQ(resets.count(), 1);
}

// A form may cut its grid while a view still thinks of the rows before.
TEST(GridModel, RowsThatAreGoneReadEmptyUntilTheNextSync) {
  Grid grid = SmallGrid();
  grid.AddItem("우유\t5");
  GridModel model(grid);
  grid.SetRows(1);
  EXPECT_EQ(model.rowCount(), 1);
  EXPECT_EQ(Shown(model, 0, 0), "");
  model.Follow();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(GridModel, AGridWithoutHeaderBeginsAtItsFirstRow) {
  Grid grid;
  grid.SetColumns({{.Width = 1800}, {.Width = 1800}}, 0);
  grid.SetRows(2);
  grid.SetTextMatrix(0, 1, "과자");
  const GridModel model(grid);
  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(Shown(model, 0, 1), "과자");
  EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).isValid());
}

}  // namespace
}  // namespace store
