#include "slips/slip_draft.h"

#include <utility>

#include "slips/drafts.h"

namespace store {

void SlipDraft::Begin(Draft start) {
  begun_ = !NewDraftId().empty();
  start_ = std::move(start);
}

void SlipDraft::GoOnWith(const Draft& draft) {
  id_ = draft.Id;
  triedId_ = draft.TriedId;
}

void SlipDraft::Note(Draft now) {
  if (!begun_) return;
  hasLines_ = !now.Lines.empty();
  if (SameContent(now, start_)) {
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
  if (!id_.empty()) FlushDrafts();
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
