#pragma once

#include <chrono>
#include <string>

namespace store {

/// A long step on things that can be counted. Once it has lasted for a moment the workstation shows
/// how far it has come, until this object ends.
class CountedWork {
 public:
  /// `what` says to the person what is being done, to `steps` things.
  CountedWork(std::string what, int steps);
  ~CountedWork();
  CountedWork(const CountedWork&) = delete;
  CountedWork& operator=(const CountedWork&) = delete;

  /// One more is done.
  void Step();

 private:
  std::string what_;
  int steps_;
  int done_ = 0;
  bool shown_ = false;
  std::chrono::steady_clock::time_point next_;  // when the person is told again
};

}  // namespace store
