#include "slips/line_grid.h"

#include "basics/formats.h"
#include "basics/numbers.h"
#include "slips/line_money.h"

namespace store {

void RecalcGridLine(Grid& grid, int row, const LineGridColumns& columns, TotalLabels& totals) {
  const double quantity = ParseNumber(PlainNumber(grid.TextMatrix(row, columns.Quantity)));
  const double price = ParseNumber(PlainNumber(grid.TextMatrix(row, columns.Price)));
  const LineMoney money = ComputeLineMoney(quantity, price, grid.TextMatrix(row, columns.TaxKind));
  grid.SetTextMatrix(row, columns.Supply, FormatNumber(money.Supply, FormatAmount));
  grid.SetTextMatrix(row, columns.Tax, FormatNumber(money.Tax, FormatAmount));
  grid.SetTextMatrix(row, columns.Sum, FormatNumber(money.Sum(), FormatAmount));
  RecalcGridTotals(grid, columns, totals);
}

void RecalcGridTotals(Grid& grid, const LineGridColumns& columns, TotalLabels& totals) {
  double supply = 0;
  double tax = 0;
  for (int row = grid.Rows() - 1; row >= 1; --row) {
    grid.SetTextMatrix(row, 0, std::to_string(grid.Rows() - row));
    supply += ParseGrouped(grid.TextMatrix(row, columns.Supply));
    tax += ParseGrouped(grid.TextMatrix(row, columns.Tax));
  }
  totals[0].Caption = std::to_string(grid.Rows() - 1);
  totals[1].Caption = FormatNumber(supply + tax, FormatAmount);
  totals[2].Caption = FormatNumber(supply, FormatAmount);
  totals[3].Caption = FormatNumber(tax, FormatAmount);
}

double TypedQuantity(const std::string& text) {
  const std::string shown = FormatText(text, FormatQty);
  return IsNumeric(shown) ? ParseGrouped(shown) : 0;
}

}  // namespace store
