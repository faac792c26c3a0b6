#pragma once

#include <QLockFile>
#include <string>

namespace store {

/// Holds "this program file is running" for the workstation's user, as long as the process lives. A
/// run that crashed holds nothing.
class InstanceLock {
 public:
  explicit InstanceLock(const std::string& programPath);

  /// True when this run is the one that holds the lock. The first call takes it if it is free.
  bool Holds();

 private:
  QLockFile file_;
};

}  // namespace store
