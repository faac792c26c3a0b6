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

ItemSums ReadStock() { return {SlotB, StockStatement()}; }

}  // namespace store
