#pragma once

#include <QAbstractTableModel>

#include "forms/grid.h"

namespace store {

/// A form's grid as a table for Qt. It copies no cell: what is asked for is read from the grid. The
/// data rows are the table's rows; the first of the fixed rows is its header.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const Grid& grid);

  /// Tells the views about everything that changed in the grid since the last call. True when
  /// something did.
  bool Follow();

  int GridRow(const QModelIndex& index) const { return index.row() + grid_.FixedRows(); }
  /// The index of a cell of the grid; invalid for fixed rows.
  QModelIndex IndexOf(int gridRow, int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString Shown(const QModelIndex& index) const;

  const Grid& grid_;
  unsigned seen_ = 0;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace store
