#include "ui/key_names.h"

namespace store {
namespace {

constexpr Qt::KeyboardModifiers kCommandModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

}  // namespace

Key NamedKey(const QKeyEvent& event) {
  if ((event.modifiers() & (kCommandModifiers | Qt::ShiftModifier)) != 0) return Key::None;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Key::Enter;
    case Qt::Key_Escape:
      return Key::Escape;
    case Qt::Key_Tab:
      return Key::Tab;
    case Qt::Key_Up:
      return Key::Up;
    case Qt::Key_Down:
      return Key::Down;
    case Qt::Key_Delete:
      return Key::Delete;
    case Qt::Key_F1:
      return Key::F1;
    case Qt::Key_F3:
      return Key::F3;
    case Qt::Key_F4:
      return Key::F4;
    case Qt::Key_F5:
      return Key::F5;
    case Qt::Key_F6:
      return Key::F6;
    case Qt::Key_F9:
      return Key::F9;
    case Qt::Key_F10:
      return Key::F10;
    case Qt::Key_F12:
      return Key::F12;
    default:
      return Key::None;
  }
}

QString TypedText(const QKeyEvent& event) {
  if ((event.modifiers() & kCommandModifiers) != 0) return {};
  const QString text = event.text();
  return !text.isEmpty() && text.front().isPrint() ? text : QString();
}

}  // namespace store
