// Confirming a receipt: the checks in their order, the slip that is handed to posting.
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/item_list.h"
#include "slips/post_receipt.h"
#include "slips/slip_checks.h"
#include "slips/slip_keys.h"

namespace store {
namespace {

StoredOnce& WorkOn(const std::string& orderId) { return WorkNamed("receipt of " + orderId); }

}  // namespace

void frm_PE_UNIT::Command1_Click(int index) {
  if (index != 1) return;
  if (Host.MsgBox("입고확정처리 하시겠습니까?           ", box::Question + box::YesNo,
                  "입고확정") != box::Yes) {
    return;
  }
  // A confirmation before this one, perhaps in a window closed since, may have lost its answer.
  if (const std::optional<Fate> earlier = WorkOn(SlipId).FateOfEarlier(WhatIsEntered())) {
    TellFate(*earlier);
    return;
  }
  HeadValues.assign(head::PostedLast + 1, "");
  std::int16_t valid = 0;
  ValidateReceipt(valid);
  if (valid != 0) TellFate(Post());
}

Fate frm_PE_UNIT::Post() {
  return WorkOn(SlipId).Send(
      [this] { return PostReceipt(HeadValues, LineValues, SlipTable, StillAsRead(order_)) != 0; },
      {.Trace = ReceiptTrace(HeadValues, LineValues, SlipTable), .Content = WhatIsEntered()});
}

void frm_PE_UNIT::TellFate(Fate fate) {
  if (fate == Fate::Stored) {
    draft_.Saved();
    Host.MsgBox("입고처리가 정상적으로 처리되었습니다.", box::Information, "입고완료");
    Close();
  } else if (fate != Fate::StoredOther && LastErrorText == kOrderMoved) {
    Host.MsgBox(WhatHappenedTo(order_), box::Critical, "입고전표확인");
  } else {
    SlipSeqCounter = 0;  // the key may be taken: the next one is read afresh
    Host.MsgBox(FateText(fate), box::Question, "오류");
  }
}

/// All that a clerk decides about the receipt.
std::string frm_PE_UNIT::WhatIsEntered() const {
  std::string entered = DTPicker1.Value() + "\t" + Combo1.Text();
  for (int row = 1; row < FLEX1.Rows(); ++row) {
    entered += "\n" + FLEX1.TextMatrix(row, receipt::Code) + "\t" +
               FLEX1.TextMatrix(row, receipt::Received);
  }
  return entered;
}

void frm_PE_UNIT::ValidateReceipt(std::int16_t& valid) {
  valid = 0;
  // A date that nobody has chosen is the day of the confirmation, however long the window stands
  // open.
  if (DTPicker1.Value() == givenDate_) GiveTodaysDate();
  HeadValues[head::Id] = NextSlipId(SlipTable);
  HeadValues[head::State] = "1";
  HeadValues[head::Date] = DTPicker1.Value();
  if (!CheckSlipDate(HeadValues)) return;
  FillHeader();
  if (!CheckSlipStore(HeadValues)) return;
  if (Trim(HeadValues[head::ToName]).empty()) {
    TellWrongPartner();
    return;
  }
  std::int16_t lines = 0;
  BuildReceiptLines(lines);
  if (lines == 0) {
    TellNoLines();
    return;
  }
  valid = -1;
}

void frm_PE_UNIT::FillHeader() {
  FillSlipHeader(HeadValues, Text1, LaAmt);
  HeadValues[head::Unpaid] = "0";
  HeadValues[head::Extra] = "0";
  HeadValues[head::Discount] = "0";
  HeadValues[head::PayKind] = "E005";
  HeadValues[head::Accounting] = " ";
  HeadValues[head::Manager] = " ";
  HeadValues[head::Memo] = " ";
  HeadValues[head::PostedUser] = Session.UserCode;
  HeadValues[head::Project] = " ";
  HeadValues[head::Link] = SlipId;
}

void frm_PE_UNIT::PrepareReceiptLines() {
  LineValues.Clear();
  LineValues.Redim(BaseSettings.MaxSlipLines, line::PostedLast);
  for (int row = 1; row <= LineValues.LastRow(); ++row) {
    LineValues.Set(row, line::Number, std::to_string(row));
    for (int column = line::Quantity; column <= line::Tax; ++column) {
      LineValues.Set(row, column, "0");
    }
    LineValues.Set(row, line::User, Session.UserCode);
  }
}

bool frm_PE_UNIT::RowIsReceived(int row) const {
  if (!IsLine(row)) return false;
  if (AppOptions.SkipZeroReceipt == 0) return true;
  return AppOptions.SkipZeroReceipt == 1 &&
         ParseGrouped(FLEX1.TextMatrix(row, receipt::Received)) != 0;
}

void frm_PE_UNIT::BuildReceiptLines(std::int16_t& count) {
  count = 0;
  PrepareReceiptLines();
  int number = 0;
  for (int row = 1; row < FLEX1.Rows(); ++row) {
    if (RowIsReceived(row) && !AddReceiptLine(++number, row)) return;
  }
  ToInt16(number, count);
}

bool frm_PE_UNIT::AddReceiptLine(int number, int row) {
  if (!FindItem(Trim(FLEX1.TextMatrix(row, receipt::Code)))) {
    Host.MsgBox("[" + FLEX1.TextMatrix(row, receipt::Name) +
                    " ] 상품의 발주단가정보에서 오류가 발생하였습니다. \r\r 다시 시도하여주세요.  "
                    "지속적인 문제발생시 본사단가정책담당자에게 문의바랍니다. ",
                box::Critical, "단가정책오류");
    return false;
  }
  FillLine(LineValues, number, row, HeadValues, Combo1);
  return CheckLineDepot(LineValues, number);
}

}  // namespace store
