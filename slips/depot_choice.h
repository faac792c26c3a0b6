#pragma once

#include <string>

#include "forms/control.h"

namespace store {

/// The entries of the depot list are `ListEntry` of name and code, which has 6 characters.

/// The code of the chosen depot: the last 6 characters of the entry.
std::string DepotCodeOf(const ComboBox& depots);
/// The name of the chosen depot: the entry without its last 6 characters, trimmed.
std::string DepotNameOf(const ComboBox& depots);

/// Chooses the entry of a depot's code; with no such entry the choice stays.
void ChooseDepot(ComboBox& depots, const std::string& code);

/// Copies every entry of the main window's depot list, in order.
void CopyDepots(ComboBox& depots);

}  // namespace store
