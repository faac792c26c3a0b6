#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "forms/form.h"
#include "forms/grid.h"
#include "slips/picks.h"

namespace store {

/// Stands in a tile's text before the item's code.
inline constexpr const char* kTileMarker = "HelpCode:";

/// The quick-pick panel: three lists of categories, each leading to the next, and a wall of item
/// tiles to pick from with a finger. An order form shows it modally; a pick goes into `PickList`
/// and hides the panel, which keeps its tiles for the next time it is shown.
class frm_OrderPLU : public Form {
 public:
  frm_OrderPLU();

  std::array<Grid, 4> PRHELP;   ///< 0 the tiles, 1 to 3 the categories of that level.
  std::array<Label, 2> Image1;  ///< Page buttons: 0 down, 1 up.
  Label Label5;                 ///< Closes the panel for good.

  std::int16_t ListMode = 0;  ///< Set: the panel opens on what the filter of `SlotC` lets pass.
  std::int16_t Reload = 0;    ///< Set: each showing starts over. It stays as the opener set it.

  /// The name of the category whose items the tiles are (0) or whose branch a list shows (2, 3);
  /// empty for a search's hits and for the top level.
  std::array<std::string, 4> BranchOf;

  void Activate() override;
  bool KeyDown(Key key) override;

  void PRHELP_Click(int index, int row, int col);  ///< On a category.
  void PRHELP_DblClick();                          ///< Picks the current tile.
  void PRHELP_MouseMove(int row, int col);         ///< Over the tiles.
  void Image1_Click(int index);
  void Label5_Click();

  /// Makes a tile of each item that the filter of `SlotC` lets pass. The tiles stay as they are
  /// whatever becomes of `SlotC`; a tile's text is made when it is first looked at.
  void FillTiles();

 private:
  void ConnectTiles();
  void ConnectCategories(int index);
  void FillCategories(Grid& grid, int level, const std::string& code);
  void ChooseByKey(int index);

  bool activated_ = false;
};

}  // namespace store
