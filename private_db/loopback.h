#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstdint>
#include <string_view>

namespace store {

/// The address of a port on this machine, for no other one to reach.
inline sockaddr_in Loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  return address;
}

/// Sends all of the bytes; false when the other side takes no more.
inline bool SendAll(int to, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t took = send(to, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (took <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(took));
  }
  return true;
}

}  // namespace store
