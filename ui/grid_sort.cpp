#include "ui/grid_sort.h"

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>

#include "basics/numbers.h"
#include "basics/text.h"

namespace store {
namespace {

template <class Key>
struct Keyed {
  Key By;
  int Row;
};

template <class Key, class Less>
std::vector<int> RowsBy(std::vector<Keyed<Key>> keyed, bool descending, const Less& less) {
  std::sort(keyed.begin(), keyed.end(), [&](const Keyed<Key>& one, const Keyed<Key>& other) {
    if (less(one.By, other.By)) return !descending;
    if (less(other.By, one.By)) return descending;
    return one.Row < other.Row;
  });
  std::vector<int> rows;
  rows.reserve(keyed.size());
  for (const Keyed<Key>& each : keyed) rows.push_back(each.Row);
  return rows;
}

bool HoldsFigures(const Grid& grid, int column) {
  const GridColumn& asked = grid.Columns()[static_cast<size_t>(column)];
  if (asked.CheckBox || !asked.Format.empty() || asked.Alignment == Align::Right) return true;
  if (asked.Alignment == Align::Left) return false;
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
    const std::string& cell = grid.TextMatrix(row, column);
    if (!cell.empty() && !IsNumeric(cell)) return false;
  }
  return true;
}

std::vector<int> ByFigure(const Grid& grid, int column, bool descending) {
  std::vector<Keyed<double>> keyed;
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
    const std::string& cell = grid.TextMatrix(row, column);
    const bool isEmpty = cell.find_first_not_of(' ') == std::string::npos;
    keyed.push_back({isEmpty ? -std::numeric_limits<double>::infinity() : ParseGrouped(cell), row});
  }
  return RowsBy(std::move(keyed), descending, std::less<>());
}

/// Appends what stands for a cell in a comparison of bytes, which is one of code points, and so for
/// Hangul one of syllables.
void AddTextKey(const std::string& cell, std::string& keys) {
  const size_t start = keys.size();
  const size_t name = cell.rfind('\r');
  if (name == std::string::npos) {
    keys += NameOfEntry(cell);
  } else {
    keys += Trim(std::string_view(cell).substr(name + 1));
    keys += '\x01';  // below every letter, so that a longer name comes behind a shorter one
    keys.append(cell, 0, name);
  }
  for (size_t at = start; at < keys.size(); ++at) {
    if (keys[at] >= 'a' && keys[at] <= 'z') keys[at] = static_cast<char>(keys[at] - 32);
  }
  while (keys.size() > start && keys.back() == ' ') keys.pop_back();
}

std::vector<int> ByText(const Grid& grid, int column, bool descending) {
  std::string keys;
  std::vector<size_t> ends;
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
    AddTextKey(grid.TextMatrix(row, column), keys);
    ends.push_back(keys.size());
  }
  std::vector<Keyed<std::string_view>> keyed;
  keyed.reserve(ends.size());
  size_t start = 0;
  int row = grid.FixedRows();
  for (const size_t end : ends) {
    keyed.push_back({std::string_view(keys).substr(start, end - start), row++});
    start = end;
  }
  return RowsBy(std::move(keyed), descending, std::less<>());
}

}  // namespace

std::vector<int> SortedRows(const Grid& grid, int column, bool descending) {
  return HoldsFigures(grid, column) ? ByFigure(grid, column, descending)
                                    : ByText(grid, column, descending);
}

}  // namespace store
