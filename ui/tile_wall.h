#pragma once

#include <QAbstractScrollArea>
#include <QPixmap>
#include <optional>
#include <string>

#include "forms/grid.h"

namespace store {

/// Shows a grid of a form as a wall of tiles for a finger: each cell is a tile whose first line,
/// the name, is large and whose further lines are small. Tiles are painted straight from the form's
/// cells, and only those on the screen are looked at, so that a wall of a whole item list opens at
/// once.
///
/// The arrow keys, Home and End walk from tile to tile; a double click, or what the form does with
/// the enter key, picks one. An empty cell is a gap in the wall, which the keys do not enter.
class TileWall : public QAbstractScrollArea {
 public:
  /// `marker` is where the part of a tile's text begins that a person does not see.
  TileWall(Grid& tiles, std::string marker);

  /// What a wall without tiles says.
  void SetPlaceholder(const QString& text) { placeholder_ = text; }

  /// Brings the wall into line with the grid.
  void Follow();
  int TileHeight() const { return tileHeight_; }
  /// Where a tile stands on the viewport; it need not be in view.
  QRect TileAt(int row, int column) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  struct Cell {
    int Row;
    int Column;
    bool operator==(const Cell&) const = default;
  };
  int ColumnWidth() const;
  std::optional<Cell> CellAt(const QPoint& point) const;
  std::optional<Cell> TargetOf(const QKeyEvent& event) const;
  Cell LastTileBefore(int place) const;
  Cell Current() const { return {tiles_.Row(), tiles_.Col()}; }
  QStringList SeenLines(const Cell& cell) const;
  void Select(const Cell& cell);
  void Point(const std::optional<Cell>& cell);
  void TakeFonts();
  void MeasureRange();
  void FollowTopRow();
  void BringIntoView(const Cell& cell);
  void PaintTile(QPainter& painter, const Cell& cell);
  const QPixmap& PlainGround(const QSize& size);
  void PaintText(QPainter& painter, const QRect& room, const QStringList& lines) const;
  void ShowTip(const QPoint& at, const QPoint& globalAt);

  Grid& tiles_;
  const std::string marker_;
  QString placeholder_;
  QFont nameFont_;
  QFont detailFont_;
  int tileHeight_ = 1;
  QPixmap plainGround_;          // of a tile that is neither current nor pointed at
  std::optional<Cell> pointed_;  // the cell under the pointer
  Cell shownCurrent_{0, 0};
  unsigned seen_ = 0;
  unsigned topRowSeen_ = 0;
};

}  // namespace store
