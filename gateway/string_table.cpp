#include "gateway/string_table.h"

namespace store {

void StringTable::Redim(int lastRow, int lastColumn) {
  cells_.resize(static_cast<size_t>(lastRow) + 1);
  for (std::vector<std::string>& row : cells_) row.resize(static_cast<size_t>(lastColumn) + 1);
}

bool StringTable::Inside(int row, int column) const {
  return row >= 0 && row <= LastRow() && column >= 0 && column <= LastColumn();
}

const std::string& StringTable::At(int row, int column) const {
  static const std::string nothing;
  if (!Inside(row, column)) return nothing;
  return cells_[static_cast<size_t>(row)][static_cast<size_t>(column)];
}

void StringTable::Set(int row, int column, std::string text) {
  if (!Inside(row, column)) return;
  cells_[static_cast<size_t>(row)][static_cast<size_t>(column)] = std::move(text);
}

}  // namespace store
