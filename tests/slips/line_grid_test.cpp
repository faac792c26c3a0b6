#include "slips/line_grid.h"

#include <gtest/gtest.h>

#include "basics/formats.h"
#include "basics/records.h"
#include "slips/process_state.h"

namespace store {
namespace {

constexpr LineGridColumns kColumns = {
    .Price = 1, .Quantity = 2, .TaxKind = 3, .Supply = 4, .Tax = 5, .Sum = 6};

class LineGrid : public testing::Test {
 protected:
  LineGrid() {
    ResetProcessState();
    BaseSettings.VatPercent = "10";
    BaseSettings.VatRounding = "0";
    FormatSetup();
    grid.SetColumns(std::vector<GridColumn>(7));
    // A tax is rounded on each line: one won, not the two of their sum.
    grid.AddItem("\t15\t1\t0");
    grid.AddItem("\t1,200\t1,000\t0");
    grid.AddItem("\t5\t1\t0");
    for (int row = 1; row < grid.Rows(); ++row) RecalcGridLine(grid, row, kColumns, totals);
  }

  Grid grid;
  TotalLabels totals;
};

TEST_F(LineGrid, ShowsTheMoneyOfALineAndNumbersFromTheBottom) {
  EXPECT_EQ(grid.TextMatrix(2, 4), "1,200,000");
  EXPECT_EQ(grid.TextMatrix(2, 5), "120,000");
  EXPECT_EQ(grid.TextMatrix(2, 6), "1,320,000");
  EXPECT_EQ(grid.TextMatrix(1, 0), "3");
  EXPECT_EQ(grid.TextMatrix(3, 0), "1");
}

TEST_F(LineGrid, TotalsAreTheSumsOfWhatIsShown) {
  EXPECT_EQ(totals[0].Caption, "3");
  EXPECT_EQ(totals[1].Caption, "1,320,021");
  EXPECT_EQ(totals[2].Caption, "1,200,020");
  EXPECT_EQ(totals[3].Caption, "120,001");
  grid.SetRows(1);
  RecalcGridTotals(grid, kColumns, totals);
  EXPECT_EQ(totals[0].Caption, "0");
  EXPECT_EQ(totals[1].Caption, "0");
}

}  // namespace
}  // namespace store
