#include "slips/slip_draft.h"

#include <utility>

#include "slips/drafts.h"

namespace store {
namespace {

constexpr std::chrono::milliseconds kPatienceOfSave(500);

}  // namespace

void SlipDraft::Begin(Draft start) {
  begun_ = !NewDraftId().empty();
  start_ = std::move(start);
}

void SlipDraft::GoOnWith(const Draft& draft, std::vector<DraftLine> refused) {
  id_ = draft.Id;
  triedId_ = draft.TriedId;
  refused_ = std::move(refused);
}

void SlipDraft::Note(Draft now) {
  if (!begun_) return;
  const bool unchanged = SameEntries(now, start_);
  now.Lines.insert(now.Lines.begin(), refused_.begin(), refused_.end());
  hasLines_ = !now.Lines.empty();
  if (unchanged && refused_.empty()) {
    if (!id_.empty()) RemoveDraft(std::exchange(id_, {}));
    return;
  }
  if (id_.empty()) id_ = NewDraftId();
  now.Id = id_;
  now.TriedId = triedId_;
  KeepDraft(std::move(now));
}

void SlipDraft::NoteTry(Draft now, const std::string& triedId) {
  triedId_ = triedId;
  Note(std::move(now));
  if (!id_.empty()) FlushDrafts(kPatienceOfSave);
}

void SlipDraft::Saved() {
  if (!id_.empty()) RemoveDraft(id_);
  *this = SlipDraft();
}

void SlipDraft::Closed() {
  if (id_.empty()) return;
  if (hasLines_) {
    PutDraftAside(id_);
  } else {
    RemoveDraft(id_);
  }
  *this = SlipDraft();
}

}  // namespace store
