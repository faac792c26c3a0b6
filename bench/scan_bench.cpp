// A scan, from the last digit of the barcode to the line on the screen.
#include <QAccessible>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "basics/dates.h"
#include "bench/asked_selects.h"
#include "bench/benches.h"
#include "bench/client_library.h"
#include "bench/delay_proxy.h"
#include "bench/desk_hand.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "order/order_form.h"
#include "slips/drafts.h"
#include "slips/item_list.h"
#include "slips/unit_price.h"
#include "ui/desk.h"

namespace store {
namespace {

struct Item {
  std::string Code;
  std::string Barcode;
};

/// Items that the supplier has a contract price for.
std::vector<Item> ItemsToScan(ClientLibrary& client) {
  const std::vector<std::string> texts = client.Texts(Splice(
      "SELECT CONCAT(PR.PR_CODE,' ',PR_BCODE) FROM CTP JOIN PR ON PR.PR_CODE=CTP.PR_CODE "
      "WHERE CT_CODE='{supplier}' AND RCT_CODE='1000' AND CTP_FDATE='0000-00-00' AND CTP_UP>0 AND "
      "PR_END='0' LIMIT 20",
      "supplier"_a = kSupplier));
  std::vector<Item> items;
  for (const std::string& text : texts) {
    const size_t blank = text.find(' ');
    items.push_back({text.substr(0, blank), text.substr(blank + 1)});
  }
  return items;
}

double PriceLookups(int rounds, const std::vector<Item>& items) {
  const std::string today = FormatDateValue(Today(), "YYYY-MM-DD");
  const auto lookUpAll = [&] {
    for (const Item& item : items) ResolveUnitPrice(kSupplier, item.Code, today, "", "23", "J");
  };
  return MeasureBoth(rounds, lookUpAll, [] {}).Ours;
}

class Scans {
 public:
  explicit Scans(BenchServer& server) : client_(server.Port()), items_(ItemsToScan(client_)) {
    hand_.Scan("#" + std::string(kSupplier));
    ScanAll();
    selects_ = SelectsOf(server.Port(), [this] { ScanAll(); });
  }

  /// With the server behind `port`.
  Duel Measure(int port, int rounds) {
    ConnectTo(port);
    ClientLibrary client(port);
    const Duel duel = MeasureBoth(
        rounds, [this] { ScanAll(); },
        [&] {
          for (const std::string& select : selects_) client.ReadAll(select);
        });
    TellShares(duel.Ours, PriceLookups(rounds, items_));
    return duel;
  }

 private:
  void ScanAll() {
    for (const Item& item : items_) {
      hand_.Scan(item.Barcode);
      hand_.Draw();
    }
  }
  void TellShares(double all, double prices) const {
    const double perScan = 1000 / static_cast<double>(items_.size());
    std::printf("  a scan takes %.2f ms: the price %.2f, search, line and drawing %.2f\n",
                all * perScan, prices * perScan, (all - prices) * perScan);
  }

  ClientLibrary client_;
  std::vector<Item> items_;
  DeskHand hand_{"frm_Order", "FLEX1"};
  std::vector<std::string> selects_;
};

/// The shortest of many key presses into the item box, each with its windows brought into line.
double KeyPressTime(DeskHand& hand) {
  constexpr int kPresses = 200;
  double shortest = 1e9;
  for (int i = 0; i < kPresses; ++i) {
    shortest = std::min(shortest, TimeOf([&] { hand.Press(Qt::Key_A, "a"); }));
    hand.Press(Qt::Key_Backspace);
  }
  return shortest;
}

/// With so many lines in the order.
double KeyPressTimeAt(DeskHand& hand, OrderForm& order, int lines) {
  Dispatch([&] {
    order.FLEX1.SetRows(1);
    for (int i = 0; i < lines; ++i) {
      order.FLEX1.AddItem("\t1000001\t8801\r 우유\t\t0\t1000\t\t5\t5000\t500\t5500");
    }
  });
  hand.Draw();
  return KeyPressTime(hand);
}

/// The barcodes of an order of a hundred lines.
std::vector<std::string> BarcodesOfOrder(int port) {
  ClientLibrary client(port);
  return client.Texts(Splice(
      "SELECT PR_BCODE FROM CTP JOIN PR ON PR.PR_CODE=CTP.PR_CODE WHERE CT_CODE='{supplier}' AND "
      "RCT_CODE='1000' AND CTP_FDATE='0000-00-00' AND CTP_UP>0 AND PR_END='0' LIMIT 100",
      "supplier"_a = kSupplier));
}

/// Scans into an order of those lines, with drafts kept or without, each until its line is drawn.
class DraftScans {
 public:
  DraftScans(const std::vector<std::string>& barcodes, bool keepsDrafts) {
    ResetDrafts();
    // No folder can be made under a file.
    qputenv("STORE_DATA_FOLDER", keepsDrafts ? folder_.path().toUtf8() : "/dev/null");
    DeskHand hand("frm_Order", "FLEX1");
    hand.Scan("#" + std::string(kSupplier));
    for (const std::string& barcode : barcodes) hand.Scan(barcode);
    hand.Settle();
    for (const std::string& barcode : barcodes) {
      Times.push_back(TimeOf([&] {
        hand.Scan(barcode);
        hand.Draw();
      }));
    }
    if (DraftsWork() != keepsDrafts) std::exit(2);
    ClearDesk();
    ResetDrafts();
  }

  std::vector<double> Times;

 private:
  QTemporaryDir folder_;
};

double MedianOf(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

/// Makes every part of the window known, as a program does that reads the screen aloud.
void AskForParts(const QAccessibleInterface& part) {
  for (int i = 0; i < part.childCount(); ++i) {
    if (const QAccessibleInterface* child = part.child(i)) AskForParts(*child);
  }
}

/// A key press with a reader of the screen at work, and without, by turns.
Duel KeyPressesHeard(DeskHand& hand) {
  constexpr int kTurns = 5;
  Duel shortest{1e9, 1e9};
  for (int turn = 0; turn < kTurns; ++turn) {
    QAccessible::setActive(true);
    AskForParts(*QAccessible::queryAccessibleInterface(hand.GridArea().window()));
    shortest.Ours = std::min(shortest.Ours, KeyPressTime(hand));
    QAccessible::setActive(false);
    shortest.Peer = std::min(shortest.Peer, KeyPressTime(hand));
  }
  return shortest;
}

}  // namespace

void BenchDrafts(BenchServer& server, RatioTable& table) {
  constexpr size_t kScans = 2000;
  OpenRecordset(SlotC, ItemListStatement());
  const std::vector<std::string> barcodes = BarcodesOfOrder(server.Port());
  std::vector<double> with;
  std::vector<double> without;
  while (with.size() < kScans) {
    for (std::vector<double>* times : {&with, &without}) {
      const DraftScans scans(barcodes, times == &with);
      times->insert(times->end(), scans.Times.begin(), scans.Times.end());
    }
  }
  table.AddTimes("a scan into an order of 100 lines with drafts, against without",
                 {MedianOf(with), MedianOf(without)}, 1.05);
  const double longest = *std::max_element(with.begin(), with.end());
  std::printf("  the longest of %zu scans without drafts: %.2f ms\n", without.size(),
              *std::max_element(without.begin(), without.end()) * 1000);
  table.AddTimes("the longest of 2,000 scans with drafts, against 16 ms", {longest, 0.016}, 1.0);
}

void BenchKeyPress(RatioTable& table) {
  DeskHand hand("frm_Order", "FLEX1");
  auto& order = dynamic_cast<OrderForm&>(*OpenForm("frm_Order"));
  Dispatch([&] { order.SetFocus(order.inBox); });
  const double few = KeyPressTimeAt(hand, order, 3);
  const double many = KeyPressTimeAt(hand, order, 300);
  table.AddTimes("a key press in an order of 300 lines, against one of 3", {many, few}, 1.2);
  table.AddTimes("the same with a reader of the screen, against without", KeyPressesHeard(hand),
                 1.3);
  ClearDesk();
}

void BenchScan(BenchServer& server, RatioTable& table) {
  OpenRecordset(SlotC, ItemListStatement());
  Scans scans(server);
  table.AddTimes("scans until the line is drawn, against the price's round trips",
                 scans.Measure(server.Port(), 15), 1.2);
  {
    DelayProxy far(server.Port(), std::chrono::milliseconds(10));
    table.AddTimes("the same with 10 ms of delay each way", scans.Measure(far.Port(), 3), 1.2);
  }
  ConnectTo(server.Port());
  ClearDesk();
}

}  // namespace store
