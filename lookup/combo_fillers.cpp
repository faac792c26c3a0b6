#include "lookup/combo_fillers.h"

#include "basics/text.h"
#include "gateway/gateway.h"

namespace store {
namespace {

constexpr const char* kAllEntry = "*전체*      ";
constexpr int kLevelLength = 3;

std::string BaseCodeStatement(const std::string& prefix, const std::string& order) {
  return Splice(" SELECT BAS_CODE,BAS_NAME1 FROM BAS WHERE BAS_CODE LIKE '{prefix}%'  {order}",
                "prefix"_a = prefix, "order"_a = order);
}

std::string SubKindStatement(const std::string& parentId, int level) {
  return Splice(
      " SELECT KD_ID,KD_NAME FROM KIND WHERE KD_ID LIKE '{parent}%' AND KD_LVL ='{level}' ORDER BY "
      "KD_NAME ",
      "parent"_a = LeftChars(parentId, level * kLevelLength),
      "level"_a = std::to_string(level + 1));
}

constexpr const char* kTopKindStatement =
    " SELECT KD_ID,KD_NAME FROM KIND WHERE KD_LVL IN ('0','1') ORDER BY KD_LVL DESC ,KD_NAME ";

std::string DepotStatement(const std::string& storeCode) {
  return Splice(
      " SELECT HCT_CODE,HCT_NAME FROM HCT WHERE RCT_CODE = '{store}' ORDER BY HCT_BAS DESC "
      ",HCT_NAME ",
      "store"_a = storeCode);
}

void Fill(ComboBox& combo, const std::string& statement, bool all) {
  combo.Clear();
  if (all) combo.AddItem(kAllEntry);
  SqlText = statement;
  OpenRecordset(SlotA, SqlText);
  ForEachRow(SlotA, [&] { combo.AddItem(ListEntry(FieldText(SlotA, 1), FieldText(SlotA, 0))); });
  CloseRecordset(SlotA);
}

}  // namespace

void FillBaseCodes(ComboBox& combo, const std::string& prefix, bool all, const std::string& order) {
  Fill(combo, BaseCodeStatement(prefix, order), all);
}

void FillItemKinds(ComboBox& combo, const std::string& parentId, int level, bool all) {
  Fill(combo, parentId.empty() ? kTopKindStatement : SubKindStatement(parentId, level), all);
}

void FillDepots(const std::string& storeCode, ComboBox& combo, bool all) {
  if (storeCode.empty()) {
    combo.Clear();
    return;
  }
  Fill(combo, DepotStatement(storeCode), all);
}

}  // namespace store
