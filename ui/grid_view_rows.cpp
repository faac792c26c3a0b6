// What a person does with the rows of a grid without touching the grid: sorting, filtering,
// copying, exporting.
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "basics/numbers.h"
#include "lookup/export_grid.h"
#include "ui/desk.h"
#include "ui/filter_line.h"
#include "ui/form_window.h"
#include "ui/grid_copy.h"
#include "ui/grid_header.h"
#include "ui/grid_view.h"
#include "ui/qt_text.h"
#include "ui/scan_catcher.h"

namespace store {

// --- sorting

void GridView::TitleClicked(int column) {
  const GridRows& rows = model_.ShownRows();
  const bool again = rows.SortedBy() == column;
  SortBy(column, !again                                ? RowOrder::Ascending
                 : rows.Order() == RowOrder::Ascending ? RowOrder::Descending
                                                       : RowOrder::Own);
}

void GridView::SortBy(int column, RowOrder order) {
  if (!MayArrange()) return;
  Rearrange([&](GridRows& rows) { rows.Sort(column, order); });
  ShowArranged();
}

void GridView::Rearrange(const std::function<void(GridRows& rows)>& change) {
  TakeOverOpenCell();
  CopyNoMore();
  pressed_ = pointed_ = QPersistentModelIndex();
  const QScopedValueRollback following(following_, true);
  model_.Rearrange(change);
  FollowHiddenRows();
}

void GridView::ShowArranged() {
  const QScopedValueRollback following(following_, true);
  columns_.Follow();
  FollowCurrentCell();
  if (!currentIndex().isValid()) scrollToTop();
  NoteTopRow();
  FollowFilter();
}

void GridView::NoteTopRow() {
  const int row = model_.ShownRows().RowAt(std::max(0, rowAt(0)));
  grid_.NoteTopRow(std::max(0, row - grid_.FixedRows()));
}

void GridView::SwitchColumn(int column, bool on) {
  columns_.Switch(column, on);
  if (!on && model_.ShownRows().SortedBy() == column) SortBy(column, RowOrder::Own);
  if (model_.ShownRows().IsFiltered()) FilterBy(filter_->Text());
}

// --- filtering

void GridView::OpenFilter() {
  if (!MayArrange()) return;
  cameFrom_ = QApplication::focusWidget();
  header_->ShowBelow(filter_);
  filter_->show();
  updateGeometries();
  FollowFilter();
  filter_->TakeKeyboard();
}

bool GridView::FilterIsOpen() const { return !filter_->isHidden(); }

bool GridView::TakesTyping(const QWidget& widget) const {
  return IsOpenCell(widget) || filter_->isAncestorOf(&widget);
}

void GridView::FilterBy(const QString& text) {
  std::vector<int> columns = columns_.Shown();
  std::erase_if(columns, [this](int column) {
    return grid_.Columns()[static_cast<size_t>(column)].CheckBox;
  });
  const GridRows& rows = model_.ShownRows();
  Rearrange([&](GridRows& shown) { shown.Filter(FromQt(text), columns); });
  // A mark on what was not looked for goes to the first row that was, as by a click. Where there is
  // none it stays, and stays in sight.
  const int marked = grid_.Row();
  const bool lost = marked >= grid_.FixedRows() && rows.PlaceOf(marked) < 0;
  if (lost && rows.Count() > 0) {
    Dispatch([&] { grid_.Select(rows.RowAt(0), grid_.Col()); });
  }
  ShowArranged();
}

void GridView::KeepInSight(int row) {
  const GridRows& rows = model_.ShownRows();
  if (rows.AreOwn() || rows.PlaceOf(row) >= 0 || grid_.RowHidden(row)) return;
  model_.Rearrange([row](GridRows& shown) { shown.KeepInSight(row); });
  FollowFilter();
}

void GridView::GoOnToRows() {
  setFocus(Qt::OtherFocusReason);
  const GridRows& rows = model_.ShownRows();
  if (grid_.Row() >= grid_.FixedRows() || rows.Count() == 0) return;
  Dispatch([&] { grid_.Select(rows.RowAt(0), ShownColumn(grid_.Col())); });
}

// In a window that is scanned into, a scan is an item wherever the keyboard is.
bool GridView::HandOnScan(const QString& code) {
  for (QLineEdit* box : window()->findChildren<QLineEdit*>()) {
    if (!box->property(kScannedProperty).toBool() || !box->isEnabled() || !box->isVisible()) {
      continue;
    }
    CloseFilter();
    Dispatch([&] { TheDesk().TypeLater(*box, code + '\r'); });
    return true;
  }
  return false;
}

void GridView::CloseFilter() {
  if (!FilterIsOpen()) return;
  QWidget* back = cameFrom_ != nullptr && cameFrom_->isVisible() && cameFrom_->isEnabled() &&
                          cameFrom_->window() == window() && !filter_->isAncestorOf(cameFrom_)
                      ? cameFrom_.data()
                      : this;
  if (filter_->HasKeyboard()) back->setFocus(Qt::OtherFocusReason);
  HideFilter();
  FilterBy({});
}

void GridView::HideFilter() {
  filter_->hide();
  filter_->Clear();
  header_->ShowBelow(nullptr);
  updateGeometries();
}

// What is left out is still in the sums, and what is ticked there still goes with the rest.
void GridView::FollowFilter() {
  if (!FilterIsOpen()) return;
  const GridRows& rows = model_.ShownRows();
  if (!rows.IsFiltered() && HasWords(FromQt(filter_->Text())) && !filter_->HasKeyboard()) {
    HideFilter();  // a new line has ended it
    return;
  }
  const auto isThere = [this](int row) { return !grid_.RowHidden(row); };
  const auto isTicked = [&](int row) {
    int column = -1;
    const auto ticks = [&](const GridColumn& each) { return ++column, each.CheckBox; };
    const bool has = std::any_of(grid_.Columns().begin(), grid_.Columns().end(), ticks);
    return has && isThere(row) && ParseNumber(grid_.TextMatrix(row, column)) != 0;
  };
  const int ticked = rows.CountLeftOut(isTicked);
  filter_->Tell(rows.Found(), rows.Count() + rows.CountLeftOut(isThere),
                ticked == 0 ? QString() : QString("그 가운데 선택 %1줄도 처리됨").arg(ticked));
}

// --- copying and exporting

// What is copied may be more than the marked row, but never becomes what an action hits: it is
// chosen on the screen alone, and gone with the next step.
void GridView::CopyUpTo(int shownRow) {
  copy_ = {currentIndex().row(), shownRow};
  scrollTo(model_.index(shownRow, currentIndex().column()));
  viewport()->update();
}

void GridView::CopyNoMore() {
  if (std::exchange(copy_, std::nullopt)) viewport()->update();
}

bool GridView::IsToBeCopied(int shownRow) const {
  return copy_ && std::min(copy_->From, copy_->To) <= shownRow &&
         shownRow <= std::max(copy_->From, copy_->To);
}

/// Shift with an arrow, and Ctrl+A.
bool GridView::ExtendsCopy(const QKeyEvent& event) {
  if (!marksRow_ || model_.rowCount() == 0) return false;
  if (event.matches(QKeySequence::SelectAll)) {
    copy_ = {0, model_.rowCount() - 1};
    viewport()->update();
    return true;
  }
  const bool isArrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
  if (!isArrow || event.modifiers() != Qt::ShiftModifier || !currentIndex().isValid()) return false;
  const int step = event.key() == Qt::Key_Down ? 1 : -1;
  int to = (copy_ ? copy_->To : currentIndex().row()) + step;
  while (to >= 0 && to < model_.rowCount() && isRowHidden(to)) to += step;
  if (to >= 0 && to < model_.rowCount()) CopyUpTo(to);
  return true;
}

void GridView::CopyRows() {
  const int current = currentIndex().row();
  if (copy_) {
    CopyShown(std::min(copy_->From, copy_->To), std::max(copy_->From, copy_->To));
  } else if (current >= 0) {
    CopyShown(current, current);
  }
}

void GridView::CopyAllRows() { CopyShown(0, model_.rowCount() - 1); }

void GridView::CopyShown(int first, int last) {
  if (!marksRow_ && first == last) {
    QGuiApplication::clipboard()->setText(currentIndex().data().toString());
    return;
  }
  std::vector<int> rows;
  for (int shown = first; shown <= last; ++shown) {
    if (!isRowHidden(shown)) rows.push_back(model_.GridRow(model_.index(shown, 0)));
  }
  QGuiApplication::clipboard()->setText(CopiedRows(grid_, rows, columns_.Shown()));
}

void GridView::ExportBy(std::function<void()> way, const QString& key) {
  export_ = std::move(way);
  exportKey_ = key;
}

void GridView::Export() {
  if (export_) {
    export_();
    return;
  }
  auto* form = dynamic_cast<FormWindow*>(window());
  const std::string caption = form == nullptr ? std::string() : form->ShownForm().Caption;
  Label where;
  Dispatch([&] { ExportGrid(grid_, caption, where); });
  if (where.Caption.empty()) return;
  QToolTip::showText(mapToGlobal(rect().bottomLeft()), ToQt(where.Caption), this);
}

}  // namespace store
