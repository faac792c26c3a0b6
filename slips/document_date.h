#pragma once

#include <string>

namespace store {

/// Whether a document date, "YYYY-MM-DD", lies within a month on either side of the date in a slip
/// key, bounds included. The key's date is the database's day, so a workstation's wrong clock does
/// not count. A key without a date ("0001") lets nothing pass.
bool DateFitsKey(const std::string& date, const std::string& slipId);

}  // namespace store
