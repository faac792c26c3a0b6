#pragma once

#include <functional>
#include <string>

#include "forms/form.h"
#include "forms/grid.h"
#include "order/pick_list_pane.h"

namespace store {

/// A category id has 15 characters: three for each level, filled up with zeros.
inline constexpr int kLevelLength = 3;
std::string ZerosBelow(int level);

/// The code in an entry of a selection list or grid, which holds it in its last 20 characters;
/// empty for an empty entry.
std::string CodeOfEntry(const std::string& entry);
std::string CodeOfCell(const Grid& grid, int row, int col);

/// A click on a cell of a selection grid, and Enter on it, do the same.
void ClickByKeyAndMouse(Grid& grid, std::function<void(int row, int col)> click);

/// Fills a selection grid from what `SlotA` holds, code and name, row by row from the left, and
/// closes the slot.
void FillSelectionGrid(Grid& grid);

/// The item categories beside the pick list, three to a row. A click lists a category's items.
class KindPane {
 public:
  /// Whether the option of the middle category adds those of level 2 to the store's own.
  enum class Levels { MiddleByOption, TopOnly };

  KindPane(Form& form, PickListPane& pickList, Levels levels);
  KindPane(const KindPane&) = delete;
  KindPane& operator=(const KindPane&) = delete;

  Grid PRHELP;

  void PRHELP_Click(int row, int col);

  /// Fills a grid with the categories of a level, of `code`'s branch below level 1, each as a list
  /// entry of name and id. With the option on only those of what the store's order settings name
  /// for `supplier`.
  void FillKindGrid(Grid& grid, int level, const std::string& code, const std::string& supplier);

 protected:
  ~KindPane() = default;

 private:
  PickListPane& pickList_;
  Levels levels_;
};

}  // namespace store
