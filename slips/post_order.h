#pragma once

#include <cstdint>
#include <string>

#include "slips/slip.h"

namespace store {

/// Writes a new order: its header (elements 0 to 22) and its lines (columns 0 to 18) in one batch.
/// `table` is "PEM22". -1 when everything was written, 0 when nothing was; `LastErrorText` then
/// holds the server's words.
std::int16_t PostNewOrder(const HeadArray& headValues, const StringTable& lineValues,
                          const std::string& table);

/// Writes an order anew under its key: the stored header goes, and its lines with it, and both are
/// inserted as they now are. Arguments and result as for `PostNewOrder`. The stored state is not
/// looked at.
std::int16_t PostOrderChange(const HeadArray& headValues, const StringTable& lineValues,
                             const std::string& table);

}  // namespace store
