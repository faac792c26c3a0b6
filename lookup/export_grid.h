#pragma once

#include <string>

#include "forms/grid.h"

namespace store {

/// Copies a grid, its header first, into a new workbook and opens it with the desktop's own
/// program. What cannot be opened or written is told in a message box.
void ExportGrid(const Grid& grid);

/// Letters of the sheet's column for a cell of the grid, both from 0. Past the 26th column the
/// letters are chosen by the row; where the rule gives none, the letters of the cell before stay.
std::string ColumnLetters(int row, int column, const std::string& before);

}  // namespace store
