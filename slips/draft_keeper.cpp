#include "slips/draft_keeper.h"

#include <algorithm>
#include <utility>

#include "forms/host.h"

namespace store {
namespace {

/// A line that is typed is shown first: its write begins when the server has been asked for the
/// price and the window has drawn it, and takes in what has come right behind it.
constexpr std::chrono::milliseconds kBehindTheLine(50);

constexpr int kDaysKept = 31;
constexpr std::chrono::seconds kPatienceOfTaking(5);

/// What becomes of a draft by both changes, the later of which stands.
void AddTo(DraftChange& change, DraftChange later) {
  if (later.Written) {
    change = std::move(later);
  } else {
    change.PutAside = change.PutAside || later.PutAside;
    change.Removed = change.Removed || later.Removed;
  }
}

/// As the file will be once `changes` are written.
void Apply(const std::map<std::string, DraftChange>& changes, const std::string& owner,
           std::vector<OwnedDraft>& drafts) {
  for (const auto& entry : changes) {
    const std::string& id = entry.first;
    const DraftChange& change = entry.second;
    auto draft = std::find_if(drafts.begin(), drafts.end(),
                              [&id](const OwnedDraft& each) { return each.Content.Id == id; });
    if (draft == drafts.end() && change.Written)
      draft = drafts.insert(drafts.begin(), OwnedDraft());
    if (draft == drafts.end()) continue;
    if (change.Written) *draft = {change.Content, owner};
    if (change.PutAside) draft->Owner.clear();
    if (change.Removed) drafts.erase(draft);
  }
}

}  // namespace

DraftKeeper::DraftKeeper(const std::filesystem::path& path)
    : file_(DraftFile::Open(path, Notice)),
      reads_(file_ ? file_->Beside() : nullptr),
      sign_(path.parent_path()) {
  if (!HasFile()) return;
  RemoveOld();
  writer_ = std::thread([this] { WriteUntilClosed(); });
}

DraftKeeper::~DraftKeeper() {
  if (!writer_.joinable()) return;
  {
    const std::lock_guard lock(waiting_);
    closed_ = true;
  }
  changed_.notify_one();
  writer_.join();
}

bool DraftKeeper::Writes() {
  const std::lock_guard lock(waiting_);
  return HasFile() && !failed_;
}

void DraftKeeper::Keep(Draft draft) {
  const std::string id = draft.Id;
  Add(id, {.Written = true, .Content = std::move(draft)});
}

void DraftKeeper::PutAside(const std::string& id) { Add(id, {.PutAside = true}); }

void DraftKeeper::Remove(const std::string& id) { Add(id, {.Removed = true}); }

void DraftKeeper::Add(const std::string& id, DraftChange change) {
  {
    const std::lock_guard lock(waiting_);
    if (change.PutAside || change.Removed) hurry_ = true;
    AddTo(changes_[id], std::move(change));
    hasNews_ = true;
  }
  changed_.notify_one();
}

bool DraftKeeper::Flush(std::chrono::milliseconds patience) {
  std::unique_lock lock(waiting_);
  hurry_ = hasNews_;
  changed_.notify_one();
  return written_.wait_for(lock, patience, [this] { return !hasNews_ && writing_.empty(); });
}

void DraftKeeper::WriteUntilClosed() {
  std::unique_lock lock(waiting_);
  while (!closed_ || !changes_.empty()) {
    changed_.wait(lock, [this] { return closed_ || hasNews_; });
    changed_.wait_for(lock, kBehindTheLine, [this] { return closed_ || hurry_; });
    hasNews_ = hurry_ = false;
    const bool last = closed_;
    writing_ = std::exchange(changes_, {});
    lock.unlock();
    const bool done = file_->Write(writing_, sign_.Token());
    lock.lock();
    failed_ = !done;
    if (failed_ && !last) {
      for (auto& [id, later] : std::exchange(changes_, std::exchange(writing_, {}))) {
        AddTo(changes_[id], std::move(later));
      }
    }
    writing_.clear();
    written_.notify_all();
  }
}

std::vector<Draft> DraftKeeper::Kept() {
  Changes writing;
  Changes changes;
  {
    const std::lock_guard lock(waiting_);
    writing = writing_;
    changes = changes_;
  }
  std::vector<OwnedDraft> drafts = reads_->Read();
  Apply(writing, sign_.Token(), drafts);
  Apply(changes, sign_.Token(), drafts);
  std::vector<Draft> kept;
  for (OwnedDraft& draft : drafts) {
    if (draft.Owner.empty() || !sign_.Lives(draft.Owner)) kept.push_back(std::move(draft.Content));
  }
  std::stable_sort(kept.begin(), kept.end(), [](const Draft& one, const Draft& other) {
    return one.ChangedAt > other.ChangedAt;
  });
  return kept;
}

bool DraftKeeper::Take(const std::string& id) {
  Flush(kPatienceOfTaking);
  if (TakeUnwritten(id)) return true;
  for (const OwnedDraft& draft : reads_->Read()) {
    if (draft.Content.Id != id) continue;
    if (!draft.Owner.empty() && sign_.Lives(draft.Owner)) return false;
    return reads_->Take(id, draft.Owner, sign_.Token());
  }
  return false;
}

// One that was put aside and never got to the disk is still this run's in the file.
bool DraftKeeper::TakeUnwritten(const std::string& id) {
  const std::lock_guard lock(waiting_);
  const auto change = changes_.find(id);
  if (change == changes_.end() || change->second.Removed) return false;
  return std::exchange(change->second.PutAside, false);
}

void DraftKeeper::RemoveOld() {
  const std::string oldest = FormatDateValue(AddDays(Today(), -kDaysKept), "YYYY-MM-DD");
  Changes changes;
  for (const Draft& draft : Kept()) {
    if (draft.ChangedAt < oldest) changes[draft.Id].Removed = true;
  }
  if (!changes.empty()) file_->Write(changes, sign_.Token());
}

}  // namespace store
