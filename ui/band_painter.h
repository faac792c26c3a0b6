#pragma once

#include <QString>

class QPainter;
class QRect;

namespace store {

/// Paints the ground of a window without a frame: a band with the product's name over paper.
/// `bandHeight` pixels from the top are the band.
void PaintBandedGround(QPainter& painter, const QRect& window, int bandHeight,
                       const QString& productName);

}  // namespace store
