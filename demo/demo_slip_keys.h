#pragma once

#include <map>
#include <string>
#include <string_view>

#include "demo/calendar.h"

namespace store::demo {

/// Hands out document keys: date, store, user, two digits of kind, and a number that counts up per
/// store, kind and day whoever writes.
class DemoSlipKeys {
 public:
  std::string Next(Day day, std::string_view store, std::string_view user, std::string_view kind);

 private:
  std::map<std::string, int> last_;
};

}  // namespace store::demo
