// The one line through which an order is written: barcodes, searches, quantities.
#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "order/order_form.h"
#include "slips/item_list.h"
#include "slips/unit_price.h"

namespace store {
namespace {

constexpr int kShortestSearch = 5;  // characters; what is shorter is a quantity

}  // namespace

void OrderForm::inBox_KeyDown(Key key) {
  switch (key) {
    case Key::Up:
      SetFocus(FLEX1);
      if (FLEX1.Row() > 1) FLEX1.SetRow(FLEX1.Row() - 1);
      break;
    case Key::Down:
      SetFocus(FLEX1);
      if (FLEX1.Row() != FLEX1.Rows() - 1) FLEX1.SetRow(FLEX1.Row() + 1);
      break;
    case Key::Delete:
      RemoveCurrentLine();
      break;
    default:
      break;
  }
}

void OrderForm::inBox_KeyPress(Key key) {
  if (key != Key::Enter) return;
  if (Trim(Text1.Text()).empty() || Text1.Tag.empty()) {
    Host.MsgBox("발주처를 선택하세요.          ", box::Critical, "발주처");
    AddInProgress = 0;
    return;
  }
  const std::string entry = Trim(inBox.Text());
  if (entry.empty()) return;
  const bool search =
      CharLength(entry) >= kShortestSearch || entry.front() == ',' || entry.front() == '.';
  if (search) {
    SearchItems();
  } else if (FLEX1.Row() > 0) {
    ApplyQuantity(FLEX1.Row());
  }
}

std::string OrderForm::SearchCriteria(const std::string& text) const {
  if (AddInProgress != 0) return Splice(" PR_CODE  = '{0}'", {text});
  if (text.front() == ',') return Splice(" PR_NAME  LIKE '%{0}%'", {MidChars(text, 2)});
  if (text.front() == '.') return Splice(" PR_STD   LIKE '%{0}%'", {MidChars(text, 2)});
  return Splice(choices_.BarcodeFilter, {text});
}

void OrderForm::SearchItems() {
  SetFilter(SlotC, SearchCriteria(inBox.Text()));
  std::int16_t count = 0;
  ToInt16(RecordCountOf(SlotC), count);
  if (count == 1) {
    AddItemLine();
    return;
  }
  if (count > 1) {
    FillPickGrid();
  } else {
    Host.MsgBox("선택된 품목이 없습니다.           ", box::Critical, "품목없음");
  }
  inBox.SetText("");
}

void OrderForm::AddItemLine() {
  const std::string code = ItemText(item::Code);
  RemoveLinesOf(code);
  double price = 0;
  if (NoPriceMode == 0) {
    price =
        ResolveUnitPrice(Text1.Tag, code, FormatDateValue(Today(), "YYYY-MM-DD"), "", "23", "J");
    if (AppOptions.OrderZeroPrice == 0 && price == 0) {
      RefuseForPrice();
      return;
    }
  }
  FLEX1.AddItem("\t" + code + "\t" + ItemText(item::Barcode) + "\r " + ItemText(item::Name) + "\t" +
                    ItemText(item::Standard) + "\t" + ItemText(item::TaxKind) + "\t" +
                    NumberText(price) + "\t\t" + choices_.FirstQuantity,
                1);
  FLEX1.SetRow(1);
  RecalcLine(1);
  inBox.SetText("");
}

void OrderForm::RefuseForPrice() {
  // The item's former line is gone for good, and a header must never count what it does not hold.
  RecalcTotals();
  inBox.SetText("");
  AddAccepted = 0;
  Label6.Caption = "본부정책오류: " + ItemText(item::Name) + "의 단가가 정의되지 않았습니다.";
  Timer1.Enabled = true;
}

void OrderForm::AddFromCode(const std::string& productCode) {
  AddInProgress = -1;
  inBox.SetText(productCode);
  inBox_KeyPress(Key::Enter);
  AddInProgress = 0;
}

}  // namespace store
