// What the terminal has sent becomes slips and stock, and a receipt becomes stock: near and far.
#include <algorithm>
#include <chrono>
#include <functional>
#include <stdexcept>

#include "bench/benches.h"
#include "bench/client_library.h"
#include "bench/delay_proxy.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/guard.h"
#include "handheld/FRM_DT900_01.h"
#include "slips/post_receipt.h"
#include "slips/received_order.h"

namespace store {
namespace {

constexpr int kPartners = 20;
constexpr int kRowsAPartner = 100;
constexpr int kLines = 100;

bool IsCount(const std::string& statement) { return statement.starts_with("select count(*)"); }

/// Sends what a poster sends, but each statement by itself over one connection: the counts first,
/// then everything that writes, in one transaction.
void SendOneByOne(ClientLibrary& client, const std::vector<std::string>& statements) {
  client.Run("START TRANSACTION");
  for (const std::string& statement : statements) {
    if (IsCount(statement) || IsGuard(statement)) {
      client.ReadAll(statement);
    } else {
      client.Run(statement);
    }
  }
  client.Run("COMMIT");
}

/// The counts that a batch was made from, as single reads: one for each stock and balance
/// statement.
std::vector<std::string> CountsOf(const std::vector<std::string>& batch) {
  std::vector<std::string> counts;
  for (const std::string& statement : batch) {
    if (statement.starts_with("UPDATE IV")) {
      counts.push_back("select count(*) from IV " + statement.substr(statement.find("WHERE")));
    } else if (statement.starts_with(" update CMM")) {
      counts.push_back("select count(*) from CMM " + statement.substr(statement.find("where")));
    }
  }
  return counts;
}

std::vector<std::string> Joined(std::vector<std::string> first,
                                const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

/// The store holds so many products, each with one row of stock in its depot.
void GiveStock(ClientLibrary& client, int count) {
  client.Run("DELETE FROM IV WHERE RCT_CODE='1001' AND HCT_CODE='100101'");
  client.Run(
      "INSERT INTO IV (RCT_CODE,HCT_CODE,PR_CODE,INQTY) SELECT '1001','100101',PR_CODE,100 FROM PR "
      "ORDER BY PR_CODE LIMIT " +
      std::to_string(count));
}

/// Rows of `kPartners` deliveries, all of products that the store holds.
void StageDeliveries(ClientLibrary& client) {
  client.Run("DELETE FROM DT900");
  client.Run(
      "INSERT INTO DT900 (PE_ID,PS_TAXGU,PR_CODE,PR_NAME,PR_STD,PR_UNT,PS_SQTY,PS_UP,PS_rctCODE,"
      "PS_rctNAME,DT_CHECK,DT_GU) SELECT CONCAT('20260105101500u01',n),'-',PR_CODE,PR_NAME,PR_STD,"
      "PR_UNT,12,PR_OP0,CONCAT('bench',n DIV " +
      std::to_string(kRowsAPartner) +
      "),CONCAT('거래처',n DIV 100),'검품','23' FROM (SELECT ROW_NUMBER() OVER (ORDER BY "
      "PR_CODE)-1 "
      "n,PR.* FROM PR ORDER BY PR_CODE LIMIT " +
      std::to_string(kPartners * kRowsAPartner) + ") p");
}

/// A form that lists them, without a window.
void ListAll(FRM_DT900_01& form) {
  form.ModuleCode = handheld_module::Purchase;
  form.Load();
  form.Combo1.SetText(form.Combo1.List().front());
  form.LoadStagedRows();
}

Duel DeliveriesDuel(ClientLibrary& maker, int port, int rounds) {
  ClientLibrary client(port);
  Duel best{1e9, 1e9};
  for (int round = 0; round < rounds; ++round) {
    ConnectTo(port);
    StageDeliveries(maker);
    FRM_DT900_01 form;
    ListAll(form);
    const double ours = TimeOf([&] { form.Command1_Click(3); });
    // The same statements for slips of other keys, and the same rows to delete.
    std::vector<std::string> batch(SqlBatch.begin() + 1, SqlBatch.end());
    maker.Run("DELETE FROM PEM23 WHERE PE_TMAN='핸디처리'");
    StageDeliveries(maker);
    const std::vector<std::string> statements = Joined(CountsOf(batch), batch);
    const double peer = TimeOf([&] { SendOneByOne(client, statements); });
    maker.Run("DELETE FROM PEM23 WHERE PE_TMAN='핸디처리'");
    best = {std::min(best.Ours, ours), std::min(best.Peer, peer)};
  }
  return best;
}

HeadArray ReceiptHead(const std::string& key) {
  return {key,      "1",     "2026-01-05", "",  "1001", "성수역점", kSupplier, "참나무커피",
          "100000", "10000", "110000",     "0", "0",    "0",        "E005",    " ",
          " ",      " ",     "u01",        " ", " ",    ""};
}

StringTable ReceiptLines(const std::string& key, const std::vector<std::string>& products) {
  StringTable lines;
  lines.Redim(kLines, line::PostedLast);
  for (int i = 1; i <= kLines; ++i) {
    const std::vector<std::string> row = {key,
                                          std::to_string(i),
                                          "2026-01-05",
                                          products[static_cast<size_t>(i - 1)],
                                          "고운 신선한 사이다",
                                          "1.5L*12",
                                          "0",
                                          "EA",
                                          "2",
                                          "2",
                                          "0",
                                          "500",
                                          "1000",
                                          "100",
                                          "u01",
                                          "0",
                                          "",
                                          "100101",
                                          "매장창고"};
    for (size_t column = 0; column < row.size(); ++column) {
      lines.Set(i, static_cast<int>(column), row[column]);
    }
  }
  return lines;
}

Duel ReceiptDuel(ClientLibrary& maker, int port, int rounds) {
  const std::vector<std::string> products =
      maker.Texts("SELECT PR_CODE FROM PR ORDER BY PR_CODE LIMIT " + std::to_string(kLines));
  ClientLibrary client(port);
  const std::string key = "benchreceipt";
  Duel best{1e9, 1e9};
  for (int round = 0; round < rounds; ++round) {
    ConnectTo(port);
    const StringTable lines = ReceiptLines(key, products);
    maker.Run("DELETE FROM PEM23 WHERE PE_ID='" + key + "'");
    QueryText("SELECT 1", "");  // the first call connects
    const double ours = TimeOf([&] { PostReceipt(ReceiptHead(key), lines, "PEM23"); });
    const std::vector<std::string> batch(SqlBatch.begin() + 1, SqlBatch.end());
    maker.Run("DELETE FROM PEM23 WHERE PE_ID='" + key + "'");
    const std::vector<std::string> statements = Joined(CountsOf(batch), batch);
    const double peer = TimeOf([&] { SendOneByOne(client, statements); });
    best = {std::min(best.Ours, ours), std::min(best.Peer, peer)};
  }
  return best;
}

/// The same receipt with and without the guard of its order, near.
Duel GuardDuel(ClientLibrary& maker, int port, int rounds) {
  const std::vector<std::string> products =
      maker.Texts("SELECT PR_CODE FROM PR ORDER BY PR_CODE LIMIT " + std::to_string(kLines));
  const std::string key = "benchguarded";
  const StringTable lines = ReceiptLines(key, products);
  HeadArray head = ReceiptHead(key);
  head[head::Link] = maker.Texts("SELECT MAX(PE_ID) FROM PEM22 WHERE PE_FCTCODE='1001'").front();
  ConnectTo(port);
  const auto post = [&](const std::string& guard) {
    maker.Run("DELETE FROM PEM23 WHERE PE_ID='" + key + "'");
    return TimeOf([&] {
      if (PostReceipt(head, lines, "PEM23", guard) == 0) throw std::runtime_error(LastErrorText);
    });
  };
  Duel best{1e9, 1e9};
  for (int round = 0; round < rounds; ++round) {
    const std::string guard = StillAsRead(ReadOrder(head[head::Link]).value());
    const double guarded = post(guard);
    best = {std::min(best.Ours, guarded), std::min(best.Peer, post({}))};
  }
  maker.Run("DELETE FROM PEM23 WHERE PE_ID='" + key + "'");
  return best;
}

}  // namespace

void BenchHandheldPost(BenchServer& server, RatioTable& table) {
  const auto showBox = std::exchange(
      Host.MsgBox, [](const std::string&, int, const std::string&) { return box::Yes; });
  ClientLibrary maker(server.Port());
  GiveStock(maker, kPartners * kRowsAPartner);
  table.AddTimes("2,000 ticked rows of 20 partners to slips and stock, module \"23\"",
                 DeliveriesDuel(maker, server.Port(), 5), 1.0);
  table.AddTimes("a receipt of 100 lines, guarded, against the same without",
                 GuardDuel(maker, server.Port(), 60), 1.05);
  DelayProxy far(server.Port(), std::chrono::milliseconds(10));
  table.AddTimes("the same with 10 ms of delay each way", DeliveriesDuel(maker, far.Port(), 1),
                 0.02);
  table.AddTimes("a receipt of 100 lines (PostReceipt) with 10 ms of delay each way",
                 ReceiptDuel(maker, far.Port(), 3), 0.04);
  ConnectTo(server.Port());
  Host.MsgBox = showBox;
}

}  // namespace store
