#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "slips/draft.h"
#include "slips/user_file.h"

namespace store {

/// A draft with the run that is writing it; no run when it was put aside.
struct OwnedDraft {
  Draft Content;
  std::string Owner;
};

/// What becomes of a draft at the next write.
struct DraftChange {
  bool Written = false;   ///< Its content is new.
  bool PutAside = false;  ///< Nobody writes it any more, but it is kept.
  bool Removed = false;
  Draft Content = {};
};

/// The file in which one user of one store keeps drafts. Several processes may have it open; one
/// thread at a time uses an object of this class. What a call has written is there after a power
/// cut.
class DraftFile {
 public:
  /// As `OpenUserFile` and `OpenBeside` (slips/user_file.h).
  static std::unique_ptr<DraftFile> Open(const std::filesystem::path& path, std::string& notice);
  std::unique_ptr<DraftFile> Beside() const;
  DraftFile(const DraftFile&) = delete;
  DraftFile& operator=(const DraftFile&) = delete;

  /// All of the changes, by the drafts' ids, or none of them. False when the file takes nothing.
  bool Write(const std::map<std::string, DraftChange>& changes, const std::string& owner);
  /// Every draft in the file, the one changed last first. None when it cannot be read.
  std::vector<OwnedDraft> Read();
  /// Gives a draft to a run; false when it is not `from`'s any more.
  bool Take(const std::string& id, const std::string& from, const std::string& owner);

 private:
  using NumberedLine = std::pair<int, DraftLine>;
  using NumberedLines = std::vector<NumberedLine>;
  explicit DraftFile(sqlite3* file);
  /// What works on that connection, or nothing.
  static std::unique_ptr<DraftFile> Ready(sqlite3* file);
  bool WriteOne(const std::string& id, const DraftChange& change, const std::string& owner);
  bool WriteContent(const Draft& draft, const std::string& owner);
  bool WriteLines(const Draft& draft);
  bool WriteLine(const std::string& id, const NumberedLine& line);
  void ReadLines(Draft& draft);
  bool Remove(const std::string& id);

  PreparedFile file_;
  std::map<std::string, NumberedLines> written_;  // by draft, as they were last written here
};

}  // namespace store
