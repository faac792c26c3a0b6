#pragma once

#include <QString>
#include <functional>
#include <vector>

class QMenuBar;

namespace store {

class FormWindow;
class frm_Start;

/// One line of a menu.
struct MenuLine {
  QString Text;                                        ///< With its key: "새로고침\tF5".
  std::function<void()> Act;                           ///< None for a border between groups.
  std::function<bool()> CanAct = [] { return true; };  ///< Grey while it cannot.
  std::function<bool()> IsOn = nullptr;                ///< For what is switched on and off.
};

using MenuLines = std::vector<MenuLine>;

/// The menu of the board: what the board, and the program, can do, each with its key. It runs what
/// the buttons and keys run. The titles have no letter of their own, because Alt and a letter
/// belong to the board's search; F10, or Alt alone, opens the menu.
QMenuBar* BoardMenu(FormWindow& window, frm_Start& board);

}  // namespace store
