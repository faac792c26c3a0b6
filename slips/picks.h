#pragma once

#include "gateway/string_table.h"

namespace store {

/// What was picked on the quick-pick panel, for the form that opened it: the item's code stands in
/// row 0, column 0. Whoever opens the panel resizes it to that one row of two columns; it keeps the
/// last pick until the next one.
inline StringTable PickList;

}  // namespace store
