#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "private_db/batch_answer.h"

namespace store {

/// What happens on the way between a client and its server.
enum class Fault {
  None,
  CutBefore,   ///< The line breaks before the batch has left.
  CutHalf,     ///< Half of the batch arrives.
  CutDuring,   ///< It arrives, and the line breaks while the server works on it.
  CutAfter,    ///< The server has done it, and its reply is lost.
  Mute,        ///< The reply never comes, and the line stands.
  Delay,       ///< Batch and reply take their time.
  CutRead,     ///< The line breaks at the next read.
  KillBefore,  ///< The client is killed before the batch has left,
  KillDuring,  ///< while the server works on it,
  KillAfter,   ///< and when the reply has come as far as the workstation.
};

/// The name of a fault in a clerk's log and in the counts.
const char* FaultName(Fault fault);

/// The line between one client and its server, in a thread of the client's own process, so that a
/// fault strikes at a known byte and not at a moment. A fault is armed for the next batch (or read)
/// and strikes once.
class FaultProxy {
 public:
  /// Listens on a free port of the loopback and passes on to the first of `serverPorts` on which
  /// somebody listens. `struck` is told of each fault as it strikes, before a killing one kills; it
  /// runs in the proxy's thread.
  FaultProxy(std::vector<int> serverPorts, std::function<void(Fault)> struck);
  ~FaultProxy();
  FaultProxy(const FaultProxy&) = delete;
  FaultProxy& operator=(const FaultProxy&) = delete;

  int Port() const { return port_; }
  void Arm(Fault fault) { armed_ = fault; }
  void Disarm() { armed_ = Fault::None; }
  /// How long after a cut nobody gets through, in milliseconds.
  void SetOutage(int milliseconds) { outage_ = milliseconds; }

 private:
  /// A client's connection and the server's that belongs to it.
  struct Line {
    int client = -1;
    int server = -1;
    std::string request{};        // what has come of the packet that the client is sending
    Fault onReply = Fault::None;  // strikes when the answer to the batch is there
    BatchAnswer answer{};
    bool mute = false;
  };

  void Serve();
  void Accept();
  int Reach() const;
  bool FromClient(Line& line);
  bool FromServer(Line& line);
  bool PassRequest(Line& line);
  bool Strike(Line& line, Fault fault);
  bool Broken();
  static void Close(Line& line);

  const std::vector<int> serverPorts_;
  const std::function<void(Fault)> struck_;
  std::atomic<Fault> armed_{Fault::None};
  std::atomic<int> outage_{0};
  std::chrono::steady_clock::time_point away_;  // until then nobody is let through
  int listener_ = -1;
  int port_ = 0;
  int wakeUp_[2] = {-1, -1};
  std::vector<Line> lines_;
  std::thread thread_;
};

}  // namespace store
