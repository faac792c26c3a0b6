#include "order/selection_pane.h"

#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "order/kind_pane.h"

namespace store {
namespace {

constexpr int kColumns = 4;

std::string SelectableKinds() {
  return Splice(
      "SELECT DISTINCT KIND.KD_ID,KIND.KD_NAME FROM  (KIND RIGHT JOIN PR ON  KIND.KD_ID = "
      "PR.KD_ID)  RIGHT JOIN SAFEIV ON SAFEIV.PR_CODE = PR.PR_CODE    WHERE  KD_LVL >= '1' AND "
      "SAFEIV.RCT_CODE = '{store}'  and ord_up <> 0 ORDER BY KD_NAME ",
      "store"_a = Session.StoreCode);
}

std::string SelectableSuppliers() {
  return Splice(
      "SELECT DISTINCT CT.CT_CODE,CT.CT_NAME FROM  CT  RIGHT JOIN SAFEIV ON SAFEIV.CT_CODE = "
      "CT.CT_CODE    WHERE  SAFEIV.RCT_CODE = '{store}' AND (CT.CT_CODE IS NOT NULL AND CT.CT_CODE "
      "<> '') and ord_up <> 0   ORDER BY CT.CT_NAME ",
      "store"_a = Session.StoreCode);
}

std::string UpperCondition(const std::string& upperCode) {
  if (upperCode.empty()) return "";
  return Splice(" AND KIND.KD_ID LIKE '{upper}%' ", "upper"_a = upperCode);
}

std::string SupplierCondition(const std::string& supplier) {
  if (supplier.empty()) return "";
  return Splice(" AND SAFEIV.CT_CODE = '{supplier}'", "supplier"_a = supplier);
}

/// Categories of a level that have items below them: an item's id is cut to the level and filled
/// up.
std::string KindsOfLevel(int level, const std::string& upper, const std::string& supplier) {
  return Splice(
      "SELECT DISTINCT KIND.KD_ID,KIND.KD_NAME FROM  (KIND RIGHT JOIN PR ON  KIND.KD_ID = "
      "concat(left(PR.KD_ID, {length}) ,'{zeros}'))  RIGHT JOIN SAFEIV ON SAFEIV.PR_CODE = "
      "PR.PR_CODE    WHERE  KD_LVL = '{level}' AND SAFEIV.RCT_CODE = '{store}'   "
      "{upper}{supplier} ORDER BY KD_NAME ",
      "length"_a = std::to_string(level * kLevelLength), "zeros"_a = ZerosBelow(level),
      "level"_a = std::to_string(level), "store"_a = Session.StoreCode, "upper"_a = upper,
      "supplier"_a = supplier);
}

}  // namespace

SelectionPane::SelectionPane(Form& form, PickListPane& pickList) : pickList_(pickList) {
  form.Publish("Option1", Option1);
  form.Publish("Combo2", Combo2);
  form.Publish("PRHELP", PRHELP);
  Option1[0].Value = true;
  for (const int index : {0, 1}) {
    Option1[static_cast<size_t>(index)].Click = [this, index] { Option1_Click(index); };
  }
  for (const int index : {0, 1, 2}) {
    Combo2[static_cast<size_t>(index)].Click = [this, index] { Combo2_Click(index); };
  }
  PRHELP.SetColumns(std::vector<GridColumn>(kColumns, {.Width = 1800}), 0);
  ClickByKeyAndMouse(PRHELP, [this](int row, int col) { PRHELP_Click(row, col); });
}

std::string SelectionPane::ChosenSupplier() const { return BySupplier() ? supplier_ : ""; }

void SelectionPane::Option1_Click(int index) {
  for (size_t i = 0; i < Option1.size(); ++i) Option1[i].Value = static_cast<int>(i) == index;
  supplier_.clear();
  ClearCombos();
  if (index == 0) FillCombo(0, "");
  FillSelection();
}

void SelectionPane::FillSelection() {
  SqlText = BySupplier() ? SelectableSuppliers() : SelectableKinds();
  PRHELP.SetRows(0);
  const StoppableReads mayBeStopped;
  OpenRecordset(SlotA, SqlText);
  FillSelectionGrid(PRHELP);
}

void SelectionPane::ClearCombos() {
  for (ComboBox& combo : Combo2) combo.Clear();
}

void SelectionPane::FillCombo(int index, const std::string& upperCode) {
  ComboBox& combo = Combo2[static_cast<size_t>(index)];
  combo.Clear();
  const StoppableReads mayBeStopped;
  SqlText = KindsOfLevel(index + 1, UpperCondition(upperCode), SupplierCondition(ChosenSupplier()));
  OpenRecordset(SlotA, SqlText);
  ForEachRow(SlotA, [&] { combo.AddItem(ListEntry(FieldText(SlotA, 1), FieldText(SlotA, 0))); });
  CloseRecordset(SlotA);
}

void SelectionPane::PRHELP_Click(int row, int col) {
  const std::string code = CodeOfCell(PRHELP, row, col);
  if (code.empty()) return;
  ClearCombos();
  if (BySupplier()) {
    supplier_ = code;
    ListItems(Splice(" CT_CODE LIKE '{code}%'", "code"_a = code));
    FillCombo(0, "");
    return;
  }
  ListItems(Splice(" KD_ID LIKE '{code}%'", "code"_a = code));
  for (const int index : {0, 1, 2}) FillCombo(index, LeftChars(code, index * kLevelLength));
}

void SelectionPane::Combo2_Click(int index) {
  const std::string kindId = CodeOfEntry(Combo2[static_cast<size_t>(index)].Text());
  const std::string code = Trim(LeftChars(kindId, (index + 1) * kLevelLength));
  if (ParseNumber(code) == 0) return;
  const std::string supplier = ChosenSupplier();
  if (supplier.empty()) {
    ListItems(Splice(" KD_ID LIKE '{code}%' ", "code"_a = code));
  } else {
    ListItems(Splice(" KD_ID LIKE '{code}%' AND CT_CODE = '{supplier}'", "code"_a = code,
                     "supplier"_a = supplier));
  }
  for (size_t below = static_cast<size_t>(index) + 1; below < Combo2.size(); ++below) {
    Combo2[below].Clear();
  }
  if (index + 1 < static_cast<int>(Combo2.size())) FillCombo(index + 1, code);
}

void SelectionPane::ListItems(const std::string& criteria) {
  SetFilter(SlotC, criteria);
  pickList_.FillPickGrid();
}

}  // namespace store
