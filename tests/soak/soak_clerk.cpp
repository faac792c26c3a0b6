// One clerk of the seeded days, as a process that can be killed. Started by soak_days.
#include <charconv>
#include <csignal>
#include <cstring>
#include <string>

#include "tests/soak/clerk.h"

namespace {

volatile bool closingTime = false;

void GoHome(int /*signal*/) { closingTime = true; }

template <class Number>
bool TakeNumber(const char* text, Number& number) {
  const auto [end, error] = std::from_chars(text, text + std::strlen(text), number);
  return error == std::errc() && *end == '\0';
}

}  // namespace

int main(int argc, char** argv) {
  store::ClerkPlace place;
  if (argc != 7 || !TakeNumber(argv[2], place.ServerPort) || !TakeNumber(argv[3], place.Store) ||
      !TakeNumber(argv[4], place.Terminal) || !TakeNumber(argv[5], place.Stores) ||
      !TakeNumber(argv[6], place.Seed)) {
    return 2;
  }
  place.Folder = argv[1];
  std::signal(SIGTERM, GoHome);
  return store::Clerk(place).Run(closingTime);
}
