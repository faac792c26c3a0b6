// A search that hits twenty thousand items, in the order form's pick list.
#include <QTableWidget>
#include <cstdio>

#include "bench/benches.h"
#include "bench/desk_hand.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "order/order_form.h"
#include "slips/item_list.h"
#include "ui/qt_text.h"

namespace store {
namespace {

constexpr int kRounds = 5;
constexpr int kEntryColumn = 8;

/// The toolkit's own table with the columns that the pick list shows.
class PeerTable {
 public:
  explicit PeerTable(const QSize& size) : table_(0, 10), watch_(*table_.viewport()) {
    for (const int hidden : {0, 1, 2, 6, 7, 9}) table_.setColumnHidden(hidden, true);
    table_.resize(size);
    table_.show();
    watch_.WaitForPaint();
  }
  void Empty() {
    table_.setRowCount(0);
    watch_.Settle();
  }
  void FillAndDraw() {
    table_.setRowCount(RecordCountOf(SlotC));
    int row = 0;
    SlotC->MoveFirst();
    ForEachRow(SlotC, [&] {
      Put(row, 0, ItemText(item::Code));
      Put(row, 3, ItemText(item::Barcode));
      Put(row, 4, ItemText(item::Name));
      Put(row, 5, ItemText(item::Standard));
      auto* entry = new QTableWidgetItem;
      entry->setBackground(Qt::yellow);
      table_.setItem(row, kEntryColumn, entry);
      ++row;
    });
    watch_.WaitForPaint();
  }

 private:
  void Put(int row, int column, const std::string& text) {
    table_.setItem(row, column, new QTableWidgetItem(ToQt(text)));
  }
  QTableWidget table_;
  PaintWatch watch_;
};

}  // namespace

void BenchPickList(RatioTable& table) {
  OpenRecordset(SlotC, Splice("{list} LIMIT 20000", "list"_a = ItemListStatement()));
  DeskHand hand("frm_Order", "FLEX2");
  hand.Scan("#" + std::string(kSupplier));
  PeerTable peer(hand.GridArea().size());
  Duel best{1e9, 1e9};
  for (int round = 0; round < kRounds; ++round) {
    peer.Empty();
    hand.Settle();
    const Duel duel = MeasureBoth(
        1,
        [&] {
          hand.Scan(",");
          hand.Draw();
        },
        [&] { peer.FillAndDraw(); });
    best = {std::min(best.Ours, duel.Ours), std::min(best.Peer, duel.Peer)};
  }
  table.AddTimes("pick list searched, filled and drawn, against QTableWidget", best, 0.25);
  std::printf("  %d hits\n", dynamic_cast<OrderForm&>(*TheForm("frm_Order")).FLEX2.Rows() - 1);
  ClearDesk();
}

}  // namespace store
