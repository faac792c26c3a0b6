#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "gateway/text_column.h"

namespace store {

/// Where each text of a column stands, so that one filter by equality costs the same however many
/// rows there are. ASCII letters compare without case.
class ColumnIndex {
 public:
  /// Looks at all rows of a sealed column once. The column must not change any more.
  explicit ColumnIndex(const TextColumn& column);

  /// Appends the numbers of the rows whose whole text is `match`'s, in rising order. `column` is
  /// the one that the index was made of. NULL is in no index.
  void FindAll(const TextColumn& column, const TextMatch& match,
               std::vector<std::uint32_t>& rows) const;

  size_t BytesHeld() const;

 private:
  size_t BucketOf(std::string_view text) const;

  static constexpr std::uint32_t kNone = UINT32_MAX;
  std::vector<std::uint32_t> first_;  // by bucket: its first row
  std::vector<std::uint32_t> next_;   // by row: the next row of the same bucket
};

}  // namespace store
