#include "ui/store_style.h"

#include <QPainter>
#include <QStyleOption>

#include "ui/palette.h"

namespace store {
namespace {

constexpr double kDot = 0.28;  // of the ring's size
constexpr int kBorderMargin = 6;

void PaintRing(QPainter& painter, const QRectF& ring, bool chosen) {
  painter.setPen(QPen(QColor(look::Muted), 1));
  painter.setBrush(QColor(look::Paper));
  painter.drawEllipse(ring);
  if (!chosen) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(look::Bright));
  painter.drawEllipse(ring.center(), ring.width() * kDot, ring.height() * kDot);
}

void PaintMenuEdge(QPainter& painter, const QRect& menu) {
  painter.save();  // whoever draws the lines goes on with this pen and brush
  painter.setPen(QColor(look::Edge));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(menu.adjusted(0, 0, -1, -1));
  painter.restore();
}

void PaintMenuBorder(QPainter& painter, const QRect& line) {
  painter.save();
  painter.setPen(QColor(look::Edge));
  painter.drawLine(line.left() + kBorderMargin, line.center().y(), line.right() - kBorderMargin,
                   line.center().y());
  painter.restore();
}

}  // namespace

StoreStyle::StoreStyle() : QProxyStyle("Fusion") {}

void StoreStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (element == PE_PanelMenu) {
    painter->fillRect(option->rect, QColor(look::Card));
    return;
  }
  if (element == PE_FrameMenu) {
    PaintMenuEdge(*painter, option->rect);
    return;
  }
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

void StoreStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  const auto* line = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuItem && line != nullptr &&
      line->menuItemType == QStyleOptionMenuItem::Separator) {
    PaintMenuBorder(*painter, line->rect);
  } else {
    QProxyStyle::drawControl(element, option, painter, widget);
  }
}

int StoreStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
  // A line that is chosen leaves the menu's edge to be seen.
  return metric == PM_MenuPanelWidth ? 1 : QProxyStyle::pixelMetric(metric, option, widget);
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
