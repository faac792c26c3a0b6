#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace store {

/// A line to the private server that breaks at the worst moment. It passes everything on until a
/// batch comes by for which a cut was ordered.
class CuttingProxy {
 public:
  enum class Cut {
    Never,
    Before,   ///< The batch never reaches the server.
    Running,  ///< The batch is with the server, and the line breaks while it runs.
    After,    ///< The batch is stored, and its answer is lost.
  };

  explicit CuttingProxy(int targetPort);
  ~CuttingProxy();
  CuttingProxy(const CuttingProxy&) = delete;
  CuttingProxy& operator=(const CuttingProxy&) = delete;

  int Port() const { return port_; }
  /// Breaks the line at the next batch, once. With `staysAway` nobody gets through afterwards,
  /// until `Return`.
  void CutNextBatch(Cut when, bool staysAway = false);
  void Return() { away_ = false; }
  /// Whoever connects next after a cut is let through so much later.
  void KeepNextWaiting(std::chrono::milliseconds time) { waiting_ = time; }

 private:
  void Accept();
  void Pass(int client, int server);

  int targetPort_;
  int listener_;
  int port_ = 0;
  std::atomic<Cut> cut_{Cut::Never};
  std::atomic<bool> staysAway_{false};
  std::atomic<bool> away_{false};
  std::atomic<bool> ending_{false};
  std::atomic<std::chrono::milliseconds> waiting_{};
  std::vector<std::thread> lines_;
  std::thread acceptor_;
};

}  // namespace store
