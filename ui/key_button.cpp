#include "ui/key_button.h"

#include <QPainter>
#include <QStyleOptionButton>

#include "ui/style.h"

namespace store {
namespace {

constexpr int kSide = 10;
constexpr int kGap = 7;
constexpr int kHeight = 28;
constexpr int kKeyPadding = 4;

/// Its letter for Alt is underlined, and the mark in front of that is not seen.
int TextWidth(const QFontMetrics& metrics, const QString& text) {
  return metrics.size(Qt::TextShowMnemonic, text).width();
}

}  // namespace

KeyButton::KeyButton(const QString& text, const QKeySequence& keys)
    : QPushButton(text), keys_(keys), key_(keys.toString(QKeySequence::NativeText)) {
  setFocusPolicy(Qt::NoFocus);
  setAccessibleDescription(key_);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void KeyButton::WriteKey(const QString& key) {
  key_ = key;
  setAccessibleDescription(key);
  updateGeometry();
}

void KeyButton::MarkMain() {
  main_ = true;
  update();
}

QSize KeyButton::sizeHint() const {
  const QFontMetrics metrics(font());
  int width = 2 * kSide + TextWidth(metrics, text());
  if (!key_.isEmpty()) {
    width += metrics.horizontalAdvance(key_) + 2 * kKeyPadding + (text().isEmpty() ? 0 : kGap);
  }
  return {width, std::max(Scaled(kHeight), metrics.lineSpacing() + 10)};
}

void KeyButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor ground(main_ ? look::Accent : look::Paper);
  if (!isEnabled()) {
    ground = QColor(look::Header);
  } else if (isDown()) {
    ground = Pressed(main_);
  } else if (underMouse()) {
    ground = Hovered(main_);
  }
  const QColor edge(hasFocus() ? look::Bright : look::Edge);
  painter.setPen(QPen(edge, hasFocus() ? 2 : 1));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);

  const bool inverse = main_ && isEnabled();
  QRect room = rect().adjusted(kSide, 0, -kSide, 0);
  const QFontMetrics metrics(font());
  const int keyWidth =
      key_.isEmpty() ? 0 : metrics.horizontalAdvance(key_) + 2 * kKeyPadding + kGap;
  // Text and key stand together in the middle, however wide the button is.
  const int spare = room.width() - TextWidth(metrics, text()) - keyWidth;
  room.adjust(std::max(0, spare / 2), 0, 0, 0);
  const QColor ink(!isEnabled() ? look::Disabled : inverse ? look::Inverse : look::Ink);
  painter.setPen(ink);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
  if (key_.isEmpty()) return;
  QRect cap(room.left() + TextWidth(metrics, text()) + (text().isEmpty() ? 0 : kGap), 0,
            keyWidth - kGap, metrics.lineSpacing() + 2);
  cap.moveTop((height() - cap.height()) / 2);
  QColor faint = ink;
  faint.setAlphaF(0.4F);
  painter.setPen(faint);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(cap).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  painter.setPen(ink);
  painter.drawText(cap, Qt::AlignCenter, key_);
}

}  // namespace store
