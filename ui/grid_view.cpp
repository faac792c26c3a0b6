#include "ui/grid_view.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "ui/cell_editor.h"
#include "ui/desk.h"
#include "ui/filter_line.h"
#include "ui/grid_delegate.h"
#include "ui/grid_header.h"
#include "ui/grid_menu.h"
#include "ui/key_names.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

GridHeader* PutHeader(QTableView& view) {
  auto* header = new GridHeader(&view);
  view.setHorizontalHeader(header);
  return header;
}

}  // namespace

GridView::GridView(Grid& grid, int lines, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      model_(grid),
      header_(PutHeader(*this)),
      columns_(*this, grid, model_),
      editor_(new CellEditor(viewport())),
      filter_(new FilterLine(header_)) {
  setModel(&model_);
  setItemDelegate(new GridDelegate(*this));
  setSelectionMode(NoSelection);
  setSelectionBehavior(SelectRows);  // or a press on a title would choose a row
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->setVisible(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setVisible(grid.FixedRows() > 0);
  horizontalHeader()->setSectionsClickable(true);
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
  FollowLook(*this, [this, lines] {
    verticalHeader()->setDefaultSectionSize(RowHeight(lines));
    columns_.MeasureAnew();
  });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &GridView::TitleClicked);
  filter_->Typed = [this](const QString& text) { FilterBy(text); };
  filter_->GoneOn = [this] { GoOnToRows(); };
  filter_->Scanned = [this](const QString& code) { return HandOnScan(code); };
  filter_->Closed = [this] { CloseFilter(); };
  grid_.SeenBeside = [view = QPointer(this), &grid](int row, int step) {
    return view == nullptr ? GridRows(grid).Beside(row, step)
                           : view->model_.ShownRows().Beside(row, step);
  };
  columns_.Follow();
}

// --- following the form

void GridView::Follow() {
  if (updatesEnabled() != grid_.Redraw) setUpdatesEnabled(grid_.Redraw);
  if (!grid_.Redraw) return;
  const QScopedValueRollback following(following_, true);
  if (model_.Follow(filter_->HasKeyboard())) {
    if (openRow_ != 0) CloseCell(false, 0);
    CopyNoMore();
    columns_.Follow();
    FollowHiddenRows();
    FollowFilter();
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
  const QModelIndex top = model_.IndexOf(grid_.TopRow() + grid_.FixedRows(), ShownColumn(0));
  if (top.isValid()) scrollTo(top, PositionAtTop);
}

// Where a person has sorted or filtered, what the form hides is left out with the rest.
void GridView::FollowHiddenRows() {
  const bool own = model_.ShownRows().AreOwn();
  const int rows = model_.rowCount();
  for (int place = 0; place < rows; ++place) {
    const bool hidden = own && grid_.RowHidden(model_.ShownRows().RowAt(place));
    if (isRowHidden(place) != hidden) setRowHidden(place, hidden);
  }
}

void GridView::FollowCurrentCell() {
  const bool none = grid_.FixedRows() > 0 && grid_.Row() < grid_.FixedRows();
  if (!none) KeepInSight(grid_.Row());
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
  FillHeaderMenu(menu, *this, horizontalHeader()->logicalIndexAt(at));
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
  FillRowMenu(menu, *this, currentIndex().column());
  menu.exec(at);
}

void GridView::SwitchOptionalColumns() {
  for (const int column : columns_.Optional()) columns_.Switch(column, !columns_.IsShown(column));
}

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
  if (dy != 0 && followed) NoteTopRow();
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
    const QScopedValueRollback following(following_, true);
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
  const int next = step == 0 || !accepted ? -1 : model_.ShownRows().Beside(row, step);
  if (next < 0) return;
  Dispatch([&] { grid_.Select(next, column); });
}

}  // namespace store
