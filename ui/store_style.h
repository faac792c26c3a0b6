#pragma once

#include <QProxyStyle>

class QPainter;

namespace store {

/// The toolkit's plain style, but for what it draws in edges darker than the ground (boxes to tick,
/// menus and the borders between their lines): in the dark those are lost.
class StoreStyle : public QProxyStyle {
 public:
  StoreStyle();
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
};

/// A box to tick.
void PaintTickBox(QPainter& painter, const QRect& box, bool ticked);

}  // namespace store
