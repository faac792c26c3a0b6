#include "gateway/kept_connection.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <system_error>

#include "forms/host.h"

namespace store {
namespace {

using Clock = std::chrono::steady_clock;

// Waking a sleeping thread takes a good part of the time of a small read. So before either side
// sleeps it polls, for about the time that a small read takes.
constexpr auto kPolling = std::chrono::microseconds(200);
// A wait that is shorter goes unnoticed and needs no hourglass.
constexpr auto kUnnoticed = std::chrono::milliseconds(200);
// How often the workstation hears of a wait that lasts, and lets its windows paint.
constexpr auto kRound = std::chrono::milliseconds(50);
// How long the end of the program waits for a connection to log out.
constexpr auto kLogout = std::chrono::seconds(1);

}  // namespace

/// What caller and thread share. It lives as long as either.
struct KeptConnection::Desk {
  enum class State { Free, Posted, Ending, Ended };

  OdbcConnection connection;
  Job job;
  std::atomic<State> state{State::Free};
  std::mutex mutex;
  std::condition_variable changed;

  void Become(State next) {
    {
      const std::lock_guard<std::mutex> lock(mutex);
      state = next;
    }
    changed.notify_all();
  }

  /// Waits until the state is no longer `now`. False when it still is at the end of the limit.
  bool Leaves(State now, Clock::time_point limit) {
    const Clock::time_point rest = std::min(limit, Clock::now() + kPolling);
    while (Clock::now() < rest) {
      if (state != now) return true;
      std::this_thread::yield();
    }
    std::unique_lock<std::mutex> lock(mutex);
    return changed.wait_until(lock, limit, [&] { return state != now; });
  }
};

KeptConnection::KeptConnection() : desk_(std::make_shared<Desk>()) {
  PointToOwnDriverList();
  try {
    thread_ = std::thread([desk = desk_] { Serve(desk); });
  } catch (const std::system_error&) {
    desk_->state = Desk::State::Ended;  // a machine without a thread to spare: `Do` fails
  }
}

KeptConnection::~KeptConnection() {
  if (!thread_.joinable()) return;
  desk_->Become(Desk::State::Ending);
  if (desk_->Leaves(Desk::State::Ending, Clock::now() + kLogout)) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

void KeptConnection::Serve(const std::shared_ptr<Desk>& desk) {
  using State = Desk::State;
  for (;;) {
    while (!desk->Leaves(State::Free, Clock::now() + std::chrono::hours(1))) {
    }
    if (desk->state != State::Posted) break;
    desk->job(desk->connection);
    desk->job = nullptr;
    if (desk->connection.GivenUp()) break;
    desk->Become(State::Free);
  }
  desk->connection.Close();
  desk->Become(State::Ended);
}

KeptConnection::End KeptConnection::Await(std::chrono::milliseconds limit, bool mayBeStopped) {
  const Clock::time_point start = Clock::now();
  if (desk_->Leaves(Desk::State::Posted,
                    start + std::min(limit, std::chrono::milliseconds(kUnnoticed)))) {
    return End::Done;
  }
  const Hourglass waiting;
  const Clock::time_point end = start + limit;
  while (Clock::now() < end) {
    const auto lasted = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
    if (!mayBeStopped) {
      Host.ShowServer(ServerLink::Waiting, lasted);
    } else if (Host.OfferStop(lasted)) {
      return End::Stopped;
    }
    if (desk_->Leaves(Desk::State::Posted, std::min(end, Clock::now() + kRound))) return End::Done;
  }
  return End::Overdue;
}

KeptConnection::End KeptConnection::Do(Job job, std::chrono::milliseconds limit,
                                       bool mayBeStopped) {
  if (desk_->state != Desk::State::Free) return End::Overdue;
  desk_->job = std::move(job);
  desk_->Become(Desk::State::Posted);
  const End ended = Await(limit, mayBeStopped);
  if (ended == End::Done) return ended;
  desk_->connection.GiveUp();
  thread_.detach();
  return ended;
}

std::string KeptConnection::ServerId() const { return desk_->connection.ServerId(); }

}  // namespace store
