#include "ui/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace store {

InstanceLock::~InstanceLock() {
  if (file_ >= 0) close(file_);
}

bool InstanceLock::Holds() {
  if (file_ >= 0) return true;
  const int file = open(programPath_.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return true;
  if (flock(file, LOCK_EX | LOCK_NB) != 0) {
    close(file);
    return false;
  }
  file_ = file;
  return true;
}

}  // namespace store
