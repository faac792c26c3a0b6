#include "ui/grid_columns.h"

#include <QHeaderView>
#include <QTableView>
#include <algorithm>
#include <utility>

#include "ui/qt_text.h"

namespace store {
namespace {

constexpr int kHeaderMargin = 10;
constexpr int kNarrowest = 18;
constexpr int kWidest = 10000;
constexpr int kCellMargin = 12;
constexpr int kMeasuredRows = 100;
constexpr size_t kRememberedTexts = 1000;  // of a column
constexpr int kLongestCode = 120;
constexpr const char* kBoldMark = "\x01";

}  // namespace

GridColumns::GridColumns(QTableView& view, const Grid& grid, const GridModel& model)
    : view_(view), grid_(grid), model_(model) {
  view_.horizontalHeader()->setMinimumSectionSize(kNarrowest);
}

void GridColumns::Follow() {
  ShowColumns();
  MeasureRows(0, kMeasuredRows - 1);
  MeasureView();
  ShareWidth();
}

void GridColumns::MeasureAnew() {
  needs_.clear();
  Follow();
}

void GridColumns::ShowColumns() {
  // What the form hides by now may have been all that a person had left.
  if (Shown().empty()) switchedOff_.clear();
  const bool before = std::exchange(sharing_, true);  // showing one is no drag
  for (int column = 0; column < grid_.Cols(); ++column) {
    if (view_.isColumnHidden(column) == IsShown(column)) {
      view_.setColumnHidden(column, !IsShown(column));
    }
  }
  sharing_ = before;
}

// --- how wide the texts are

// The first rows and those in view stand for all of them: a list of thousands must not be measured
// row by row. Needs only grow, so that the columns do not jump with every search.
void GridColumns::MeasureView() {
  const int rows = model_.rowCount();
  if (rows <= kMeasuredRows) return;
  const int first = view_.rowAt(0);
  const int last = view_.rowAt(view_.viewport()->height() - 1);  // none where the list ends above
  if (first >= 0 && MeasureRows(first, last < 0 ? rows - 1 : last)) ShareWidth();
}

bool GridColumns::MeasureRows(int first, int last) {
  const int end = std::min(last + 1, model_.rowCount());
  bool grown = false;
  for (int column = 0; column < grid_.Cols(); ++column) {
    if (!IsShown(column)) continue;
    ColumnNeed& need = needs_[column];
    const std::string& format = grid_.Columns()[static_cast<size_t>(column)].Format;
    if (need.Format != format || need.Measured.size() >= kRememberedTexts) need.Measured.clear();
    need.Format = format;
    const int before = need.Width;
    for (int row = first; row < end; ++row) {
      const QModelIndex index = model_.index(row, column);
      if (!grid_.RowHidden(model_.GridRow(index))) Measure(need, index);
    }
    grown = grown || need.Width > before;
  }
  return grown;
}

// A text measured before can add nothing: an order that a scan makes longer by one line must not be
// measured from top to bottom.
void GridColumns::Measure(ColumnNeed& need, const QModelIndex& index) {
  const int row = model_.GridRow(index);
  const bool isBold = grid_.Look(row, index.column()).Bold;
  const std::string& cell = grid_.TextMatrix(row, index.column());
  if (!need.Measured.insert(isBold ? kBoldMark + cell : cell).second) return;
  QFont font = view_.font();
  font.setBold(isBold);
  const QFontMetrics metrics(font);
  for (const QString& line : index.data().toString().split('\n')) {
    need.Width = std::max(need.Width, metrics.horizontalAdvance(line.trimmed()) + kCellMargin);
  }
}

int GridColumns::NeedOf(int column) const {
  const QString header = model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  const QFontMetrics metrics = view_.horizontalHeader()->fontMetrics();
  const auto measured = needs_.find(column);
  // The header itself lets no column be narrower than a tick box.
  return std::max({metrics.horizontalAdvance(header) + kHeaderMargin, kNarrowest,
                   measured == needs_.end() ? 0 : measured->second.Width});
}

// A name can be cut and still be known; a figure, a date or a code cannot.
bool GridColumns::IsName(int column) const {
  return grid_.Columns()[static_cast<size_t>(column)].Alignment == Align::Left &&
         NeedOf(column) > kLongestCode;
}

int GridColumns::LeastOf(int column) const {
  if (!IsName(column)) return NeedOf(column);
  if (dragged_.contains(column)) return kNarrowest;
  const QString header = model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  return view_.horizontalHeader()->fontMetrics().horizontalAdvance(header) + kHeaderMargin;
}

// --- sharing

ColumnWish GridColumns::WishOf(int column) const {
  const GridColumn& asked = grid_.Columns()[static_cast<size_t>(column)];
  const int least = LeastOf(column);
  ColumnWish wish{std::max(1.0, static_cast<double>(asked.Width)), least, NeedOf(column),
                  asked.Alignment == Align::Left};
  const auto dragged = dragged_.find(column);
  if (dragged == dragged_.end()) return wish;
  wish.Weight = dragged->second;
  wish.Need = std::max(dragged->second, least);
  return wish;
}

void GridColumns::ShareWidth() {
  std::vector<int> columns;
  std::vector<ColumnWish> wishes;
  for (int column = 0; column < grid_.Cols(); ++column) {
    if (!IsShown(column)) continue;
    columns.push_back(column);
    wishes.push_back(WishOf(column));
  }
  const bool before = std::exchange(sharing_, true);
  const std::vector<int> widths = ShareColumns(wishes, view_.viewport()->width());
  for (size_t i = 0; i < columns.size(); ++i) view_.setColumnWidth(columns[i], widths[i]);
  sharing_ = before;
}

void GridColumns::MoveBorder(int section, int oldSize, int newSize) {
  if (sharing_ || newSize == 0) return;
  int neighbour = section + 1;
  while (neighbour < grid_.Cols() && !IsShown(neighbour)) ++neighbour;
  if (neighbour < grid_.Cols()) {
    for (int column = 0; column < grid_.Cols(); ++column) {
      if (IsShown(column)) dragged_[column] = view_.columnWidth(column);
    }
    const int both = oldSize + view_.columnWidth(neighbour);
    const int least = LeastOf(section);
    const int most = std::max(least, both - LeastOf(neighbour));
    dragged_[section] = std::clamp(newSize, least, most);
    dragged_[neighbour] = both - dragged_[section];
  }
  ShareWidth();
}

// --- what a person may switch on

std::vector<int> GridColumns::Optional() const {
  std::vector<int> optional;
  for (int column = 0; column < grid_.Cols(); ++column) {
    if (grid_.Columns()[static_cast<size_t>(column)].Optional) optional.push_back(column);
  }
  return optional;
}

std::vector<int> GridColumns::Offered() const {
  std::vector<int> offered;
  for (int column = 0; column < grid_.Cols(); ++column) {
    const GridColumn& asked = grid_.Columns()[static_cast<size_t>(column)];
    if (!asked.Hidden || asked.Optional) offered.push_back(column);
  }
  return offered;
}

bool GridColumns::IsShown(int column) const {
  const GridColumn& asked = grid_.Columns()[static_cast<size_t>(column)];
  if (asked.Hidden) return asked.Optional && switchedOn_.contains(column);
  return asked.Editable || !switchedOff_.contains(column);
}

std::vector<int> GridColumns::Shown() const {
  std::vector<int> shown = Offered();
  std::erase_if(shown, [this](int column) { return !IsShown(column); });
  return shown;
}

bool GridColumns::MaySwitch(int column) const {
  if (grid_.Columns()[static_cast<size_t>(column)].Editable) return false;
  return !IsShown(column) || Shown().size() > 1;
}

void GridColumns::Switch(int column, bool on) {
  if (on == IsShown(column) || !MaySwitch(column)) return;
  const bool isHidden = grid_.Columns()[static_cast<size_t>(column)].Hidden;
  std::set<int>& changed = isHidden ? switchedOn_ : switchedOff_;
  if (on == isHidden) {
    changed.insert(column);
  } else {
    changed.erase(column);
  }
  dragged_.erase(column);
  Follow();
}

// --- kept as a text: "0:40 2:310 +3 -4", widths by column and the columns switched on and off

QString GridColumns::Layout() const {
  QStringList parts;
  for (const auto& [column, width] : dragged_) parts << QString("%1:%2").arg(column).arg(width);
  for (const int column : switchedOn_) parts << QString("+%1").arg(column);
  for (const int column : switchedOff_) parts << QString("-%1").arg(column);
  return parts.join(' ');
}

void GridColumns::TakeLayout(const QString& text) {
  std::map<int, int> dragged;
  std::set<int> switchedOn;
  std::set<int> switchedOff;
  for (const QString& part : text.split(' ', Qt::SkipEmptyParts)) {
    bool isColumn = false;
    bool isWidth = true;
    const bool isSwitch = part.startsWith('+') || part.startsWith('-');
    const int column = (isSwitch ? part.mid(1) : part.section(':', 0, 0)).toInt(&isColumn);
    const int width = isSwitch ? kNarrowest : part.section(':', 1).toInt(&isWidth);
    const bool stands = isColumn && isWidth && column >= 0 && column < grid_.Cols() &&
                        width >= kNarrowest && width <= kWidest;
    if (!stands) return;
    if (isSwitch) {
      (part.startsWith('+') ? switchedOn : switchedOff).insert(column);
    } else {
      dragged[column] = width;
    }
  }
  dragged_ = std::move(dragged);
  switchedOn_ = std::move(switchedOn);
  switchedOff_ = std::move(switchedOff);
  Follow();
}

}  // namespace store
