#pragma once

#include <QString>
#include <vector>

#include "forms/grid.h"

namespace store {

/// Rows of a grid as a spreadsheet takes them: a line of headers and a line for each row, the cells
/// parted by tabs. A cell of several lines becomes one, the code that stands out of view behind an
/// entry stays out, and a figure goes as it is held, not as its mask rounds it.
QString CopiedRows(const Grid& grid, const std::vector<int>& rows, const std::vector<int>& columns);

}  // namespace store
