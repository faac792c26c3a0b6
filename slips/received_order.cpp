#include "slips/received_order.h"

#include "basics/text.h"
#include "gateway/gateway.h"
#include "gateway/guard.h"
#include "slips/slip.h"
#include "slips/slip_statements.h"

namespace store {
namespace {

std::string OrderStatement(const std::string& orderId) {
  return Splice(
      " SELECT PE_CK,PE_LINK,CONCAT(PE_SDATE),PE_TOT  FROM PEM22  WHERE PE_ID = '{order}' ",
      "order"_a = orderId);
}

std::string AsReadStatement(const OrderAsRead& order) {
  return Splice(
      " SELECT PE_ID FROM PEM22 WHERE PE_ID = '{order}' AND PE_CK = '{state}' AND "
      "IFNULL(PE_LINK,'') = '{link}' AND CONCAT(PE_SDATE) = '{stamp}' FOR UPDATE",
      "order"_a = order.Id, "state"_a = order.State, "link"_a = order.Link,
      "stamp"_a = order.Stamp);
}

}  // namespace

std::string StandOf(const OrderAsRead& order) {
  return order.State + "|" + order.Stamp + "|" + order.Total + "|" + order.Link;
}

std::optional<OrderAsRead> ReadOrder(const std::string& orderId) {
  const RecordsetSlot row = FetchRecordset(OrderStatement(orderId));
  if (AtEof(row)) return std::nullopt;
  return OrderAsRead{orderId, FieldText(row, 0), FieldText(row, 1), FieldText(row, 2),
                     BareNumber(FieldText(row, 3))};
}

std::string StillAsRead(const OrderAsRead& order) {
  return Guard(AsReadStatement(order), kOrderMoved);
}

std::string WhatHappenedTo(const OrderAsRead& order) {
  const RecordsetSlot row = FetchRecordset(OrderStatement(order.Id));
  if (!row) return std::string(kOrderMoved).append("\r입고 처리하지 않았습니다.");
  if (row->Eof()) {
    return "다른 곳에서 삭제된 발주전표입니다. 입고 처리하지 않았습니다.\r창을 닫고 발주 목록을 "
           "새로고침하세요.";
  }
  const std::string state = FieldText(row, 0);
  const std::string link = FieldText(row, 1);
  if (!Trim(link).empty() && link != order.Link) {
    return "다른 곳에서 이미 입고 처리된 전표입니다. 입고 처리하지 않았습니다.\r입고전표번호: " +
           link + "\r창을 닫고 발주 목록을 새로고침하세요.";
  }
  if (state != order.State) {
    return "다른 곳에서 [" + StateWord(order.State) + "]에서 [" + StateWord(state) +
           "](으)로 바뀐 전표입니다. 입고 처리하지 않았습니다.\r창을 닫고 전표를 다시 열어 "
           "확인하세요.";
  }
  return "다른 곳에서 고친 전표입니다. 입고 처리하지 않았습니다.\r창을 닫고 전표를 다시 열어 "
         "확인하세요.";
}

}  // namespace store
