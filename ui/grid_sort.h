#pragma once

#include <vector>

#include "forms/grid.h"

namespace store {

/// The data rows of a grid sorted by a column; rows that read the same stay in the grid's order.
///
/// Figures, money and ticks sort by their value, everything else as the database sorts it: Hangul
/// by its syllables, ASCII letters without case, blanks at the end passed over. Dates are held with
/// the year first, so that their texts sort by time. A column is one of figures when it has a
/// number mask or stands to the right, or when it is not one of names and holds nothing but
/// numbers. Of a cell of two lines the second, the name, comes first. An empty cell is the least.
std::vector<int> SortedRows(const Grid& grid, int column, bool descending);

}  // namespace store
