#include "slips/drafts.h"

#include <filesystem>
#include <memory>
#include <utility>

#include "basics/records.h"
#include "forms/host.h"
#include "slips/draft_keeper.h"
#include "slips/user_file.h"

namespace store {
namespace {

std::unique_ptr<DraftKeeper>& TheKeeper() {
  static std::unique_ptr<DraftKeeper> keeper;
  return keeper;
}

/// The keeper of whoever is logged in; nothing before that.
DraftKeeper* OpenKeeper() {
  std::unique_ptr<DraftKeeper>& keeper = TheKeeper();
  if (keeper) return keeper->HasFile() ? keeper.get() : nullptr;
  const std::filesystem::path path = UserFilePath("drafts");
  if (path.empty()) return nullptr;
  keeper = std::make_unique<DraftKeeper>(path);
  return keeper->HasFile() ? keeper.get() : nullptr;
}

}  // namespace

std::string NewDraftId() {
  DraftKeeper* keeper = OpenKeeper();
  return keeper == nullptr ? "" : keeper->NewId();
}

void KeepDraft(Draft draft) {
  if (draft.Id.empty()) return;
  draft.ChangedAt = FormatDateValue(Host.Now(), "YYYY-MM-DD HH:NN:SS");
  if (DraftKeeper* keeper = OpenKeeper()) keeper->Keep(std::move(draft));
}

void PutDraftAside(const std::string& id) {
  if (DraftKeeper* keeper = OpenKeeper()) keeper->PutAside(id);
}

void RemoveDraft(const std::string& id) {
  if (DraftKeeper* keeper = OpenKeeper()) keeper->Remove(id);
}

bool FlushDrafts(std::chrono::milliseconds patience) {
  DraftKeeper* keeper = OpenKeeper();
  return keeper == nullptr || keeper->Flush(patience);
}

std::vector<Draft> KeptDrafts() {
  DraftKeeper* keeper = OpenKeeper();
  return keeper == nullptr ? std::vector<Draft>() : keeper->Kept();
}

bool TakeDraft(const std::string& id) {
  DraftKeeper* keeper = OpenKeeper();
  return keeper != nullptr && keeper->Take(id);
}

bool DraftsWork() {
  DraftKeeper* keeper = OpenKeeper();
  return keeper != nullptr && keeper->Writes();
}

std::string TakeDraftNotice() {
  OpenKeeper();
  return TheKeeper() ? std::exchange(TheKeeper()->Notice, {}) : std::string();
}

void ResetDrafts() { TheKeeper().reset(); }

}  // namespace store
