// Saving an order: the checks in their order, the header and the lines that are handed to posting.
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "order/order_form.h"
#include "slips/item_list.h"
#include "slips/slip_checks.h"
#include "slips/slip_keys.h"

namespace store {
namespace {

constexpr double kLowestConfirmingLevel = 3;

// A lower number is the higher right. An empty level reads as 0.
bool MayConfirm() {
  if (ParseNumber(Session.UserLevel) <= kLowestConfirmingLevel) return true;
  Host.MsgBox("발주확정할 수 있는 권한이 없습니다.   [3 레벨 이상에서 처리가능]", box::Critical,
              "권한");
  return false;
}

}  // namespace

void OrderForm::LaBtn_Click(int index) {
  if (index != 0 && index != 1) return;
  if (index == 1 && choices_.ConfirmNeedsRights && !MayConfirm()) return;
  // Before the checks, which would take a database that is away for a wrong supplier.
  if (!inHand_.TriesCanBeAskedFor()) {
    TellSaveFailed();
    return;
  }
  HeadValues.assign(head::OrderLast + 1, "");
  HeadValues[head::State] = choices_.StateOf(index);
  std::int16_t valid = 0;
  ValidateOrder(valid);
  if (valid == 0) return;

  if (!inHand_.Save(HeadValues, LineValues, SlipTable)) {
    TellSaveFailed();
    return;
  }
  SlipId = HeadValues[head::Id];
  SaveSucceeded();
}

/// The stored order's key, that of a try without an answer, or else a new one.
std::string OrderForm::KeyToSaveUnder() const {
  if (ParseNumber(SlipId) != 0) return SlipId;
  return inHand_.KeyOfTries().empty() ? NextSlipId(SlipTable) : inHand_.KeyOfTries();
}

void OrderForm::SaveSucceeded() {
  const int answer = Host.MsgBox("발주가 정상적으로 처리되었습니다. 계속해서 발주하시겠습니까?",
                                 box::Question + box::YesNo, "계속발주");
  if (answer != box::Yes) {
    Close();
    return;
  }
  SlipId.clear();
  ResetOrderForm();
  SetFocus(Text1);
}

void OrderForm::ValidateOrder(std::int16_t& valid) {
  valid = 0;
  if (choices_.CountsKeysAnew) SlipSeqCounter = 0;
  // The key comes before the checks: its date is the day that the document date is measured by.
  HeadValues[head::Id] = KeyToSaveUnder();
  FollowTheDay();
  HeadValues[head::Date] = DTOrderDate.Value();
  if (!CheckSlipDate(HeadValues)) return;
  FillHeader();
  if (!CheckSlipStore(HeadValues)) return;
  if (!CheckSupplier()) return;
  std::int16_t lines = 0;
  BuildOrderLines(lines);
  if (lines == 0) {
    TellNoLines();
    return;
  }
  valid = -1;
}

bool OrderForm::CheckSupplier() {
  if (choices_.CombinesSuppliers) return true;
  const std::string name = Trim(Text1.Text());
  if (!name.empty() && Trim(PartnerNameOf(HeadValues[head::ToCode])) == name) return true;
  TellWrongPartner();
  SetFocus(Text1);
  return false;
}

void OrderForm::FillHeader() {
  FillSlipHeader(HeadValues, Text1, LaAmt);
  if (choices_.CombinesSuppliers) {
    if (HeadValues[head::ToCode].empty()) HeadValues[head::ToCode] = kCombinedSupplierCode;
    if (HeadValues[head::ToName].empty()) HeadValues[head::ToName] = kCombinedSupplierName;
  }
  // One blank, not an empty text, is how head office's side knows an order that nobody filled in.
  for (size_t i = head::OrderFirstBlank; i <= head::OrderLast; ++i) HeadValues[i] = " ";
}

void OrderForm::PrepareLineArray() {
  LineValues.Clear();
  LineValues.Redim(BaseSettings.MaxSlipLines, line::OrderLast);
}

void OrderForm::BuildOrderLines(std::int16_t& count) {
  count = 0;
  PrepareLineArray();
  int number = 0;
  for (int row = 1; row < FLEX1.Rows(); ++row) {
    if (IsLine(row) && !AddOrderLine(++number, row)) return;
  }
  ToInt16(number, count);
}

bool OrderForm::AddOrderLine(int number, int row) {
  const std::string& code = FLEX1.TextMatrix(row, order_line::Code);
  if (!FindItem(code) && !choices_.SavesGoneItems) {
    Host.MsgBox("[" + code + "] 품목정보가 부족하여 \r\r 순번항목을 구성할 수 없습니다.",
                box::Critical, "품목정보오류");
    return false;
  }
  FillLine(LineValues, number, row, HeadValues, Combo1);
  // Behind the last line that the table holds nothing is taken in, and the limit is named.
  if (number > LineValues.LastRow()) return CheckLineDepot(LineValues, number);
  if (!Trim(LineValues.At(number, line::DepotCode)).empty()) return true;
  Host.MsgBox("입고될 기본하치장을 반드시 선택하세요.     ", box::Critical, "하치장선택");
  return false;
}

}  // namespace store
