#include "slips/drafts.h"

#include <filesystem>
#include <memory>
#include <utility>

#include "basics/deployment.h"
#include "basics/records.h"
#include "forms/host.h"
#include "slips/draft_keeper.h"

namespace store {
namespace {

std::unique_ptr<DraftKeeper>& TheKeeper() {
  static std::unique_ptr<DraftKeeper> keeper;
  return keeper;
}

/// A text as part of a file's name; two texts never give the same.
std::string FileName(const std::string& text) {
  static constexpr const char* kDigits = "0123456789abcdef";
  std::string name;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    if ((byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
        (byte >= 'a' && byte <= 'z')) {
      name += letter;
    } else {
      name.append({'%', kDigits[byte >> 4], kDigits[byte & 15]});
    }
  }
  return name;
}

/// The keeper of whoever is logged in; nothing before that.
DraftKeeper* OpenKeeper() {
  std::unique_ptr<DraftKeeper>& keeper = TheKeeper();
  if (keeper) return keeper->HasFile() ? keeper.get() : nullptr;
  const std::string folder = DataFolder();
  if (folder.empty() || Session.UserCode.empty() || Session.StoreCode.empty()) return nullptr;
  keeper = std::make_unique<DraftKeeper>(std::filesystem::path(folder) / "drafts" /
                                         (FileName(Session.DatabaseName) + "-" +
                                          FileName(Session.StoreCode) + "-" +
                                          FileName(Session.UserCode) + ".db"));
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
