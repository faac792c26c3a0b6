#pragma once

#include <QIcon>
#include <QImage>
#include <array>

namespace store {

/// The sizes in which desktops ask for an icon.
inline constexpr std::array<int, 8> kIconSizes = {16, 22, 24, 32, 48, 64, 128, 256};

/// The program's sign: a box of goods on the colours of the program's band, ticked as received.
/// Drawn at the size asked for, so that it is sharp in a task bar too.
QImage DrawProgramIcon(int size);

/// The sign in all sizes, for windows and task bar.
QIcon ProgramIcon();

}  // namespace store
