#include "order/order_form.h"

#include "basics/dates.h"
#include "basics/records.h"
#include "forms/host.h"
#include "slips/depot_choice.h"
#include "slips/item_list.h"
#include "slips/slip_form.h"

namespace store {

OrderForm::OrderForm(const OrderTypeChoices& choices)
    : SlipForm(choices.FormName), choices_(choices) {
  Caption = choices.Caption;
  Text4.SetText("2002-08-08");
  Text4.Visible = false;
  inBox.ToolTipText = "(,) + (찾는문자열) = 품목찾기       (.) + (찾는문자열) = 규격찾기 ";
  Timer1.Interval = 5000;
  PRGHP.Visible = false;
  SetUpGrids();
  Text1.Change = [this] { Text1_Change(); };
  DTOrderDate.Change = [this] { DTOrderDate_Change(); };
  FLEX2.RowColChange = [this] { FLEX2_RowColChange(); };
  TabOrder = {&DTOrderDate, &Combo1, &Text1, &inBox, &FLEX1, &PRHELP, &FLEX2};
}

void OrderForm::SetUpGrids() {
  FLEX1.SetColumns({
      {.Header = "No.", .Width = 330, .Alignment = Align::Center},
      {.Header = "품목코드", .Width = 810, .Alignment = Align::Left, .Hidden = true},
      {.Header = "품명", .Width = 2055, .Alignment = Align::Left},
      {.Header = "규격", .Width = 1620, .Alignment = Align::Left, .Hidden = true},
      {.Header = "세액구분", .Width = 1290, .Alignment = Align::Left, .Hidden = true},
      {.Header = "단가", .Width = 855, .Alignment = Align::Right, .Format = "#,###.##"},
      {.Header = "최소발주", .Width = 810, .Alignment = Align::Right, .Hidden = true},
      {.Header = "발주량", .Width = 840, .Alignment = Align::Right, .Format = "#,###.##"},
      {.Header = "공급가액", .Width = 1095, .Alignment = Align::Right, .Format = "#,###"},
      {.Header = "부가세액", .Width = 1035, .Alignment = Align::Right, .Format = "#,###"},
      {.Header = "합계금액", .Width = 900, .Alignment = Align::Right},
  });
  FLEX2.SetColumns(choices_.PickColumns);
  FLEX2.EditableColumn = choices_.PickEntryColumn;
  PRHELP.SetColumns({{.Width = 1800}, {.Width = 1800}, {.Width = 1800}}, 0);
  std::vector<GridColumn> days(32, {.Width = 495, .Alignment = Align::Center});
  for (int day = 1; day <= 31; ++day) days[static_cast<size_t>(day)].Header = std::to_string(day);
  PRGHP.SetColumns(std::move(days));
}

void OrderForm::Load() { ResetOrderForm(); }

void OrderForm::Activate() {
  if (activated_) return;
  activated_ = true;
  Host.DoEvents();
  if (!SlipId.empty()) LoadOrderSlip(SlipId);
  if (AppOptions.OrderInfoPartnersOnly == 1) OpenScopedItemList(Text1.Tag);
  FillKindGrid(PRHELP, 1, "");
  CopyDepots(Combo1);
  Combo1.SetListIndex(0);
  SetFocus(Text1);
}

void OrderForm::ResetOrderForm() {
  FLEX1.SetRows(1);
  Text1.SetText("");
  Text1.Tag.clear();
  inBox.SetText("");
  LaSatae.Caption.clear();
  const std::string today = FormatDateValue(Today(), "yyyy-mm-dd");
  DTOrderDate.SetValue(today);
  Text4.SetText(today);
  for (Label& amount : LaAmt) amount.Caption = "0";
}

bool OrderForm::HoldsWork() const {
  if (!inBox.Enabled) return false;  // a slip that is only looked at cannot be saved
  if (SlipId.empty()) return !Text1.Text().empty() || FLEX1.Rows() > 1;
  return FLEX1.Revision() != loadedLines_ || DTOrderDate.Value() != loadedDate_ ||
         Combo1.ListIndex() > 0;
}

void OrderForm::SetOrderEditable(std::int16_t editable) {
  const bool enabled = editable != 0;
  for (Control* control : std::initializer_list<Control*>{&LaCTHELP, &Text1, &DTOrderDate, &Combo1,
                                                          &inBox, &FLEX2, &LaBtn[0], &LaBtn[1]}) {
    control->Enabled = enabled;
  }
}

bool OrderForm::KeyDown(Key key) {
  switch (key) {
    case Key::Escape:
      Close();
      return true;
    case Key::F4:
      if (ActiveControl != &FLEX2) return false;
      FLEX2_KeyDown(key);
      return true;
    case Key::F5:
      SetHistoryWidths(100, 212.223);
      return true;
    case Key::F6:
      SetHistoryWidths(495, 975.464);
      return true;
    default:
      return false;
  }
}

void OrderForm::DTOrderDate_Change() { Text4.SetText(DTOrderDate.Value()); }

void OrderForm::Label5_Click(int index) {
  if (index == 0) {
    Close();
  } else if (index == 1) {
    if (MainWindow* board = TheMainWindow()) Host.Hide(*board);
    Host.Minimize(*this);
  }
}

void OrderForm::Timer1_Timer() {
  Timer1.Enabled = false;
  Label6.Caption.clear();
}

void OrderForm::Unload() {
  if (MainWindow* board = TheMainWindow()) Host.Show(*board);
}

}  // namespace store
