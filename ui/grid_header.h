#pragma once

#include <QHeaderView>

namespace store {

/// The header of a grid, with room below its titles for the line that filters the rows.
class GridHeader : public QHeaderView {
 public:
  explicit GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

  /// Puts `line` below the titles, or takes nothing any more with a null one.
  void ShowBelow(QWidget* line);
  QSize sizeHint() const override;

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int LineHeight() const;
  void PlaceLine();

  QWidget* line_ = nullptr;
};

}  // namespace store
