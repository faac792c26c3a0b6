#include "ui/store_style.h"

#include <QPainter>
#include <QStyleOption>

#include "ui/palette.h"

namespace store {
namespace {

constexpr double kDot = 0.28;  // of the ring's size

void PaintRing(QPainter& painter, const QRectF& ring, bool chosen) {
  painter.setPen(QPen(QColor(look::Muted), 1));
  painter.setBrush(QColor(look::Paper));
  painter.drawEllipse(ring);
  if (!chosen) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(look::Bright));
  painter.drawEllipse(ring.center(), ring.width() * kDot, ring.height() * kDot);
}

}  // namespace

StoreStyle::StoreStyle() : QProxyStyle("Fusion") {}

void StoreStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const bool isTick = element == PE_IndicatorCheckBox;
  if (CurrentTheme() != Theme::Dark || (!isTick && element != PE_IndicatorRadioButton)) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (!option->state.testFlag(State_Enabled)) painter->setOpacity(0.6);
  const bool on = option->state.testFlag(State_On);
  if (isTick) {
    PaintTickBox(*painter, option->rect.adjusted(0, 0, -1, -1), on);
  } else {
    PaintRing(*painter, QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), on);
  }
  painter->restore();
}

void PaintTickBox(QPainter& painter, const QRect& box, bool ticked) {
  const int size = box.width();
  painter.setPen(QPen(QColor(look::Muted), 1));
  painter.setBrush(QColor(look::Paper));
  painter.drawRoundedRect(box, 2, 2);
  if (!ticked) return;
  painter.setPen(QPen(QColor(look::Bright), 2));
  painter.drawPolyline(
      QPolygon({box.topLeft() + QPoint(2, size / 2), box.topLeft() + QPoint(size / 2 - 1, size - 3),
                box.topLeft() + QPoint(size - 2, 3)}));
}

}  // namespace store
