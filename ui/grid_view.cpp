#include "ui/grid_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "lookup/export_grid.h"
#include "ui/cell_editor.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/grid_copy.h"
#include "ui/grid_delegate.h"
#include "ui/grid_menu.h"
#include "ui/key_names.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

/// Sets a flag for as long as it lives.
class Flagged {
 public:
  explicit Flagged(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Flagged() { flag_ = before_; }
  Flagged(const Flagged&) = delete;
  Flagged& operator=(const Flagged&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

GridView::GridView(Grid& grid, int lines, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      model_(grid),
      columns_(*this, grid, model_),
      editor_(new CellEditor(viewport())) {
  setModel(&model_);
  setItemDelegate(new GridDelegate(*this));
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->setVisible(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(RowHeight(lines));
  horizontalHeader()->setVisible(grid.FixedRows() > 0);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
  setAttribute(Qt::WA_InputMethodEnabled);
  setMouseTracking(true);
  editor_->Left = [this](bool keep, int step) { CloseCell(keep, step); };
  connect(this, &QTableView::doubleClicked, this, &GridView::DoubleClicked);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int section, int oldSize, int newSize) {
            columns_.MoveBorder(section, oldSize, newSize);
          });
  connect(horizontalHeader(), &QHeaderView::customContextMenuRequested, this,
          &GridView::OpenHeaderMenu);
  columns_.Follow();
}

// --- following the form

void GridView::Follow() {
  if (updatesEnabled() != grid_.Redraw) setUpdatesEnabled(grid_.Redraw);
  if (!grid_.Redraw) return;
  const Flagged flagged(following_);
  if (model_.Follow()) {
    if (openRow_ != 0) CloseCell(false, 0);
    columns_.Follow();
    FollowHiddenRows();
  }
  FollowCurrentCell();
  FollowTopRow();
}

// What the form asks for is followed once; then the person may scroll on.
void GridView::FollowTopRow() {
  if (topRowSeen_ == grid_.TopRowRevision()) return;
  topRowSeen_ = grid_.TopRowRevision();
  executeDelayedItemsLayout();
  updateGeometries();
  scrollTo(model_.index(grid_.TopRow(), ShownColumn(0)), PositionAtTop);
}

void GridView::FollowHiddenRows() {
  for (int row = grid_.FixedRows(); row < grid_.Rows(); ++row) {
    const int shown = row - grid_.FixedRows();
    if (isRowHidden(shown) != grid_.RowHidden(row)) setRowHidden(shown, grid_.RowHidden(row));
  }
}

void GridView::FollowCurrentCell() {
  const bool none = grid_.FixedRows() > 0 && grid_.Row() < grid_.FixedRows();
  const QModelIndex wanted =
      none ? QModelIndex() : model_.IndexOf(grid_.Row(), ShownColumn(grid_.Col()));
  if (wanted == currentIndex()) return;
  setCurrentIndex(wanted);
  if (wanted.isValid()) scrollTo(wanted);
  viewport()->update();
}

// A hidden column cannot be walked from, so the first one that is seen stands for it.
int GridView::ShownColumn(int column) const {
  if (column < grid_.Cols() && !isColumnHidden(column)) return column;
  for (int shown = 0; shown < grid_.Cols(); ++shown) {
    if (!isColumnHidden(shown)) return shown;
  }
  return 0;
}

void GridView::OpenHeaderMenu(const QPoint& at) {
  QMenu menu;
  FillHeaderMenu(menu, *this);
  menu.exec(horizontalHeader()->mapToGlobal(at));
}

// What the menu does must hit what is marked, so the row under the pointer is marked first.
void GridView::contextMenuEvent(QContextMenuEvent* event) {
  TakeOverOpenCell();
  QPoint at = event->globalPos();
  if (event->reason() == QContextMenuEvent::Keyboard) {
    at = viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft());
  } else if (const QModelIndex pointed = indexAt(event->pos()); pointed.isValid()) {
    if (!IsToBeCopied(pointed.row())) CopyNoMore();
    setFocus(Qt::MouseFocusReason);
    const std::optional<CopyRange> kept = copy_;
    setCurrentIndex(pointed);
    copy_ = kept;
  }
  QMenu menu;
  FillRowMenu(menu, *this);
  menu.exec(at);
}

void GridView::SwitchOptionalColumns() {
  for (const int column : columns_.Optional()) columns_.Switch(column, !columns_.IsShown(column));
}

void GridView::SwitchColumn(int column, bool on) { columns_.Switch(column, on); }

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  columns_.ShareWidth();
  columns_.MeasureView();
  PlaceOpenCell();
}

void GridView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  // What the form has asked for and has not got yet is not taken back by what a new list does.
  const bool followed = topRowSeen_ == grid_.TopRowRevision();
  if (dy != 0 && followed) grid_.NoteTopRow(std::max(0, rowAt(0)));
  if (dy != 0) columns_.MeasureView();
  PlaceOpenCell();
}

// --- walking and clicking

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  CopyNoMore();
  setAttribute(Qt::WA_InputMethodEnabled);
  viewport()->update();
  if (following_ || !current.isValid()) return;
  Dispatch([&] { grid_.Select(model_.GridRow(current), current.column()); });
}

void GridView::focusInEvent(QFocusEvent* event) {
  {
    // The table would choose a row by itself; which row is current is for the form to say.
    const Flagged flagged(following_);
    QTableView::focusInEvent(event);
    FollowCurrentCell();
  }
  setAttribute(Qt::WA_InputMethodEnabled);
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  const bool stays =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!stays) CopyNoMore();
}

// One cell is marked, and it is the one that is clicked: the left button alone chooses it, when it
// goes down, and wherever the mouse slips to until the button is let go, the click is that cell's.
void GridView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QModelIndex at = indexAt(event->position().toPoint());
  if (event->modifiers() == Qt::ShiftModifier && marksRow_ && currentIndex().isValid()) {
    if (at.isValid()) CopyUpTo(at.row());
    return;
  }
  CopyNoMore();
  pressed_ = at;
  QTableView::mousePressEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPersistentModelIndex pressed = std::exchange(pressed_, QPersistentModelIndex());
  QTableView::mouseReleaseEvent(event);
  if (pressed.isValid()) Clicked(pressed, indexAt(event->position().toPoint()) == pressed);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = QPersistentModelIndex();
  QTableView::mouseDoubleClickEvent(event);
}

void GridView::Clicked(const QModelIndex& index, bool letGoThere) {
  if (index.data(Qt::CheckStateRole).isValid()) {
    if (letGoThere) Toggle(index);
  } else if (grid_.Click) {
    Dispatch(grid_.Click);
  }
}

void GridView::DoubleClicked(const QModelIndex& index) {
  if (grid_.EntryColumn() >= 0 && index.column() == grid_.EntryColumn()) {
    OpenCell();
  } else if (grid_.DblClick) {
    Dispatch(grid_.DblClick);
  }
}

// Each cell may have a tip of its own, which the form writes when the pointer comes to it.
void GridView::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() != Qt::NoButton) return;  // the table would let the mark follow the pointer
  QTableView::mouseMoveEvent(event);
  const QModelIndex at = indexAt(event->position().toPoint());
  if (!grid_.MouseMove || at == pointed_) return;
  pointed_ = at;
  if (!at.isValid()) return;
  Dispatch([&] { grid_.MouseMove(model_.GridRow(at), at.column()); });
  QToolTip::hideText();
}

void GridView::leaveEvent(QEvent* event) {
  QTableView::leaveEvent(event);
  pointed_ = QModelIndex();
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

// --- typing

void GridView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopyRows();
    return;
  }
  if (ExtendsCopy(*event)) return;
  const bool opens = event->key() == Qt::Key_F2 || NamedKey(*event) == Key::Enter;
  if (opens) {
    if (!OpenCell()) event->ignore();
    return;
  }
  if (event->key() == Qt::Key_Space && currentIndex().data(Qt::CheckStateRole).isValid()) {
    Toggle(currentIndex());
    return;
  }
  if (const QString text = TypedText(*event); !text.isEmpty()) {
    TypeText(text);
    return;
  }
  QTableView::keyPressEvent(event);
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
  // While the input method is still putting a syllable together nothing has been typed yet.
  if (!event->commitString().isEmpty()) TypeText(event->commitString());
  event->accept();
}

QVariant GridView::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImEnabled) return true;
  if (query == Qt::ImCursorRectangle) return visualRect(currentIndex());
  return QTableView::inputMethodQuery(query);
}

void GridView::TypeText(const QString& text) {
  if (grid_.EntryColumn() >= 0) {
    OpenCell(text);
  } else if (grid_.KeyPress) {
    Dispatch([&] { grid_.KeyPress(FromQt(text)); });
  }
}

bool GridView::MayEdit(int row, int column) {
  bool may = true;
  if (grid_.BeforeEdit) Dispatch([&] { may = grid_.BeforeEdit(row, column); });
  return may;
}

void GridView::Toggle(const QModelIndex& index) {
  const int row = model_.GridRow(index);
  const int column = index.column();
  if (!grid_.Columns()[static_cast<size_t>(column)].Editable || !MayEdit(row, column)) return;
  const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  AcceptCell(row, column, ticked ? "0" : "-1", 0);
}

bool GridView::OpenCell(const QString& text) {
  const int row = grid_.Row();
  const int column = grid_.EntryColumn();
  if (column < 0 || row < grid_.FixedRows() || !MayEdit(row, column)) return false;
  openRow_ = row;
  openColumn_ = column;
  scrollTo(model_.IndexOf(row, column));
  PlaceOpenCell();
  editor_->setText(text.isEmpty() ? ToQt(grid_.TextMatrix(row, column)) : text);
  if (text.isEmpty()) editor_->selectAll();
  editor_->show();
  editor_->setFocus();
  return true;
}

void GridView::PlaceOpenCell() {
  if (openRow_ == 0) return;
  editor_->setGeometry(visualRect(model_.IndexOf(openRow_, openColumn_)));
}

bool GridView::IsOpenCell(const QWidget& widget) const {
  return openRow_ != 0 && &widget == editor_;
}

void GridView::TakeOverOpenCell() { CloseCell(true, 0); }

void GridView::CloseCell(bool keep, int step) {
  // Hiding the editor takes the keyboard from it, which comes back here.
  const int row = std::exchange(openRow_, 0);
  if (row == 0) return;
  const std::string typed = FromQt(editor_->text());
  if (editor_->hasFocus()) setFocus();
  editor_->hide();
  const int column = openColumn_;
  const bool leftAsItWas = step == 0 && typed == grid_.TextMatrix(row, column);
  if (keep && !leftAsItWas) AcceptCell(row, column, typed, step);
}

void GridView::AcceptCell(int row, int column, const std::string& typed, int step) {
  Dispatch([&] {
    grid_.SetTextMatrix(row, column, typed);
    if (grid_.AfterEdit) grid_.AfterEdit(row, column);
  });
  // What the form refused stays in front of the person.
  const bool accepted = grid_.TextMatrix(row, column) == typed;
  const int next = row + step;
  if (step == 0 || !accepted || next < grid_.FixedRows() || next >= grid_.Rows()) return;
  Dispatch([&] { grid_.Select(next, column); });
}

}  // namespace store
