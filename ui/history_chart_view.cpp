#include "ui/history_chart_view.h"

#include <QAccessible>
#include <QPainter>
#include <QPainterPath>

#include "basics/numbers.h"
#include "order/history_pane.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kFirstBarRow = history::Offset + 1;
constexpr int kWhite = 0xFFFFFF;
constexpr int kNarrowColumn = 200;  // the grid's units; no figure fits below
constexpr int kMargin = 6;
constexpr int kWideBars = 70;
constexpr int kNarrowBars = 30;

}  // namespace

HistoryChartView::HistoryChartView(const Grid& grid) : grid_(grid) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAccessibleName("판매이력");
}

void HistoryChartView::Follow() {
  if (grid_.Revision() == seen_) return;
  seen_ = grid_.Revision();
  updateGeometry();
  update();
}

void HistoryChartView::SetItem(const QString& item) {
  item_ = item;
  if (QAccessible::isActive()) setAccessibleDescription(Heading());
  update();
}

bool HistoryChartView::IsNarrow() const {
  return grid_.Cols() > 1 && grid_.Columns()[1].Width < kNarrowColumn;
}

QSize HistoryChartView::sizeHint() const {
  const int line = fontMetrics().lineSpacing();
  const int lines = IsNarrow() ? 1 : 5;  // heading; quantity, day, month, days back
  return {600, lines * line + Scaled(IsNarrow() ? kNarrowBars : kWideBars) + 3 * kMargin};
}

// The form paints the rows above a day's bar white; those it leaves are the bar.
int HistoryChartView::BarRows(int day) const {
  int rows = 0;
  for (int row = kFirstBarRow; row < kFirstBarRow + history::BarRows && row < grid_.Rows(); ++row) {
    if (grid_.Look(row, day).BackColor != kWhite) ++rows;
  }
  return rows;
}

void HistoryChartView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(look::Paper));
  painter.setPen(QColor(look::Line));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  const QRect room = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  PaintHeading(painter, room);
  const int days = grid_.Cols() - 1;
  // Made narrow, the bars leave the width to what the person is working on.
  const int width = IsNarrow() ? room.width() / 4 : room.width();
  const int top = room.top() + (IsNarrow() ? 0 : fontMetrics().lineSpacing() + kMargin);
  for (int day = 1; day <= days; ++day) {
    const int left = room.left() + width * (day - 1) / days;
    const int right = room.left() + width * day / days;
    PaintDay(painter, day, QRect(left, top, right - left, room.bottom() - top + 1));
  }
}

QString HistoryChartView::Heading() const {
  double sold = 0;
  for (int day = 1; day < grid_.Cols(); ++day) {
    sold += ParseNumber(grid_.TextMatrix(history::Quantity, day));
  }
  return "최근 31일 판매  " + item_ + "   합계 " + ToQt(FormatNumber(sold, "#,##0.##"));
}

void HistoryChartView::PaintHeading(QPainter& painter, const QRect& room) const {
  QRect line(room.left(), room.top(), room.width(), fontMetrics().lineSpacing());
  if (IsNarrow()) line.setLeft(room.left() + room.width() / 4 + 2 * kMargin);
  painter.setPen(QColor(look::Ink));
  painter.drawText(line, Qt::AlignLeft, Heading());
  painter.setPen(QColor(look::Muted));
  painter.drawText(line, Qt::AlignRight, "F5 좁게   F6 넓게");
}

void HistoryChartView::PaintDay(QPainter& painter, int day, const QRect& column) const {
  const bool narrow = IsNarrow();
  const int line = fontMetrics().lineSpacing();
  const int quantityHeight = narrow ? 0 : line;
  const int datesHeight = narrow ? 0 : 3 * line;
  const int ground = column.bottom() - datesHeight;
  const int tallest = ground - column.top() - quantityHeight;
  const int height = tallest * BarRows(day) / history::BarRows;
  const int gap = narrow ? 1 : std::max(1, column.width() / 6);
  painter.setPen(QColor(look::Line));
  painter.drawLine(column.left(), ground, column.right(), ground);
  painter.fillRect(column.left() + gap, ground - height, column.width() - 2 * gap, height,
                   QColor(look::Accent));
  if (narrow) return;
  const std::string& quantity = grid_.TextMatrix(history::Quantity, day);
  painter.setPen(QColor(quantity == "0" ? look::Muted : look::Ink));
  painter.drawText(
      QRect(column.left() - gap, ground - height - line, column.width() + 2 * gap, line),
      Qt::AlignCenter, ToQt(quantity));
  PaintDate(painter, day, column, ground + 1);
}

void HistoryChartView::PaintDate(QPainter& painter, int day, const QRect& column, int top) const {
  const int line = fontMetrics().lineSpacing();
  const QRect cell(column.left(), top, column.width(), line);
  painter.setPen(QColor(look::Ink));
  painter.drawText(cell, Qt::AlignCenter, ToQt(grid_.TextMatrix(history::Day, day)));
  painter.setPen(QColor(look::Muted));
  // A month is written once, where it begins when one reads from the left.
  const std::string& month = grid_.TextMatrix(history::Month, day);
  if (day == 1 || month != grid_.TextMatrix(history::Month, day - 1)) {
    painter.drawText(QRect(cell.left(), cell.top() + line, cell.width() * 4, line),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     ToQt(grid_.TextMatrix(history::Year, day)) + "." + ToQt(month));
  }
  painter.drawText(cell.translated(0, 2 * line), Qt::AlignCenter,
                   "-" + ToQt(grid_.TextMatrix(history::DaysBack, day)));
}

}  // namespace store
