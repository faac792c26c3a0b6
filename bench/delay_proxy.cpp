#include "bench/delay_proxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <memory>
#include <mutex>
#include <string>

#include "private_db/loopback.h"

namespace store {
namespace {

using Clock = std::chrono::steady_clock;

/// Bytes on their way in one direction; each piece arrives when its time has come.
class Line {
 public:
  void Send(std::string piece, Clock::time_point due) {
    const std::lock_guard<std::mutex> lock(mutex_);
    pieces_.push_back({std::move(piece), due});
    changed_.notify_one();
  }
  void End() { Send({}, Clock::now()); }
  /// The next piece; an empty one at the end.
  std::string Receive() {
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return !pieces_.empty(); });
    auto [piece, due] = std::move(pieces_.front());
    pieces_.pop_front();
    lock.unlock();
    std::this_thread::sleep_until(due);
    return piece;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::pair<std::string, Clock::time_point>> pieces_;
};

void Read(int from, Line& line, std::chrono::milliseconds delay) {
  char buffer[65536];
  for (;;) {
    const ssize_t got = recv(from, buffer, sizeof(buffer), 0);
    if (got <= 0) break;
    line.Send(std::string(buffer, static_cast<size_t>(got)), Clock::now() + delay);
  }
  line.End();
}

void Write(int to, Line& line) {
  for (std::string piece = line.Receive(); !piece.empty(); piece = line.Receive()) {
    for (size_t sent = 0; sent < piece.size();) {
      const ssize_t took = send(to, piece.data() + sent, piece.size() - sent, MSG_NOSIGNAL);
      if (took <= 0) return;
      sent += static_cast<size_t>(took);
    }
  }
  shutdown(to, SHUT_WR);
}

}  // namespace

DelayProxy::DelayProxy(int targetPort, std::chrono::milliseconds delay)
    : targetPort_(targetPort), delay_(delay), listener_(socket(AF_INET, SOCK_STREAM, 0)) {
  sockaddr_in address = Loopback(0);
  socklen_t length = sizeof(address);
  auto* place = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener_, place, length) != 0 || listen(listener_, 8) != 0 ||
      getsockname(listener_, place, &length) != 0) {
    std::perror("store_bench");
    std::exit(2);
  }
  port_ = ntohs(address.sin_port);
  acceptor_ = std::thread([this] { Accept(); });
}

DelayProxy::~DelayProxy() {
  shutdown(listener_, SHUT_RDWR);
  acceptor_.join();
  for (const int handle : sockets_) shutdown(handle, SHUT_RDWR);
  for (std::thread& thread : threads_) thread.join();
  for (const int handle : sockets_) close(handle);
  close(listener_);
}

void DelayProxy::Accept() {
  for (int client = accept(listener_, nullptr, nullptr); client >= 0;
       client = accept(listener_, nullptr, nullptr)) {
    Connect(client);
  }
}

void DelayProxy::Connect(int client) {
  const int server = socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = Loopback(targetPort_);
  if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
    close(client);
    close(server);
    return;
  }
  const int on = 1;
  for (const int handle : {client, server}) {
    setsockopt(handle, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
    sockets_.push_back(handle);
  }
  for (const auto& [from, to] : {std::pair{client, server}, {server, client}}) {
    const auto line = std::make_shared<Line>();
    threads_.emplace_back([from = from, line, delay = delay_] { Read(from, *line, delay); });
    threads_.emplace_back([to = to, line] { Write(to, *line); });
  }
}

}  // namespace store
