#pragma once

#include <string>
#include <utility>
#include <vector>

#include "slips/draft.h"

namespace store {

/// Follows what is written into one form, and keeps it as a draft for as long as it differs from
/// what the form began with.
class SlipDraft {
 public:
  /// From here on changes are kept, where there is a file for them; `start` is what stands in the
  /// form before anybody has written.
  void Begin(Draft start);
  bool HasBegun() const { return begun_; }
  /// The form goes on with a draft that was taken (`TakeDraft`). Lines that it could not write
  /// again stay in the draft until the slip is saved.
  void GoOnWith(const Draft& draft, std::vector<DraftLine> refused);
  /// Those lines. They go when the supplier changes and the other lines have gone, and come back
  /// with them.
  const std::vector<DraftLine>& Refused() const { return refused_; }
  void SetRefused(std::vector<DraftLine> refused) { refused_ = std::move(refused); }
  /// Something has changed; passed over before `Begin`. Returns before anything is on the disk.
  void Note(Draft now);
  /// A save under the key `triedId` is about to be sent: that is on the disk before this returns,
  /// so that whoever brings the draft back knows where to look whether it was stored. A disk that
  /// stands still holds the save up for half a second and no longer.
  void NoteTry(Draft now, const std::string& triedId);
  /// The slip is stored: there is nothing left to keep, until the form begins anew.
  void Saved();
  /// The form closes. What it holds can be brought back; a slip without a line is no loss.
  void Closed();

 private:
  bool begun_ = false;
  bool hasLines_ = false;
  std::string id_;  // while a draft is kept
  std::string triedId_;
  std::vector<DraftLine> refused_;
  Draft start_;
};

}  // namespace store
