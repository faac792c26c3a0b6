// The received quantities: typing, refusing, counting.
#include "basics/numbers.h"
#include "basics/records.h"
#include "forms/host.h"
#include "lookup/export_grid.h"
#include "receipt/frm_PE_UNIT.h"

namespace store {
namespace {

constexpr int kMayReceiveMore = 3;  // the order type whose customer may receive more than ordered

}  // namespace

void frm_PE_UNIT::RecalcReceiptLine(int row) { RecalcGridLine(FLEX1, row, receipt::Money, LaAmt); }

void frm_PE_UNIT::RecalcReceiptTotals() { RecalcGridTotals(FLEX1, receipt::Money, LaAmt); }

void frm_PE_UNIT::RemoveCurrentRow() {
  if (FLEX1.Row() == 0) return;
  FLEX1.RemoveItem(FLEX1.Row());
  RecalcReceiptTotals();
}

void frm_PE_UNIT::FLEX1_KeyPress(const std::string& character) {
  if (!inBox.Enabled) return;
  inBox.SetText(character);
  SetFocus(inBox);
  inBox.CaretToEnd();
}

void frm_PE_UNIT::FLEX1_KeyDown(Key key) {
  if (key == Key::F12) ExportGrid(FLEX1);
}

void frm_PE_UNIT::inBox_KeyDown(Key key) {
  switch (key) {
    case Key::Up:
      if (FLEX1.Row() > 1) FLEX1.SetRow(FLEX1.Row() - 1);
      break;
    case Key::Down:
      if (FLEX1.Row() != FLEX1.Rows() - 1) FLEX1.SetRow(FLEX1.Row() + 1);
      break;
    case Key::Delete:
      RemoveCurrentRow();
      break;
    default:
      break;
  }
}

void frm_PE_UNIT::inBox_KeyPress(Key key) {
  if (key == Key::Enter && FLEX1.Row() >= 1) AcceptReceivedQty(FLEX1.Row());
}

void frm_PE_UNIT::AcceptReceivedQty(int row) {
  const double quantity = TypedQuantity(inBox.Text());
  const double ordered = ParseGrouped(FLEX1.TextMatrix(row, receipt::Ordered));
  if (ordered < quantity && AppOptions.OrderType != kMayReceiveMore) {
    Host.MsgBox("발주량보다 입고량이 많습니다.                  ", box::Critical, "정책오류");
    inBox.SetText("");
    return;
  }
  FLEX1.SetTextMatrix(row, receipt::Received, NumberText(quantity));
  RecalcReceiptLine(row);
  inBox.SetText("");
}

}  // namespace store
