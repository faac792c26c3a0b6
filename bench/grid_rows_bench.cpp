// Sorting and filtering what a grid of twenty thousand rows shows, against the toolkit's own proxy
// over the same model.
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <algorithm>
#include <array>
#include <numeric>
#include <random>

#include "bench/benches.h"
#include "bench/desk_hand.h"
#include "ui/grid_view.h"

namespace store {
namespace {

constexpr int kRows = 20000;
constexpr int kRounds = 7;
constexpr int kName = 2;
constexpr QSize kSize(700, 500);
// Each finds less than the one before, or the peer would have nothing to draw.
constexpr std::array<const char*, 4> kTyped = {"라", "콜라", "콜라 1", "콜라 12"};

void FillItems(Grid& grid) {
  constexpr std::array<const char*, 8> makers = {"고운", "참나무", "새봄", "은하수",
                                                 "한결", "바른",   "ABC",  "푸른"};
  constexpr std::array<const char*, 10> goods = {"콜라", "사이다", "우유",     "라면",   "생수",
                                                 "두부", "즉석밥", "요구르트", "콜라비", "비누"};
  grid.SetColumns({{.Header = "품목코드", .Alignment = Align::Left},
                   {.Header = "바코드", .Alignment = Align::Left},
                   {.Header = "품명", .Alignment = Align::Left},
                   {.Header = "규격", .Alignment = Align::Left},
                   {.Header = "단가", .Alignment = Align::Right, .Format = "#,###"}});
  std::vector<size_t> order(kRows);
  std::iota(order.begin(), order.end(), size_t{0});
  std::shuffle(order.begin(), order.end(), std::mt19937(1));
  for (const size_t item : order) {
    const std::string number = std::to_string(item);
    grid.AddItem(std::to_string(1000000 + item) + "\t88" + std::to_string(10000000000 + item) +
                 "\t" + makers[item % makers.size()] + " " + goods[item / 7 % goods.size()] + " " +
                 number + "\t1.5L*12\t" + std::to_string(500 + item % 9000));
  }
}

/// The toolkit's own table over the same model behind the proxy that sorts and filters.
class PeerView {
 public:
  explicit PeerView(const Grid& grid) : model_(grid), watch_(*view_.viewport()) {
    proxy_.setSourceModel(&model_);
    proxy_.setFilterKeyColumn(-1);
    proxy_.setFilterCaseSensitivity(Qt::CaseInsensitive);
    view_.setModel(&proxy_);
    view_.verticalHeader()->hide();
    view_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_.resize(kSize);
    view_.show();
    watch_.WaitForPaint();
  }
  // All rows in the model's own order again, as they are at first already.
  void Unsort() { proxy_.sort(-1); }
  void Sort(int column) {
    proxy_.sort(column);
    watch_.WaitForPaint();
  }
  void Unfilter() { proxy_.setFilterFixedString({}); }
  void Filter(const QString& text) {
    proxy_.setFilterFixedString(text);
    watch_.WaitForPaint();
  }
  void Settle() { watch_.Settle(); }

 private:
  GridModel model_;
  QSortFilterProxyModel proxy_;
  QTableView view_;
  PaintWatch watch_;
};

Duel Best(const Duel& one, const Duel& other) {
  return {std::min(one.Ours, other.Ours), std::min(one.Peer, other.Peer)};
}

}  // namespace

void BenchGridRows(RatioTable& table) {
  Grid grid;
  FillItems(grid);
  GridView view(grid);
  view.resize(kSize);
  view.show();
  PaintWatch watch(*view.viewport());
  watch.WaitForPaint();
  PeerView peer(grid);

  Duel sort{1e9, 1e9};
  for (int round = 0; round < kRounds; ++round) {
    view.SortBy(kName, RowOrder::Own);
    peer.Unsort();
    watch.Settle();
    peer.Settle();
    sort = Best(sort, MeasureBoth(
                          1,
                          [&] {
                            view.SortBy(kName, RowOrder::Ascending);
                            watch.WaitForPaint();
                          },
                          [&] { peer.Sort(kName); }));
  }
  table.AddTimes("20,000 rows sorted by a text, drawn, against QSortFilterProxyModel", sort, 0.3);

  view.SortBy(kName, RowOrder::Own);
  peer.Unsort();
  view.OpenFilter();
  auto& line = *view.findChild<QLineEdit*>("filter");
  Duel filter{1e9, 1e9};
  for (int round = 0; round < kRounds; ++round) {
    line.clear();
    peer.Unfilter();
    watch.Settle();
    peer.Settle();
    // The first letter of each round reads the texts of all rows.
    const Duel keys = MeasureBoth(
        1,
        [&] {
          for (const char* text : kTyped) {
            line.setText(text);
            watch.WaitForPaint();
          }
        },
        [&] {
          for (const char* text : kTyped) peer.Filter(text);
        });
    filter = Best(filter, {keys.Ours / kTyped.size(), keys.Peer / kTyped.size()});
  }
  table.AddTimes("20,000 rows filtered, a key press, drawn, against the same", filter, 0.3);
}

}  // namespace store
