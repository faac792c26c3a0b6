#include "private_db/free_port.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <random>

namespace store {
namespace {

// Below the ports that the system gives to outgoing connections: one of those could have taken the
// port when a server that was ended is started again.
constexpr int kFirst = 15'000;
constexpr int kLast = 31'999;
constexpr int kTries = 100;

bool IsFree(int port) {
  const int probe = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  const bool free = bind(probe, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
  close(probe);
  return free;
}

}  // namespace

int FreePort() {
  std::random_device random;
  std::uniform_int_distribution<> draw(kFirst, kLast);
  for (int tries = 0; tries < kTries; ++tries) {
    const int port = draw(random);
    if (IsFree(port)) return port;
  }
  return 0;
}

}  // namespace store
