#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace store {

enum class Align { General, Left, Center, Right };

/// How one column of a grid is shown. Widths are the grid's own units, 15 to a pixel.
struct GridColumn {
  std::string Header = {};
  int Width = 900;
  Align Alignment = Align::General;
  std::string Format = {};  ///< A number mask for what is shown; the cell keeps its text.
  bool Hidden = false;
  bool Optional = false;  ///< Hidden, but a person may have it shown.
  bool CheckBox = false;  ///< A cell whose number is not 0 is ticked; ticking puts in "-1" or "0".
  bool Editable = false;  ///< The window may open an editor in its cells, or tick them.
  int BackColor = -1;     ///< 0xRRGGBB behind its data cells, -1 for the grid's own.
};

/// How one cell is shown beyond its text.
struct CellLook {
  int BackColor = -1;  ///< 0xRRGGBB, -1 for the grid's own.
  bool Bold = false;
  bool Picture = false;  ///< The cell shows the form's mark, centred, instead of text.
  bool operator==(const CellLook&) const = default;
};

/// Rows and columns of text. The cells are the form's data: what is read back is what was put in,
/// whatever the column's display format makes of it. Rows and columns count from 0; the first
/// `FixedRows` rows are the header. `Row()` 0 means that no data row is current.
class Grid : public Control {
 public:
  /// Raised when the current row or column becomes another one, by the user or from code.
  std::function<void()> RowColChange;
  std::function<void()> Click;  ///< On the current cell.
  std::function<void()> DblClick;
  /// A character, or what an input method has put together, typed where no cell can be edited.
  std::function<void(const std::string& text)> KeyPress;
  /// Whether a cell of an editable column may be edited; without it every one may.
  std::function<bool(int row, int col)> BeforeEdit;
  /// The user has put a text into a cell or has ticked it; it stands there already.
  std::function<void(int row, int col)> AfterEdit;
  /// The pointer is over another cell. What the form then makes the tool tip is shown there.
  std::function<void(int row, int col)> MouseMove;

  /// Which row a person sees next to a row, below it for the step 1 and above it for -1; -1 for
  /// none. Set by a window that shows the rows in another order or leaves some out of sight.
  std::function<int(int row, int step)> SeenBeside;

  bool Redraw = true;  ///< While false the window shows the grid as it was.

  /// Sets the columns and writes their headers into row 0; data rows are dropped.
  void SetColumns(std::vector<GridColumn> columns, int fixedRows = 1);
  const std::vector<GridColumn>& Columns() const { return columns_; }
  GridColumn& Column(int col);  ///< To change how a column shows; counts as a change.

  int Rows() const { return static_cast<int>(rows_.size()); }
  int Cols() const { return static_cast<int>(columns_.size()); }
  int FixedRows() const { return fixedRows_; }
  /// Cuts the grid to `rows` rows or adds empty ones. A current row that is cut off is no longer
  /// current.
  void SetRows(int rows);

  /// The text of a cell; empty outside the grid.
  const std::string& TextMatrix(int row, int col) const;
  /// Puts a text into a cell; passed over outside the grid.
  void SetTextMatrix(int row, int col, std::string text);

  /// Gives the grid `count` data rows whose cells are made when they are first asked for: `make`
  /// gets the number of the row among them, from 0, and gives its cells. For lists of which only a
  /// screenful is ever looked at.
  using RowMaker = std::function<std::vector<std::string>(int row)>;
  void SetRowsMadeLater(int count, RowMaker make);

  /// Adds a row of tab-joined cells, at the end or before row `index`. Surplus cells are dropped.
  void AddItem(std::string_view tabJoined, int index = -1);
  /// A current row that is taken away leaves its place to the one that a person sees below it, or,
  /// at the end, above.
  void RemoveItem(int row);

  /// The row next to `row` as a person sees the rows, by one step down (1) or up (-1); -1 where
  /// there is none. This, and no arithmetic on row numbers, is what a walk goes by.
  int RowBeside(int row, int step) const;

  /// The column into which typing goes: the current one if a text can be typed there, else the
  /// first such column; -1 where there is none.
  int EntryColumn() const;

  /// The first data row in view, counted from `FixedRows()`. The window follows what the form sets,
  /// and reports where the user has scrolled to. Clamped to the rows.
  int TopRow() const { return topRow_; }
  void SetTopRow(int row);
  void NoteTopRow(int row) { topRow_ = row; }
  unsigned TopRowRevision() const { return topRowRevision_; }

  int Row() const { return row_; }
  int Col() const { return col_; }
  void SetRow(int row) { Select(row, col_); }
  void Select(int row, int col);

  /// How a cell looks; without a back colour of its own it has its column's.
  CellLook Look(int row, int col) const;
  void SetLook(int row, int col, const CellLook& look);
  void SetBackColor(int row, int col, int color);

  bool RowHidden(int row) const;
  void SetRowHidden(int row, bool hidden);

  /// Moves on every change of cells, looks or layout (not of the current cell).
  unsigned Revision() const { return revision_; }
  /// Moves when rows come, go, are hidden or shown.
  unsigned RowsRevision() const { return rowsRevision_; }
  /// Moves when all data rows are taken away: what is put in then is another list.
  unsigned ListRevision() const { return listRevision_; }

 private:
  struct GridRow {
    std::vector<std::string> cells;  // empty until one of them is looked at
    std::string joined;              // what they are made of, parted by tabs
    std::vector<CellLook> looks;     // empty as long as no cell of the row looks special
    bool hidden = false;
    int later = -1;  // its number for `maker_`, when that makes them
  };
  bool Inside(int row, int col) const;
  void NoteOtherRows();
  std::vector<std::string>& Cells(int row) const;

  std::vector<GridColumn> columns_;
  mutable std::vector<GridRow> rows_;  // their cells come with the first look
  RowMaker maker_;
  int fixedRows_ = 1;
  int row_ = 0;
  int col_ = 0;
  int topRow_ = 0;
  unsigned topRowRevision_ = 0;
  unsigned revision_ = 0;
  unsigned rowsRevision_ = 0;
  unsigned listRevision_ = 0;
};

}  // namespace store
