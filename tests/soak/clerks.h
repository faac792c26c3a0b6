#pragma once

#include <sys/types.h>

#include <random>
#include <string>
#include <vector>

#include "tests/soak/day_log.h"
#include "tests/soak/findings.h"

namespace store {

/// The clerks' processes: started, watched, killed and started again.
class Clerks {
 public:
  /// `program` is soak_clerk; each terminal has a folder of its own under `folder`,
  /// and the servers at `ports` take turns as the one that it goes to first.
  Clerks(std::string program, const std::string& folder, std::vector<int> ports, int stores,
         unsigned seed, Findings& findings);
  ~Clerks();
  Clerks(const Clerks&) = delete;
  Clerks& operator=(const Clerks&) = delete;

  struct Clerk {
    int Store = 0;
    int Terminal = 0;
    std::string Folder;
    pid_t Pid = 0;
    DayLogReader Log;
  };
  std::vector<Clerk>& All() { return clerks_; }

  /// Starts those that are not running. One that ended as none may is a finding.
  void KeepWorking();
  /// Kills one of them, as `random` draws.
  void KillOne(std::mt19937& random);
  /// Closing time: waits until everybody has gone.
  void SendHome();

 private:
  void Start(Clerk& clerk);
  void Ended(Clerk& clerk, int status);

  const std::string program_;
  std::string PortsOf(const Clerk& clerk) const;

  const std::vector<int> ports_;
  const int stores_;
  const unsigned seed_;
  Findings& findings_;
  std::vector<Clerk> clerks_;
};

}  // namespace store
