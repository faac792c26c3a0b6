#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/soak/day_book.h"
#include "tests/soak/db_client.h"
#include "tests/soak/findings.h"

namespace store {

/// Holds what really happened to each order, step by step, against what the clerks meant and were
/// told.
class OrderLedger {
 public:
  /// A transaction commits within `slowest` after it has taken the number of a step.
  OrderLedger(DayBook& book, Findings& findings, std::chrono::seconds slowest)
      : book_(book), findings_(findings), slowest_(slowest) {}

  /// Reads the steps that were committed since the last call, and the receipts among them.
  /// `readIntentions` brings into the book what was meant before that.
  void ReadSteps(DbClient& db, const std::function<void()>& readIntentions);
  /// Judges works whose outcome the clerk knew before `ReadSteps`.
  void Judge(DbClient& db, const std::vector<Work*>& works);
  /// At the end, when nobody works any more: deletions and reverts, one by one.
  void JudgeCounts();

 private:
  /// What has happened to one key so far.
  struct Slip {
    bool Live = false;
    std::string Token;         // of the version that stands, or stood last
    std::string State;         // of it
    std::string DeletedState;  // when the last step was a deletion
    long long ReceivedAt = 0;
    int Inserts = 0;
    int Deletes = 0;
    int Rewritten = 0;  // versions that took the place of one
    // The same after a try without an answer, unless somebody had deleted what that had stored.
    int PerhapsRewritten = 0;
    int Reverts = 0;
  };
  /// An order was closed by a receipt whose slip has yet to be looked at.
  struct Closing {
    std::string Order;
    long long Before = 0;  // when it had been closed the time before
  };

  Rows NewSteps(DbClient& db);
  void TakeSteps(const Rows& rows);
  void TakeStep(const std::vector<std::string>& row);
  void Inserted(Slip& slip, const std::string& state);
  void Versioned(Slip& slip, const std::string& key, const std::string& token);
  void ExplainRewriting(Slip& slip, const std::string& key, Work& work);
  void Updated(Slip& slip, const std::vector<std::string>& row);
  void ReadReceipts(DbClient& db);
  void ExplainReceipt(const std::string& receipt, const Closing& closing,
                      const std::vector<std::string>& row);
  void StoredUnder(Work& work, const std::string& key);
  void JudgeOutcome(Work& work);
  void CompareContents(DbClient& db, const std::vector<Work*>& works);

  DayBook& book_;
  Findings& findings_;
  std::map<std::string, Slip> slips_;
  std::map<std::string, Closing> closings_;  // by receipt
  long long lastStep_ = 0;
  const std::chrono::seconds slowest_;
  // Numbers not seen yet, and how long they are looked for.
  std::map<long long, std::chrono::steady_clock::time_point> gaps_;
};

}  // namespace store
