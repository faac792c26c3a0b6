#pragma once

#include <string>

#include "slips/slip.h"

namespace store {

/// Adds to the batch one INSERT for each line of a posted slip into its line table ("PSM23",
/// "PSS13", ...). `terminalColumn` is the column of the lines that goes to PS_TMID.
void AddPostedLines(const StringTable& lineValues, const std::string& table, int terminalColumn);

}  // namespace store
