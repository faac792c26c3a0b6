#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace store {

/// What has become of work that was sent to be stored.
enum class Fate {
  Stored,       ///< It stands in the database.
  StoredOther,  ///< An earlier try of it stands there, with what was entered then.
  Failed,       ///< Nothing of it was stored. `LastErrorText` says why.
  NotFound,     ///< A try of it lost its answer and is not there; it may still be running.
  Unknown,      ///< A try of it lost its answer, and the database could not be asked.
};

/// A server shows what it has committed an instant before that is on its disk; one that fails in
/// this instant has never stored it. So what a look finds is looked for once more after so many
/// milliseconds. An answer to a batch needs none of this: it comes when all is on the disk.
inline constexpr int kUntilOnDisk = 1000;

/// One try to store a piece of work.
struct Try {
  std::string Trace;    ///< A SELECT that gives a row if this try was stored, and never otherwise.
  std::string Content;  ///< What was entered, without what differs from try to try.
};

/// Work that is stored once, however often it is tried. It remembers each try whose answer was
/// lost, until one of them is found. Whether a try that was not found still runs nobody can see, so
/// what is posted has a guard (gateway/guard.h) that waits for it and refuses once it is stored.
class StoredOnce {
 public:
  /// Posts, with `post` giving false when that failed. A batch in doubt (`BatchInDoubt`) is looked
  /// for once; when a further try fails, the earlier ones are. `LastErrorText` stays what the
  /// posting made it.
  Fate Send(const std::function<bool()>& post, const Try& current);

  /// To be asked before anything is sent again: what has become of the earlier tries. Nothing when
  /// there is none, or none that is stored; then the work may be sent. `content` is what stands on
  /// the screen now.
  std::optional<Fate> FateOfEarlier(const std::string& content);

 private:
  std::optional<Fate> LookForLost(const std::string& content) const;

  std::vector<Try> lost_;
};

/// The work of that name, kept for the run of the program: a form that was closed and opened again
/// knows of the tries before.
StoredOnce& WorkNamed(const std::string& name);
/// Forgets all of it.
void ResetWork();

/// What a clerk reads about work that is not stored, or not for sure.
std::string FateText(Fate fate);

}  // namespace store
