#pragma once

#include <array>
#include <string>

#include "forms/control.h"
#include "forms/grid.h"

namespace store {

/// Which columns of a grid of slip lines hold what. Column 0 is always the running number.
struct LineGridColumns {
  int Price;
  int Quantity;
  int TaxKind;
  int Supply;
  int Tax;
  int Sum;
  int Code = 1;      ///< PR_CODE
  int Name = 2;      ///< Barcode, carriage return, name.
  int OtherQty = 0;  ///< What goes to PS_EQTY; 0 where the slip has no such quantity.
};

/// The four total labels of a slip: count, total with tax, supply amount, VAT.
using TotalLabels = std::array<Label, 4>;

/// Works out supply, tax and sum of one row from its quantity and price, then all totals.
void RecalcGridLine(Grid& grid, int row, const LineGridColumns& columns, TotalLabels& totals);

/// Numbers the rows, the bottom one 1, and sums the displayed amounts, so that a slip's header
/// always equals the sum of its lines.
void RecalcGridTotals(Grid& grid, const LineGridColumns& columns, TotalLabels& totals);

/// What a person typed as a quantity: put through the quantity format and read back. Text that is
/// no number counts as 0.
double TypedQuantity(const std::string& text);

}  // namespace store
