#pragma once

class QMenu;

namespace store {

class GridView;

/// What the right button opens on a row: the window's own lines, then what every grid can do, with
/// the column under the pointer.
void FillRowMenu(QMenu& menu, GridView& view, int column);

/// What it opens on the header: what can be shown, and the way back from everything changed.
void FillHeaderMenu(QMenu& menu, GridView& view, int column);

}  // namespace store
