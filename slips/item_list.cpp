#include "slips/item_list.h"

#include "basics/records.h"
#include "gateway/gateway.h"
#include "slips/slip.h"

namespace store {
namespace {

std::string ScopedItemList(const std::string& supplier, const std::string& order) {
  return Splice(
      "SELECT PR.PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR.PR_BCODE,' ',KD_ID FROM "
      "SAFEIV LEFT JOIN PR ON SAFEIV.PR_CODE = PR.PR_CODE  WHERE PR_END = '0' AND RCT_CODE = "
      "'{store}' AND CT_CODE = '{supplier}'{order}",
      "store"_a = Session.StoreCode, "supplier"_a = supplier, "order"_a = order);
}

/// What the store may order from anybody.
std::string StoreItemList() {
  return Splice(
      " SELECT PR.PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR.PR_BCODE,' ',KD_ID FROM "
      "SAFEIV LEFT JOIN PR ON SAFEIV.PR_CODE = PR.PR_CODE  WHERE PR_END = '0' AND RCT_CODE = "
      "'{store}' ",
      "store"_a = Session.StoreCode);
}

}  // namespace

std::string ItemListStatement() {
  return " SELECT PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR_BCODE,' ',KD_ID FROM PR "
         "WHERE PR_END = '0' ORDER BY PR_NAME";
}

void OpenItemList() { OpenRecordset(SlotC, ItemListStatement()); }

bool RefreshItemList() {
  RecordsetSlot list = FetchRecordset(ItemListStatement());
  if (!list) return false;
  SlotC = std::move(list);
  return true;
}

void OpenScopedItemList(const std::string& supplier, const std::string& order) {
  OpenRecordset(SlotC, ScopedItemList(supplier, order));
}

void OpenReceiptItemList(const std::string& supplier) {
  // Nothing is set up for the code that stands for several suppliers.
  OpenRecordset(SlotC, supplier == kCombinedSupplierCode
                           ? StoreItemList()
                           : Splice(" {list}", "list"_a = ScopedItemList(supplier, " ")));
}

bool FindItem(const std::string& productCode) {
  SetFilter(SlotC, Splice(" PR_CODE = '{code}'", "code"_a = productCode));
  return !AtEof(SlotC);
}

std::string ItemText(int field) { return FieldText(SlotC, field); }

}  // namespace store
