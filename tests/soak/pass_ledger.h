#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/soak/day_book.h"
#include "tests/soak/db_client.h"
#include "tests/soak/findings.h"

namespace store {

/// Holds the passes of the handheld terminals against the slips that came of them, found by their
/// memo.
class PassLedger {
 public:
  PassLedger(DayBook& book, Findings& findings) : book_(book), findings_(findings) {}

  void Judge(DbClient& db, const std::vector<PassPress>& presses);
  /// At the end: each staged row is in one stored slip or still there.
  void JudgeRows(DbClient& db);

 private:
  void JudgeModule(DbClient& db, const std::string& module, const std::vector<PassPress>& presses);
  void TakeSlip(const PassPress& press, const std::vector<std::string>& row);
  void JudgePress(const PassPress& press);

  DayBook& book_;
  Findings& findings_;
  std::map<std::string, std::string> postedBy_;  // staged row to the memo of the pass
};

}  // namespace store
