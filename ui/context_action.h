#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace store {

class KeyButton;

/// A line of a grid's context menu. One with a button says and does what the button does, and is
/// not there while the button is out of sight. An empty one parts those before it from those
/// behind.
struct ContextAction {
  QString Text = {};
  QString Key = {};                    ///< The key that does the same, as it is written.
  std::function<bool()> Enabled = {};  ///< Without it the line can always be chosen.
  std::function<void()> Event = {};
  KeyButton* Button = nullptr;
};

using ContextActions = std::vector<ContextAction>;

}  // namespace store
