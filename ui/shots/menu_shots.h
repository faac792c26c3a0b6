#pragma once

namespace store {

class Director;

/// What opens over the board: its menus, the menu of a slip, and the guide.
void ShootMenus(Director& director);
void ShootGuide(Director& director);

}  // namespace store
