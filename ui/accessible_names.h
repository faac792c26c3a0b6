#pragma once

class QWidget;

namespace store {

/// Gives each control of a window that has no name of its own one for those who hear the screen
/// instead of seeing it: the caption beside it, the heading above it, what a blank field says, or
/// the title of the window, the first of these that there is.
void NameControls(QWidget& window);

/// Tells assistive programs what the program's own kinds of widget are. Once, at the start.
void TellKindsOfParts();

}  // namespace store
