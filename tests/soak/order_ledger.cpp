#include "tests/soak/order_ledger.h"

#include <algorithm>
#include <cstdlib>

#include "basics/numbers.h"
#include "gateway/splice.h"
#include "tests/soak/soak_database.h"

namespace store {
namespace {

using std::chrono::steady_clock;

/// Columns of a step.
enum Column { kSeq, kAt, kWhat, kKey, kOldState, kNewState, kOldLink, kNewLink, kToken };

constexpr const char* kStepColumns = "SEQ,AT,WHAT,PE_ID,OLD_CK,NEW_CK,OLD_LINK,NEW_LINK,TOKEN";

std::string StoreOfKey(const std::string& key) { return key.size() < 12 ? "" : key.substr(8, 4); }

bool IsOrder(const Work& work) {
  return work.What == Work::Kind::NewOrder || work.What == Work::Kind::Change;
}

std::string Plain(const std::string& number) { return NumberText(ParseNumber(number)); }

}  // namespace

void OrderLedger::ReadSteps(DbClient& db, const std::function<void()>& readIntentions) {
  const Rows rows = NewSteps(db);
  readIntentions();
  TakeSteps(rows);
  ReadReceipts(db);
}

Rows OrderLedger::NewSteps(DbClient& db) {
  const long long first = gaps_.empty() ? lastStep_ + 1 : gaps_.begin()->first;
  return db.Select("SELECT " + std::string(kStepColumns) +
                   " FROM SOAK_STEP WHERE SEQ >= " + std::to_string(first) + " ORDER BY SEQ");
}

void OrderLedger::TakeSteps(const Rows& rows) {
  const auto now = steady_clock::now();
  for (const auto& row : rows) {
    const long long number = std::atoll(row[kSeq].c_str());
    for (long long gap = lastStep_ + 1; gap < number; ++gap) gaps_[gap] = now + slowest_;
    const bool isNew = number > lastStep_ || gaps_.erase(number) > 0;
    lastStep_ = std::max(lastStep_, number);
    if (isNew) TakeStep(row);
  }
  std::erase_if(gaps_, [&](const auto& gap) { return gap.second < now; });
}

void OrderLedger::TakeStep(const std::vector<std::string>& row) {
  Slip& slip = slips_[row[kKey]];
  const std::string& what = row[kWhat];
  if (what == step::Inserted) {
    Inserted(slip, row[kNewState]);
  } else if (what == step::Line) {
    Versioned(slip, row[kKey], row[kToken]);
  } else if (what == step::Updated) {
    Updated(slip, row);
  } else {
    slip.Live = false;
    ++slip.Deletes;
    slip.DeletedState = row[kOldState];
  }
}

void OrderLedger::Inserted(Slip& slip, const std::string& state) {
  slip.Live = true;
  slip.State = state;
  ++slip.Inserts;
}

void OrderLedger::Versioned(Slip& slip, const std::string& key, const std::string& token) {
  Work* work = book_.OfOrderToken(StoreOfKey(key), token);
  if (work == nullptr) {
    findings_.Add("an order that nobody wrote", key, "its first line is " + token);
    return;
  }
  if (slip.Inserts > 1) ExplainRewriting(slip, key, *work);
  StoredUnder(*work, key);
  if (work->State != slip.State) {
    findings_.Add("stored in another state", key, "state " + slip.State + "; " + Facts(*work));
  }
  slip.Token = token;
  slip.DeletedState.clear();
}

/// A version took the place of another one, or of an order that had been deleted.
void OrderLedger::ExplainRewriting(Slip& slip, const std::string& key, Work& work) {
  const bool ownEarlierTry = slip.Token == work.Token;
  const Work* former = book_.OfOrderToken(work.Store, slip.Token);
  const std::string facts = "it held " + slip.Token + " in state " + slip.DeletedState + " (" +
                            (former == nullptr ? "nobody" : Facts(*former)) + "); now " +
                            Facts(work);
  if (work.What == Work::Kind::NewOrder && !ownEarlierTry) {
    // Free again after a deletion on the board, or taken from somebody.
    const auto& deletions = book_.DeletionsOf(key);
    const auto perhaps = std::count_if(
        deletions.begin(), deletions.end(),
        [](const Work* deletion) { return deletion->Verdict != Work::Known::Failed; });
    if (slip.Deletes - slip.Rewritten - slip.PerhapsRewritten > perhaps) {
      findings_.Add("an order destroyed by another one", key + " " + work.Token, facts);
      ++slip.Rewritten;
    }
    return;
  }
  ++(work.What == Work::Kind::NewOrder ? slip.PerhapsRewritten : slip.Rewritten);
  const bool stoodStill =
      slip.DeletedState == "0" || (ownEarlierTry && slip.DeletedState == work.State);
  if (!stoodStill) {
    findings_.Add("an order rewritten that had moved on to state " + slip.DeletedState,
                  key + " " + work.Token, facts);
  } else if (!ownEarlierTry && (work.Order != key || work.From != slip.Token)) {
    findings_.Add("another clerk's change overwritten", key + " " + work.Token, facts);
  }
}

void OrderLedger::Updated(Slip& slip, const std::vector<std::string>& row) {
  const std::string& before = row[kOldState];
  const std::string& after = row[kNewState];
  slip.State = after;
  if (after == "4") {
    closings_[row[kNewLink]] = {row[kKey], before == "4" ? slip.ReceivedAt : 0};
    slip.ReceivedAt = std::atoll(row[kAt].c_str());
  }
  if (before == "1" && after == "0") ++slip.Reverts;
  static const std::set<std::string> arrows = {"10", "12", "23", "24", "34", "44"};
  if (!arrows.contains(before + after)) {
    findings_.Add("a state against the arrows", row[kKey], before + " to " + after);
  }
}

void OrderLedger::ReadReceipts(DbClient& db) {
  if (closings_.empty()) return;
  std::vector<std::string> keys;
  for (const auto& [receipt, closing] : closings_) keys.push_back(receipt);
  const Rows rows = db.Select(
      "SELECT h.PE_ID,h.PE_LINK,CONCAT(l.PR_CODE,':',l.PS_SQTY+0e0),(SELECT COUNT(*) FROM PSM23 n "
      "WHERE n.PE_ID=h.PE_ID) FROM PEM23 h JOIN PSM23 l ON l.PE_ID=h.PE_ID AND l.PS_NO=1 WHERE "
      "h.PE_ID IN (" +
      QuotedList(keys) + ")");
  std::map<std::string, std::vector<std::string>> found;
  for (const auto& row : rows) found[row[0]] = row;
  for (const auto& [receipt, closing] : closings_) {
    const auto place = found.find(receipt);
    if (place == found.end()) {
      findings_.Add("an order closed by a receipt that is not there", closing.Order, receipt);
    } else {
      ExplainReceipt(receipt, closing, place->second);
    }
  }
  closings_.clear();
}

void OrderLedger::ExplainReceipt(const std::string& receipt, const Closing& closing,
                                 const std::vector<std::string>& row) {
  Work* by = nullptr;
  for (Work* work : book_.ReceiptsOf(closing.Order)) {
    if (work->Token == row[2]) by = work;
  }
  if (row[1] != closing.Order || by == nullptr) {
    findings_.Add("a receipt that nobody confirmed", receipt,
                  "it names " + row[1] + ", was found at " + closing.Order + ", with " + row[2]);
    return;
  }
  const bool again = !by->StoredAt.empty();
  StoredUnder(*by, receipt);
  if (std::to_string(by->Lines) != row[3]) {
    findings_.Add("a receipt with other lines", receipt, row[3] + " lines; " + Facts(*by));
  }
  if (!again && closing.Before > by->LoadedAt) {
    findings_.Add("goods received twice: by a clerk who had not seen the first receipt", receipt,
                  Facts(*by));
  }
}

void OrderLedger::StoredUnder(Work& work, const std::string& key) {
  work.StoredAt.insert(key);
  const bool receipt = work.What == Work::Kind::Receipt;
  if (work.StoredAt.size() > 1) {
    findings_.Add(receipt ? "goods received twice: confirmed again after an open outcome"
                          : "an order stored twice",
                  work.Store + " " + std::to_string(work.Clerk) + "/" + work.Group,
                  *work.StoredAt.begin() + " and " + key + "; " + Facts(work));
  }
  if (work.Closed && work.Verdict == Work::Known::Failed) {
    findings_.Add(receipt ? "a receipt told to have failed" : "an order told to have failed", key,
                  "it is stored; " + Facts(work));
  }
}

void OrderLedger::Judge(DbClient& db, const std::vector<Work*>& works) {
  std::vector<Work*> toCompare;
  for (Work* work : works) {
    // Deletions and reverts have no content of their own to look for: they are counted at the end.
    if (work->What == Work::Kind::Delete || work->What == Work::Kind::Revert) continue;
    JudgeOutcome(*work);
    if (IsOrder(*work) && !work->StoredAt.empty() && !work->Content.empty())
      toCompare.push_back(work);
  }
  CompareContents(db, toCompare);
}

void OrderLedger::JudgeOutcome(Work& work) {
  const bool receipt = work.What == Work::Kind::Receipt;
  const std::string subject = work.Store + " " + std::to_string(work.Clerk) + "/" + work.Group;
  if (work.Verdict == Work::Known::Stored && work.StoredAt.empty()) {
    findings_.Add(receipt ? "a receipt told stored that is not there"
                          : "an order told stored that is not there",
                  subject, Facts(work));
  }
  if (work.Verdict == Work::Known::Failed && work.Closed && !work.StoredAt.empty()) {
    findings_.Add(receipt ? "a receipt told to have failed" : "an order told to have failed",
                  *work.StoredAt.begin(), "it is stored; " + Facts(work));
  }
}

/// As far as nobody has meanwhile changed or deleted them.
void OrderLedger::CompareContents(DbClient& db, const std::vector<Work*>& works) {
  if (works.empty()) return;
  std::vector<std::string> keys;
  keys.reserve(works.size());
  for (const Work* work : works) keys.push_back(*work->StoredAt.begin());
  const Rows rows = db.Select(
      "SELECT "
      "h.PE_ID,h.PE_PDATE,h.PE_TCTCODE,h.PE_TOT,l.PR_CODE,l.PS_SQTY,l.PS_UP,l.PS_AMT,l.PS_TAX "
      "FROM PEM22 h JOIN PSM22 l ON l.PE_ID=h.PE_ID WHERE h.PE_ID IN (" +
      QuotedList(keys) + ") ORDER BY h.PE_ID,l.PS_NO");
  std::map<std::string, std::pair<std::string, std::string>> stored;  // key to token and content
  for (const auto& row : rows) {
    auto& [token, content] = stored[row[0]];
    const std::string line = row[4] + ":" + Plain(row[5]);
    if (content.empty()) {
      token = line;
      // An order to several suppliers has none of its own on the form.
      content = row[1] + ";" + (row[2] == "1000000000000000" ? "" : row[2]) + ";" + Plain(row[3]);
    }
    content += ";" + line + ":" + Plain(row[6]) + ":" + Plain(row[7]) + ":" + Plain(row[8]);
  }
  for (Work* work : works) {
    if (work->Content.empty()) continue;
    const std::string key = *work->StoredAt.begin();
    const auto found = stored.find(key);
    if (found != stored.end() && found->second.first == work->Token &&
        found->second.second != work->Content) {
      findings_.Add(
          "an order with other content", key,
          "stored " + found->second.second + ", meant " + work->Content + "; " + Facts(*work));
    }
    work->Content.clear();
    work->Content.shrink_to_fit();
  }
}

void OrderLedger::JudgeCounts() {
  const auto count = [](const std::vector<Work*>& works, auto isOne) {
    return static_cast<int>(std::count_if(works.begin(), works.end(), isOne));
  };
  // Whoever looks, after an answer was lost, and finds the slip gone cannot tell who has done it.
  const auto isSure = [](const Work* work) {
    return work->Verdict == Work::Known::Stored && !work->Faulted;
  };
  const auto isOpen = [](const Work* work) {
    return work->Verdict == Work::Known::Unknown ||
           (work->Verdict == Work::Known::Stored && work->Faulted);
  };
  const auto judge = [&](const std::string& key, const std::vector<Work*>& works, int happened,
                         int perhaps, const std::string& what) {
    const int told = count(works, isSure);
    const int open = count(works, isOpen);
    std::string facts = std::to_string(happened) + " times and perhaps " + std::to_string(perhaps) +
                        ", told " + std::to_string(told) + " times, open " + std::to_string(open);
    for (const Work* work : works) facts += "\n    " + Facts(*work);
    if (happened + perhaps < told) findings_.Add("told " + what + ", and it was not", key, facts);
    if (happened > told + open) findings_.Add(what + ", and nobody was told so", key, facts);
  };
  for (const auto& [key, slip] : slips_) {
    judge(key, book_.DeletionsOf(key), slip.Deletes - slip.Rewritten - slip.PerhapsRewritten,
          slip.PerhapsRewritten, "deleted");
    judge(key, book_.ReversionsOf(key), slip.Reverts, 0, "reverted");
  }
}

}  // namespace store
