// A new order of what a former one ordered, at the prices of today.
#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "order/order_form.h"
#include "slips/item_list.h"

namespace store {

void OrderForm::OrderAgain(const PastOrder& past) {
  const Hourglass waiting;
  Text1.SetText(past.SupplierName);
  Text1.Tag = past.SupplierCode;
  ReadSupplierScope(ItemListMoment::FormOpens);
  std::vector<RefusedLine> refused;
  if (!AddPastLines(past, refused)) {
    ResetOrderForm();
    Host.MsgBox(
        "서버에서 품목이나 단가를 읽지 못해 지난 발주를 다시 쓰지 못했습니다.\r\r창을 닫고 잠시 "
        "뒤에 다시 하세요.",
        box::Critical, "지난 발주 다시");
    return;
  }
  GiveReasons(refused);
  ForgetRefused();
  for (auto each = refused.rbegin(); each != refused.rend(); ++each) {
    NoteRefused("[" + each->Line.Code + "] " + each->Line.Name, each->Reason);
  }
  Label6.Caption.clear();
  SetFocus(inBox);
  TellLeftOut(refused);
}

/// False when items or prices cannot be read.
bool OrderForm::AddPastLines(const PastOrder& past, std::vector<RefusedLine>& refused) {
  if (!SlotC) return false;
  AddInProgress = -1;  // no line is beeped for by itself
  for (const DraftLine& line : past.Lines) {
    const bool listed = FindItem(line.Code);
    if (listed && AddDraftLine(line.Code, line.Quantity)) continue;
    if (listed && PriceUnread) break;
    refused.push_back({line, listed ? "단가 없음" : ""});
  }
  AddInProgress = 0;
  return !PriceUnread;
}

}  // namespace store
