#include "ui/print_text.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace store {
namespace {

constexpr double kNoEnd = 1e6;

/// Breaks a text into lines; gives their height together.
double Break(QTextLayout& layout, double width, bool wraps) {
  QTextOption option;
  option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  double height = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(wraps ? width : kNoEnd);
    line.setPosition({0, height});
    height += line.height();
  }
  layout.endLayout();
  return height;
}

double StartOf(const QRectF& room, double width, Qt::Alignment alignment) {
  if ((alignment & Qt::AlignRight) != 0) return room.right() - width;
  if ((alignment & Qt::AlignHCenter) != 0) return room.center().x() - width / 2;
  return room.left();
}

double TopOf(const QRectF& room, double height, Qt::Alignment alignment) {
  if ((alignment & Qt::AlignBottom) != 0) return room.bottom() - height;
  if ((alignment & Qt::AlignVCenter) != 0) return room.center().y() - height / 2;
  return room.top();
}

}  // namespace

double TextHeight(const QFont& font, double width, const QString& text) {
  QTextLayout layout(text, font);
  return Break(layout, width, true);
}

void DrawText(QPainter& painter, const QRectF& room, Qt::Alignment alignment, const QString& text,
              bool wraps) {
  QTextLayout layout(text, painter.font());
  const double top = TopOf(room, Break(layout, room.width(), wraps), alignment);
  for (int i = 0; i < layout.lineCount(); ++i) {
    const QTextLine line = layout.lineAt(i);
    line.draw(&painter, {StartOf(room, line.naturalTextWidth(), alignment), top});
  }
}

}  // namespace store
