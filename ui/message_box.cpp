#include "ui/message_box.h"

#include <QMessageBox>
#include <QPainter>
#include <QPushButton>

#include "forms/host.h"
#include "ui/desk.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kIconSize = 36;
constexpr int kIcons = box::Critical | box::Question | box::Information;

struct Sign {
  QRgb Colour;
  QString Letter;
};

Sign SignOf(int style) {
  switch (style & kIcons) {
    case box::Critical:
      return {look::Warning, "!"};
    case box::Question:
      return {look::Accent, "?"};
    case box::Information:
      return {look::Accent, "i"};
    default:
      return {};
  }
}

/// A disc with the sign in it, or nothing for a plain box.
QPixmap IconOf(int style, double scale) {
  const Sign sign = SignOf(style);
  if (sign.Letter.isEmpty()) return {};
  QPixmap icon(QSize(kIconSize, kIconSize) * scale);
  icon.setDevicePixelRatio(scale);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(sign.Colour));
  painter.drawEllipse(QRectF(1, 1, kIconSize - 2, kIconSize - 2));
  painter.setPen(Qt::white);
  painter.setFont(TotalFont());
  painter.drawText(QRect(0, 0, kIconSize, kIconSize), Qt::AlignCenter, sign.Letter);
  return icon;
}

}  // namespace

int ShowMessage(const std::string& text, int style, const std::string& title) {
  Desk& desk = TheDesk();
  desk.SyncWindows();
  QWidget* behind = desk.FrontWindow();
  QMessageBox message(behind);
  message.setWindowModality(Qt::ApplicationModal);
  message.setWindowTitle(ToQt(title.empty() ? Host.ProgramTitle : title));
  message.setTextFormat(Qt::PlainText);
  message.setText(ShownLines(text));
  message.setIconPixmap(IconOf(style, message.devicePixelRatioF()));
  QPushButton* yes = nullptr;
  if ((style & box::YesNo) != 0) {
    yes = message.addButton(QObject::tr("예(&Y)"), QMessageBox::YesRole);
    QPushButton* no = message.addButton(QObject::tr("아니오(&N)"), QMessageBox::NoRole);
    message.setDefaultButton(yes);
    message.setEscapeButton(no);
  } else {
    message.addButton(QObject::tr("확인"), QMessageBox::AcceptRole);
  }
  desk.BoxOpened();
  message.exec();
  if (behind != nullptr) behind->activateWindow();
  desk.BoxClosed();
  if (yes == nullptr) return box::Ok;
  return message.clickedButton() == yes ? box::Yes : box::No;
}

}  // namespace store
