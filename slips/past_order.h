#pragma once

#include <optional>
#include <string>
#include <vector>

#include "slips/draft.h"

namespace store {

/// What a stored order ordered, for a new one that orders it again.
struct PastOrder {
  std::string SlipId;
  std::string SupplierCode;  ///< Empty for an order to several suppliers.
  std::string SupplierName;
  std::vector<DraftLine> Lines;  ///< The one that was written first comes first, an item once.
};

/// Reads it from PEM22 and PSM22. Nothing when it could not be read; one without a key when there
/// is no such order.
std::optional<PastOrder> ReadPastOrder(const std::string& slipId);

/// A line of it that cannot be ordered any more, and why.
struct RefusedLine {
  DraftLine Line;
  std::string Reason;
};

/// Says of lines whose items are not in the item list what is the matter with them: sold no more
/// (PR), or sold, but not among what the store may order there.
void GiveReasons(std::vector<RefusedLine>& refused);

/// Tells the lines that were left out, all in one box; says nothing when there are none.
void TellLeftOut(const std::vector<RefusedLine>& refused);

}  // namespace store
