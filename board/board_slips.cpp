// What can be done with a slip from the board.
#include "basics/records.h"
#include "basics/text.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "lookup/print_slip.h"
#include "slips/order_types.h"
#include "slips/slip.h"
#include "slips/slip_form.h"

namespace store {
namespace {

std::string FindSlipStatement(const std::string& slipId) {
  return Splice(" SELECT PEM22.PE_CK,PEM22.PE_ID  FROM PEM22  WHERE PEM22.PE_ID = '{slip}'  ",
                "slip"_a = slipId);
}

SlipForm* SlipFormNamed(const std::string& name) { return dynamic_cast<SlipForm*>(TheForm(name)); }

/// The order form of the workstation's order type, made anew for another slip.
SlipForm* FreeOrderForm() { return FreeSlipForm(ChosenOrderType().FormName); }

}  // namespace

void frm_Start::SelectSlip() {
  const bool marked = FLEX1.Row() >= 1;
  SelectedSlipId = marked ? FLEX1.TextMatrix(FLEX1.Row(), board::SlipId) : "";
  SelectedSlipState = marked ? FLEX1.TextMatrix(FLEX1.Row(), board::State) : "";
}

void frm_Start::FLEX1_Click() {
  if (FLEX1.Row() < 1) return;
  SelectSlip();
  if (FLEX1.Col() == board::Confirm) OpenSlip(SelectedSlipId, SelectedSlipState);
}

void frm_Start::FLEX1_RowColChange() {
  // F8 deletes the selected slip, so the selection is the highlighted row, however it got there.
  if (FLEX1.Row() >= 1) SelectSlip();
}

void frm_Start::FLEX1_DblClick() {
  if (FLEX1.Row() < 1) return;
  SelectSlip();
  OpenSlip(SelectedSlipId, SelectedSlipState);
}

void frm_Start::FLEX1_KeyDown(Key key) {
  if (key == Key::F4) Image5_Click();
  if (key == Key::Enter) FLEX1_DblClick();
}

void frm_Start::OpenSlip(const std::string& slipId, const std::string& stateWord) {
  if (stateWord == kWordShipped || stateWord == kWordApproved) {
    OpenReceipt(slipId);
    return;
  }
  SlipForm* order = FreeOrderForm();
  if (order == nullptr) return;
  order->SlipId = slipId;
  order->SlipTable = "PEM22";
  Host.Show(*order);
}

void frm_Start::OpenReceipt(const std::string& slipId) {
  SlipForm* receipt = SlipFormNamed("frm_PE_UNIT");
  if (receipt == nullptr) return;
  receipt->SlipId = slipId;
  receipt->SlipTable = "PEM23";
  ShowReceipt(*receipt);
}

void frm_Start::ShowReceipt(SlipForm& receipt) {
  lastForReceipt_ = receipt.SlipId;
  Host.ShowModal(receipt);
  RefreshBoard();
}

void frm_Start::PrintSelected() { PrintSlip(SelectedSlipId); }

void frm_Start::PrintLastReceipt() { PrintReceipt(lastForReceipt_); }

void frm_Start::NewOrder(int buttonIndex) {
  SlipForm* order = FreeOrderForm();
  if (order == nullptr) return;
  order->NoPriceMode = static_cast<std::int16_t>(buttonIndex);
  order->SlipTable = "PEM22";
  Host.Show(*order);
}

void frm_Start::Text2_KeyPress(Key key) {
  if (key == Key::Enter) FindSlip();
}

void frm_Start::FindSlip() {
  SqlText = FindSlipStatement(Trim(Text2.Text()));
  OpenRecordset(SlotA, SqlText);
  const std::string slipId = FieldText(SlotA, 1);
  CloseRecordset(SlotA);
  FLEX1.SetRow(RowOf(slipId));  // the slip that is named is the one that is marked
  SelectedSlipId = slipId;
  Text2.SetText("");
  if (slipId.empty()) {
    SelectedSlipState.clear();
    Host.MsgBox(
        "해당전표는 [본부승인] 또는 [물류출고]완료되지 않은 전표이거나 \r\r 전표를 찾을 수 "
        "없습니다.",
        box::Critical, "전표확인");
    return;
  }
  // Whatever its state, a slip that was found goes to the receipt form, which refuses by itself
  // what may not be received.
  SelectedSlipState = kWordShipped;
  OpenSlip(SelectedSlipId, SelectedSlipState);
}

}  // namespace store
