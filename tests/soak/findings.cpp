#include "tests/soak/findings.h"

#include <cstdio>

namespace store {
namespace {

constexpr int kPrinted = 3;

}  // namespace

void Findings::Add(const std::string& what, const std::string& subject, const std::string& facts) {
  if (!known_.insert(what + "\t" + subject).second) return;
  if (++counts_[what] > kPrinted) return;
  std::printf("BROKEN %s: %s\n    %s\n", what.c_str(), subject.c_str(), facts.c_str());
  std::fflush(stdout);
}

void Findings::Print() const {
  for (const auto& [what, count] : counts_) std::printf("%6d  %s\n", count, what.c_str());
}

}  // namespace store
