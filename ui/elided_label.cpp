#include "ui/elided_label.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>

namespace store {
namespace {

constexpr int kNarrowest = 40;

}  // namespace

ElidedLabel::ElidedLabel() {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {kNarrowest, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::IsCut() const {
  return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  if (!IsCut()) {
    QLabel::paintEvent(event);  // which shows a selection
    return;
  }
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
  const QRect room = contentsRect();
  painter.drawText(room, static_cast<int>(alignment()),
                   fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

void ElidedLabel::contextMenuEvent(QContextMenuEvent* event) {
  if (text().isEmpty()) return;
  const QString copied = hasSelectedText() ? selectedText() : text();
  QMenu menu(this);
  connect(menu.addAction("복사"), &QAction::triggered,
          [copied] { QGuiApplication::clipboard()->setText(copied); });
  menu.exec(event->globalPos());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && IsCut()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

}  // namespace store
