#pragma once

#include <string>
#include <vector>

#include "forms/grid.h"
#include "slips/line_history.h"

namespace store {

/// A cell of the pick list that was changed together with the lines: a typed quantity, a mark that
/// the transfer took away, a figure that was multiplied.
struct PickCell {
  int Row = 0;
  int Column = 0;
  std::string Code;  ///< PR_CODE of the row.
  std::string Before;
  std::string After;
};

/// Puts the cells back to what they were, or to what they were made. Only those that still stand as
/// the change has left them: the list may hold other items by now.
LineHistory::Moved MovePickCells(Grid& picks, const std::vector<PickCell>& cells,
                                 LineHistory::Way way);

/// The cells of a row as they stand.
std::vector<std::string> CellsOfRow(const Grid& grid, int row);
/// Adds the cells in which a row differs from `before`. Marks are the person's own and no figures.
void AddChangedCells(const Grid& picks, int row, const std::vector<std::string>& before,
                     std::vector<PickCell>& cells);

}  // namespace store
