#include "basics/text.h"

#include <iconv.h>

#include <algorithm>
#include <limits>

namespace store {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

// No letter, like some others, but the one that the system's table takes before it stops at it.
constexpr std::string_view kLostPair = "\xA2\xE8";

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// One direction of conversion. The descriptor is opened once, as opening costs far more than
// converting a name, and lives as long as the program.
class Converter {
 public:
  Converter(const char* to, const char* from) : descriptor_(iconv_open(to, from)) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // Converts as far as possible and drops what was converted from `rest`. `out` is grown as needed,
  // at most by `perByte` bytes for each byte of `rest`. False when it had to stop.
  bool Convert(std::string_view& rest, std::string& out, size_t perByte) {
    const size_t before = out.size();
    out.resize(before + rest.size() * perByte);
    char* from = const_cast<char*>(rest.data());  // iconv's signature; it does not write there
    char* to = out.data() + before;
    size_t fromLeft = rest.size();
    size_t toLeft = out.size() - before;
    iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
    const size_t result = iconv(descriptor_, &from, &fromLeft, &to, &toLeft);
    out.resize(out.size() - toLeft);
    rest.remove_prefix(rest.size() - fromLeft);
    return result != static_cast<size_t>(-1);
  }

 private:
  iconv_t descriptor_;
};

// The byte position behind `count` characters from `from` on.
size_t SkipChars(std::string_view text, size_t from, int count) {
  while (count > 0 && from < text.size()) {
    ++from;
    while (from < text.size() && IsContinuation(text[from])) ++from;
    --count;
  }
  return from;
}

}  // namespace

std::string ToCodePage949(std::string_view text) {
  if (IsAscii(text)) return std::string(text);
  static Converter converter("CP949", "UTF-8");
  std::string out;
  while (!converter.Convert(text, out, 1)) {
    out += '?';
    text.remove_prefix(SkipChars(text, 0, 1));
  }
  return out;
}

std::string FromCodePage949(std::string_view bytes) {
  if (IsAscii(bytes)) return std::string(bytes);
  static Converter converter("UTF-8", "CP949");
  std::string out;
  std::string_view before = bytes;
  while (!converter.Convert(bytes, out, 3)) {
    const std::string_view taken = before.substr(0, before.size() - bytes.size());
    if (taken.ends_with(kLostPair)) bytes = before.substr(taken.size() - kLostPair.size());
    out += kReplacement;
    bytes.remove_prefix(1);
    before = bytes;
  }
  return out;
}

// Only a byte that may begin a letter, and that ended up as none, can be half of one.
std::string TakeWholeLetters(std::string& bytes) {
  std::string text = FromCodePage949(bytes);
  const auto last = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back());
  const bool half = last > 0x80 && last < 0xFF && text.ends_with(kReplacement);
  if (half) text.resize(text.size() - kReplacement.size());
  bytes.erase(0, bytes.size() - (half ? 1 : 0));
  return text;
}

std::string ByteMid(std::string_view text, int start, int length) {
  if (start < 1 || length < 1) return {};
  const std::string bytes = ToCodePage949(text);
  const auto from = static_cast<size_t>(start - 1);
  if (from >= bytes.size()) return {};
  return FromCodePage949(std::string_view(bytes).substr(from, static_cast<size_t>(length)));
}

std::int16_t ByteLen(std::string_view text) {
  const size_t length = IsAscii(text) ? text.size() : ToCodePage949(text).size();
  const bool fits = length <= static_cast<size_t>(std::numeric_limits<std::int16_t>::max());
  return fits ? static_cast<std::int16_t>(length) : std::int16_t{0};
}

std::string Trim(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

int CharLength(std::string_view text) {
  return static_cast<int>(
      std::count_if(text.begin(), text.end(), [](char byte) { return !IsContinuation(byte); }));
}

std::string LeftChars(std::string_view text, int count) {
  return std::string(text.substr(0, SkipChars(text, 0, count)));
}

std::string RightChars(std::string_view text, int count) {
  if (count < 1) return {};
  return std::string(text.substr(SkipChars(text, 0, CharLength(text) - count)));
}

std::string MidChars(std::string_view text, int start) {
  return MidChars(text, start, std::numeric_limits<int>::max());
}

std::string MidChars(std::string_view text, int start, int length) {
  if (start < 1) return {};
  const size_t from = SkipChars(text, 0, start - 1);
  return std::string(text.substr(from, SkipChars(text, from, length) - from));
}

namespace {

constexpr std::string_view kBlanksBeforeCode = "                              ";
static_assert(kBlanksBeforeCode.size() == 30);

}  // namespace

std::string ListEntry(std::string_view name, std::string_view code) {
  return std::string(name).append(kBlanksBeforeCode).append(code);
}

std::string_view NameOfEntry(std::string_view entry) {
  std::string_view name = entry.substr(0, entry.find(kBlanksBeforeCode));
  name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
  return name.substr(0, name.find_last_not_of(' ') + 1);
}

}  // namespace store
