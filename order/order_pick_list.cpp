// The pick list: items of a search or a category, with a quantity column to type into.
#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "order/order_form.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kYellow = 0xFFFF00;
constexpr int kLongestEntry = 6;  // characters

}  // namespace

void OrderForm::FillPickGrid() {
  FLEX2.SetRows(1);
  for (; !AtEof(SlotC); SlotC->MoveNext()) {
    FLEX2.AddItem(ItemText(item::Code) + "\t\t\t" + ItemText(item::Barcode) + "\t" +
                  ItemText(item::Name) + "\t" + ItemText(item::Standard));
  }
  for (int row = 1; row < FLEX2.Rows(); ++row) {
    FLEX2.SetBackColor(row, choices_.PickEntryColumn, kYellow);
  }
}

bool OrderForm::FLEX2_BeforeEdit(int row, int col) {
  return row >= 1 && col == choices_.PickEntryColumn;
}

void OrderForm::FLEX2_RowColChange() {
  const int row = FLEX2.Row();
  FLEX2.ToolTipText = "[" + FLEX2.TextMatrix(row, 3) + "]    " + FLEX2.TextMatrix(row, 4) +
                      "        " + FLEX2.TextMatrix(row, 5);
}

void OrderForm::FLEX2_AfterEdit(int /*row*/, int /*col*/) {
  const int row = FLEX2.Row();
  const int entryColumn = choices_.PickEntryColumn;
  if (CharLength(FLEX2.TextMatrix(row, entryColumn)) > kLongestEntry) {
    Host.MsgBox("999,999개 이상 발주할 수 없습니다.     ", box::Critical, "발주량 체크");
    FLEX2.SetTextMatrix(row, entryColumn, "");
    return;
  }
  if (ParseGrouped(FLEX2.TextMatrix(row, entryColumn)) == 0) return;
  AddFromCode(FLEX2.TextMatrix(row, 0));
  // Also when the item was refused for its price: the quantity then lands on the top line.
  inBox.SetText(FLEX2.TextMatrix(row, entryColumn));
  if (FLEX1.Row() >= 1) ApplyQuantity(1);
}

void OrderForm::FLEX2_KeyDown(Key key) {
  const std::string code = FLEX2.TextMatrix(FLEX2.Row(), 0);
  if (key == Key::F4 && FLEX2.Row() >= 1 && !code.empty()) ShowHistory(code);
}

void OrderForm::PRHELP_Click(int row, int col) {
  const std::string kindId = Trim(RightChars(PRHELP.TextMatrix(row, col), 20));
  const std::string topLevel = LeftChars(kindId, 3);
  if (topLevel.empty()) return;
  SetFilter(SlotC, Splice(" KD_ID LIKE '{0}%'", {topLevel}));
  FillPickGrid();
}

}  // namespace store
