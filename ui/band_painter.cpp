#include "ui/band_painter.h"

#include <QLinearGradient>
#include <QPainter>

#include "ui/style.h"

namespace store {
namespace {

constexpr int kSide = 28;
constexpr int kBars = 7;

/// Bars that grow to the right, like a week of orders.
void PaintBars(QPainter& painter, const QRect& band) {
  const int width = 14;
  const int step = 20;
  painter.setPen(Qt::NoPen);
  for (int bar = 0; bar < kBars; ++bar) {
    const int height = band.height() * (30 + 8 * bar - (bar % 2) * 14) / 100;
    const int left = band.right() - kSide - (kBars - bar) * step + (step - width);
    QColor light(look::Inverse);
    light.setAlpha(22 + 9 * bar);
    painter.setBrush(light);
    painter.drawRect(left, band.bottom() - height + 1, width, height);
  }
}

}  // namespace

void PaintBandedGround(QPainter& painter, const QRect& window, int bandHeight,
                       const QString& productName) {
  painter.fillRect(window, QColor(look::Paper));
  const QRect band(window.left(), window.top(), window.width(), bandHeight);
  QLinearGradient ground(band.topLeft(), band.bottomRight());
  ground.setColorAt(0, QColor(look::Band));
  ground.setColorAt(1, QColor(look::Accent));
  painter.fillRect(band, ground);
  PaintBars(painter, band);
  painter.setPen(QColor(look::Inverse));
  painter.setFont(TotalFont());
  painter.drawText(band.adjusted(kSide, 0, -kSide, 0), Qt::AlignLeft | Qt::AlignVCenter,
                   productName);
}

}  // namespace store
