#pragma once

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace store {

/// A line that is far away: passes bytes on to a port of this machine, each way some milliseconds
/// later.
class DelayProxy {
 public:
  DelayProxy(int targetPort, std::chrono::milliseconds delay);
  ~DelayProxy();
  DelayProxy(const DelayProxy&) = delete;
  DelayProxy& operator=(const DelayProxy&) = delete;
  int Port() const { return port_; }

 private:
  void Accept();
  void Connect(int client);

  int targetPort_;
  std::chrono::milliseconds delay_;
  int listener_ = -1;
  int port_ = 0;
  std::vector<int> sockets_;
  std::vector<std::thread> threads_;
  std::thread acceptor_;
};

}  // namespace store
