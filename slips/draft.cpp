#include "slips/draft.h"

#include "basics/text.h"

namespace store {

bool SameContent(const Draft& one, const Draft& other) {
  return one.PartnerCode == other.PartnerCode && one.PartnerName == other.PartnerName &&
         one.Date == other.Date && one.Depot == other.Depot && one.Lines == other.Lines;
}

std::string NameInCell(const std::string& cell) {
  const size_t end = cell.find('\r');
  return Trim(end == std::string::npos ? cell : cell.substr(end + 1));
}

}  // namespace store
