#pragma once

class QMenuBar;

namespace store {

class FormWindow;
class frm_Start;

/// The menu of the board: what the board, and the program, can do, each with its key. It runs what
/// the buttons and keys run. The titles have no letter of their own, because Alt and a letter
/// belong to the board's search; F10, or Alt alone, opens the menu.
QMenuBar* BoardMenu(FormWindow& window, frm_Start& board);

}  // namespace store
