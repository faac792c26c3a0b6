#include "tests/soak/franchise.h"

#include "basics/numbers.h"
#include "tests/soak/day_log.h"

namespace store {
namespace {

constexpr const char* kDigits = "0123456789abcdefghijklmnopqrstuvwxyz";

}  // namespace

std::string StoreCodeOf(int store) { return "S" + FormatNumber(store + 1, "000"); }

std::string UserCodeOf(int store, int terminal) {
  const int user = 2 * store + (terminal == kTerminals - 1 ? 1 : 0);
  return std::string("u") + kDigits[user / 36 % 36] + kDigits[user % 36];
}

std::string ProductCodeOf(int product) { return "P" + FormatNumber(product + 1, "000"); }

std::string BarcodeOf(int product) { return "8801" + FormatNumber(product + 1, "0000"); }

std::string PartnerCodeOf(int product) {
  return "C" + FormatNumber(product % kPartners + 1, "000");
}

std::string NeighbourOf(int store, int stores) { return StoreCodeOf((store + 1) % stores); }

StoreOptions OptionsOf(int store) {
  const auto type = static_cast<std::int16_t>(store % 4);
  const bool unitsNeeded = type == 1 || type == 3;
  const bool odd = store / 4 % 2 == 1;
  return {type, static_cast<std::int16_t>(unitsNeeded || odd ? 1 : 0),
          static_cast<std::int16_t>(store / 2 % 2), odd ? "1" : "5"};
}

}  // namespace store
