// Storing an order of a hundred lines, near and far.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "bench/benches.h"
#include "bench/client_library.h"
#include "bench/delay_proxy.h"
#include "gateway/gateway.h"
#include "slips/post_order.h"

namespace store {
namespace {

constexpr int kLines = 100;

/// Orders with keys of their own, "{prefix}{number}".
class Orders {
 public:
  explicit Orders(std::string prefix) : prefix_(std::move(prefix)) {
    head_ = {"",      "0",          "2026-01-05", "",      "1001",  "성수역점",
             "10006", "참나무커피", "100000",     "10000", "110000"};
    head_.resize(head::OrderLast + 1, " ");
    lines_.Redim(kLines, line::OrderLast);
    const std::vector<std::string> row = {
        "",        "",    "2026-01-05", "1000328", "고운 신선한 사이다",
        "1.5L*12", "0",   "EA",         "2",       "0",
        "0",       "500", "1000",       "100",     "u01",
        "0",       "",    "100101",     "매장창고"};
    for (int i = 1; i <= kLines; ++i) {
      for (int column = 0; column <= line::OrderLast; ++column) {
        lines_.Set(i, column, row[static_cast<size_t>(column)]);
      }
      lines_.Set(i, line::Number, std::to_string(i));
    }
  }
  void PostNext() {
    NextKey();
    PostNewOrder(head_, lines_, "PEM22");
  }
  /// Writes the last order anew.
  void ChangeLast() { PostOrderChange(head_, lines_, "PEM22"); }
  /// The same, and only if it stands as it was sent.
  void ChangeLastGuarded() {
    if (PostOrderChange(head_, lines_, "PEM22", {OrderAsSent(head_, lines_)}) == -1) return;
    std::fprintf(stderr, "store_bench: %s\n", LastErrorText.c_str());
    std::exit(2);
  }
  /// The statements of the next order, without sending them anywhere.
  std::vector<std::string> NextStatements() {
    std::string nowhere;
    nowhere.swap(ConnectString);
    PostNext();
    nowhere.swap(ConnectString);
    return {SqlBatch.begin() + 1, SqlBatch.end()};
  }

 private:
  void NextKey() {
    head_[head::Id] = prefix_ + std::to_string(1000 + ++number_);
    for (int i = 1; i <= kLines; ++i) lines_.Set(i, line::Id, head_[head::Id]);
  }
  std::string prefix_;
  int number_ = 0;
  HeadArray head_;
  StringTable lines_;
};

Duel PostingDuel(int port, int rounds, const std::string& prefix) {
  ConnectTo(port);
  ClientLibrary client(port);
  Orders ours(prefix + "a");
  Orders theirs(prefix + "b");
  ours.PostNext();  // the first call connects
  std::vector<std::string> statements;
  Duel best{1e9, 1e9};
  for (int round = 0; round < rounds; ++round) {
    statements = theirs.NextStatements();
    const Duel duel = MeasureBoth(
        1, [&] { ours.PostNext(); },
        [&] {
          client.Run("START TRANSACTION");
          for (const std::string& statement : statements) client.Run(statement);
          client.Run("COMMIT");
        });
    best = {std::min(best.Ours, duel.Ours), std::min(best.Peer, duel.Peer)};
  }
  return best;
}

Duel ChangeDuel(int rounds) {
  Orders ours("changea");
  Orders theirs("changeb");
  ours.PostNext();
  theirs.PostNext();
  return MeasureBoth(
      rounds, [&] { ours.ChangeLastGuarded(); }, [&] { theirs.ChangeLast(); });
}

}  // namespace

void BenchPosting(BenchServer& server, RatioTable& table) {
  table.AddTimes("order of 100 lines, against 101 statements over one connection",
                 PostingDuel(server.Port(), 15, "near"), 1.3);
  {
    DelayProxy far(server.Port(), std::chrono::milliseconds(10));
    table.AddTimes("the same with 10 ms of delay each way", PostingDuel(far.Port(), 3, "far"),
                   0.05);
    ConnectTo(server.Port());
  }
  table.AddTimes("change of an order of 100 lines, guarded, against the same without guards",
                 ChangeDuel(200), 1.05);
}

}  // namespace store
