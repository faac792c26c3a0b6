#include "receipt/frm_PE_UNIT.h"

#include <memory>

#include "basics/dates.h"
#include "basics/formats.h"
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "slips/depot_choice.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kYellow = 0xFFFF00;

}  // namespace

frm_PE_UNIT::frm_PE_UNIT() : SlipForm("frm_PE_UNIT") {
  Caption = "매입전표작성";
  Text1.Enabled = false;
  DTOrderDate.Enabled = false;
  Text4.Visible = false;
  Command1[1].Caption = "입고확정";
  Command1[0].Visible = false;
  SetUpGrid();
  DTPicker1.Change = [this] { DTPicker1_Change(); };
  TabOrder = {&DTPicker1, &Combo1, &inBox, &FLEX1, &Command1[1]};
}

void frm_PE_UNIT::SetUpGrid() {
  FLEX1.SetColumns({
      {.Header = "No.", .Width = 435, .Alignment = Align::Center},
      {.Header = "품목코드", .Width = 810, .Alignment = Align::Left},
      {.Header = "품명", .Width = 2055, .Alignment = Align::Left},
      {.Header = "규격", .Width = 1620, .Alignment = Align::Left},
      {.Header = "세액구분", .Width = 945, .Alignment = Align::Left, .Hidden = true},
      {.Header = "단가", .Width = 975, .Alignment = Align::Right},
      {.Header = "발주량", .Width = 810, .Alignment = Align::Right},
      {.Header = "출고량", .Width = 810, .Alignment = Align::Right},
      {.Header = "입고량", .Width = 810, .Alignment = Align::Right},
      {.Header = "공급가액", .Width = 1200, .Alignment = Align::Right},
      {.Header = "부가세액", .Width = 1170, .Alignment = Align::Right},
      {.Header = "합계금액", .Width = 1245, .Alignment = Align::Right},
      {.Header = "비고", .Width = 900, .Alignment = Align::Left},
  });
}

void frm_PE_UNIT::Load() {
  FLEX1.Column(receipt::Price).Format = FormatPrice;
  for (const int col : {receipt::Ordered, receipt::Shipped, receipt::Received}) {
    FLEX1.Column(col).Format = FormatQty;
  }
  for (const int col : {receipt::Supply, receipt::Tax, receipt::Money.Sum}) {
    FLEX1.Column(col).Format = FormatAmount;
  }
  CopyDepots(Combo1);
  DTPicker1.SetValue(FormatDateValue(Today(), "yyyy-mm-dd"));
  Text4.SetText(DTPicker1.Value());
}

void frm_PE_UNIT::Activate() {
  if (activated_) return;
  activated_ = true;
  Host.DoEvents();
  if (!SlipId.empty()) LoadReceiptSlip(SlipId);
  for (int row = 1; row < FLEX1.Rows(); ++row) {
    FLEX1.SetLook(row, receipt::Received, {.BackColor = kYellow, .Bold = true});
  }
  if (AppOptions.OrderInfoPartnersOnly == 1) OpenScopedItemList(Text1.Tag);
  SetFocus(inBox);
}

bool frm_PE_UNIT::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void frm_PE_UNIT::DTPicker1_Change() { Text4.SetText(DTPicker1.Value()); }

void frm_PE_UNIT::Label4_Click() { Close(); }

void RegisterReceiptForms() {
  RegisterForm("frm_PE_UNIT", [] { return std::make_unique<frm_PE_UNIT>(); });
}

}  // namespace store
