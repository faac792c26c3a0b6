#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

#include "gateway/odbc_connection.h"

namespace store {

/// A connection that is kept from call to call, since logging in costs forty times as much as a
/// small read, and the thread that alone makes its calls. So a server that has stopped answering
/// holds up that thread, and the caller only until a limit.
class KeptConnection {
 public:
  /// Not connected yet: the first job does that.
  KeptConnection();
  /// Ends connection and thread. One that is overdue ends itself when its call comes back.
  ~KeptConnection();
  KeptConnection(const KeptConnection&) = delete;
  KeptConnection& operator=(const KeptConnection&) = delete;

  using Job = std::function<void(OdbcConnection&)>;
  /// Does the job on the connection's thread and waits for it; the pointer is an hourglass when
  /// that takes long enough to be noticed. False when it is not done within the limit. The job may
  /// then still come to its end at any time, so it has to own what it touches; the connection is
  /// given up and takes no further job.
  bool Do(Job job, std::chrono::milliseconds limit);

 private:
  struct Desk;
  static void Serve(const std::shared_ptr<Desk>& desk);
  bool Await(std::chrono::milliseconds limit);

  std::shared_ptr<Desk> desk_;
  std::thread thread_;
};

}  // namespace store
