#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace store {

/// A two-dimensional array of texts, both indices from 0. Reading outside gives the empty text;
/// writing outside is passed over.
class StringTable {
 public:
  /// Resizes to rows 0..lastRow and columns 0..lastColumn and keeps what both sizes share.
  void Redim(int lastRow, int lastColumn);
  void Clear() { cells_.clear(); }

  const std::string& At(int row, int column) const;
  void Set(int row, int column, std::string text);
  int LastRow() const { return static_cast<int>(cells_.size()) - 1; }
  int LastColumn() const { return cells_.empty() ? -1 : static_cast<int>(cells_[0].size()) - 1; }

 private:
  bool Inside(int row, int column) const;
  std::vector<std::vector<std::string>> cells_;
};

}  // namespace store
