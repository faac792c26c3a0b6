#include "tests/soak/fault_proxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <string_view>
#include <utility>

#include "private_db/loopback.h"

namespace store {
namespace {

using std::chrono::steady_clock;

constexpr auto kShortWhile = std::chrono::milliseconds(15);

bool IsBatch(const std::string& request) {
  return request.find("BEGIN NOT ATOMIC") != std::string::npos;
}

bool StrikesAtReads(Fault fault) { return fault == Fault::CutRead; }

}  // namespace

const char* FaultName(Fault fault) {
  switch (fault) {
    case Fault::None:
      break;
    case Fault::CutBefore:
      return "cut before";
    case Fault::CutHalf:
      return "cut half way";
    case Fault::CutDuring:
      return "cut during";
    case Fault::CutAfter:
      return "cut after";
    case Fault::Mute:
      return "mute";
    case Fault::Delay:
      return "delay";
    case Fault::CutRead:
      return "cut at a read";
    case Fault::KillBefore:
      return "client killed before";
    case Fault::KillDuring:
      return "client killed during";
    case Fault::KillAfter:
      return "client killed after";
  }
  return "none";
}

FaultProxy::FaultProxy(std::vector<int> serverPorts, std::function<void(Fault)> struck)
    : serverPorts_(std::move(serverPorts)),
      struck_(std::move(struck)),
      listener_(socket(AF_INET, SOCK_STREAM, 0)) {
  sockaddr_in address = Loopback(0);
  socklen_t length = sizeof(address);
  auto* place = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener_, place, length) != 0 || listen(listener_, 8) != 0 ||
      getsockname(listener_, place, &length) != 0 || pipe(wakeUp_) != 0) {
    return;  // port 0: nobody gets through
  }
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this] { Serve(); });
}

FaultProxy::~FaultProxy() {
  if (thread_.joinable()) {
    SendAll(wakeUp_[1], "");
    close(wakeUp_[1]);
    thread_.join();
    close(wakeUp_[0]);
  }
  close(listener_);
}

void FaultProxy::Serve() {
  for (;;) {
    std::vector<pollfd> waits = {{wakeUp_[0], POLLIN, 0}, {listener_, POLLIN, 0}};
    for (const Line& line : lines_) {
      waits.push_back({line.client, POLLIN, 0});
      waits.push_back({line.server, POLLIN, 0});
    }
    if (poll(waits.data(), waits.size(), -1) < 0) continue;
    if (waits[0].revents != 0) break;
    for (size_t i = 0; i < lines_.size(); ++i) {
      const bool stands = (waits[2 + 2 * i].revents == 0 || FromClient(lines_[i])) &&
                          (waits[3 + 2 * i].revents == 0 || FromServer(lines_[i]));
      if (!stands) Close(lines_[i]);
    }
    std::erase_if(lines_, [](const Line& line) { return line.client < 0; });
    if (waits[1].revents != 0) Accept();
  }
  for (Line& line : lines_) Close(line);
}

/// A connection to a server; -1 when there is none.
int FaultProxy::Reach() const {
  for (const int port : serverPorts_) {
    const int server = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = Loopback(port);
    if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) {
      return server;
    }
    close(server);
  }
  return -1;
}

void FaultProxy::Accept() {
  Line line{.client = accept(listener_, nullptr, nullptr),
            .server = steady_clock::now() < away_ ? -1 : Reach()};
  if (line.server < 0) {
    Close(line);
    return;
  }
  const int on = 1;
  for (const int end : {line.client, line.server}) {
    setsockopt(end, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
  }
  lines_.push_back(std::move(line));
}

void FaultProxy::Close(Line& line) {
  close(line.client);
  if (line.server >= 0) close(line.server);
  line.client = line.server = -1;
}

bool FaultProxy::FromClient(Line& line) {
  char buffer[65536];
  const ssize_t got = recv(line.client, buffer, sizeof(buffer), 0);
  if (got <= 0) return false;
  line.request.append(buffer, static_cast<size_t>(got));
  // A login that is encrypted or a packet in pieces waits for its end; nothing else is looked into.
  if (line.request.size() < kPacketHead || line.request.size() < PacketSize(line.request))
    return true;
  const bool passed = PassRequest(line);
  line.request.clear();
  return passed;
}

bool FaultProxy::PassRequest(Line& line) {
  const Fault fault = armed_;
  const bool strikes = fault != Fault::None && StrikesAtReads(fault) != IsBatch(line.request);
  if (!strikes) return SendAll(line.server, line.request);
  armed_ = Fault::None;
  return Strike(line, fault);
}

bool FaultProxy::Broken() {
  away_ = steady_clock::now() + std::chrono::milliseconds(outage_);
  return false;
}

/// What happens to the request; false when the line is to be closed.
bool FaultProxy::Strike(Line& line, Fault fault) {
  struck_(fault);
  switch (fault) {
    case Fault::CutBefore:
    case Fault::CutRead:
      return Broken();
    case Fault::CutHalf:
      SendAll(line.server, std::string_view(line.request).substr(0, line.request.size() / 2));
      return Broken();
    case Fault::CutDuring:
      SendAll(line.server, line.request);
      return Broken();
    case Fault::KillBefore:
      raise(SIGKILL);
      return false;
    case Fault::KillDuring:
      SendAll(line.server, line.request);
      raise(SIGKILL);
      return false;
    case Fault::Delay:
      std::this_thread::sleep_for(kShortWhile);
      break;
    default:
      break;
  }
  line.onReply = fault;
  line.answer = BatchAnswer(line.request);
  return SendAll(line.server, line.request);
}

bool FaultProxy::FromServer(Line& line) {
  char buffer[65536];
  const ssize_t got = recv(line.server, buffer, sizeof(buffer), 0);
  if (got <= 0) return false;
  const std::string_view bytes(buffer, static_cast<size_t>(got));
  const bool strikes = line.onReply != Fault::None && line.answer.EndsWith(bytes);
  switch (strikes ? std::exchange(line.onReply, Fault::None) : Fault::None) {
    case Fault::CutAfter:
      return Broken();
    case Fault::KillAfter:
      raise(SIGKILL);
      return false;
    case Fault::Mute:
      line.mute = true;
      break;
    case Fault::Delay:
      std::this_thread::sleep_for(kShortWhile);
      break;
    default:
      break;
  }
  return line.mute || SendAll(line.client, bytes);
}

}  // namespace store
