#include "tests/support/cutting_proxy.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <string_view>

#include "private_db/batch_answer.h"
#include "private_db/loopback.h"

namespace store {
namespace {

constexpr std::string_view kBatch = "START TRANSACTION";
constexpr auto kRunning = std::chrono::milliseconds(150);

/// What has come in; empty when the other side has closed.
std::string_view Take(int from, std::array<char, 65536>& buffer) {
  const ssize_t got = recv(from, buffer.data(), buffer.size(), 0);
  return {buffer.data(), got > 0 ? static_cast<size_t>(got) : 0};
}

}  // namespace

CuttingProxy::CuttingProxy(int targetPort)
    : targetPort_(targetPort), listener_(socket(AF_INET, SOCK_STREAM, 0)) {
  sockaddr_in address = Loopback(0);
  socklen_t length = sizeof(address);
  auto* place = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener_, place, length) != 0 || listen(listener_, 8) != 0 ||
      getsockname(listener_, place, &length) != 0) {
    ADD_FAILURE() << "no free port on the loopback";
  }
  port_ = ntohs(address.sin_port);
  acceptor_ = std::thread([this] { Accept(); });
}

CuttingProxy::~CuttingProxy() {
  ending_ = true;
  shutdown(listener_, SHUT_RDWR);
  acceptor_.join();
  for (std::thread& line : lines_) line.join();
  close(listener_);
}

void CuttingProxy::CutNextBatch(Cut when, bool staysAway) {
  staysAway_ = staysAway;
  cut_ = when;
}

void CuttingProxy::Accept() {
  for (int client = accept(listener_, nullptr, nullptr); client >= 0;
       client = accept(listener_, nullptr, nullptr)) {
    if (cut_ == Cut::Never) std::this_thread::sleep_for(waiting_.exchange({}));
    const int server = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = Loopback(targetPort_);
    if (away_ ||
        connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
      close(client);
      close(server);
      continue;
    }
    lines_.emplace_back([this, client, server] { Pass(client, server); });
  }
}

void CuttingProxy::Pass(int client, int server) {
  std::array<char, 65536> buffer{};
  std::array<pollfd, 2> ends = {{{client, POLLIN, 0}, {server, POLLIN, 0}}};
  Cut cut = Cut::Never;  // what this line is about to suffer
  BatchAnswer answer;
  auto sent = std::chrono::steady_clock::now();
  while (!ending_) {
    poll(ends.data(), ends.size(), 20);
    if (cut == Cut::Running && std::chrono::steady_clock::now() - sent > kRunning) break;
    if (ends[0].revents != 0) {
      const std::string_view bytes = Take(client, buffer);
      if (bytes.find(kBatch) != std::string_view::npos) {
        cut = cut_.exchange(Cut::Never);
        answer = BatchAnswer(bytes);
      }
      if (cut == Cut::Before || bytes.empty() || !SendAll(server, bytes)) break;
      sent = std::chrono::steady_clock::now();
    }
    if (ends[1].revents != 0) {
      const std::string_view bytes = Take(server, buffer);
      if (bytes.empty() || (cut == Cut::After && answer.EndsWith(bytes))) break;
      if (!SendAll(client, bytes)) break;
    }
  }
  if (cut != Cut::Never && staysAway_) away_ = true;
  close(client);
  close(server);
}

}  // namespace store
