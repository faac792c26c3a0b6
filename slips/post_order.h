#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "slips/slip.h"
#include "slips/stored_order.h"

namespace store {

/// Writes a new order: its header (elements 0 to 22) and its lines (columns 0 to 18) in one batch.
/// `table` is "PEM22". What stands under its key already makes the batch fail, except one of
/// `earlierTries` of this same order, untouched, which is replaced. -1 when everything was written,
/// 0 when nothing was, or nobody knows (`BatchInDoubt`); `LastErrorText` then holds the words.
std::int16_t PostNewOrder(const HeadArray& headValues, const StringTable& lineValues,
                          const std::string& table,
                          const std::vector<StoredOrder>& earlierTries = {});

/// Writes an order anew under its key: the stored header goes, and its lines with it, and both are
/// inserted as they now are. Arguments and result as for `PostNewOrder`. Whatever stands there is
/// replaced.
std::int16_t PostOrderChange(const HeadArray& headValues, const StringTable& lineValues,
                             const std::string& table);
/// The same, guarded: only one of `known`, untouched, is replaced. Otherwise nothing is changed and
/// `LastErrorText` says that somebody else was first.
std::int16_t PostOrderChange(const HeadArray& headValues, const StringTable& lineValues,
                             const std::string& table, const std::vector<StoredOrder>& known);

}  // namespace store
