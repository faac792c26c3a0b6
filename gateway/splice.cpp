#include <charconv>

#include "gateway/gateway.h"

namespace store {

std::string Splice(std::string_view text, const std::vector<std::string>& values) {
  std::string spliced;
  spliced.reserve(text.size() + 32 * values.size());
  while (!text.empty()) {
    const size_t open = text.find('{');
    spliced.append(text.substr(0, open));
    if (open == std::string_view::npos) break;
    text.remove_prefix(open);
    const size_t close = text.find('}');
    size_t index = 0;
    const char* end = text.data() + std::min(close, text.size());
    const auto [stop, failed] = std::from_chars(text.data() + 1, end, index);
    if (close == std::string_view::npos || failed != std::errc() || stop != end ||
        index >= values.size()) {
      spliced.push_back('{');
      text.remove_prefix(1);
      continue;
    }
    spliced.append(values[index]);
    text.remove_prefix(close + 1);
  }
  return spliced;
}

}  // namespace store
