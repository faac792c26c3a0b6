// What the board has to do with drafts: it says that there are some, and brings one back.
#include <utility>

#include "basics/records.h"
#include "board/frmDrafts.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "slips/deleted_slips.h"
#include "slips/draft_fate.h"
#include "slips/draft_texts.h"
#include "slips/drafts.h"

namespace store {
namespace {

bool IsReceipt(const Draft& draft) { return draft.FormName == "frm_PE_UNIT"; }

}  // namespace

void frm_Start::CountDrafts() {
  const size_t count = KeptDrafts().size();
  const bool fails = !DraftsWork() && !Session.UserCode.empty();
  LaDraft.Visible = count > 0 || fails;
  LaDraft.Enabled = count > 0;
  LaDraft.Caption = count > 0 ? "쓰던 전표 " + std::to_string(count) + "건" : "쓰던 전표를";
  if (fails) LaDraft.Caption += count > 0 ? ", 더는 남기지 못함" : " 남기지 못함";
}

void frm_Start::TellFileNotices() {
  if (const std::string notice = TakeDraftNotice(); !notice.empty()) {
    Host.MsgBox(notice, box::Warning, "쓰던 전표");
  }
  if (const std::string notice = TakeDeletedNotice(); !notice.empty()) {
    Host.MsgBox(notice, box::Warning, "삭제한 전표");
  }
}

void frm_Start::LaDraft_Click() {
  frmDrafts list;
  Host.ShowModal(list);
  if (list.Chosen) GoOnWith(std::move(*list.Chosen));
  CountDrafts();
}

void frm_Start::GoOnWith(Draft draft) {
  const DraftFate fate = FateOf(draft);
  if (fate == DraftFate::Unreadable) return TellDraftUnreadable();
  if (fate == DraftFate::AlreadyStored) {
    TellAlreadyStored(draft);
    if (TakeDraft(draft.Id)) RemoveDraft(draft.Id);
    return;
  }
  // Nothing can be received of an order that is not as it was; its draft stays to be looked at.
  if (fate == DraftFate::SlipChanged && IsReceipt(draft)) return TellSlipChanged(draft);
  SlipForm* form = FreeSlipForm(draft.FormName);
  if (form == nullptr) return;
  if (!TakeDraft(draft.Id)) {
    TellDraftTaken();
    form->Close();
    return;
  }
  if (fate == DraftFate::SlipChanged) {
    TellSlipChanged(draft);
    draft.SlipId.clear();
  }
  Open(*form, std::move(draft));
}

void frm_Start::Open(SlipForm& form, Draft draft) {
  const bool modal = IsReceipt(draft);
  form.SlipId = draft.SlipId;
  form.SlipTable = draft.SlipTable;
  form.NoPriceMode = draft.NoPriceMode;
  form.WrittenEarlier = std::move(draft);
  if (modal) {
    ShowReceipt(form);
  } else {
    Host.Show(form);
  }
}

}  // namespace store
