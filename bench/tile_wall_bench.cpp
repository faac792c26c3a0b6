// The quick-pick panel on twenty thousand items, from the order to fill it to what stands on the
// screen.
#include <QHeaderView>
#include <QTableWidget>
#include <cstdio>

#include "bench/benches.h"
#include "bench/desk_hand.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "order/frm_OrderPLU.h"
#include "slips/item_list.h"
#include "ui/desk.h"
#include "ui/qt_text.h"
#include "ui/tile_wall.h"

namespace store {
namespace {

constexpr int kRounds = 9;

std::string TileText() {
  return ItemText(item::Name) + "\n" + ItemText(item::Standard) + " / " + ItemText(item::Unit) +
         "\n" + ItemText(item::Barcode) + "\n" + kTileMarker + ItemText(item::Code);
}

/// The toolkit's own table, its cells as large as the tiles.
class PeerTable {
 public:
  PeerTable(const QSize& size, int columns, int tileHeight)
      : table_(0, columns), watch_(*table_.viewport()) {
    table_.verticalHeader()->setDefaultSectionSize(tileHeight);
    table_.horizontalHeader()->setDefaultSectionSize(size.width() / columns);
    table_.resize(size);
    table_.show();
  }
  void Empty() {
    table_.setRowCount(0);
    watch_.Settle();
  }
  void FillAndDraw() {
    const int columns = table_.columnCount();
    table_.setRowCount(RecordCountOf(SlotC) / columns + 1);
    int cell = 0;
    SlotC->MoveFirst();
    ForEachRow(SlotC, [&] {
      table_.setItem(cell / columns, cell % columns, new QTableWidgetItem(ToQt(TileText())));
      ++cell;
    });
    watch_.WaitForPaint();
  }

 private:
  QTableWidget table_;
  PaintWatch watch_;
};

}  // namespace

void BenchTileWall(RatioTable& table) {
  OpenRecordset(SlotC, Splice("{list} LIMIT 20000", "list"_a = ItemListStatement()));
  DeskHand hand("frm_OrderPLU", "PRHELP_0");
  auto& panel = dynamic_cast<frm_OrderPLU&>(*TheForm("frm_OrderPLU"));
  const auto fillAndDraw = [&] {
    Dispatch([&panel] { panel.FillTiles(); });
    hand.Draw();
  };
  fillAndDraw();
  const auto& wall = dynamic_cast<TileWall&>(*hand.GridArea().parentWidget());
  PeerTable peer(hand.GridArea().size(), panel.PRHELP[0].Cols(), wall.TileHeight());
  Duel best{1e9, 1e9};
  for (int round = 0; round < kRounds; ++round) {
    peer.Empty();
    hand.Settle();
    const Duel duel = MeasureBoth(1, fillAndDraw, [&] { peer.FillAndDraw(); });
    best = {std::min(best.Ours, duel.Ours), std::min(best.Peer, duel.Peer)};
  }
  table.AddTimes("quick-pick wall filled and drawn, against QTableWidget", best, 0.1);
  std::printf("  %d tiles\n", RecordCountOf(SlotC));
  ClearDesk();
}

}  // namespace store
