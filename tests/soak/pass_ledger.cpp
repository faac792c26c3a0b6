#include "tests/soak/pass_ledger.h"

#include <algorithm>
#include <set>

#include "gateway/splice.h"

namespace store {
namespace {

struct ModuleTables {
  const char* Header;
  const char* Lines;
  const char* Prefix;  // of the header's columns
  bool EveryRowIsALine;
};

const std::map<std::string, ModuleTables>& Tables() {
  static const std::map<std::string, ModuleTables> tables = {{"13", {"PES13", "PSS13", "PE", true}},
                                                             {"23", {"PEM23", "PSM23", "PE", true}},
                                                             {"14", {"PEM13", "PSM13", "PE", true}},
                                                             {"82", {"ME", "MS", "ME", false}}};
  return tables;
}

std::string SlipsStatement(const ModuleTables& tables, const std::string& memos) {
  return Splice(
      "SELECT h.{p}_MEMO,h.{p}_TCTCODE,COUNT(DISTINCT h.{p}_ID),COUNT(l.PR_CODE) FROM {header} h "
      "LEFT JOIN {lines} l ON l.{p}_ID=h.{p}_ID WHERE h.{p}_MEMO IN ({memos}) GROUP BY "
      "h.{p}_MEMO,h.{p}_TCTCODE",
      "p"_a = tables.Prefix, "header"_a = tables.Header, "lines"_a = tables.Lines,
      "memos"_a = memos);
}

std::string Facts(const PassPress& press) {
  std::string rows;
  for (const auto& [partner, ids] : press.Rows) {
    rows += " " + partner + "=";
    for (const std::string& id : ids) rows += id + ",";
  }
  return "clerk " + std::to_string(press.Clerk) + " of " + press.Store + ", module " +
         press.Module + ", memo " + press.Memo + ", rows" + rows + ", box \"" + press.Box + "\"";
}

}  // namespace

void PassLedger::Judge(DbClient& db, const std::vector<PassPress>& presses) {
  std::map<std::string, std::vector<PassPress>> byModule;
  for (const PassPress& press : presses) byModule[press.Module].push_back(press);
  for (const auto& [module, ofModule] : byModule) {
    if (Tables().contains(module)) JudgeModule(db, module, ofModule);
  }
}

void PassLedger::JudgeModule(DbClient& db, const std::string& module,
                             const std::vector<PassPress>& presses) {
  std::string memos;
  std::map<std::string, const PassPress*> byMemo;
  for (const PassPress& press : presses) {
    memos += (memos.empty() ? "'" : ",'") + press.Memo + "'";
    byMemo[press.Memo] = &press;
  }
  for (const auto& row : db.Select(SlipsStatement(Tables().at(module), memos))) {
    TakeSlip(*byMemo.at(row[0]), row);
  }
  for (const PassPress& press : presses) JudgePress(press);
}

void PassLedger::TakeSlip(const PassPress& press, const std::vector<std::string>& row) {
  // A survey has no partner, so all its rows are of one slip.
  const auto rows = row[1].empty() ? press.Rows.begin() : press.Rows.find(row[1]);
  if (rows == press.Rows.end() || row[2] != "1") {
    findings_.Add("a pass with slips that it did not mean", press.Memo,
                  row[2] + " slips of partner " + row[1] + "; " + Facts(press));
    return;
  }
  if (Tables().at(press.Module).EveryRowIsALine && row[3] != std::to_string(rows->second.size())) {
    findings_.Add("a pass with other lines", press.Memo, row[3] + " lines; " + Facts(press));
  }
  for (const std::string& id : rows->second) {
    const auto [place, first] = postedBy_.emplace(id, press.Memo);
    if (!first)
      findings_.Add("a staged row posted twice", id, place->second + " and " + Facts(press));
  }
}

void PassLedger::JudgePress(const PassPress& press) {
  for (const auto& [partner, ids] : press.Rows) {
    const bool posted = std::all_of(ids.begin(), ids.end(),
                                    [&](const std::string& id) { return postedBy_.contains(id); });
    const bool byThis = std::any_of(ids.begin(), ids.end(), [&](const std::string& id) {
      const auto found = postedBy_.find(id);
      return found != postedBy_.end() && found->second == press.Memo;
    });
    if (press.Verdict == Work::Known::Stored && !posted) {
      findings_.Add("a pass told stored that is not there", press.Memo,
                    partner + "; " + Facts(press));
    }
    if (press.Verdict == Work::Known::Failed && byThis) {
      findings_.Add("a pass told to have failed", press.Memo, "it is stored; " + Facts(press));
    }
  }
}

void PassLedger::JudgeRows(DbClient& db) {
  std::set<std::string> waiting;
  for (const auto& row : db.Select("SELECT PE_ID FROM DT900")) waiting.insert(row[0]);
  for (const auto& [id, module] : book_.StagedRows()) {
    const bool posted = postedBy_.contains(id);
    if (posted && waiting.contains(id)) {
      findings_.Add("a staged row posted that is still waiting", id, postedBy_[id]);
    }
    // A run of new prices makes no slips that could name its rows.
    if (!posted && !waiting.contains(id) && module != "66") {
      findings_.Add("a staged row that went without a slip", id, "module " + module);
    }
  }
}

}  // namespace store
