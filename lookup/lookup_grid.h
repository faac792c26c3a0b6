#pragma once

#include <string>

#include "forms/grid.h"

namespace store {

/// Empties the grid to its header and fills it with the rows of a SELECT, NULL as the empty text.
/// A failed read leaves it empty.
void FillLookupGrid(const std::string& statement, Grid& grid);

}  // namespace store
