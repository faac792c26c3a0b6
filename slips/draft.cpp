#include "slips/draft.h"

#include <string_view>

#include "basics/text.h"

namespace store {

bool SameEntries(const Draft& one, const Draft& other) {
  return one.PartnerCode == other.PartnerCode && one.PartnerName == other.PartnerName &&
         one.Date == other.Date && one.Depot == other.Depot && one.Lines == other.Lines;
}

std::string NameInCell(const std::string& cell) {
  const size_t end = cell.find('\r');
  return Trim(std::string_view(cell).substr(end == std::string::npos ? 0 : end + 1));
}

}  // namespace store
