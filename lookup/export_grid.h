#pragma once

#include <string>

#include "forms/control.h"
#include "forms/grid.h"

namespace store {

/// Copies a grid, its header first, into a new workbook among the user's documents and opens it
/// with the desktop's own program. The file is named after the window and the time
/// ("거래처 도움창_2026-11-26_1031.xlsx") and never stands for an older one; `where` says where it
/// is. What cannot be opened or written is told in a message box; then `where` is empty or, where
/// only the opening failed, still says it.
void ExportGrid(const Grid& grid, const std::string& window, Label& where);

/// Letters of the sheet's column for a cell of the grid, both from 0. Past the 26th column the
/// letters are chosen by the row; where the rule gives none, the letters of the cell before stay.
std::string ColumnLetters(int row, int column, const std::string& before);

}  // namespace store
