#include "receipt/frm_PE_UNIT.h"

#include <memory>

#include "basics/dates.h"
#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "lookup/export_grid.h"
#include "lookup/print_slip.h"
#include "slips/depot_choice.h"
#include "slips/draft_fate.h"
#include "slips/item_list.h"
#include "slips/order_types.h"

namespace store {
namespace {

constexpr int kYellow = 0xFFFF00;

/// Fields of the order statement behind the thirteen of a row.
enum OrderField {
  kPartnerCode = 13,
  kPartnerName = 14,
  kOrderDate = 15,
  kSupply = 16,
  kTax = 17,
  kTotal = 18,
  kDepotCode = 20,
  kDepotName = 21,
};

std::string ReceivedOrderStatement(const std::string& orderId) {
  return Splice(
      " SELECT PSM22.PS_NO,PSM22.PR_CODE,PSM22.PR_NAME,PSM22.PR_STD,PSM22.PS_TAXGU,PSM22.PS_UP,"
      "PS_SQTY,PS_EQTY,0 as inqty,PS_AMT,PS_TAX,PS_AMT+PS_TAX,PR.PR_BCODE,         "
      "PEM22.PE_TCTCODE,PEM22.PE_TCTNAME,PEM22.PE_PDATE,PEM22.PE_AMT,PEM22.PE_TAX,PEM22.PE_TOT,"
      "PEM22.PE_CK,PSM22.PS_HCTCODE,PSM22.PS_HCTNAME  FROM (PEM22 LEFT JOIN PSM22 ON PEM22.PE_ID = "
      "PSM22.PE_ID) LEFT JOIN PR ON PSM22.PR_CODE = PR.PR_CODE  WHERE PEM22.PE_ID = '{order}' "
      "ORDER BY "
      "PSM22.PS_NO DESC ",
      "order"_a = orderId);
}

}  // namespace

frm_PE_UNIT::frm_PE_UNIT()
    : SlipForm("frm_PE_UNIT"), LinesPane(*this, receipt::Money, BoxKeys::StayInBox) {
  Caption = "매입전표작성";
  Text1.Enabled = false;
  DTOrderDate.Enabled = false;
  Command1[1].Caption = "입고확정";
  SetUpGrid();
  PublishControls();
  TabOrder = {&DTPicker1, &Combo1, &inBox, &FLEX1, &Command1[1]};
}

void frm_PE_UNIT::PublishControls() {
  Publish("Text1", Text1);
  Publish("DTOrderDate", DTOrderDate);
  Publish("DTPicker1", DTPicker1);
  Publish("Combo1", Combo1);
  Publish("Command1_1", Command1[1]);
  Publish("Label4", Label4);
  Publish("LaSheet", LaSheet);
  DTPicker1.Change = [this] { DTPicker1_Change(); };
  inBox.KeyDown = [this](Key key) {
    inBox_KeyDown(key);
    inBox_KeyPress(key);
  };
  inBox.Scan = [this](const std::string& code) { inBox_Scan(code); };
  FLEX1.KeyDown = [this](Key key) { FLEX1_KeyDown(key); };
  FLEX1.OwnKeys = {Key::F12};
  Command1[1].Click = [this] { Command1_Click(1); };
  Label4.Click = [this] { Label4_Click(); };
  Combo1.Click = [this] { NoteDraft(); };
  LinesChanged = [this] { NoteDraft(); };
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
  FLEX1.Column(receipt::Money.Price).Format = FormatPrice;
  for (const int col : {receipt::Ordered, receipt::Shipped, receipt::Received}) {
    FLEX1.Column(col).Format = FormatQty;
  }
  for (const int col : {receipt::Money.Supply, receipt::Money.Tax, receipt::Money.Sum}) {
    FLEX1.Column(col).Format = FormatAmount;
  }
  CopyDepots(Combo1);
  GiveTodaysDate();
}

void frm_PE_UNIT::GiveTodaysDate() {
  givenDate_ = FormatDateValue(Today(), "yyyy-mm-dd");
  DTPicker1.SetValue(givenDate_);
  Text4.SetText(givenDate_);
}

void frm_PE_UNIT::Activate() {
  if (activated_) return;
  activated_ = true;
  Host.DoEvents();
  if (!SlipId.empty()) LoadReceiptSlip(SlipId);
  for (int row = 1; row < FLEX1.Rows(); ++row) {
    FLEX1.SetLook(row, receipt::Received, {.BackColor = kYellow, .Bold = true});
  }
  if (AppOptions.OrderInfoPartnersOnly == 1) OpenReceiptItemList(Text1.Tag);
  SetFocus(inBox);
  StartDraft();
}

void frm_PE_UNIT::Unload() { draft_.Closed(); }

bool frm_PE_UNIT::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void frm_PE_UNIT::DTPicker1_Change() {
  Text4.SetText(DTPicker1.Value());
  NoteDraft();
}

void frm_PE_UNIT::Label4_Click() { Close(); }

void frm_PE_UNIT::PrintStored() { PrintSlip(SlipId); }

// What the confirmation will be held against is read before the lines: a change in between then
// stops it.
void frm_PE_UNIT::LoadReceiptSlip(const std::string& orderId) {
  const std::optional<OrderAsRead> order = ReadOrder(orderId);
  if (!order) return;
  order_ = *order;
  const bool read = LoadLines(
      ReceivedOrderStatement(orderId), [this] { LoadReceiptHeader(); },
      [this] { LoadReceiptLine(); });
  if (!read) order_ = {};
}

void frm_PE_UNIT::LoadReceiptHeader() {
  Text1.Tag = FieldText(SlotA, kPartnerCode);
  Text1.SetText(FieldText(SlotA, kPartnerName));
  DTOrderDate.SetValue(FieldText(SlotA, kOrderDate));
  Combo1.SetText(ListEntry(FieldText(SlotA, kDepotName), FieldText(SlotA, kDepotCode)));
  ShowTotals(FieldText(SlotA, kTotal), FieldText(SlotA, kSupply), FieldText(SlotA, kTax));
}

void frm_PE_UNIT::LoadReceiptLine() {
  std::string row;
  for (int field = 0; field <= receipt::Barcode; ++field) {
    if (field > 0) row += "\t";
    if (field == receipt::Name) row += FieldText(SlotA, receipt::Barcode) + "\r";
    // What was shipped is proposed as what has come.
    row += FieldText(SlotA, field == receipt::Received ? receipt::Shipped : field);
  }
  FLEX1.AddItem(row);
  RecalcLine(FLEX1.Rows() - 1);
}

void frm_PE_UNIT::FLEX1_KeyDown(Key key) {
  if (key == Key::F12) ExportGrid(FLEX1, Caption, LaSheet);
}

void frm_PE_UNIT::inBox_KeyPress(Key key) {
  if (key != Key::Enter || TakesCode(Trim(inBox.Text()))) return;
  if (FLEX1.Row() >= 1) AcceptReceivedQty(FLEX1.Row());
}

void frm_PE_UNIT::AcceptReceivedQty(int row) {
  const double quantity = TypedQuantity(inBox.Text());
  const double ordered = ParseGrouped(FLEX1.TextMatrix(row, receipt::Ordered));
  if (ordered < quantity && !ChosenOrderType().ReceivesMore) {
    Host.MsgBox("발주량보다 입고량이 많습니다.                  ", box::Critical, "정책오류");
    inBox.SetText("");
    return;
  }
  FLEX1.SetTextMatrix(row, receipt::Received, NumberText(quantity));
  RecalcLine(row);
  inBox.SetText("");
}

void RegisterReceiptForms() {
  RegisterForm("frm_PE_UNIT", [] { return std::make_unique<frm_PE_UNIT>(); });
}

}  // namespace store
