#include "ui/program_icon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "ui/palette.h"

namespace store {
namespace {

constexpr double kUnits = 64;  // the drawing's own; all places below are in them
constexpr int kSmall = 24;     // pixels; below it lines have to be bolder and fewer

/// The icon looks the same in every theme: a person knows the program by it.
QColor Own(const Hue& hue) { return hue.In(Theme::Light); }

void PaintPlate(QPainter& painter) {
  QLinearGradient ground(0, 0, kUnits, kUnits);
  ground.setColorAt(0, Own(look::Band));
  ground.setColorAt(1, Own(look::Accent));
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
}

/// A carton seen from the front, its lid a little brighter than its side.
void PaintBox(QPainter& painter, bool small) {
  painter.setBrush(Own(look::CurrentRow));
  QPainterPath lid;
  lid.addPolygon(QPolygonF({{16, 16}, {48, 16}, {54, 28}, {10, 28}}));
  lid.closeSubpath();
  painter.drawPath(lid);
  painter.setBrush(Own(look::Inverse));
  painter.drawRect(QRectF(10, 28, 44, 24));
  if (small) return;
  painter.setBrush(Own(look::Edge));
  painter.drawRect(QRectF(29, 16, 6, 12));
}

void PaintTick(QPainter& painter, bool small) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(
      QPen(Own(look::Accent), small ? 7 : 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({{22, 39}, {29.5, 46}, {43, 33}}));
}

}  // namespace

QImage DrawProgramIcon(int size) {
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kUnits, size / kUnits);
  const bool small = size < kSmall;
  PaintPlate(painter);
  PaintBox(painter, small);
  PaintTick(painter, small);
  return image;
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : kIconSizes) icon.addPixmap(QPixmap::fromImage(DrawProgramIcon(size)));
  return icon;
}

}  // namespace store
