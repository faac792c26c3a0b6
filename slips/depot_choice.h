#pragma once

#include <string>

#include "forms/control.h"

namespace store {

/// Entries of the depot list: the name, 30 blanks and the code of 6 characters.
std::string DepotEntry(const std::string& name, const std::string& code);

/// The code of the chosen depot: the last 6 characters of the entry.
std::string DepotCodeOf(const ComboBox& depots);
/// The name of the chosen depot: the entry without its last 6 characters, trimmed.
std::string DepotNameOf(const ComboBox& depots);

/// Copies every entry of the main window's depot list, in order.
void CopyDepots(ComboBox& depots);

}  // namespace store
