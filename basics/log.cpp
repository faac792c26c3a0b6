#include "basics/log.h"

#include <cstddef>

namespace store {
namespace {

/// Bytes of the UTF-8 letter at the head of `text`, which is not empty; 0 when there is none.
std::size_t LetterAt(std::string_view text) {
  const auto byte = [&](std::size_t place) { return static_cast<unsigned char>(text[place]); };
  const unsigned char head = byte(0);
  if (head < 0x80) return 1;
  const std::size_t length = head >= 0xC2 && head <= 0xDF   ? 2
                             : head >= 0xE0 && head <= 0xEF ? 3
                             : head >= 0xF0 && head <= 0xF4 ? 4
                                                            : 0;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t place = 1; place < length; ++place) {
    if ((byte(place) & 0xC0) != 0x80) return 0;
  }
  // Longer than need be, half of a pair, or behind the last letter.
  const unsigned char second = byte(1);
  const bool outside = (head == 0xE0 && second < 0xA0) || (head == 0xED && second > 0x9F) ||
                       (head == 0xF0 && second < 0x90) || (head == 0xF4 && second > 0x8F);
  return outside ? 0 : length;
}

}  // namespace

std::string AsOneLine(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = LetterAt(text);
    const auto head = static_cast<unsigned char>(text.front());
    if (length == 0) {
      line += '?';
    } else if (head < 0x20 || head == 0x7F) {
      line += ' ';
    } else {
      line.append(text.substr(0, length));
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return line;
}

void WriteLog(LogWeight weight, std::string_view about, std::string_view text) {
  if (!Log.Write) return;
  try {
    Log.Write(weight, std::string(about) + ": " + AsOneLine(text));
  } catch (...) {  // NOLINT(bugprone-empty-catch): a log that cannot be written is done without
  }
}

}  // namespace store
