#pragma once

class QHBoxLayout;

namespace store {

class FormWindow;

/// The buttons that take changes of a slip's lines back and do them again, with Ctrl+Z and Ctrl+Y.
/// A box in which something is being typed takes its own typing back first.
void AddLineUndo(FormWindow& window, QHBoxLayout& row);

}  // namespace store
