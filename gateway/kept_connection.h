#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
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
  enum class End {
    Done,
    Overdue,  ///< Not done within the limit.
    Stopped,  ///< By the person, where `mayBeStopped`.
  };
  /// Does the job on the connection's thread and waits for it; the pointer is an hourglass when
  /// that takes long enough to be noticed. A job that is not done may still come to its end at any
  /// time, so it has to own what it touches; the connection is given up and takes no further job.
  End Do(Job job, std::chrono::milliseconds limit, bool mayBeStopped = false);

  /// The server's number of the connection; empty before the first job has connected.
  std::string ServerId() const;

 private:
  struct Desk;
  static void Serve(const std::shared_ptr<Desk>& desk);
  End Await(std::chrono::milliseconds limit, bool mayBeStopped);

  std::shared_ptr<Desk> desk_;
  std::thread thread_;
};

}  // namespace store
