#include "demo/demo_slip_keys.h"

namespace store::demo {

std::string DemoSlipKeys::Next(Day day, std::string_view store, std::string_view user,
                               std::string_view kind) {
  const std::string date = KeyDate(day);
  const std::string number =
      std::to_string(++last_[date + std::string(store) + ":" + std::string(kind)]);
  std::string key = date;
  key.append(store).append(user).append(kind);
  if (number.size() < 4) key.append(4 - number.size(), '0');
  return key + number;
}

}  // namespace store::demo
