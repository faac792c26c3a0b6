#include "bench/ratio_table.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace store {

double TimeOf(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

Duel MeasureBoth(int rounds, const std::function<void()>& ours, const std::function<void()>& peer) {
  Duel best{1e9, 1e9};
  for (int round = 0; round < rounds; ++round) {
    best.Ours = std::min(best.Ours, TimeOf(ours));
    best.Peer = std::min(best.Peer, TimeOf(peer));
  }
  return best;
}

void RatioTable::Head() const {
  std::printf("%-63s %9s %9s\n", "work, against its peer", "ours", "peer");
}

void RatioTable::Add(const std::string& work, double ours, double peer, const char* unit,
                     double goal) {
  const double ratio = ours / peer;
  const bool met = ratio <= goal;
  allMet_ = allMet_ && met;
  char excess[32] = "";
  if (!met) std::snprintf(excess, sizeof(excess), "%.0f %% over", (ratio / goal - 1) * 100);
  std::printf("%-63s %9.3f %9.3f %s %11s  ratio=%.3f goal<=%.2f %s\n", work.c_str(), ours, peer,
              unit, excess, ratio, goal, met ? "met" : "MISSED");
  std::fflush(stdout);
}

void RatioTable::AddTimes(const std::string& work, const Duel& duel, double goal) {
  Add(work, duel.Ours * 1000, duel.Peer * 1000, "ms", goal);
}

}  // namespace store
