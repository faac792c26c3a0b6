#include "order/frm_OrderPLU.h"

#include <algorithm>

#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "order/kind_pane.h"
#include "order/supplier_pane.h"
#include "slips/item_list.h"
#include "slips/order_types.h"

namespace store {
namespace {

constexpr int kTilesInRow = 5;
constexpr int kPageRows = 4;
constexpr int kLevels = 3;

// --- tiles

/// Name; specification and unit; barcode; and out of the person's view the code that is picked.
std::string TileText(const Recordset& items, std::uint32_t row) {
  const std::string_view standard = items.TextOfRow(row, item::Standard);
  const std::string_view unit = items.TextOfRow(row, item::Unit);
  std::string text(items.TextOfRow(row, item::Name));
  text.append("\n").append(standard);
  if (!standard.empty() && !unit.empty()) text.append(" / ");
  text.append(unit);
  text.append("\n").append(items.TextOfRow(row, item::Barcode));
  text.append("\n").append(kTileMarker).append(items.TextOfRow(row, item::Code));
  return text;
}

/// The tiles of one row of the wall, of the items whose row numbers are `passing`.
std::vector<std::string> TileRow(const Recordset& items, const std::vector<std::uint32_t>& passing,
                                 int row) {
  std::vector<std::string> tiles;
  const auto first = static_cast<size_t>(row) * kTilesInRow;
  const size_t end = std::min(passing.size(), first + kTilesInRow);
  for (size_t i = first; i < end; ++i) tiles.push_back(TileText(items, passing[i]));
  return tiles;
}

/// What stands behind the marker; nothing for a tile without one. The code comes last in a tile, so
/// that a name which holds the marker's text cannot pass for a code.
std::string CodeOfTile(const std::string& tile) {
  const std::string_view marker(kTileMarker);
  const size_t at = tile.rfind(marker);
  return at == std::string::npos ? "" : tile.substr(at + marker.size());
}

// --- categories

std::string KindStatement(int level, const std::string& prefix) {
  const std::string condition =
      level == 1 ? "" : Splice(" AND KD_ID LIKE '{prefix}%' ", "prefix"_a = prefix);
  return Splice(
      "SELECT KD_ID,KD_NAME FROM KIND WHERE  KD_LVL = '{level}' {condition} ORDER BY KD_NAME ",
      "level"_a = std::to_string(level), "condition"_a = condition);
}

/// Only the categories of what the store's order settings name for the supplier. The zeros lead
/// from an item's category to the upper one of the level.
std::string SetUpKindStatement(int level, const std::string& prefix, const std::string& supplier) {
  const std::string condition =
      level == 1 ? "" : Splice(" AND PR.KD_ID LIKE '{prefix}%' ", "prefix"_a = prefix);
  return Splice(
      "SELECT DISTINCT KIND.KD_ID,KIND.KD_NAME FROM  (KIND RIGHT JOIN PR ON  KIND.KD_ID = "
      "concat(left(PR.KD_ID, {length}) ,'{zeros}'))  RIGHT JOIN SAFEIV ON SAFEIV.PR_CODE = "
      "PR.PR_CODE    WHERE  KD_LVL = '{level}' AND SAFEIV.RCT_CODE = '{store}' AND SAFEIV.CT_CODE "
      "= '{supplier}'  {condition} ORDER BY KD_NAME ",
      "length"_a = std::to_string(level * kLevelLength), "zeros"_a = ZerosBelow(level),
      "level"_a = std::to_string(level), "store"_a = Session.StoreCode, "supplier"_a = supplier,
      "condition"_a = condition);
}

/// The supplier of the order that is being written; empty when none is.
std::string SupplierOfOrder() {
  const auto* order = dynamic_cast<SupplierPane*>(OpenForm(ChosenOrderType().FormName));
  return order == nullptr ? "" : order->Text1.Tag;
}

}  // namespace

frm_OrderPLU::frm_OrderPLU() : Form("frm_OrderPLU") {
  Caption = "품목 빠른선택";
  Publish("PRHELP", PRHELP);
  Publish("Image1", Image1);
  Publish("Label5", Label5);
  ConnectTiles();
  for (int index = 1; index <= kLevels; ++index) ConnectCategories(index);
  for (const int index : {0, 1}) {
    Image1[static_cast<size_t>(index)].Click = [this, index] { Image1_Click(index); };
  }
  Label5.Click = [this] { Label5_Click(); };
  TabOrder = {&PRHELP[1], &PRHELP[2], &PRHELP[3], &PRHELP[0]};
}

void frm_OrderPLU::ConnectTiles() {
  Grid& tiles = PRHELP[0];
  tiles.SetColumns(std::vector<GridColumn>(kTilesInRow, {.Width = 2805}), 0);
  tiles.DblClick = [this] { PRHELP_DblClick(); };
  tiles.MouseMove = [this](int row, int col) { PRHELP_MouseMove(row, col); };
  tiles.KeyDown = [this](Key key) {
    if (key == Key::Enter) PRHELP_DblClick();
  };
  tiles.OwnKeys = {Key::Enter};
}

void frm_OrderPLU::ConnectCategories(int index) {
  Grid& kinds = PRHELP[static_cast<size_t>(index)];
  kinds.SetColumns({{.Width = 2250}, {.Width = 2250, .Hidden = true}}, 0);
  kinds.Click = [this, index, &kinds] { PRHELP_Click(index, kinds.Row(), kinds.Col()); };
  kinds.KeyDown = [this, index](Key key) {
    if (key == Key::Enter) ChooseByKey(index);
  };
  kinds.KeyPress = [this, index](const std::string& text) {
    if (text == " ") ChooseByKey(index);
  };
  kinds.OwnKeys = {Key::Enter};
}

void frm_OrderPLU::Activate() {
  if (activated_ && Reload == 0) return;
  const Hourglass waiting;
  if (ListMode != 0) {
    FillTiles();
    BranchOf[0].clear();
  }
  FillCategories(PRHELP[1], 1, "");
  activated_ = true;
  SetFocus(ListMode != 0 && PRHELP[0].Rows() > 0 ? PRHELP[0] : PRHELP[1]);
}

void frm_OrderPLU::FillTiles() {
  Grid& tiles = PRHELP[0];
  tiles.Select(0, 0);
  tiles.SetTopRow(0);
  const int count = RecordCountOf(SlotC);
  if (count == 0) {
    tiles.SetRowsMadeLater(0, {});
    return;
  }
  tiles.SetRowsMadeLater(count / kTilesInRow + 1,
                         [items = SlotC, passing = SlotC->PassingRows()](int row) {
                           return TileRow(*items, passing, row);
                         });
}

void frm_OrderPLU::FillCategories(Grid& grid, int level, const std::string& code) {
  const std::string prefix = LeftChars(code, (level - 1) * kLevelLength);
  grid.Select(0, 0);
  grid.SetRows(0);
  SqlText = AppOptions.OrderInfoPartnersOnly != 0
                ? SetUpKindStatement(level, prefix, SupplierOfOrder())
                : KindStatement(level, prefix);
  const StoppableReads mayBeStopped;
  OpenRecordset(SlotA, SqlText);
  ForEachRow(SlotA, [&grid] { grid.AddItem(ListEntry(FieldText(SlotA, 1), FieldText(SlotA, 0))); });
  CloseRecordset(SlotA);
}

// An empty cell is no choice: without a code every category of the next level would be listed.
void frm_OrderPLU::PRHELP_Click(int index, int row, int col) {
  const std::string& entry = PRHELP[static_cast<size_t>(index)].TextMatrix(row, col);
  const std::string code = LeftChars(CodeOfEntry(entry), index * kLevelLength);
  if (code.empty()) return;
  const Hourglass waiting;
  const bool leadsToTiles = index == kLevels;
  const size_t next = leadsToTiles ? 0 : static_cast<size_t>(index) + 1;
  BranchOf[next] = NameOfEntry(entry);
  if (leadsToTiles) {
    SetFilter(SlotC, Splice(" KD_ID LIKE '{code}%'", "code"_a = code));
    FillTiles();
  } else {
    FillCategories(PRHELP[next], index + 1, code);
  }
}

// With the keyboard one goes on to what the choice has brought.
void frm_OrderPLU::ChooseByKey(int index) {
  const Grid& kinds = PRHELP[static_cast<size_t>(index)];
  PRHELP_Click(index, kinds.Row(), kinds.Col());
  Grid& next = PRHELP[index == kLevels ? 0 : static_cast<size_t>(index) + 1];
  if (next.Rows() > 0) SetFocus(next);
}

void frm_OrderPLU::PRHELP_DblClick() {
  const Grid& tiles = PRHELP[0];
  if (tiles.Rows() == 0) return;
  PickList.Redim(0, 1);
  PickList.Set(0, 0, CodeOfTile(tiles.TextMatrix(tiles.Row(), tiles.Col())));
  Host.Hide(*this);
}

void frm_OrderPLU::PRHELP_MouseMove(int row, int col) {
  PRHELP[0].ToolTipText = PRHELP[0].TextMatrix(row, col);
}

// The current tile goes along, so that the arrow keys go on from the page that one looks at; not
// into the gap behind the last one.
void frm_OrderPLU::Image1_Click(int index) {
  Grid& tiles = PRHELP[0];
  const int step = index == 0 ? kPageRows : -kPageRows;
  tiles.SetTopRow(tiles.TopRow() + step);
  int row = std::clamp(tiles.Row() + step, 0, std::max(0, tiles.Rows() - 1));
  while (row > 0 && tiles.TextMatrix(row, tiles.Col()).empty()) --row;
  tiles.SetRow(row);
}

bool frm_OrderPLU::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Host.Hide(*this);
  return true;
}

void frm_OrderPLU::Label5_Click() { Close(); }

}  // namespace store
