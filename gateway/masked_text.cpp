#include "gateway/masked_text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <optional>

#include "gateway/splice.h"

namespace store {
namespace {

constexpr std::string_view kMask = "?";
constexpr std::string_view kPasswordColumn = "ST_PWD";
constexpr std::size_t kLongestCode = 50;  // characters of a slip's key, the longest of all
constexpr std::size_t kLongestWord = 2;   // letters of a kind ("PE", "Z1"); more may be a name
constexpr std::size_t kShortestPhone = 9;
constexpr std::size_t kLongestPhone = 11;

/// How servers name themselves what they name between quotes.
constexpr std::array<std::string_view, 7> kServerNames = {
    "PRIMARY",      "field list",      "where clause", "on clause",
    "order clause", "group statement", "localhost"};

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }
bool IsLetter(char letter) { return std::isalpha(static_cast<unsigned char>(letter)) != 0; }

/// The text with "0" for each digit.
std::string ShapeOf(std::string_view text) {
  std::string shape(text);
  std::replace_if(shape.begin(), shape.end(), IsDigit, '0');
  return shape;
}

bool IsMoment(std::string_view shape) {
  return shape == "0000-00-00" || shape == "0000-00-00 00:00:00" || shape == "0000-00" ||
         shape.starts_with("0000-00-00 00:00:00.");
}

/// Grouped by dashes, or as long as a phone number with its leading zero: of a person or a firm.
bool IsPhone(std::string_view text, std::string_view shape) {
  if (shape.find_first_not_of("0-") != std::string_view::npos) return false;
  if (shape.find('-') != std::string_view::npos) return true;
  return text.front() == '0' && text.size() >= kShortestPhone && text.size() <= kLongestPhone;
}

/// Whether what stands between quotes says nothing about a person.
bool IsCode(std::string_view text) {
  if (text.find_first_not_of(" %") == std::string_view::npos) return true;
  if (text.ends_with('%')) text.remove_suffix(1);  // one that begins with it was typed as a search
  while (text.ends_with(' ')) text.remove_suffix(1);
  if (text.size() > kLongestCode) return false;
  const std::string shape = ShapeOf(text);
  if (IsMoment(shape)) return true;
  if (IsPhone(text, shape)) return false;
  const bool plain = std::all_of(text.begin(), text.end(), [](char letter) {
    return IsDigit(letter) || IsLetter(letter) || letter == '-' || letter == '_' || letter == '.';
  });
  const bool named = text.find_first_of("0123456789_.") != std::string_view::npos;
  return plain && (named || text.size() <= kLongestWord);
}

enum class Source { Statement, Words };

/// A quote between two letters of the server's words is an apostrophe ("doesn't").
bool IsApostrophe(std::string_view text, std::size_t place) {
  return place > 0 && place + 1 < text.size() && IsLetter(text[place - 1]) &&
         IsLetter(text[place + 1]);
}

/// Where the next quote of words or of a statement stands, from `from` on.
std::size_t FindQuote(std::string_view text, std::size_t from, std::string_view quotes,
                      Source source) {
  std::size_t place = text.find_first_of(quotes, from);
  while (source == Source::Words && place != std::string_view::npos && IsApostrophe(text, place)) {
    place = text.find_first_of(quotes, place + 1);
  }
  return place;
}

/// Everything between quotes that may not stay becomes "?".
template <class MayStay>
std::string WithMaskedQuotes(std::string_view text, Source source, const MayStay& mayStay) {
  std::string masked;
  for (;;) {
    const std::size_t open = FindQuote(text, 0, "'\"", source);
    if (open == std::string_view::npos) return masked.append(text);
    const std::size_t close = FindQuote(text, open + 1, text.substr(open, 1), source);
    const std::string_view quoted = text.substr(open + 1, close - open - 1);
    masked.append(text.substr(0, open + 1));
    // What nothing closes may be anything.
    masked.append(close != std::string_view::npos && mayStay(quoted) ? quoted : kMask);
    if (close == std::string_view::npos) return masked;
    masked += text[close];
    text.remove_prefix(close + 1);
  }
}

/// Masks what stands between `begin` and `end`, or the rest where there is no end. `last` looks for
/// the end from behind.
void MaskBetween(std::string& text, std::string_view begin, std::string_view end, bool last) {
  std::size_t found = text.find(begin);
  while (found != std::string::npos) {
    const std::size_t from = found + begin.size();
    std::size_t to = last ? text.rfind(end) : text.find(end, from);
    if (to == std::string::npos || to < from) to = text.size();
    text.replace(from, to - from, kMask);
    found = text.find(begin, from);
  }
}

bool ComparesPasswords(std::string_view statement) {
  return statement.find(kPasswordColumn) != std::string_view::npos;
}

}  // namespace

std::string MaskedStatement(std::string_view statement) {
  std::string whole(statement);
  while (const std::optional<std::string_view> value = BrokenValue(whole)) {
    const auto begin = static_cast<std::size_t>(value->data() - whole.data());
    const std::size_t mark = splice::kBroken.size();
    whole.replace(begin - mark, value->size() + 2 * mark, kMask);
  }
  const bool none = ComparesPasswords(whole);
  return WithMaskedQuotes(whole, Source::Statement,
                          [none](std::string_view quoted) { return !none && IsCode(quoted); });
}

std::string MaskedWords(std::string_view words, const std::vector<std::string>& statements) {
  std::string masked(words);
  std::string shown;  // of the statements
  bool none = false;
  for (const std::string& statement : statements) {
    const std::optional<std::string_view> broken = BrokenValue(statement);
    const std::size_t value = broken ? masked.find(*broken) : std::string::npos;
    if (value != std::string::npos) masked.replace(value, broken->size(), kMask);
    none = none || ComparesPasswords(statement);
    shown += MaskedStatement(statement) + "\n";
  }
  MaskBetween(masked, "near '", "' at line", true);
  MaskBetween(masked, "PWD=", ";", false);
  return WithMaskedQuotes(masked, Source::Words, [&](std::string_view quoted) {
    return !none &&
           (IsCode(quoted) || shown.find(quoted) != std::string::npos ||
            std::find(kServerNames.begin(), kServerNames.end(), quoted) != kServerNames.end());
  });
}

}  // namespace store
