// What to order, worked out from a busy store's sales of three months.
#include <cstdio>

#include "basics/dates.h"
#include "bench/asked_selects.h"
#include "bench/benches.h"
#include "bench/client_library.h"
#include "bench/desk_hand.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/splice.h"
#include "order/frm_Order01.h"

namespace store {
namespace {

constexpr int kRounds = 2;
constexpr int kDays = 90;  // the demo's sales go so far back

/// A copy's key: the same date, store, user and kind, and a number that no slip of the demo has.
std::string CopiedKey(const char* key) {
  return Splice("CONCAT(LEFT({key},CHAR_LENGTH({key})-4),LPAD(RIGHT({key},4)*1000+seq.seq,5,'0'))",
                "key"_a = key);
}

/// Sells what the store has sold so many times more, until there are `lines` lines of sales.
void CopySales(ClientLibrary& client, int lines) {
  const int there =
      std::stoi(client.Texts("SELECT COUNT(*) FROM PES13 A JOIN PSS13 B ON A.PE_ID=B.PE_ID WHERE "
                             "A.PE_FCTCODE='1001'")[0]);
  const std::string copies = std::to_string(lines / there + 1);
  client.Run("SET unique_checks=0, foreign_key_checks=0");
  client.Run(Splice(
      "INSERT INTO PES13 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_AMT) "
      "SELECT {key},PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_AMT FROM PES13 A "
      "JOIN seq_1_to_{copies} seq WHERE PE_FCTCODE='1001'",
      "key"_a = CopiedKey("PE_ID"), "copies"_a = copies));
  client.Run(Splice(
      "INSERT INTO PSS13 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_UNT,PS_SQTY,PS_UP,PS_AMT) "
      "SELECT {key},PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_UNT,PS_SQTY,PS_UP,PS_AMT FROM PES13 A "
      "JOIN PSS13 B ON A.PE_ID=B.PE_ID JOIN seq_1_to_{copies} seq WHERE PE_FCTCODE='1001' AND "
      "CHAR_LENGTH(A.PE_ID)=21",
      "key"_a = CopiedKey("A.PE_ID"), "copies"_a = copies));
  client.ReadAll("ANALYZE TABLE PES13,PSS13");
}

}  // namespace

void BenchProposal(BenchServer& server, RatioTable& table, int saleLines) {
  ClientLibrary client(server.Port());
  std::printf("loading %d lines of sales\n", saleLines);
  std::fflush(stdout);
  CopySales(client, saleLines);
  DeskHand hand("frm_Order01", "FLEX2");
  hand.Scan("#" + std::string(kSupplier));
  auto& order = dynamic_cast<frm_Order01&>(*OpenForm("frm_Order01"));
  order.DTPicker1[0].SetValue(FormatDateValue(AddDays(Today(), -kDays), "YYYY-MM-DD"));
  const auto propose = [&] {
    hand.Press(Qt::Key_F7);
    hand.Draw();
  };
  const std::vector<std::string> selects = SelectsOf(server.Port(), propose);
  table.AddTimes("a proposal by sales until it is drawn, against its two SELECTs",
                 MeasureBoth(kRounds, propose,
                             [&] {
                               for (const std::string& select : selects) client.ReadAll(select);
                             }),
                 1.15);
  std::printf("  %d items proposed, %zu SELECTs\n", order.FLEX2.Rows() - 1, selects.size());
  ClearDesk();
}

}  // namespace store
