#include "tests/soak/day_book.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "tests/soak/day_log.h"

namespace store {
namespace {

std::vector<std::string> Split(const std::string& text, char border) {
  std::vector<std::string> parts;
  for (size_t begin = 0; begin <= text.size();) {
    const size_t end = std::min(text.find(border, begin), text.size());
    if (end > begin) parts.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

const std::string& Field(const std::vector<std::string>& fields, size_t index) {
  static const std::string none;
  return index < fields.size() ? fields[index] : none;
}

Work::Known KnownOf(const std::string& told) {
  if (told == verdict::Stored) return Work::Known::Stored;
  return told == verdict::Unknown ? Work::Known::Unknown : Work::Known::Failed;
}

/// A press that fails says nothing about an earlier one whose outcome is open.
Work::Known Joined(Work::Known before, Work::Known now) {
  if (now == Work::Known::Failed && before == Work::Known::Unknown) return before;
  return now;
}

const std::map<std::string, Work::Kind>& KindsOfWork() {
  static const std::map<std::string, Work::Kind> kinds = {{entry::NewOrder, Work::Kind::NewOrder},
                                                          {entry::Change, Work::Kind::Change},
                                                          {entry::Delete, Work::Kind::Delete},
                                                          {entry::Revert, Work::Kind::Revert},
                                                          {entry::Receipt, Work::Kind::Receipt}};
  return kinds;
}

}  // namespace

std::string Facts(const Work& work) {
  return "clerk " + std::to_string(work.Clerk) + " of " + work.Store + ", group " + work.Group +
         ", content " + work.Token + (work.Order.empty() ? "" : ", order " + work.Order) +
         (work.From.empty() ? "" : ", loaded as " + work.From) + ", key told " + work.ToldKey +
         ", box \"" + work.Box + "\"";
}

void DayBook::Take(int clerk, const std::string& store, const Fields& fields) {
  const std::string& what = fields[0];
  if (KindsOfWork().contains(what)) {
    TakeIntent(clerk, store, fields);
  } else if (what == entry::Pass) {
    TakePass(clerk, store, fields);
  } else if (what == entry::Told) {
    TakeTold(clerk, fields);
  } else if (what == entry::Closed) {
    const auto found = open_.find({clerk, Field(fields, 1)});
    if (found != open_.end()) Close(*found->second);
  } else if (what == entry::Staged) {
    for (const std::string& id : Split(Field(fields, 3), ',')) staged_[id] = Field(fields, 2);
  } else if (what == entry::Fault) {
    TakeFault(clerk, Field(fields, 1));
  } else if (what == entry::Begin) {
    CloseAllOf(clerk);
  }
}

void DayBook::TakeIntent(int clerk, const std::string& store, const Fields& fields) {
  ++Presses;
  ++Kinds[fields[0]];
  Work*& open = open_[{clerk, Field(fields, 2)}];
  if (open != nullptr) {
    open->InPress = true;
    return;
  }
  open = &works_.emplace_back();
  open->What = KindsOfWork().at(fields[0]);
  open->Clerk = clerk;
  open->Store = store;
  open->Group = Field(fields, 2);
  open->InPress = true;
  if (open->What == Work::Kind::Delete || open->What == Work::Kind::Revert) {
    open->Order = Field(fields, 3);
    (open->What == Work::Kind::Delete ? deletions_ : reversions_)[open->Order].push_back(open);
    return;
  }
  open->Token = Field(fields, 3);
  if (open->What == Work::Kind::Receipt) {
    open->Order = Field(fields, 4);
    open->LoadedAt = std::atoll(Field(fields, 5).c_str());
    open->Lines = std::atoi(Field(fields, 6).c_str());
    receipts_[open->Order].push_back(open);
    return;
  }
  open->State = Field(fields, 4);
  open->Content = Field(fields, 5);
  open->Order = Field(fields, 6);
  open->From = Field(fields, 7);
  byToken_[store + "/" + open->Token] = open;
}

void DayBook::TakePass(int clerk, const std::string& store, const Fields& fields) {
  ++Presses;
  ++Kinds[fields[0]];
  PassPress press{.Clerk = clerk,
                  .Store = store,
                  .Group = Field(fields, 2),
                  .Press = Field(fields, 1),
                  .Memo = Field(fields, 3),
                  .Module = Field(fields, 4)};
  for (const std::string& part : Split(Field(fields, 5), ';')) {
    const size_t equals = part.find('=');
    press.Rows[part.substr(0, equals)] = Split(part.substr(equals + 1), ',');
  }
  passInHand_[clerk] = std::move(press);
}

void DayBook::TakeTold(int clerk, const Fields& fields) {
  const Work::Known known = KnownOf(Field(fields, 3));
  ++Verdicts[Field(fields, 3)];
  const auto pass = passInHand_.find(clerk);
  if (pass != passInHand_.end() && pass->second.Press == Field(fields, 1)) {
    pass->second.Verdict = known;
    pass->second.Box = Field(fields, 5);
    passes_.push_back(std::move(pass->second));
    passInHand_.erase(pass);
    return;
  }
  const auto found = open_.find({clerk, Field(fields, 2)});
  if (found == open_.end()) return;
  Work& work = *found->second;
  work.InPress = false;
  work.Verdict = Joined(work.Verdict, known);
  work.ToldKey = Field(fields, 4);
  work.Box = Field(fields, 5);
  if (work.What == Work::Kind::NewOrder) {
    long& since = SinceStored[work.Store];
    since = known == Work::Known::Stored ? 0 : since + 1;
  }
  if (known == Work::Known::Stored) changed_.push_back(&work);
}

void DayBook::TakeFault(int clerk, const std::string& name) {
  ++Faults[name];
  for (Work* work : OpenOf(clerk)) work->Faulted = work->Faulted || work->InPress;
}

void DayBook::Close(Work& work) {
  if (work.InPress) work.Verdict = Work::Known::Unknown;
  work.Closed = true;
  changed_.push_back(&work);
  open_.erase({work.Clerk, work.Group});
}

void DayBook::CloseAllOf(int clerk) {
  const auto pass = passInHand_.find(clerk);
  if (pass != passInHand_.end()) {
    pass->second.Verdict = Work::Known::Unknown;
    passes_.push_back(std::move(pass->second));
    passInHand_.erase(pass);
  }
  for (Work* work : OpenOf(clerk)) Close(*work);
}

std::vector<Work*> DayBook::OpenOf(int clerk) const {
  std::vector<Work*> works;
  for (auto place = open_.lower_bound({clerk, ""});
       place != open_.end() && place->first.first == clerk; ++place) {
    works.push_back(place->second);
  }
  return works;
}

void DayBook::CloseEverything() {
  std::set<int> clerks;
  for (const auto& [place, work] : open_) clerks.insert(place.first);
  for (const auto& [clerk, press] : passInHand_) clerks.insert(clerk);
  for (const int clerk : clerks) CloseAllOf(clerk);
}

Work* DayBook::OfOrderToken(const std::string& store, const std::string& token) {
  const auto found = byToken_.find(store + "/" + token);
  return found == byToken_.end() ? nullptr : found->second;
}

std::vector<Work*> DayBook::TakeChanged() { return std::exchange(changed_, {}); }

std::vector<PassPress> DayBook::TakePasses() { return std::exchange(passes_, {}); }

}  // namespace store
