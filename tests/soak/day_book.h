#pragma once

#include <deque>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace store {

/// An order, receipt or pass that a clerk worked on, from her first press to the moment when she
/// turned away from it.
struct Work {
  enum class Kind { NewOrder, Change, Delete, Revert, Receipt };
  /// What the clerk knows of it.
  enum class Known { Nothing, Stored, Failed, Unknown };

  Kind What = Kind::NewOrder;
  int Clerk = 0;
  std::string Store;
  std::string Group;
  std::string Token;    ///< What tells its content from any other in the store.
  std::string State;    ///< Of an order: the state that it is stored in.
  std::string Content;  ///< Of an order; dropped once it has been compared.
  std::string Order;    ///< Key of the order that it changes, takes back or receives.
  std::string From;     ///< Token of what was loaded.
  long long LoadedAt = 0;
  int Lines = 0;
  std::string ToldKey;
  std::string Box;  ///< The last.

  bool InPress = false;
  bool Faulted = false;  ///< A fault met one of its presses.
  Known Verdict = Known::Nothing;
  bool Closed = false;
  std::set<std::string> StoredAt;  ///< The keys under which it was found.
  std::set<std::string> JudgedAs;
};

/// One press on "make slips" of the terminal's pass.
struct PassPress {
  int Clerk = 0;
  std::string Store;
  std::string Group;
  std::string Press;
  std::string Memo;
  std::string Module;
  std::map<std::string, std::vector<std::string>> Rows{};  ///< By partner.
  Work::Known Verdict = Work::Known::Nothing;
  std::string Box{};
};

/// What every clerk has written down, sorted. Works are kept for good: what was told to have failed
/// may still turn up.
class DayBook {
 public:
  /// Takes a line of a clerk's log.
  void Take(int clerk, const std::string& store, const std::vector<std::string>& fields);

  /// Nobody works any more: what is still open stays so.
  void CloseEverything();

  Work* OfOrderToken(const std::string& store, const std::string& token);
  const std::vector<Work*>& ReceiptsOf(const std::string& order) { return receipts_[order]; }
  const std::vector<Work*>& DeletionsOf(const std::string& order) { return deletions_[order]; }
  const std::vector<Work*>& ReversionsOf(const std::string& order) { return reversions_[order]; }
  /// Works whose verdict has become known, or that were closed, since the last call.
  std::vector<Work*> TakeChanged();
  /// Presses of passes that are over since the last call.
  std::vector<PassPress> TakePasses();
  const std::map<std::string, std::string>& StagedRows() const { return staged_; }

  /// Of each store, how many presses for a new order have gone by since one was told stored.
  std::map<std::string, long> SinceStored;
  long Presses = 0;
  std::map<std::string, long> Verdicts;
  std::map<std::string, long> Kinds;
  std::map<std::string, long> Faults;

 private:
  using Fields = std::vector<std::string>;
  void TakeIntent(int clerk, const std::string& store, const Fields& fields);
  void TakePass(int clerk, const std::string& store, const Fields& fields);
  void TakeTold(int clerk, const Fields& fields);
  void TakeFault(int clerk, const std::string& name);
  std::vector<Work*> OpenOf(int clerk) const;
  void CloseAllOf(int clerk);
  void Close(Work& work);

  std::deque<Work> works_;
  std::map<std::pair<int, std::string>, Work*> open_;  // by clerk and group
  std::map<int, PassPress> passInHand_;
  std::map<std::string, Work*> byToken_;
  std::map<std::string, std::vector<Work*>> receipts_;  // by order, as the next two
  std::map<std::string, std::vector<Work*>> deletions_;
  std::map<std::string, std::vector<Work*>> reversions_;
  std::vector<Work*> changed_;
  std::vector<PassPress> passes_;
  std::map<std::string, std::string> staged_;  // row to module
};

/// Clerk, group, key and box of a work, for a person.
std::string Facts(const Work& work);

}  // namespace store
