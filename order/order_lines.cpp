// The order's lines: keys on them, quantities, money.
#include "basics/numbers.h"
#include "order/order_form.h"

namespace store {
namespace {

constexpr LineGridColumns kColumns{
    .Price = 5, .Quantity = 7, .TaxKind = 4, .Supply = 8, .Tax = 9, .Sum = 10};

}  // namespace

void OrderForm::ApplyQuantity(int row) {
  FLEX1.SetTextMatrix(row, kColumns.Quantity, NumberText(TypedQuantity(inBox.Text())));
  RecalcLine(row);
  inBox.SetText("");
}

void OrderForm::RecalcLine(int row) { RecalcGridLine(FLEX1, row, kColumns, LaAmt); }

void OrderForm::RecalcTotals() { RecalcGridTotals(FLEX1, kColumns, LaAmt); }

void OrderForm::RemoveCurrentLine() {
  if (FLEX1.Row() == 0) return;
  FLEX1.RemoveItem(FLEX1.Row());
  RecalcTotals();
}

void OrderForm::RemoveLinesOf(const std::string& productCode) {
  for (int row = FLEX1.Rows() - 1; row >= 1; --row) {
    if (FLEX1.TextMatrix(row, 1) == productCode) FLEX1.RemoveItem(row);
  }
}

void OrderForm::FLEX1_KeyDown(Key key) {
  if (key == Key::Delete) RemoveCurrentLine();
}

void OrderForm::FLEX1_KeyPress(const std::string& character) {
  // Typing on the lines is typing in the box: the scanner must never miss for a wrong focus.
  if (!inBox.Enabled) return;
  inBox.SetText(character);
  SetFocus(inBox);
  inBox.CaretToEnd();
}

}  // namespace store
