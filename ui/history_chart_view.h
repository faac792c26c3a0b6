#pragma once

#include <QWidget>

#include "forms/grid.h"

namespace store {

/// Draws the sales history of one item: the form's grid holds 31 days, each a column with its date,
/// the quantity sold and the rows of its bar. Time runs as in the grid: yesterday is on the left.
class HistoryChartView : public QWidget {
 public:
  explicit HistoryChartView(const Grid& grid);

  /// Brings the picture into line with the grid.
  void Follow();
  /// The item that the history is of.
  void SetItem(const QString& item);
  /// Whether the form has made the columns too narrow for figures; then only the bars are drawn.
  bool IsNarrow() const;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Heading() const;
  int BarRows(int day) const;
  void PaintHeading(QPainter& painter, const QRect& room) const;
  void PaintDay(QPainter& painter, int day, const QRect& column) const;
  void PaintDate(QPainter& painter, int day, const QRect& column, int top) const;

  const Grid& grid_;
  QString item_;
  unsigned seen_ = 0;
};

}  // namespace store
