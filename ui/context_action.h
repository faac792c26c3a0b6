#pragma once

#include <QString>
#include <functional>
#include <vector>

class QAction;
class QMenu;

namespace store {

class KeyButton;

/// A line of a menu. One with a button says and does what the button does, and is
/// not there while the button is out of sight. An empty one parts those before it from those
/// behind.
struct ContextAction {
  QString Text = {};
  QString Key = {};                    ///< The key that does the same, as it is written.
  std::function<bool()> Enabled = {};  ///< Without it the line can always be chosen.
  std::function<void()> Event = {};
  std::function<bool()> IsOn = {};  ///< For what is switched on and off.
  KeyButton* Button = nullptr;
};

using ContextActions = std::vector<ContextAction>;

/// Adds the lines to a menu that is about to open: which of them can be chosen, and what is
/// switched on, is asked now.
void AddActions(QMenu& menu, const ContextActions& actions);

/// Adds one line, its key in a column of its own.
QAction* AddLine(QMenu& menu, const QString& text, const QString& key, std::function<void()> event);

}  // namespace store
