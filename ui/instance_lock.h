#pragma once

#include <string>

namespace store {

/// Holds "this program file is running" on the workstation, whoever is logged in, as long as the
/// process lives. The lock is on the program file itself, so that every user meets the same one and
/// a run that crashed holds nothing.
class InstanceLock {
 public:
  explicit InstanceLock(std::string programPath) : programPath_(std::move(programPath)) {}
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  /// True when this run is the one that holds the lock. The first call takes it if it is free.
  /// Where the file cannot be opened nobody is kept out.
  bool Holds();

 private:
  std::string programPath_;
  int file_ = -1;
};

}  // namespace store
