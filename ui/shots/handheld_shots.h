#pragma once

#include "ui/shots/director.h"

namespace store {

/// The windows of the handheld terminal's path. The terminal is a pseudo-terminal of the system,
/// behind the program's own port.
void ShootReceive(Director& director);
/// The menu of the terminal's runs, and the export to its cradle.
void ShootCradle(Director& director);

}  // namespace store
