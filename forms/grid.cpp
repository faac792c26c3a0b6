#include "forms/grid.h"

#include <algorithm>
#include <utility>

namespace store {
namespace {

std::vector<std::string> Split(std::string_view tabJoined, size_t atMost) {
  std::vector<std::string> cells;
  cells.reserve(atMost);
  while (cells.size() < atMost) {
    const size_t tab = tabJoined.find('\t');
    cells.emplace_back(tabJoined.substr(0, tab));
    if (tab == std::string_view::npos) break;
    tabJoined.remove_prefix(tab + 1);
  }
  return cells;
}

}  // namespace

void Grid::SetColumns(std::vector<GridColumn> columns, int fixedRows) {
  columns_ = std::move(columns);
  fixedRows_ = fixedRows;
  rows_.assign(static_cast<size_t>(fixedRows), {});
  if (fixedRows > 0) {
    for (const GridColumn& column : columns_) rows_[0].cells.push_back(column.Header);
  }
  row_ = 0;
  col_ = 0;
  NoteOtherRows();
}

void Grid::NoteOtherRows() {
  ++revision_;
  ++rowsRevision_;
  if (Rows() <= fixedRows_) ++listRevision_;
}

GridColumn& Grid::Column(int col) {
  ++revision_;
  return columns_.at(static_cast<size_t>(col));
}

void Grid::SetRows(int rows) {
  if (rows < 0) return;
  rows_.resize(static_cast<size_t>(rows));
  NoteOtherRows();
  if (row_ < rows || row_ == 0) return;
  row_ = 0;
  if (RowColChange) RowColChange();
}

bool Grid::Inside(int row, int col) const {
  return row >= 0 && row < Rows() && col >= 0 && col < Cols();
}

void Grid::SetRowsMadeLater(int count, RowMaker make) {
  SetRows(fixedRows_);
  maker_ = std::move(make);
  SetRows(fixedRows_ + count);
  int number = 0;
  for (auto row = rows_.begin() + fixedRows_; row != rows_.end(); ++row) row->later = number++;
}

std::vector<std::string>& Grid::Cells(int row) const {
  GridRow& wanted = rows_[static_cast<size_t>(row)];
  if (wanted.cells.empty()) {
    wanted.cells = wanted.later >= 0 ? maker_(wanted.later)
                                     : Split(std::exchange(wanted.joined, {}), columns_.size());
    wanted.cells.resize(columns_.size());
  }
  return wanted.cells;
}

const std::string& Grid::TextMatrix(int row, int col) const {
  static const std::string nothing;
  if (!Inside(row, col)) return nothing;
  return Cells(row)[static_cast<size_t>(col)];
}

void Grid::SetTextMatrix(int row, int col, std::string text) {
  if (!Inside(row, col)) return;
  Cells(row)[static_cast<size_t>(col)] = std::move(text);
  ++revision_;
}

void Grid::AddItem(std::string_view tabJoined, int index) {
  GridRow row;
  row.joined = tabJoined;
  if (index < 0 || index > Rows()) {
    rows_.push_back(std::move(row));
  } else {
    rows_.insert(rows_.begin() + index, std::move(row));
  }
  NoteOtherRows();
}

void Grid::RemoveItem(int row) {
  if (row < 0 || row >= Rows()) return;
  int next = row_;
  if (row == row_) {
    next = RowBeside(row, 1);
    if (next < 0) next = std::max(0, RowBeside(row, -1));
    if (next > row) --next;
  }
  rows_.erase(rows_.begin() + row);
  NoteOtherRows();
  if (next >= Rows()) next = Rows() > fixedRows_ ? Rows() - 1 : 0;
  Select(next, col_);
}

int Grid::RowBeside(int row, int step) const {
  if (SeenBeside) return SeenBeside(row, step);
  const int next = row + step;
  return next >= fixedRows_ && next < Rows() ? next : -1;
}

int Grid::EntryColumn() const {
  const auto takesText = [](const GridColumn& column) {
    return column.Editable && !column.CheckBox;
  };
  if (col_ < Cols() && takesText(columns_[static_cast<size_t>(col_)])) return col_;
  const auto found = std::find_if(columns_.begin(), columns_.end(), takesText);
  return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
}

void Grid::SetTopRow(int row) {
  topRow_ = std::clamp(row, 0, std::max(0, Rows() - fixedRows_ - 1));
  ++topRowRevision_;
}

void Grid::Select(int row, int col) {
  if (row < 0 || row >= Rows() || col < 0 || (col >= Cols() && col != 0)) return;
  if (row == row_ && col == col_) return;
  row_ = row;
  col_ = col;
  if (RowColChange) RowColChange();
}

CellLook Grid::Look(int row, int col) const {
  if (!Inside(row, col)) return {};
  const std::vector<CellLook>& looks = rows_[static_cast<size_t>(row)].looks;
  CellLook look = looks.empty() ? CellLook() : looks[static_cast<size_t>(col)];
  if (look.BackColor < 0 && row >= fixedRows_) {
    look.BackColor = columns_[static_cast<size_t>(col)].BackColor;
  }
  return look;
}

void Grid::SetLook(int row, int col, const CellLook& look) {
  if (!Inside(row, col)) return;
  std::vector<CellLook>& looks = rows_[static_cast<size_t>(row)].looks;
  looks.resize(columns_.size());
  looks[static_cast<size_t>(col)] = look;
  ++revision_;
}

void Grid::SetBackColor(int row, int col, int color) {
  CellLook look = Look(row, col);
  look.BackColor = color;
  SetLook(row, col, look);
}

bool Grid::RowHidden(int row) const {
  return row >= 0 && row < Rows() && rows_[static_cast<size_t>(row)].hidden;
}

void Grid::SetRowHidden(int row, bool hidden) {
  if (row < 0 || row >= Rows()) return;
  bool& isHidden = rows_[static_cast<size_t>(row)].hidden;
  if (isHidden != hidden) ++rowsRevision_;
  isHidden = hidden;
  ++revision_;
}

}  // namespace store
