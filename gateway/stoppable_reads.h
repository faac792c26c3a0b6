#pragma once

namespace store {

/// While one of these lives, a read may be stopped by the person who waits for it (Esc). Without
/// one it cannot: a read within a save, of a price, a stock or a key, or for a save whose answer
/// was lost, would otherwise come back as found-nothing and become a figure.
///
/// A stopped read looks like any failed one, with `kReadStopped` as `LastErrorText`. What the same
/// scope still wants to read has failed with it, without being asked for: a person who stops a
/// refresh means all of it. No batch may be sent within a scope (gateway/check.h).
class StoppableReads {
 public:
  StoppableReads();
  ~StoppableReads();
  StoppableReads(const StoppableReads&) = delete;
  StoppableReads& operator=(const StoppableReads&) = delete;

  /// Whether reads may be stopped now.
  static bool Allowed();
  /// Whether a read of the scope that is open has been stopped.
  static bool Stopped();
  /// A read has been stopped. For the data tier's caller.
  static void NoteStopped();
};

inline constexpr const char* kReadStopped = "사용자가 조회를 중지하였습니다.";

}  // namespace store
