#pragma once

#include <QString>
#include <map>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

#include "forms/grid.h"
#include "ui/column_shares.h"
#include "ui/grid_model.h"

class QTableView;

namespace store {

/// The columns of a grid on the screen: which are shown and how wide. A figure, a date or a code is
/// never cut; names take what is over, and give way where there is too little. A person may drag a
/// border and switch optional columns on; both can be kept as a text.
class GridColumns {
 public:
  GridColumns(QTableView& view, const Grid& grid, const GridModel& model);

  /// After a change of the grid: shows and hides, measures, shares the width.
  void Follow();
  /// After a scroll: what has come into view may be wider than all before it.
  void MeasureView();
  void ShareWidth();
  /// After a change of the letters' size.
  void MeasureAnew();
  /// A border that a person drags moves between two columns; the others stay.
  void MoveBorder(int section, int oldSize, int newSize);

  /// The columns that are hidden until a person wants them.
  std::vector<int> Optional() const;
  /// The columns among which a person chooses: all but those that the form keeps hidden.
  std::vector<int> Offered() const;
  bool IsShown(int column) const;
  std::vector<int> Shown() const;
  /// False for what one types into, and for the last column that is left.
  bool MaySwitch(int column) const;
  void Switch(int column, bool on);

  /// What a person has changed; empty for nothing.
  QString Layout() const;
  /// Puts back what `Layout` gave. A text that it cannot have given is passed over.
  void TakeLayout(const QString& text);

 private:
  struct ColumnNeed {
    int Width = 0;                             // of the widest text so far
    std::string Format;                        // under which the texts were measured
    std::unordered_set<std::string> Measured;  // cells that have had their say
  };
  void ShowColumns();
  bool MeasureRows(int first, int last);
  void Measure(ColumnNeed& need, const QModelIndex& index);
  int NeedOf(int column) const;
  bool IsName(int column) const;
  int LeastOf(int column) const;
  ColumnWish WishOf(int column) const;

  QTableView& view_;
  const Grid& grid_;
  const GridModel& model_;
  std::map<int, int> dragged_;  // widths, by column
  std::set<int> switchedOn_;
  std::set<int> switchedOff_;
  std::map<int, ColumnNeed> needs_;
  bool sharing_ = false;
};

}  // namespace store
