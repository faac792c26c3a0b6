#include "ui/column_shares.h"

#include <algorithm>
#include <cmath>

namespace store {
namespace {

std::vector<int> NeedsAndSpare(const std::vector<ColumnWish>& wishes, int spare) {
  const bool anyStretches =
      std::any_of(wishes.begin(), wishes.end(), [](const auto& wish) { return wish.Stretches; });
  const auto part = [&](const ColumnWish& wish) {
    return wish.Stretches || !anyStretches ? wish.Weight : 0;
  };
  double weight = 0;
  for (const ColumnWish& wish : wishes) weight += part(wish);
  std::vector<int> widths;
  for (const ColumnWish& wish : wishes) {
    // Taking each part from what is left keeps the sum exact.
    const double share = weight > 0 ? part(wish) / weight : 0;
    const int more = static_cast<int>(std::lround(spare * share));
    widths.push_back(wish.Need + more);
    spare -= more;
    weight -= part(wish);
  }
  return widths;
}

/// Sharing among the columns whose width is not settled yet.
class Shares {
 public:
  Shares(const std::vector<ColumnWish>& wishes, int room)
      : wishes_(wishes), widths_(wishes.size(), kOpen), left_(room) {
    for (const ColumnWish& wish : wishes) weight_ += wish.Weight;
  }

  std::vector<int> Widths() {
    // A column that is held at a bound changes what the rest gets, so the rest is shared again. If
    // more is lacking than left over, those who lack are held first, or else those who have enough.
    for (double lacking = Lacking(); lacking != 0; lacking = Lacking()) {
      const int left = left_;
      const double weight = weight_;
      for (size_t i = 0; i < wishes_.size(); ++i) {
        if (widths_[i] != kOpen) continue;
        const double share = left * wishes_[i].Weight / weight;
        const double bound = WithinBounds(i, share);
        if (lacking > 0 ? bound > share : bound < share) Settle(i, static_cast<int>(bound));
      }
    }
    for (size_t i = 0; i < wishes_.size(); ++i) {
      if (widths_[i] != kOpen) continue;
      Settle(i, static_cast<int>(std::lround(WithinBounds(i, Share(i)))));
    }
    return std::move(widths_);
  }

 private:
  static constexpr int kOpen = -1;

  double Share(size_t i) const { return left_ * wishes_[i].Weight / weight_; }
  void Settle(size_t i, int width) {
    widths_[i] = width;
    left_ -= width;
    weight_ -= wishes_[i].Weight;
  }
  /// By how much the shares would have to grow, all in all, to keep within their bounds.
  double Lacking() const {
    double lacking = 0;
    for (size_t i = 0; i < wishes_.size(); ++i) {
      if (widths_[i] != kOpen) continue;
      lacking += WithinBounds(i, Share(i)) - Share(i);
    }
    return lacking;
  }
  double WithinBounds(size_t i, double share) const {
    const int least = wishes_[i].Minimum;
    return std::clamp<double>(share, least, std::max(least, wishes_[i].Need));
  }

  const std::vector<ColumnWish>& wishes_;
  std::vector<int> widths_;
  int left_;
  double weight_ = 0;
};

}  // namespace

std::vector<int> ShareColumns(const std::vector<ColumnWish>& wishes, int room) {
  int needs = 0;
  for (const ColumnWish& wish : wishes) needs += wish.Need;
  return needs <= room ? NeedsAndSpare(wishes, room - needs) : Shares(wishes, room).Widths();
}

}  // namespace store
