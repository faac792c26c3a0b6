#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace store {

/// How high a text is that goes on in further lines where the width ends; between words, or within
/// one that is too long by itself.
double TextHeight(const QFont& font, double width, const QString& text);

/// Draws a text by `alignment` in its room, in further lines if it `wraps`.
void DrawText(QPainter& painter, const QRectF& room, Qt::Alignment alignment, const QString& text,
              bool wraps = false);

}  // namespace store
