#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/grid.h"
#include "order/order_type.h"
#include "order/pick_cells.h"

namespace store {

/// Puts what is known of an item beside it, into the cells of its row.
using PickRowCompletion = std::function<void(std::vector<std::string>& cells)>;

/// The pick list: items of a search, a category or a proposal, with a quantity to type.
class PickListPane {
 public:
  PickListPane(Form& form, const OrderTypeChoices& choices);
  PickListPane(const PickListPane&) = delete;
  PickListPane& operator=(const PickListPane&) = delete;

  Grid FLEX2;

  bool FLEX2_BeforeEdit(int row, int col);  ///< True when the cell may be edited.
  void FLEX2_AfterEdit(int row, int col);
  void FLEX2_RowColChange();
  void FLEX2_KeyDown(Key key);

  /// Lists the items that the filter of `SlotC` lets pass. Their cells are made when they are
  /// looked at, of what has been read up to now.
  void FillPickGrid();
  /// Tells that figures of the list were changed, which is an act of its own or part of one.
  void TellCellsChanged(std::vector<PickCell> cells);

  /// Leads the keyboard into the list, to its first item unless one is current.
  void WalkToPickList();

 protected:
  ~PickListPane() = default;

  /// Reads what a type shows beside the items that are about to be listed.
  std::function<PickRowCompletion()> BesideItems;
  /// A quantity was typed beside an item.
  std::function<void(const std::string& code, const std::string& quantity)> QuantityEntered;
  /// An item is to be ordered no more.
  std::function<void(const std::string& code)> ItemTakenOut;
  /// What the item has sold is asked for.
  std::function<void(const std::string& code, const std::string& name)> HistoryWanted;
  /// Does what one act of the person leads to.
  std::function<void(const std::function<void()>& act)> AsOneStep;
  /// Figures of the list were changed by the person.
  std::function<void(std::vector<PickCell> cells)> CellsChanged;

 private:
  void TakeEntry(int editedRow, int editedColumn);

  Form& form_;
  const OrderTypeChoices& choices_;
  std::vector<std::string> rowBefore_;  // of the row in which a cell was opened last
  int openedRow_ = 0;
};

}  // namespace store
