#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/grid.h"
#include "ui/row_filter.h"

namespace store {

enum class RowOrder { Own, Ascending, Descending };

/// Which rows of a grid are on the screen and in which order, as a person has sorted and filtered
/// them. The grid knows nothing of it: what is stored, posted and summed are its rows as they
/// stand. A place counts what is shown, from 0; a row is the grid's own number.
class GridRows {
 public:
  explicit GridRows(const Grid& grid);

  void Sort(int column, RowOrder order);
  int SortedBy() const { return sortedBy_; }
  RowOrder Order() const { return order_; }

  /// Leaves out the rows without the words of `text` in these columns; none for a text without
  /// words.
  void Filter(const std::string& text, const std::vector<int>& columns);
  bool IsFiltered() const { return !filterText_.empty(); }
  /// Shown rows in which the words were found.
  int Found() const;
  /// Shows a row whatever the filter says. What an action would hit must be in sight.
  void KeepInSight(int row);

  /// Whether other rows have to be shown than up to now.
  bool HaveChanged() const;
  /// Takes over what has become of the grid. A list that was read anew is sorted and filtered as
  /// the one before it. A row that comes into a list that stays means that somebody is at work in
  /// it: then all rows are shown as they stand, with `holdFilter` those that the filter finds.
  void Follow(bool holdFilter);

  /// All rows stand as in the grid, and no cost is to be paid for anything else.
  bool AreOwn() const { return own_; }
  int Count() const;
  int RowAt(int place) const;
  /// -1 for a row that is not shown.
  int PlaceOf(int row) const;
  /// The row that is seen next to `row`; -1 for none.
  int Beside(int row, int step) const;
  /// Rows that are left out and satisfy `holds`.
  template <class Holds>
  int CountLeftOut(const Holds& holds) const {
    int count = 0;
    for (int row = grid_.FixedRows(); row < grid_.Rows() && !own_; ++row) {
      if (PlaceOf(row) < 0 && holds(row)) ++count;
    }
    return count;
  }

 private:
  void Arrange();
  void SortAnew();
  void FindAnew();

  const Grid& grid_;
  int sortedBy_ = -1;
  RowOrder order_ = RowOrder::Own;
  std::vector<int> sorted_;
  std::string filterText_;
  std::vector<int> filterColumns_;
  std::optional<RowFilter> filter_;
  std::vector<bool> found_;  // by row, while filtered
  int kept_ = -1;
  std::vector<int> shown_;   // rows by place, unless they are the grid's own
  std::vector<int> places_;  // and places by row
  bool own_ = true;
  int count_ = 0;  // data rows of the grid when last followed
  unsigned revisionSeen_ = 0;
  unsigned rowsSeen_ = 0;
  unsigned listSeen_ = 0;
};

}  // namespace store
