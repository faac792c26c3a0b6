#pragma once

#include <vector>

namespace store {

/// One visible column that wants a part of a grid's width. Widths are pixels.
struct ColumnWish {
  double Weight = 1;
  int Minimum = 0;         ///< Below it the column is of no use, as when a figure is cut.
  int Need = 0;            ///< With it nothing in the column is cut.
  bool Stretches = false;  ///< Takes what is over, as a name does.
};

/// Shares `room` out. When there is enough for all needs, each column gets its need, and the
/// columns that stretch (all, where none does) share what is over by weight. Otherwise all is
/// shared by weight, nobody below the minimum or above the need. The widths add up to `room` unless
/// the minimums alone are more.
std::vector<int> ShareColumns(const std::vector<ColumnWish>& wishes, int room);

}  // namespace store
