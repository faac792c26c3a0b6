#include "slips/item_list.h"

#include "basics/records.h"
#include "gateway/gateway.h"

namespace store {
namespace {

std::string ScopedItemList(const std::string& supplier) {
  return Splice(
      "SELECT PR.PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR.PR_BCODE,' ',KD_ID FROM "
      "SAFEIV LEFT JOIN PR ON SAFEIV.PR_CODE = PR.PR_CODE  WHERE PR_END = '0' AND RCT_CODE = "
      "'{store}' "
      "AND CT_CODE = '{supplier}' ",
      "store"_a = Session.StoreCode, "supplier"_a = supplier);
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

void OpenScopedItemList(const std::string& supplier) {
  OpenRecordset(SlotC, ScopedItemList(supplier));
}

void OpenReceiptItemList(const std::string& supplier) {
  OpenRecordset(SlotC, Splice(" {list}", "list"_a = ScopedItemList(supplier)));
}

bool FindItem(const std::string& productCode) {
  SetFilter(SlotC, Splice(" PR_CODE = '{code}'", "code"_a = productCode));
  return !AtEof(SlotC);
}

std::string ItemText(int field) { return FieldText(SlotC, field); }

}  // namespace store
