// An order once more: a new one of what the selected slip orders.
#include <optional>
#include <utility>

#include "board/frm_Start.h"
#include "forms/host.h"
#include "slips/order_suppliers.h"
#include "slips/order_types.h"
#include "slips/past_order.h"

namespace store {
namespace {

constexpr const char* kTitle = "지난 발주 다시";

void Refuse(const std::string& why) { Host.MsgBox(why, box::Critical, kTitle); }

void TellUnreadable() {
  Refuse("서버에서 읽지 못해 지난 발주를 다시 쓰지 못했습니다.\r\r잠시 뒤에 다시 하세요.");
}

/// Whether a new order can go where the former one went; its supplier then bears its name of today.
bool CanGoAgain(PastOrder& order) {
  if (order.SupplierCode.empty()) {
    if (ChosenOrderType().OrdersFromSeveral) return true;
    Refuse(
        "여러 발주처의 통합 발주라 이 발주 창에서는 다시 쓸 수 없습니다.\r\r발주처마다 새로 "
        "쓰세요.");
    return false;
  }
  const std::string former = order.SupplierName + " #" + order.SupplierCode;
  switch (LookUpSupplier(order.SupplierCode, order.SupplierName)) {
    case SupplierStand::Offered:
      return true;
    case SupplierStand::NotOffered:
      Refuse("발주처 [" + former +
             "]에는 지금 발주할 수 없습니다.\r\r거래처 목록에서 빠졌거나 발주하는 거래처가 "
             "아닙니다.");
      return false;
    case SupplierStand::Unreadable:
      break;
  }
  TellUnreadable();
  return false;
}

/// The order of a slip, ready to be written again; otherwise the person has been told.
std::optional<PastOrder> OrderToRepeat(const std::string& slipId) {
  if (slipId.empty()) {
    Refuse("다시 발주할 전표를 먼저 고르세요.");
    return std::nullopt;
  }
  std::optional<PastOrder> order = ReadPastOrder(slipId);
  if (!order) {
    TellUnreadable();
  } else if (order->SlipId.empty()) {
    Refuse("다른 곳에서 이미 삭제된 전표입니다.\r\r전표번호 " + slipId);
    order.reset();
  } else if (order->Lines.empty()) {
    Refuse("전표 " + slipId + "에는 품목이 없습니다.");
    order.reset();
  } else if (!CanGoAgain(*order)) {
    order.reset();
  }
  return order;
}

}  // namespace

void frm_Start::LaAgain_Click() {
  std::optional<PastOrder> order = OrderToRepeat(SelectedSlipId);
  if (!order) return;
  SlipForm* form = FreeSlipForm(ChosenOrderType().FormName);
  if (form == nullptr) return;
  form->SlipTable = "PEM22";
  form->OrderedBefore = std::move(order);
  Host.Show(*form);
}

}  // namespace store
