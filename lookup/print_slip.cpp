#include "lookup/print_slip.h"

#include "forms/host.h"
#include "gateway/gateway.h"
#include "lookup/frmPrint.h"
#include "slips/printed_slip.h"

namespace store {
namespace {

void Tell(const std::string& text) { Host.MsgBox(text, box::Critical, "인쇄"); }

/// Whether the slip can be printed; tells what stands against it.
bool IsWhole(const std::optional<PrintedSlip>& slip, const std::string& slipId) {
  if (!slip) {
    Tell("전표를 읽지 못하여 인쇄하지 않았습니다.\r\r MSG: " + LastErrorText);
  } else if (slip->Id.empty()) {
    Tell("전표가 없습니다. 다른 곳에서 삭제되었을 수 있습니다.\r\r전표번호 " + slipId);
  } else if (slip->Lines.empty()) {
    Tell("품목이 없는 전표라 인쇄하지 않았습니다.\r\r전표번호 " + slipId);
  } else {
    return true;
  }
  return false;
}

void Show(const PrintedSlip& slip) {
  frmPrint preview;
  preview.Document = DocumentOf(slip);
  Host.ShowModal(preview);
}

void ShowReceipt(const std::string& receiptId) {
  const std::optional<PrintedSlip> receipt = ReadPrintedReceipt(receiptId);
  if (IsWhole(receipt, receiptId)) Show(*receipt);
}

/// The order, once it can be printed.
std::optional<PrintedSlip> OrderToPrint(const std::string& orderId) {
  if (orderId.empty()) {
    Tell("인쇄할 전표를 먼저 고르세요.");
    return std::nullopt;
  }
  std::optional<PrintedSlip> order = ReadPrintedOrder(orderId);
  if (!IsWhole(order, orderId)) order.reset();
  return order;
}

}  // namespace

void PrintSlip(const std::string& orderId) {
  const std::optional<PrintedSlip> order = OrderToPrint(orderId);
  if (!order) return;
  if (order->Link.empty()) {
    Show(*order);
  } else {
    ShowReceipt(order->Link);
  }
}

void PrintReceipt(const std::string& orderId) {
  const std::optional<PrintedSlip> order = OrderToPrint(orderId);
  if (!order) return;
  if (order->Link.empty()) {
    Tell("아직 입고하지 않은 전표입니다.\r\r전표번호 " + orderId);
  } else {
    ShowReceipt(order->Link);
  }
}

}  // namespace store
