#pragma once

#include <QKeyEvent>

#include "forms/control.h"

namespace store {

/// The key as forms ask for it; `Key::None` for every other key and for combinations with Ctrl,
/// Alt or Shift, which belong to the window.
Key NamedKey(const QKeyEvent& event);

/// How the key is written on buttons and in menus.
QString WrittenKey(Key key);

/// The text that the key types, or nothing when it is a command.
QString TypedText(const QKeyEvent& event);

}  // namespace store
