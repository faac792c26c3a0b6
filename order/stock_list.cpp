#include "order/stock_list.h"

#include "basics/records.h"
#include "gateway/gateway.h"

namespace store {
namespace {

std::string StockStatement() {
  return Splice(
      "SELECT PR_CODE,SUM(BSQTY+INQTY-OTQTY) FROM IV WHERE RCT_CODE = '{store}' GROUP BY PR_CODE ",
      "store"_a = Session.StoreCode);
}

}  // namespace

void OpenStock() { OpenRecordset(SlotB, StockStatement()); }

bool FindStock(const std::string& productCode) {
  SetFilter(SlotB, Splice(" PR_CODE = '{code}'", "code"_a = productCode));
  return !AtEof(SlotB);
}

std::string StockFound() { return FieldText(SlotB, 1); }

void CloseStock() { CloseRecordset(SlotB); }

}  // namespace store
