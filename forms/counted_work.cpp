#include "forms/counted_work.h"

#include <utility>

#include "forms/host.h"

namespace store {
namespace {

constexpr auto kUnnoticed = std::chrono::milliseconds(500);
constexpr auto kBetween = std::chrono::milliseconds(100);

}  // namespace

CountedWork::CountedWork(std::string what, int steps)
    : what_(std::move(what)), steps_(steps), next_(std::chrono::steady_clock::now() + kUnnoticed) {}

CountedWork::~CountedWork() {
  if (shown_) Host.ShowProgress(what_, steps_, 0);
}

void CountedWork::Step() {
  ++done_;
  const auto now = std::chrono::steady_clock::now();
  if (now < next_) return;
  next_ = now + kBetween;
  shown_ = true;
  Host.ShowProgress(what_, done_, steps_);
}

}  // namespace store
