#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "forms/grid.h"
#include "ui/grid_rows.h"

namespace store {

/// A form's grid as a table for Qt. It copies no cell: what is asked for is read from the grid. The
/// data rows are the table's rows, sorted and filtered as a person wants to see them; the first of
/// the fixed rows is its header.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const Grid& grid);

  /// Tells the views about everything that changed in the grid since the last call. True when
  /// something did. With `holdFilter` a new row does not end the filter.
  bool Follow(bool holdFilter = false);

  const GridRows& ShownRows() const { return shown_; }
  /// Lets `change` choose what is shown, and tells the views.
  void Rearrange(const std::function<void(GridRows& rows)>& change);

  int GridRow(const QModelIndex& index) const { return shown_.RowAt(index.row()); }
  /// The index of a cell of the grid; invalid for fixed rows and for rows that are not shown.
  QModelIndex IndexOf(int gridRow, int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString Shown(const QModelIndex& index) const;

  const Grid& grid_;
  GridRows shown_;
  unsigned seen_ = 0;
  int columns_ = 0;
};

}  // namespace store
