#include "order/pick_cells.h"

#include "order/order_type.h"

namespace store {

LineHistory::Moved MovePickCells(Grid& picks, const std::vector<PickCell>& cells,
                                 LineHistory::Way way) {
  const bool back = way == LineHistory::Way::Back;
  auto moved = LineHistory::Moved::Nothing;
  for (const PickCell& cell : cells) {
    const std::string& stands = back ? cell.After : cell.Before;
    if (picks.TextMatrix(cell.Row, pick::Code) != cell.Code ||
        picks.TextMatrix(cell.Row, cell.Column) != stands) {
      continue;
    }
    picks.SetTextMatrix(cell.Row, cell.Column, back ? cell.Before : cell.After);
    moved = LineHistory::Moved::Done;
  }
  return moved;
}

std::vector<std::string> CellsOfRow(const Grid& grid, int row) {
  std::vector<std::string> cells;
  cells.reserve(static_cast<size_t>(grid.Cols()));
  for (int column = 0; column < grid.Cols(); ++column) {
    cells.push_back(grid.TextMatrix(row, column));
  }
  return cells;
}

void AddChangedCells(const Grid& picks, int row, const std::vector<std::string>& before,
                     std::vector<PickCell>& cells) {
  if (picks.TextMatrix(row, pick::Code) != before[pick::Code]) return;  // another item by now
  for (int column = 0; column < picks.Cols(); ++column) {
    const std::string& now = picks.TextMatrix(row, column);
    const std::string& was = before[static_cast<size_t>(column)];
    if (column == pick::Mark || now == was) continue;
    cells.push_back({row, column, picks.TextMatrix(row, pick::Code), was, now});
  }
}

}  // namespace store
