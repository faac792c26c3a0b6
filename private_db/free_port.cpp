#include "private_db/free_port.h"

#include <unistd.h>

#include <random>

#include "private_db/loopback.h"

namespace store {
namespace {

// Below the ports that the system gives to outgoing connections: one of those could have taken the
// port when a server that was ended is started again.
constexpr int kFirst = 15'000;
constexpr int kLast = 31'999;
constexpr int kTries = 100;

bool IsFree(int port) {
  const int probe = socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = Loopback(port);
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
