#pragma once

#include <QStyledItemDelegate>

namespace store {

class GridView;

/// Paints a cell: its tint, its lines of text, its mark, and where the person is.
class GridDelegate : public QStyledItemDelegate {
 public:
  explicit GridDelegate(GridView& view);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  /// Shows a text that does not fit into its cell, unless the grid has a tool tip of its own.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  void PaintGround(QPainter& painter, const QRect& cell, const QModelIndex& index) const;
  void PaintText(QPainter& painter, const QRect& cell, const QModelIndex& index) const;
  void PaintPlace(QPainter& painter, const QRect& cell, const QModelIndex& index) const;
  bool IsMarked(const QModelIndex& index) const;

  GridView& view_;
};

}  // namespace store
