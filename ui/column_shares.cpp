#include "ui/column_shares.h"

#include <cmath>

namespace store {
namespace {

std::vector<int> NeedsAndSpare(const std::vector<ColumnWish>& wishes, int spare, double weight) {
  std::vector<int> widths;
  for (const ColumnWish& wish : wishes) {
    // Taking each part from what is left keeps the sum exact.
    const int part = static_cast<int>(std::lround(spare * wish.Weight / weight));
    widths.push_back(wish.Need + part);
    spare -= part;
    weight -= wish.Weight;
  }
  return widths;
}

std::vector<int> ByWeight(const std::vector<ColumnWish>& wishes, int room) {
  std::vector<int> widths(wishes.size(), 0);
  // A column that is held at its minimum leaves less for the rest, so the rest is shared again.
  bool heldOne = true;
  while (heldOne) {
    heldOne = false;
    double weight = 0;
    int left = room;
    for (size_t i = 0; i < wishes.size(); ++i) {
      if (widths[i] == 0) weight += wishes[i].Weight;
      left -= widths[i];
    }
    for (size_t i = 0; i < wishes.size() && !heldOne; ++i) {
      if (widths[i] != 0 || left * wishes[i].Weight / weight >= wishes[i].Minimum) continue;
      widths[i] = wishes[i].Minimum;
      heldOne = widths[i] != 0;
    }
    if (heldOne) continue;
    for (size_t i = 0; i < wishes.size(); ++i) {
      if (widths[i] != 0) continue;
      widths[i] = static_cast<int>(std::lround(left * wishes[i].Weight / weight));
      left -= widths[i];
      weight -= wishes[i].Weight;
    }
  }
  return widths;
}

}  // namespace

std::vector<int> ShareColumns(const std::vector<ColumnWish>& wishes, int room) {
  int needs = 0;
  double weight = 0;
  for (const ColumnWish& wish : wishes) {
    needs += wish.Need;
    weight += wish.Weight;
  }
  return needs <= room ? NeedsAndSpare(wishes, room - needs, weight) : ByWeight(wishes, room);
}

}  // namespace store
