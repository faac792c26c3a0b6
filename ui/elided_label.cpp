#include "ui/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>

namespace store {
namespace {

constexpr int kNarrowest = 40;

}  // namespace

ElidedLabel::ElidedLabel() { setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); }

QSize ElidedLabel::minimumSizeHint() const {
  return {kNarrowest, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::IsCut() const {
  return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
  const QRect room = contentsRect();
  painter.drawText(room, static_cast<int>(alignment()),
                   fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && IsCut()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

}  // namespace store
