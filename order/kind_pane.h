#pragma once

#include <functional>
#include <string>

#include "forms/form.h"
#include "forms/grid.h"

namespace store {

/// The item categories beside the pick list, three to a row. A click lists a category's items.
class KindPane {
 public:
  explicit KindPane(Form& form);
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

  /// A category was chosen: the item list is to be shown by it.
  std::function<void(const std::string& topLevel)> KindChosen;
};

}  // namespace store
