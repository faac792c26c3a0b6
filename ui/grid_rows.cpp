#include "ui/grid_rows.h"

#include <algorithm>
#include <utility>

#include "ui/grid_sort.h"

namespace store {

GridRows::GridRows(const Grid& grid)
    : grid_(grid),
      count_(grid.Rows() - grid.FixedRows()),
      revisionSeen_(grid.Revision()),
      rowsSeen_(grid.RowsRevision()),
      listSeen_(grid.ListRevision()) {}

void GridRows::Sort(int column, RowOrder order) {
  sortedBy_ = order == RowOrder::Own ? -1 : column;
  order_ = order;
  SortAnew();
  Arrange();
}

void GridRows::SortAnew() {
  sorted_.clear();
  if (order_ == RowOrder::Own) return;
  sorted_ = SortedRows(grid_, sortedBy_, order_ == RowOrder::Descending);
}

void GridRows::Filter(const std::string& text, const std::vector<int>& columns) {
  filterText_ = HasWords(text) ? text : std::string();
  kept_ = -1;
  if (columns != filterColumns_ || revisionSeen_ != grid_.Revision()) filter_.reset();
  revisionSeen_ = grid_.Revision();
  filterColumns_ = columns;
  FindAnew();
  Arrange();
}

void GridRows::FindAnew() {
  found_.clear();
  if (!IsFiltered()) {
    filter_.reset();
    return;
  }
  if (!filter_) filter_.emplace(grid_, filterColumns_);
  found_ = filter_->Find(filterText_);
}

int GridRows::Found() const {
  return static_cast<int>(std::count_if(shown_.begin(), shown_.end(), [this](int row) {
    return !IsFiltered() || found_[static_cast<size_t>(row)];
  }));
}

void GridRows::KeepInSight(int row) {
  if (kept_ == row) return;
  kept_ = row;
  Arrange();
}

void GridRows::Arrange() {
  own_ = order_ == RowOrder::Own && !IsFiltered();
  shown_.clear();
  places_.clear();
  if (own_) return;
  places_.assign(static_cast<size_t>(grid_.Rows()), -1);
  const auto take = [this](int row) {
    if (grid_.RowHidden(row)) return;
    if (IsFiltered() && !found_[static_cast<size_t>(row)] && row != kept_) return;
    places_[static_cast<size_t>(row)] = static_cast<int>(shown_.size());
    shown_.push_back(row);
  };
  if (order_ == RowOrder::Own) {
    for (int row = grid_.FixedRows(); row < grid_.Rows(); ++row) take(row);
  } else {
    for (const int row : sorted_) take(row);
  }
}

bool GridRows::HaveChanged() const {
  const int count = std::max(0, grid_.Rows() - grid_.FixedRows());
  return own_ ? count != count_ : grid_.RowsRevision() != rowsSeen_;
}

void GridRows::Follow(bool holdFilter) {
  const int before = std::exchange(count_, std::max(0, grid_.Rows() - grid_.FixedRows()));
  const bool otherRows = std::exchange(rowsSeen_, grid_.RowsRevision()) != grid_.RowsRevision();
  const bool otherList = std::exchange(listSeen_, grid_.ListRevision()) != grid_.ListRevision();
  if (own_ || !otherRows) return;
  const bool hasGrown = !otherList && count_ > before;
  if (hasGrown || sortedBy_ >= grid_.Cols()) {
    order_ = RowOrder::Own;
    sortedBy_ = -1;
    if (!holdFilter) filterText_.clear();
  }
  kept_ = -1;
  filter_.reset();
  SortAnew();
  FindAnew();
  Arrange();
}

int GridRows::Count() const { return own_ ? count_ : static_cast<int>(shown_.size()); }

int GridRows::RowAt(int place) const {
  if (own_) return place + grid_.FixedRows();
  return place >= 0 && place < Count() ? shown_[static_cast<size_t>(place)] : -1;
}

int GridRows::PlaceOf(int row) const {
  if (own_) return row - grid_.FixedRows();
  return row >= 0 && row < static_cast<int>(places_.size()) ? places_[static_cast<size_t>(row)]
                                                            : -1;
}

int GridRows::Beside(int row, int step) const {
  // In the middle of an event the grid may have gone on; then its own order is the one there is.
  const bool own = own_ || grid_.RowsRevision() != rowsSeen_;
  if (own) {
    int next = row + step;
    while (grid_.RowHidden(next)) next += step;
    return next >= grid_.FixedRows() && next < grid_.Rows() ? next : -1;
  }
  const int place = row < grid_.FixedRows() ? -1 : PlaceOf(row);
  return RowAt(place + step);
}

}  // namespace store
