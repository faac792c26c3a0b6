// Moving marked rows of a proposal into the order, with the server far away.
#include <chrono>
#include <cstdio>

#include "bench/asked_selects.h"
#include "bench/benches.h"
#include "bench/client_library.h"
#include "bench/delay_proxy.h"
#include "bench/desk_hand.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "order/frm_Order01.h"
#include "slips/item_list.h"
#include "ui/desk.h"

namespace store {
namespace {

constexpr int kMarked = 500;
constexpr std::chrono::milliseconds kDelay(10);

/// Items under a contract with the supplier, so that each price is one read, in the pick list's
/// cells: code, mark, category, barcode, name, standard, base, stock, shortage, base.
std::vector<std::string> ProposedRows(ClientLibrary& client) {
  const std::string some = std::to_string(kMarked);
  client.Run(Splice(
      "INSERT INTO CTP (CT_CODE,RCT_CODE,PR_CODE,CTP_UP) SELECT '{supplier}','1000',PR_CODE,1500 "
      "FROM PR WHERE PR_END='0' AND PR_CODE NOT IN (SELECT PR_CODE FROM CTP WHERE CT_CODE="
      "'{supplier}') ORDER BY PR_CODE LIMIT {some}",
      "supplier"_a = kSupplier, "some"_a = some));
  return client.Texts(Splice(
      "SELECT CONCAT_WS('\t',PR.PR_CODE,'-1','',PR_BCODE,PR_NAME,PR_STD,'12','5','7','12') FROM PR "
      "JOIN CTP ON PR.PR_CODE=CTP.PR_CODE WHERE CT_CODE='{supplier}' AND RCT_CODE='1000' AND "
      "CTP_UP=1500 AND CTP_FDATE='0000-00-00' AND PR_END='0' LIMIT {some}",
      "supplier"_a = kSupplier, "some"_a = some));
}

class Transfer {
 public:
  explicit Transfer(BenchServer& server)
      : order_(dynamic_cast<frm_Order01&>(*OpenForm("frm_Order01"))) {
    hand_.Scan("#" + std::string(kSupplier));
    ClientLibrary client(server.Port());
    Dispatch([&] {
      for (const std::string& row : ProposedRows(client)) order_.FLEX2.AddItem(row);
    });
    selects_ = SelectsOf(server.Port(), [this] { Run(); });
  }

  /// With the server behind `port`.
  Duel Measure(int port, int rounds) {
    ConnectTo(port);
    ClientLibrary client(port);
    return MeasureBoth(
        rounds, [this] { Run(); },
        [&] {
          for (const std::string& select : selects_) client.ReadAll(select);
        });
  }
  void TellCounts() const {
    std::printf("  %d lines from %d rows, %zu SELECTs\n", order_.FLEX1.Rows() - 1,
                order_.FLEX2.Rows() - 1, selects_.size());
  }

 private:
  /// Marks all rows and moves them; what is in the order already is replaced.
  void Run() {
    Dispatch([this] { order_.Option1_Click(0); });
    hand_.Press(Qt::Key_F11);
    hand_.Draw();
  }

  DeskHand hand_{"frm_Order01", "FLEX1"};
  frm_Order01& order_;
  std::vector<std::string> selects_;
};

}  // namespace

void BenchTransfer(BenchServer& server, RatioTable& table) {
  OpenRecordset(SlotC, ItemListStatement());
  Transfer transfer(server);
  const Duel near = transfer.Measure(server.Port(), 5);
  std::printf("  500 rows with the server beside it: %.0f ms, of which the price reads %.0f\n",
              near.Ours * 1000, near.Peer * 1000);
  DelayProxy far(server.Port(), kDelay);
  table.AddTimes("500 marked rows with 10 ms of delay each way, against their reads",
                 transfer.Measure(far.Port(), 1), 1.15);
  transfer.TellCounts();
  ConnectTo(server.Port());
  ClearDesk();
}

}  // namespace store
