#pragma once

#include <functional>
#include <string>

namespace store {

/// Seconds that `work` takes.
double TimeOf(const std::function<void()>& work);

/// The shortest times of two pieces of work that take turns `rounds` times, so that both see the
/// same machine. `ours` first.
struct Duel {
  double Ours;
  double Peer;
};
Duel MeasureBoth(int rounds, const std::function<void()>& ours, const std::function<void()>& peer);

/// The lines that are measured against a goal.
class RatioTable {
 public:
  /// Prints what stands in the columns.
  void Head() const;
  /// Prints a line: what was done, both figures, and the machine-readable verdict.
  void Add(const std::string& work, double ours, double peer, const char* unit, double goal);
  void AddTimes(const std::string& work, const Duel& duel, double goal);
  bool AllMet() const { return allMet_; }

 private:
  bool allMet_ = true;
};

}  // namespace store
