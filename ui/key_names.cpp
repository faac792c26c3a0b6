#include "ui/key_names.h"

#include <map>

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

QString WrittenKey(Key key) {
  static const std::map<Key, const char*> kWritten = {
      {Key::Enter, "Enter"}, {Key::Escape, "Esc"}, {Key::Tab, "Tab"}, {Key::Up, "↑"},
      {Key::Down, "↓"},      {Key::Delete, "Del"}, {Key::F1, "F1"},   {Key::F3, "F3"},
      {Key::F4, "F4"},       {Key::F5, "F5"},      {Key::F6, "F6"},   {Key::F9, "F9"},
      {Key::F10, "F10"},     {Key::F12, "F12"}};
  const auto written = kWritten.find(key);
  return written == kWritten.end() ? QString() : QString(written->second);
}

QString TypedText(const QKeyEvent& event) {
  if ((event.modifiers() & kCommandModifiers) != 0) return {};
  const QString text = event.text();
  return !text.isEmpty() && text.front().isPrint() ? text : QString();
}

}  // namespace store
