#include "ui/server_lamp.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "ui/desk.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kDisc = 10;
constexpr int kGap = 6;

struct Sign {
  QColor Colour;
  const char* Word;
  const char* Tip;
};

Sign SignOf(ServerLink link) {
  switch (link) {
    case ServerLink::Waiting:
      return {look::Waiting, "응답 대기",
              "데이터서버의 응답을 기다리고 있습니다. 그동안 누른 것은 버립니다."};
    case ServerLink::Lost:
      return {look::Warning, "연결 끊김",
              "데이터서버가 응답하지 않았습니다. 보이는 것은 앞서 읽은 것입니다."};
    case ServerLink::Connected:
    case ServerLink::Stopped:  // is told and never stays
      break;
  }
  return {look::Connected, "연결됨", "데이터서버가 응답하고 있습니다."};
}

Sign SignNow() { return SignOf(TheDesk().Server().Link()); }

/// Full, a ring, or crossed out: told apart without the colour too.
void PaintDisc(QPainter& painter, const QRectF& place, ServerLink link, const QColor& colour) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 2));
  painter.setBrush(link == ServerLink::Connected ? QBrush(colour) : QBrush(Qt::NoBrush));
  const QRectF disc = place.adjusted(1, 1, -1, -1);
  if (link != ServerLink::Lost) return painter.drawEllipse(disc);
  painter.drawLine(disc.topLeft(), disc.bottomRight());
  painter.drawLine(disc.topRight(), disc.bottomLeft());
}

}  // namespace

ServerLamp::ServerLamp() {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  TheDesk().Server().ShowOn(*this);
}

QString ServerLamp::Word() { return SignNow().Word; }

QSize ServerLamp::sizeHint() const {
  int widest = 0;
  for (const ServerLink link : {ServerLink::Waiting, ServerLink::Connected, ServerLink::Lost}) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(SignOf(link).Word));
  }
  return {kDisc + kGap + widest, fontMetrics().height()};
}

void ServerLamp::paintEvent(QPaintEvent* /*event*/) {
  const Sign sign = SignNow();
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect().adjusted(kDisc + kGap, 0, 0, 0), Qt::AlignVCenter, sign.Word);
  const QRectF place(0, (height() - kDisc) / 2.0, kDisc, kDisc);
  PaintDisc(painter, place, TheDesk().Server().Link(), sign.Colour);
  const QString name = QString("데이터서버 ") + sign.Word;
  if (accessibleName() != name) setAccessibleName(name);
}

bool ServerLamp::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), SignNow().Tip, this);
    return true;
  }
  return QWidget::event(event);
}

}  // namespace store
