#include "ui/grid_model.h"

#include <QBrush>
#include <QFont>
#include <algorithm>

#include "basics/numbers.h"
#include "ui/qt_text.h"

namespace store {
namespace {

bool Ticked(const std::string& cell) { return cell == "-1"; }

int Alignment(const GridColumn& column, const std::string& cell) {
  switch (column.Alignment) {
    case Align::Left:
      return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    case Align::Center:
      return Qt::AlignCenter;
    case Align::Right:
      return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    case Align::General:
      break;
  }
  const Qt::Alignment side = IsNumeric(cell) ? Qt::AlignRight : Qt::AlignLeft;
  return static_cast<int>(side | Qt::AlignVCenter);
}

}  // namespace

GridModel::GridModel(const Grid& grid)
    : grid_(grid),
      seen_(grid.Revision()),
      rows_(grid.Rows() - grid.FixedRows()),
      columns_(grid.Cols()) {}

bool GridModel::Follow() {
  if (grid_.Revision() == seen_) return false;
  seen_ = grid_.Revision();
  const int rows = std::max(0, grid_.Rows() - grid_.FixedRows());
  if (rows != rows_ || grid_.Cols() != columns_) {
    beginResetModel();
    rows_ = rows;
    columns_ = grid_.Cols();
    endResetModel();
    return true;
  }
  if (columns_ == 0) return true;
  emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
  return true;
}

QModelIndex GridModel::IndexOf(int gridRow, int column) const {
  return gridRow < grid_.FixedRows() ? QModelIndex() : index(gridRow - grid_.FixedRows(), column);
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QString GridModel::Shown(const QModelIndex& index) const {
  const std::string& cell = grid_.TextMatrix(GridRow(index), index.column());
  const std::string& format = grid_.Columns()[static_cast<size_t>(index.column())].Format;
  if (!format.empty()) return ToQt(FormatText(cell, format));
  return cell.find('\r') == std::string::npos ? ShownEntry(cell) : ShownLines(cell);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.column() >= grid_.Cols()) return {};
  const GridColumn& column = grid_.Columns()[static_cast<size_t>(index.column())];
  const CellLook look = grid_.Look(GridRow(index), index.column());
  const std::string& cell = grid_.TextMatrix(GridRow(index), index.column());
  switch (role) {
    case Qt::DisplayRole:
      return look.Picture || column.CheckBox ? QVariant() : Shown(index);
    case Qt::EditRole:
      return ToQt(cell);
    case Qt::CheckStateRole:
      if (!column.CheckBox) return {};
      return Ticked(cell) ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
      return Alignment(column, cell);
    case Qt::BackgroundRole:
      if (look.BackColor < 0) return {};
      return QBrush(QColor::fromRgb(static_cast<QRgb>(look.BackColor)));
    case Qt::FontRole: {
      if (!look.Bold) return {};
      QFont bold;
      bold.setBold(true);
      return bold;
    }
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= grid_.Cols()) return {};
  if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
  if (role != Qt::DisplayRole || grid_.FixedRows() == 0) return {};
  return ToQt(grid_.TextMatrix(0, section));
}

}  // namespace store
