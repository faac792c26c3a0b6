#include "slips/document_date.h"

#include "session/dates.h"
#include "session/numbers.h"
#include "session/text.h"

namespace store {

bool DateFitsKey(const std::string& date, const std::string& slipId) {
  const auto digits = [&](int start, int length) {
    return static_cast<int>(ParseNumber(MidChars(slipId, start, length)));
  };
  const int year = digits(1, 4);
  const int month = digits(5, 2);
  const int day = digits(7, 2);
  if (year == 0 || month == 0 || day == 0) return false;
  const std::string lower = FormatDateValue(DateSerial(year, month - 1, day), "YYYY-MM-DD");
  const std::string upper = FormatDateValue(DateSerial(year, month + 1, day), "YYYY-MM-DD");
  return lower <= date && date <= upper;
}

}  // namespace store
