#include "private_db/free_port.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace store {

int FreePort() {
  const int probe = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof(address);
  auto* place = reinterpret_cast<sockaddr*>(&address);
  const bool found = bind(probe, place, length) == 0 && getsockname(probe, place, &length) == 0;
  close(probe);
  return found ? ntohs(address.sin_port) : 0;
}

}  // namespace store
