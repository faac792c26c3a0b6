#include "ui/message_box.h"

#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <array>

#include "forms/host.h"
#include "ui/desk.h"
#include "ui/qt_text.h"
#include "ui/scan_catcher.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kIconSize = 36;
constexpr int kIcons = box::Critical | box::Question | box::Warning | box::Information;

struct Sign {
  QColor Colour;
  QString Letter;
};

Sign SignOf(int style) {
  switch (style & kIcons) {
    case box::Critical:
      return {look::Warning, "!"};
    case box::Warning:
      return {look::Warning, "!"};
    case box::Question:
      return {look::Bright, "?"};
    case box::Information:
      return {look::Bright, "i"};
    default:
      return {};
  }
}

/// A disc with the sign in it, or nothing for a plain box.
QPixmap IconOf(int style, double scale) {
  const Sign sign = SignOf(style);
  if (sign.Letter.isEmpty()) return {};
  const int side = Scaled(kIconSize);
  QPixmap icon(QSize(side, side) * scale);
  icon.setDevicePixelRatio(scale);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(sign.Colour);
  painter.drawEllipse(QRectF(1, 1, side - 2, side - 2));
  painter.setPen(QColor(look::Paper));
  painter.setFont(TotalFont());
  painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, sign.Letter);
  return icon;
}

struct Choice {
  QString Text;
  int Answer = 0;
};

/// The buttons of a style, the one that Enter presses first; Esc presses the last.
std::array<Choice, 2> ChoicesOf(int style) {
  if ((style & box::YesNo) != 0) return {{{"예(&Y)", box::Yes}, {"아니오(&N)", box::No}}};
  if ((style & box::OkCancel) != 0) return {{{"확인", box::Ok}, {"취소", box::Cancel}}};
  return {{{"확인", box::Ok}, {}}};
}

}  // namespace

int ShowMessage(const std::string& text, int style, const std::string& title) {
  Desk& desk = TheDesk();
  desk.SyncWindows();
  QWidget* behind = desk.FrontWindow();
  QWidget* field = behind == nullptr ? nullptr : behind->focusWidget();
  QMessageBox message(behind);
  message.setWindowModality(Qt::ApplicationModal);
  message.setWindowTitle(ToQt(title.empty() ? Host.ProgramTitle : title));
  message.setTextFormat(Qt::PlainText);
  message.setText(ShownLines(text));
  message.setIconPixmap(IconOf(style, message.devicePixelRatioF()));
  const std::array<Choice, 2> choices = ChoicesOf(style);
  std::array<QPushButton*, 2> buttons{};
  for (size_t i = 0; i < choices.size() && !choices[i].Text.isEmpty(); ++i) {
    buttons[i] = message.addButton(choices[i].Text, QMessageBox::ActionRole);
    message.setEscapeButton(buttons[i]);
  }
  message.setDefaultButton(buttons[0]);
  ScanCatcher scans(message, buttons[1] != nullptr, field);
  desk.BoxOpened();
  message.exec();
  if (behind != nullptr) behind->activateWindow();
  desk.BoxClosed();
  scans.HandOver();
  return message.clickedButton() == buttons[1] ? choices[1].Answer : choices[0].Answer;
}

}  // namespace store
