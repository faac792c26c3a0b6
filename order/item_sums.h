#pragma once

#include <optional>
#include <string>

#include "gateway/gateway.h"

namespace store {

/// A sum for each item, all read at once and then matched item by item. What was read stays as it
/// was for as long as somebody holds it.
class ItemSums {
 public:
  /// Runs a SELECT of product codes and sums through `slot`, which is empty afterwards.
  ItemSums(RecordsetSlot& slot, const std::string& statement);

  /// False when the read has failed: no item has a sum then, which says nothing of the items.
  bool WasRead() const { return rows_ != nullptr; }
  /// Nothing when the item has no row.
  std::optional<std::string> Of(const std::string& productCode) const;

 private:
  RecordsetSlot rows_;
  std::string codeField_;
};

}  // namespace store
