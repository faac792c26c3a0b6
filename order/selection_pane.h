#pragma once

#include <array>
#include <string>

#include "forms/form.h"
#include "forms/grid.h"
#include "order/pick_list_pane.h"

namespace store {

/// The left side of an order to several suppliers: what the store may order at all, by category or
/// by supplier, and three lists that narrow the choice level by level.
class SelectionPane {
 public:
  SelectionPane(Form& form, PickListPane& pickList);
  SelectionPane(const SelectionPane&) = delete;
  SelectionPane& operator=(const SelectionPane&) = delete;

  std::array<OptionButton, 2> Option1 = {OptionButton("분류"), OptionButton("발주처")};
  std::array<ComboBox, 3> Combo2;  ///< Categories of level 1, 2 and 3.
  Grid PRHELP;                     ///< Four columns of categories or suppliers.

  void Option1_Click(int index);
  void Combo2_Click(int index);
  void PRHELP_Click(int row, int col);

  /// Fills the grid for the option that is on.
  void FillSelection();
  /// The supplier that narrows what is shown and searched; empty for all of them.
  std::string ChosenSupplier() const;

 protected:
  ~SelectionPane() = default;

 private:
  bool BySupplier() const { return Option1[1].Value; }
  void ClearCombos();
  void FillCombo(int index, const std::string& upperCode);
  void ListItems(const std::string& criteria);

  PickListPane& pickList_;
  std::string supplier_;  // last chosen in the grid
};

}  // namespace store
