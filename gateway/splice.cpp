#include "gateway/splice.h"

namespace store {

void splice::MarkIfBroken(std::string& spliced, std::size_t begin) {
  if (spliced.find('\'', begin) == std::string::npos) return;
  spliced.insert(begin, kBroken);
  spliced += kBroken;
}

std::optional<std::string_view> BrokenValue(std::string_view text) {
  const std::size_t mark = text.find(splice::kBroken);
  if (mark == std::string_view::npos) return std::nullopt;
  const std::string_view rest = text.substr(mark + splice::kBroken.size());
  return rest.substr(0, rest.find(splice::kBroken));
}

std::string QuotedList(const std::vector<std::string>& values) {
  std::string list;
  for (const std::string& value : values) {
    list += Splice("{comma}'{value}'", "comma"_a = list.empty() ? "" : ",", "value"_a = value);
  }
  return list;
}

}  // namespace store
