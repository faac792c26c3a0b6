#include "ui/grid_model.h"

#include <QBrush>
#include <QFont>
#include <algorithm>

#include "basics/numbers.h"
#include "ui/qt_text.h"

namespace store {
namespace {

bool Ticked(const std::string& cell) { return ParseNumber(cell) != 0; }

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
    : grid_(grid), shown_(grid), seen_(grid.Revision()), columns_(grid.Cols()) {}

bool GridModel::Follow(bool holdFilter) {
  if (grid_.Revision() == seen_) return false;
  seen_ = grid_.Revision();
  if (shown_.HaveChanged() || grid_.Cols() != columns_) {
    beginResetModel();
    shown_.Follow(holdFilter);
    columns_ = grid_.Cols();
    endResetModel();
    return true;
  }
  shown_.Follow(holdFilter);
  if (columns_ == 0) return true;
  emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
  const int rows = rowCount();
  if (rows > 0) emit dataChanged(index(0, 0), index(rows - 1, columns_ - 1));
  return true;
}

void GridModel::Rearrange(const std::function<void(GridRows& rows)>& change) {
  beginResetModel();
  change(shown_);
  endResetModel();
}

QModelIndex GridModel::IndexOf(int gridRow, int column) const {
  const int place = gridRow < grid_.FixedRows() ? -1 : shown_.PlaceOf(gridRow);
  return place < 0 ? QModelIndex() : index(place, column);
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shown_.Count();
}

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
  const QString header = ToQt(grid_.TextMatrix(0, section));
  if (shown_.SortedBy() != section) return header;
  return header + (shown_.Order() == RowOrder::Ascending ? " ▲" : " ▼");
}

}  // namespace store
