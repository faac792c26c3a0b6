// One clerk of the seeded days, as a process that can be killed. Started by soak_days.
#include <charconv>
#include <csignal>
#include <cstring>
#include <string>
#include <vector>

#include "tests/soak/clerk.h"

namespace {

volatile bool closingTime = false;

void GoHome(int /*signal*/) { closingTime = true; }

template <class Number>
bool TakeNumber(const char* text, Number& number) {
  const auto [end, error] = std::from_chars(text, text + std::strlen(text), number);
  return error == std::errc() && *end == '\0';
}

/// Numbers parted by commas.
bool TakePorts(const char* text, std::vector<int>& ports) {
  const char* last = text + std::strlen(text);
  for (int port = 0;; ++text) {
    const auto [end, error] = std::from_chars(text, last, port);
    if (error != std::errc()) return false;
    ports.push_back(port);
    if (end == last) return true;
    text = end;
  }
}

}  // namespace

int main(int argc, char** argv) {
  store::ClerkPlace place;
  if (argc != 7 || !TakePorts(argv[2], place.ServerPorts) || !TakeNumber(argv[3], place.Store) ||
      !TakeNumber(argv[4], place.Terminal) || !TakeNumber(argv[5], place.Stores) ||
      !TakeNumber(argv[6], place.Seed)) {
    return 2;
  }
  place.Folder = argv[1];
  std::signal(SIGTERM, GoHome);
  return store::Clerk(place).Run(closingTime);
}
