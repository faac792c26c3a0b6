#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTableView>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/grid.h"
#include "ui/context_action.h"
#include "ui/grid_columns.h"
#include "ui/grid_model.h"

namespace store {

class CellEditor;
class FilterLine;
class GridHeader;

/// Shows a grid of a form and lets a person walk, click and type in it. Row heights are uniform and
/// nothing is measured by row, so that a whole item list fills as fast as ten lines.
class GridView : public QTableView {
 public:
  /// `lines` is the number of text lines in a row.
  explicit GridView(Grid& grid, int lines = 1, QWidget* parent = nullptr);

  /// A tint behind a cell's text by what it says; an invalid colour for none.
  std::function<QColor(int column, const QString& text)> Tint;
  /// Marks the current cell alone instead of its row.
  void MarkCellsOnly() { marksRow_ = false; }
  bool MarksRow() const { return marksRow_; }

  /// The window's own lines of the context menu.
  void SetContextActions(ContextActions actions) { actions_ = std::move(actions); }
  const ContextActions& Actions() const { return actions_; }

  /// Shows the columns that can be switched on, or takes them away again.
  void SwitchOptionalColumns();
  void SwitchColumn(int column, bool on);

  /// Whether the rows can be sorted and filtered: where each is one thing, under titles.
  bool MayArrange() const { return marksRow_ && grid_.FixedRows() > 0; }
  /// Sorts what is shown. The grid's own rows stay as they are.
  void SortBy(int column, RowOrder order);
  /// Opens the line that filters the rows, or puts the keyboard into it.
  void OpenFilter();
  bool FilterIsOpen() const;
  /// Shows all rows again; the keyboard goes back to where it came from.
  void CloseFilter();

  /// Puts the marked row on the clipboard, or the rows that Shift or Ctrl+A has chosen with it.
  void CopyRows();
  void CopyAllRows();
  /// Whether the row stands in what `CopyRows` copies beyond the marked one.
  bool IsToBeCopied(int shownRow) const;

  /// Opens the whole grid in a spreadsheet. A window that has a way of its own says which, and its
  /// key.
  void Export();
  void ExportBy(std::function<void()> way, const QString& key);
  const QString& ExportKey() const { return exportKey_; }
  /// Which columns are shown and how wide; to be kept and put back.
  GridColumns& Columns() { return columns_; }

  Grid& ShownGrid() const { return grid_; }
  const GridModel& Model() const { return model_; }

  /// Brings the view into line with the grid.
  void Follow();
  /// Whether `widget` is typed into by itself: the open cell, or the line of the filter.
  bool TakesTyping(const QWidget& widget) const;
  /// Whether `widget` is the open cell.
  bool IsOpenCell(const QWidget& widget) const;
  /// Takes over what stands in the open cell, if one is open.
  void TakeOverOpenCell();
  /// Opens the cell of the current row that takes typing with `text` in it, or with its own text
  /// selected. False when the form does not let it.
  bool OpenCell(const QString& text = {});

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void FollowHiddenRows();
  void FollowCurrentCell();
  void TitleClicked(int column);
  void Rearrange(const std::function<void(GridRows& rows)>& change);
  void ShowArranged();
  void FilterBy(const QString& text);
  void FollowFilter();
  void HideFilter();
  void GoOnToRows();
  bool HandOnScan(const QString& code);
  void KeepInSight(int row);
  void NoteTopRow();
  void OpenHeaderMenu(const QPoint& at);
  int ShownColumn(int column) const;
  void CopyShown(int first, int last);
  bool ExtendsCopy(const QKeyEvent& event);
  void CopyUpTo(int shownRow);
  void CopyNoMore();
  void Clicked(const QModelIndex& index, bool letGoThere);
  void DoubleClicked(const QModelIndex& index);
  void TypeText(const QString& text);
  void Toggle(const QModelIndex& index);
  void FollowTopRow();
  bool MayEdit(int row, int column);
  void CloseCell(bool keep, int step);
  void AcceptCell(int row, int column, const std::string& typed, int step);
  void PlaceOpenCell();

  Grid& grid_;
  GridModel model_;
  GridHeader* header_;
  GridColumns columns_;
  CellEditor* editor_;
  FilterLine* filter_;
  QPointer<QWidget> cameFrom_;  // had the keyboard before the filter
  int openRow_ = 0;             // row of the open cell in the grid; 0 when none is open
  int openColumn_ = -1;
  unsigned topRowSeen_ = 0;
  QPersistentModelIndex pointed_;  // the cell under the pointer
  QPersistentModelIndex pressed_;  // the cell on which the button went down and is still held
  /// Rows as they are shown, from the one that was marked to where Shift has led from it.
  struct CopyRange {
    int From;
    int To;
  };
  std::optional<CopyRange> copy_;
  ContextActions actions_;
  std::function<void()> export_;
  QString exportKey_;
  bool marksRow_ = true;
  bool following_ = false;
};

}  // namespace store
