#pragma once

#include <string>

#include "tests/soak/db_client.h"

namespace store {

/// Fills the masters of the franchise, and sets the triggers that write down each step of each
/// order, in its own transaction: table SOAK_STEP, in the order in which the steps of one order
/// happened. The business tables stay as they are but for indexes on the memo.
void FillFranchise(DbClient& db, int stores);

/// What the triggers write.
namespace step {
inline constexpr const char* Inserted = "I";  ///< a header
inline constexpr const char* Line = "L";      ///< line 1 of it
inline constexpr const char* Updated = "U";
inline constexpr const char* Deleted = "D";
}  // namespace step

/// Head office approves, logistics ships: a few of a store's orders, `count` of each at most, by
/// the arrows.
void MoveOrders(DbClient& db, const std::string& store, int count);

}  // namespace store
