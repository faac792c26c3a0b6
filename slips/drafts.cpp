#include "slips/drafts.h"

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include "basics/records.h"
#include "forms/host.h"
#include "slips/draft_file.h"
#include "slips/life_sign.h"
#include "slips/user_file.h"

namespace store {
namespace {

constexpr int kDaysKept = 31;

/// The file of this run and the thread that writes into it. Changes of one draft that come quicker
/// than the disk are one write.
class Keeper {
 public:
  explicit Keeper(const std::filesystem::path& path)
      : file_(DraftFile::Open(path, Notice)), sign_(path.parent_path()) {
    if (!file_) return;
    RemoveOld();
    writer_ = std::thread([this] { WriteUntilClosed(); });
  }
  ~Keeper() {
    if (!writer_.joinable()) return;
    {
      const std::lock_guard lock(waiting_);
      closed_ = true;
    }
    changed_.notify_one();
    writer_.join();
  }
  Keeper(const Keeper&) = delete;
  Keeper& operator=(const Keeper&) = delete;

  std::string Notice;

  bool Works() {
    const std::lock_guard lock(waiting_);
    return file_ && !failed_;
  }
  void Keep(Draft draft) {
    Change(draft.Id, [&](DraftChange& change) {
      change.Written = true;
      change.Content = std::move(draft);
    });
  }
  void PutAside(const std::string& id) {
    Change(id, [](DraftChange& change) { change.PutAside = true; });
  }
  void Remove(const std::string& id) {
    Change(id, [](DraftChange& change) { change.Removed = true; });
  }
  void Flush() {
    std::unique_lock lock(waiting_);
    written_.wait(lock, [this] { return changes_.empty() && !writing_; });
  }
  /// Those of other runs that are alive, and of this one, are left out.
  std::vector<OwnedDraft> Kept() {
    Flush();
    const std::lock_guard lock(using_);
    std::vector<OwnedDraft> drafts = file_->Read();
    std::erase_if(drafts, [this](const OwnedDraft& draft) {
      return !draft.Owner.empty() && sign_.Lives(draft.Owner);
    });
    return drafts;
  }
  bool Take(const std::string& id) {
    for (const OwnedDraft& draft : Kept()) {
      if (draft.Content.Id != id) continue;
      const std::lock_guard lock(using_);
      return file_->Take(id, draft.Owner, sign_.Token());
    }
    return false;
  }
  std::string NewId() { return sign_.Token() + "-" + std::to_string(++ids_); }
  bool HasFile() const { return file_ != nullptr; }

 private:
  template <class Edit>
  void Change(const std::string& id, Edit edit) {
    if (!file_) return;
    {
      const std::lock_guard lock(waiting_);
      edit(changes_[id]);
    }
    changed_.notify_one();
  }

  void WriteUntilClosed() {
    std::unique_lock lock(waiting_);
    for (;;) {
      changed_.wait(lock, [this] { return closed_ || !changes_.empty(); });
      if (changes_.empty()) return;
      const auto changes = std::exchange(changes_, {});
      writing_ = true;
      lock.unlock();
      bool done = false;
      {
        const std::lock_guard use(using_);
        done = file_->Write(changes, sign_.Token());
      }
      lock.lock();
      writing_ = false;
      failed_ = !done;
      written_.notify_all();
    }
  }

  void RemoveOld() {
    const CalendarDate oldest = AddDays(Today(), -kDaysKept);
    std::map<std::string, DraftChange> changes;
    for (const OwnedDraft& draft : Kept()) {
      if (draft.Content.ChangedAt < FormatDateValue(oldest, "YYYY-MM-DD")) {
        changes[draft.Content.Id].Removed = true;
      }
    }
    if (!changes.empty()) file_->Write(changes, sign_.Token());
  }

  const std::unique_ptr<DraftFile> file_;
  LifeSign sign_;
  int ids_ = 0;
  std::mutex using_;    // the file
  std::mutex waiting_;  // what follows
  std::condition_variable changed_;
  std::condition_variable written_;
  std::map<std::string, DraftChange> changes_;
  bool writing_ = false;
  bool failed_ = false;
  bool closed_ = false;
  std::thread writer_;
};

std::unique_ptr<Keeper>& TheKeeper() {
  static std::unique_ptr<Keeper> keeper;
  return keeper;
}

/// The keeper of whoever is logged in; nothing before that.
Keeper* OpenKeeper() {
  std::unique_ptr<Keeper>& keeper = TheKeeper();
  if (keeper) return keeper->HasFile() ? keeper.get() : nullptr;
  const std::filesystem::path path = UserFilePath("drafts");
  if (path.empty()) return nullptr;
  keeper = std::make_unique<Keeper>(path);
  return keeper->HasFile() ? keeper.get() : nullptr;
}

}  // namespace

std::string NewDraftId() {
  Keeper* keeper = OpenKeeper();
  return keeper == nullptr ? "" : keeper->NewId();
}

void KeepDraft(Draft draft) {
  if (draft.Id.empty()) return;
  draft.ChangedAt = FormatDateValue(Host.Now(), "YYYY-MM-DD HH:NN:SS");
  if (Keeper* keeper = OpenKeeper()) keeper->Keep(std::move(draft));
}

void PutDraftAside(const std::string& id) {
  if (Keeper* keeper = OpenKeeper()) keeper->PutAside(id);
}

void RemoveDraft(const std::string& id) {
  if (Keeper* keeper = OpenKeeper()) keeper->Remove(id);
}

void FlushDrafts() {
  if (Keeper* keeper = OpenKeeper()) keeper->Flush();
}

std::vector<Draft> KeptDrafts() {
  std::vector<Draft> drafts;
  Keeper* keeper = OpenKeeper();
  if (keeper == nullptr) return drafts;
  for (OwnedDraft& draft : keeper->Kept()) drafts.push_back(std::move(draft.Content));
  return drafts;
}

bool TakeDraft(const std::string& id) {
  Keeper* keeper = OpenKeeper();
  return keeper != nullptr && keeper->Take(id);
}

bool DraftsWork() {
  Keeper* keeper = OpenKeeper();
  return keeper != nullptr && keeper->Works();
}

std::string TakeDraftNotice() {
  OpenKeeper();
  return TheKeeper() ? std::exchange(TheKeeper()->Notice, {}) : std::string();
}

void ResetDrafts() { TheKeeper().reset(); }

}  // namespace store
