#include "order/item_box_pane.h"

#include <cmath>

#include "basics/dates.h"
#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "lookup/HELP_BPR.h"
#include "slips/item_list.h"
#include "slips/unit_price.h"

namespace store {
namespace {

constexpr int kShortestSearch = 5;    // characters; what is shorter is a quantity
constexpr int kWarningStands = 5000;  // milliseconds

bool IsSearch(const std::string& entry) {
  return CharLength(entry) >= kShortestSearch || entry.front() == ',' || entry.front() == '.';
}

}  // namespace

ItemBoxPane::ItemBoxPane(SlipForm& form, const SupplierPane& supplier, PickListPane& pickList,
                         const OrderTypeChoices& choices)
    : LinesPane(form, order_line::Money, BoxKeys::LeadToLines),
      form_(form),
      supplier_(supplier),
      pickList_(pickList),
      choices_(choices) {
  SetUpLines();
  form.Publish("ItemLookup", ItemLookup);
  form.Publish("Label6", Label6);
  form.Publish("LaRefused", LaRefused);
  ShowRefused();
  form.Publish("Timer1", Timer1);
  inBox.ToolTipText = "(,) + (찾는문자열) = 품목찾기       (.) + (찾는문자열) = 규격찾기 ";
  inBox.KeyDown = [this](Key key) {
    inBox_KeyDown(key);
    inBox_KeyPress(key);
  };
  FLEX1.KeyDown = [this](Key key) { FLEX1_KeyDown(key); };
  ItemLookup.Click = [this] { ItemLookup_Click(); };
  Timer1.Interval = kWarningStands;
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void ItemBoxPane::SetUpLines() {
  std::vector<GridColumn> columns = {
      {.Header = "No.", .Width = 330, .Alignment = Align::Center},
      {.Header = "품목코드", .Width = 810, .Alignment = Align::Left, .Hidden = true},
      {.Header = "품명", .Width = 2055, .Alignment = Align::Left},
      {.Header = "규격", .Width = 1620, .Alignment = Align::Left, .Hidden = true, .Optional = true},
      {.Header = "세액구분", .Width = 1290, .Alignment = Align::Left, .Hidden = true},
      {.Header = "단가", .Width = 855, .Alignment = Align::Right, .Format = kMaskUpToCents},
      {.Header = "최소발주", .Width = 810, .Alignment = Align::Right, .Hidden = true},
      {.Header = "발주량", .Width = 840, .Alignment = Align::Right, .Format = kMaskUpToCents},
      {.Header = "공급가액", .Width = 1095, .Alignment = Align::Right, .Format = kMaskWhole},
      {.Header = "부가세액", .Width = 1035, .Alignment = Align::Right, .Format = kMaskWhole},
      {.Header = "합계금액", .Width = 900, .Alignment = Align::Right},
  };
  for (const GridColumn& column : choices_.MoreLineColumns) columns.push_back(column);
  FLEX1.SetColumns(std::move(columns));
}

void ItemBoxPane::inBox_KeyPress(Key key) {
  if (key != Key::Enter) return;
  if (!choices_.CombinesSuppliers && !supplier_.HasSupplier()) {
    supplier_.TellNoSupplier();
    AddInProgress = 0;
    return;
  }
  const std::string entry = Trim(inBox.Text());
  if (entry.empty()) return;
  if (AddInProgress != 0 || IsSearch(entry)) {
    SearchItems();
  } else if (FLEX1.Row() > 0) {
    ApplyQuantity(FLEX1.Row());
  }
}

std::string ItemBoxPane::SearchCriteria(const std::string& text) const {
  if (AddInProgress != 0) return Splice(" PR_CODE  = '{text}'", "text"_a = text);
  if (text.front() == ',') return NameCriteria(MidChars(text, 2));
  if (text.front() == '.') {
    return Splice(" PR_STD   LIKE '%{text}%'", "text"_a = MidChars(text, 2));
  }
  return choices_.BarcodeCriteria(text);
}

std::string ItemBoxPane::NameCriteria(const std::string& name) const {
  const std::string supplier = NameSearchSupplier ? NameSearchSupplier() : "";
  if (supplier.empty()) return Splice(" PR_NAME  LIKE '%{text}%'", "text"_a = name);
  return Splice(" CTPRCODE  LIKE '{supplier}{text}%'", "supplier"_a = supplier, "text"_a = name);
}

void ItemBoxPane::SearchItems() {
  SetFilter(SlotC, SearchCriteria(inBox.Text()));
  std::int16_t count = 0;
  ToInt16(RecordCountOf(SlotC), count);
  if (count == 1) {
    if (AddItemLine() && AddInProgress == 0) Host.ScanTaken();
    return;
  }
  if (count > 1) {
    ListHits();
    return;
  }
  RefuseForWantOfItem();
  inBox.SetText("");
  // Or a transfer would put this item's quantity on the line of another.
  AddAccepted = 0;
}

void ItemBoxPane::RefuseForWantOfItem() {
  const std::string code = Trim(inBox.Text());
  NoteRefused(code, "없음");
  Host.Beep();
  Host.MsgBox("선택된 품목이 없습니다.           \r\r[" + code + "]", box::Critical, "품목없음");
}

void ItemBoxPane::ListHits() {
  inBox.SetText("");
  if (choices_.HitsOpenQuickPick) {
    SeveralHits();
  } else {
    pickList_.FillPickGrid();
  }
}

/// False when the item is refused, which the person has then been told.
bool ItemBoxPane::AddItemLine() {
  const std::string code = ItemText(item::Code);
  const std::optional<double> price = PriceOf(code);
  if (!price) {
    RefuseUnread();
    return false;
  }
  RemoveLinesOf(code);
  if (form_.NoPriceMode == 0 && AppOptions.OrderZeroPrice == 0 && *price == 0) {
    RefuseForPrice();
    return false;
  }
  InsertLine(*price);
  FLEX1.SetRow(1);
  RecalcLine(1);
  inBox.SetText("");
  return true;
}

void ItemBoxPane::InsertLine(double price) {
  const bool inUnits = choices_.UnitField != kNoField;
  const std::string unit = inUnits ? ItemText(choices_.UnitField) : "";
  FLEX1.AddItem("\t" + ItemText(item::Code) + "\t" + ItemText(item::Barcode) + "\r " +
                    ItemText(item::Name) + "\t" + ItemText(item::Standard) + "\t" +
                    ItemText(item::TaxKind) + "\t" + NumberText(price) + "\t\t" +
                    (inUnits ? unit : "1"),
                1);
  FLEX1.SetTextMatrix(1, order_line::Unit, unit);
}

/// Nothing when it could not be read.
std::optional<double> ItemBoxPane::PriceOf(const std::string& code) const {
  if (form_.NoPriceMode != 0) return 0;
  return ResolveUnitPrice(supplier_.Text1.Tag, code, FormatDateValue(Today(), "YYYY-MM-DD"), "",
                          "23", "J");
}

void ItemBoxPane::RefuseUnread() {
  inBox.SetText("");
  AddAccepted = 0;
  PriceUnread = true;
  NoteRefused(ItemText(item::Barcode), "단가 못 읽음");
  if (AddInProgress == 0) Host.Beep();
  Warn(ItemText(item::Name) + "의 단가를 읽지 못하였습니다. 다시 입력하세요.");
}

void ItemBoxPane::RefuseForPrice() {
  // The item's former line is gone for good, and a header must never count what it does not hold.
  RecalcTotals();
  inBox.SetText("");
  AddAccepted = 0;
  NoteRefused(ItemText(item::Barcode), "단가없음");
  if (AddInProgress == 0) Host.Beep();
  Warn("본부정책오류: " + ItemText(item::Name) + "의 단가가 정의되지 않았습니다.");
}

void ItemBoxPane::Warn(const std::string& text) {
  Label6.Caption = text;
  Timer1.Restart();
}

void ItemBoxPane::NoteRefused(const std::string& code, const std::string& reason) {
  refused_.insert(refused_.begin(), code + " " + reason);
  ShowRefused();
}

void ItemBoxPane::ForgetRefused() { SetRefused({}); }

void ItemBoxPane::SetRefused(std::vector<std::string> refused) {
  refused_ = std::move(refused);
  ShowRefused();
}

void ItemBoxPane::ShowRefused() {
  std::string line;
  std::string list;
  for (const std::string& code : refused_) {
    line += (line.empty() ? "" : ",  ") + code;
    list += (list.empty() ? "" : "\n") + code;
  }
  LaRefused.Visible = !refused_.empty();
  LaRefused.Caption = "거절 " + std::to_string(refused_.size()) + "건:  " + line;
  LaRefused.ToolTipText = list;
}

void ItemBoxPane::AddFromCode(const std::string& productCode) {
  AddInProgress = -1;
  PriceUnread = false;
  EnterCode(productCode);
  AddInProgress = 0;
}

void ItemBoxPane::EnterCode(const std::string& productCode) {
  inBox.SetText(productCode);
  inBox_KeyPress(Key::Enter);
}

bool ItemBoxPane::AddDraftLine(const std::string& productCode, const std::string& quantity) {
  if (!FindItem(productCode)) return false;
  AddAccepted = -1;
  PriceUnread = false;
  AddItemLine();
  if (AddAccepted == 0) return false;
  FLEX1.SetTextMatrix(1, order_line::Money.Quantity, quantity);
  RecalcLine(1);
  return true;
}

void ItemBoxPane::ApplyQuantity(int row) {
  if (choices_.OrdersInUnits && !FitsUnit(TypedQuantity(inBox.Text()), row)) {
    inBox.SetText("");
    return;
  }
  TakeQuantity(row);
}

void ItemBoxPane::TakeQuantity(int row) {
  const double quantity = TypedQuantity(inBox.Text());
  FLEX1.SetTextMatrix(row, order_line::Money.Quantity, NumberText(quantity));
  if (choices_.OrdersInUnits && quantity == 0) FLEX1.RemoveItem(row);
  RecalcLine(row);
  inBox.SetText("");
}

// An item without a unit takes no quantity, and nothing is said: there is nothing to divide by.
bool ItemBoxPane::FitsUnit(double quantity, int row) {
  FindItem(FLEX1.TextMatrix(row, order_line::Code));
  const std::string unitText = ItemText(choices_.UnitField);
  const auto unit = static_cast<std::int64_t>(std::nearbyint(ParseNumber(unitText)));
  const auto whole = static_cast<std::int64_t>(std::nearbyint(quantity));
  if (unit == 0) return false;
  if (whole % unit == 0) return true;
  Host.MsgBox(
      "해당상품은 발주단위가 [" + unitText + "] 입니다.      ", box::Critical,
      "발주단위 오류   **** 적정발주량 [" + std::to_string((whole / unit + 1) * unit) + "]  ****");
  return false;
}

void ItemBoxPane::TakeOut(const std::string& productCode) {
  RemoveLinesOf(productCode);
  RecalcTotals();
}

void ItemBoxPane::RemoveLinesOf(const std::string& productCode) {
  for (int row = FLEX1.Rows() - 1; row >= 1; --row) {
    if (FLEX1.TextMatrix(row, order_line::Code) == productCode) FLEX1.RemoveItem(row);
  }
}

void ItemBoxPane::ItemLookup_Click() {
  HELP_BPR lookup;
  Host.ShowModal(lookup);
  // The code stands behind its tax mark.
  const std::string code = MidChars(lookup.Results[0], 2);
  if (!code.empty()) AddFromCode(code);
  form_.SetFocus(inBox);
}

void ItemBoxPane::FLEX1_KeyDown(Key key) {
  if (key == Key::Delete) RemoveCurrentLine();
}

void ItemBoxPane::Timer1_Timer() {
  Timer1.Enabled = false;
  Label6.Caption.clear();
}

}  // namespace store
