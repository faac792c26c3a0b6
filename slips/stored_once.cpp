#include "slips/stored_once.h"

#include <map>

#include "basics/log.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/slip_checks.h"

namespace store {
namespace {

std::map<std::string, StoredOnce> Work;

const char* FoundWords(std::optional<Fate> fate) {
  if (!fate) return "looked for, and not stored";
  return *fate == Fate::Unknown ? "looked for, and the database could not be asked"
                                : "looked for, and stored";
}

}  // namespace

std::optional<Fate> StoredOnce::FateOfEarlier(const std::string& content) {
  std::optional<Fate> fate = LookForLost(content);
  if (fate && fate != Fate::Unknown) {
    Host.Sleep(kUntilOnDisk);
    fate = LookForLost(content);
  }
  if (!lost_.empty()) WriteLog(LogWeight::Note, "batch in doubt", FoundWords(fate));
  if (fate && fate != Fate::Unknown) lost_.clear();
  return fate;
}

std::optional<Fate> StoredOnce::LookForLost(const std::string& content) const {
  std::optional<Fate> fate;
  for (const Try& lost : lost_) {
    const RecordsetSlot found = FetchRecordset(lost.Trace);
    if (!found) return Fate::Unknown;
    if (found->Eof()) continue;
    fate = lost.Content == content ? Fate::Stored : Fate::StoredOther;
    if (fate == Fate::Stored) break;
  }
  return fate;
}

Fate StoredOnce::Send(const std::function<bool()>& post, const Try& current) {
  if (post()) {
    lost_.clear();
    return Fate::Stored;
  }
  if (BatchInDoubt) lost_.push_back(current);
  const std::string words = LastErrorText;
  const std::optional<Fate> fate = FateOfEarlier(current.Content);
  LastErrorText = words;
  if (fate) return *fate;
  return lost_.empty() ? Fate::Failed : Fate::NotFound;
}

StoredOnce& WorkNamed(const std::string& name) { return Work[name]; }

void ResetWork() { Work.clear(); }

std::string FateText(Fate fate) {
  const std::string words = "\r\r MSG: " + LastErrorText;
  switch (fate) {
    case Fate::StoredOther:
      return "앞서 시도한 내용으로 이미 저장되었습니다.\r그 뒤에 고친 내용은 저장되지 않았습니다.";
    case Fate::NotFound:
      return "저장이 확인되지 않았습니다.\r다시 시도하여도 두 번 처리되지 않습니다." + words;
    case Fate::Unknown:
      return "서버에 연결되지 않아 저장되었는지 알 수 없습니다.\r다시 시도하면 저장 여부를 먼저 "
             "확인하므로 두 번 처리되지 않습니다." +
             words;
    default:
      return SaveFailedText();
  }
}

}  // namespace store
