#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <vector>

#include "gateway/string_table.h"
#include "slips/slip.h"

namespace store {

/// What tells one line of an order from another. Numbers are ready to stand bare in a statement.
struct StoredLine {
  std::string Number;    ///< PS_NO
  std::string Product;   ///< PR_CODE
  std::string Quantity;  ///< PS_SQTY
  std::string Price;     ///< PS_UP
  std::string Depot;     ///< PS_HCTCODE
  auto operator<=>(const StoredLine&) const = default;
};

/// A moment that neither a corrected clock nor a machine that has slept makes too early.
struct Moment {
  std::chrono::steady_clock::time_point Steady = std::chrono::steady_clock::now();
  std::chrono::system_clock::time_point Wall = std::chrono::system_clock::now();
};

/// An order as it stands in the database, or may stand there: it was read, or it was sent and the
/// answer was lost. The statements that replace it ask whether it still does.
struct StoredOrder {
  std::string State;     ///< PE_CK
  std::string Store;     ///< PE_FCTCODE
  std::string Supplier;  ///< PE_TCTCODE
  std::string Date;      ///< PE_PDATE
  std::string Total;     ///< PE_TOT
  std::vector<StoredLine> Lines;
  std::string Stamp;  ///< PE_SDATE of one that was read.
  std::string Link;   ///< PE_LINK of one that was read.
  Moment Sent;        ///< When it was sent, of one that was not read.
};

/// The order under a key in PEM22 and PSM22. Nothing when there is none or it cannot be read.
std::optional<StoredOrder> ReadStoredOrder(const std::string& slipId);

/// What stands there once this slip, which is about to be sent, has been stored.
StoredOrder OrderAsSent(const HeadArray& headValues, const StringTable& lineValues);

/// Whether the same was ordered, in whatever state.
bool SameOrder(const StoredOrder& one, const StoredOrder& other);

/// The guard of a change: the order still stands under its key, which is locked from here on.
std::string StillThereGuard(const std::string& slipId);
/// Behind it: what stands is one of those that this form knows, its state, content and stamp
/// untouched.
std::string UntouchedGuard(const std::string& slipId, const std::vector<StoredOrder>& known);
/// The same in the words of somebody who does not order.
std::string UntouchedGuard(const std::string& slipId, const std::vector<StoredOrder>& known,
                           const char* refusal);
/// Takes out what an earlier try of the same new order has stored, and nothing else.
std::string DeleteOwnStatement(const std::string& slipId, const std::vector<StoredOrder>& tries);

/// What a look for tries with lost answers has found.
struct TriesFound {
  bool Asked = false;              ///< False when the database could not be asked.
  bool Taken = false;              ///< Something stands under the key.
  std::string State;               ///< Its PE_CK.
  std::optional<StoredOrder> Own;  ///< The try that stands, as it was sent.
};

/// Looks for the tries under their key. It waits for one that is still being stored.
TriesFound LookForTries(const std::string& slipId, const std::vector<StoredOrder>& tries);

}  // namespace store
