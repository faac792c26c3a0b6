#include "gateway/column_index.h"

#include <bit>

#include "gateway/byte_search.h"

namespace store {

ColumnIndex::ColumnIndex(const TextColumn& column)
    : first_(std::bit_ceil(size_t{column.Rows()} + 1), kNone), next_(column.Rows(), kNone) {
  // From the last row to the first, so that each bucket lists its rows in rising order.
  for (std::uint32_t row = column.Rows(); row-- > 0;) {
    if (column.IsNull(row)) continue;
    std::uint32_t& first = first_[BucketOf(column.At(row))];
    next_[row] = first;
    first = row;
  }
}

void ColumnIndex::FindAll(const TextColumn& column, const TextMatch& match,
                          std::vector<std::uint32_t>& rows) const {
  for (std::uint32_t row = first_[BucketOf(match.needle)]; row != kNone; row = next_[row]) {
    if (column.Meets(row, match)) rows.push_back(row);
  }
}

size_t ColumnIndex::BucketOf(std::string_view text) const {
  // FNV-1a over the letters without case, its upper half folded in: codes differ at their ends.
  std::uint64_t hash = 14695981039346656037ULL;
  for (const char letter : text) {
    hash = (hash ^ static_cast<unsigned char>(FoldAscii(letter))) * 1099511628211ULL;
  }
  return (hash ^ (hash >> 32)) & (first_.size() - 1);
}

size_t ColumnIndex::BytesHeld() const {
  return sizeof(*this) + (first_.capacity() + next_.capacity()) * sizeof(first_[0]);
}

}  // namespace store
