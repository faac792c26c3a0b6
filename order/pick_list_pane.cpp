#include "order/pick_list_pane.h"

#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kYellow = 0xFFFF00;
constexpr int kLongestEntry = 6;  // characters

}  // namespace

PickListPane::PickListPane(Form& form, const OrderTypeChoices& choices)
    : form_(form), columns_(choices.Pick) {
  form.Publish("FLEX2", FLEX2);
  FLEX2.SetColumns(choices.PickGrid);
  FLEX2.RowColChange = [this] { FLEX2_RowColChange(); };
  FLEX2.BeforeEdit = [this](int row, int col) { return FLEX2_BeforeEdit(row, col); };
  FLEX2.AfterEdit = [this](int row, int col) { FLEX2_AfterEdit(row, col); };
  FLEX2.KeyDown = [this](Key key) { FLEX2_KeyDown(key); };
  FLEX2.OwnKeys = {Key::F4};
}

void PickListPane::FillPickGrid() {
  FLEX2.SetRows(1);
  std::string row;
  ForEachRow(SlotC, [&] {
    row = ItemText(item::Code);
    row.append("\t\t\t").append(ItemText(item::Barcode)).append("\t");
    row.append(ItemText(item::Name)).append("\t").append(ItemText(item::Standard));
    FLEX2.AddItem(row);
  });
  for (int line = 1; line < FLEX2.Rows(); ++line) FLEX2.SetBackColor(line, columns_.Entry, kYellow);
}

void PickListPane::WalkToPickList() {
  form_.SetFocus(FLEX2);
  if (FLEX2.Row() == 0) FLEX2.SetRow(1);
}

bool PickListPane::FLEX2_BeforeEdit(int row, int col) { return row >= 1 && col == columns_.Entry; }

void PickListPane::FLEX2_RowColChange() {
  const int row = FLEX2.Row();
  FLEX2.ToolTipText = "[" + FLEX2.TextMatrix(row, columns_.Barcode) + "]    " +
                      FLEX2.TextMatrix(row, columns_.Name) + "        " +
                      FLEX2.TextMatrix(row, columns_.Standard);
}

void PickListPane::FLEX2_AfterEdit(int /*row*/, int /*col*/) {
  const int row = FLEX2.Row();
  const std::string entry = FLEX2.TextMatrix(row, columns_.Entry);
  if (CharLength(entry) > kLongestEntry) {
    Host.MsgBox("999,999개 이상 발주할 수 없습니다.     ", box::Critical, "발주량 체크");
    FLEX2.SetTextMatrix(row, columns_.Entry, "");
    return;
  }
  if (ParseGrouped(entry) != 0) QuantityEntered(FLEX2.TextMatrix(row, columns_.Code), entry);
}

void PickListPane::FLEX2_KeyDown(Key key) {
  const int row = FLEX2.Row();
  const std::string code = FLEX2.TextMatrix(row, columns_.Code);
  if (key == Key::F4 && row >= 1 && !code.empty()) {
    HistoryWanted(code, FLEX2.TextMatrix(row, columns_.Name));
  }
}

}  // namespace store
