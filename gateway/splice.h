#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace store {

/// How values come into statements and criteria. A text names each place, an argument bears the
/// name, and the compiler holds them to each other:
///
///     Splice(" SELECT CT_NAME FROM CT WHERE CT_CODE = '{code}'", "code"_a = code)
///
/// A place that no argument bears, an argument that the text never uses and a brace that opens no
/// name do not compile. The values go in as they are: nothing is escaped. A quote in a value that
/// stands between quotes would end the text and let the rest of the value be read as a statement;
/// such a value is marked, and no text with the mark is ever sent, nor taken as a criteria.

namespace splice {

/// Stands before and behind a value that breaks its text: a code point that is no letter and that
/// Unicode keeps free for such uses.
inline constexpr std::string_view kBroken = "\xEF\xB7\x90";

/// Whether text that follows the piece stands between quotes, when `quoted` says so for its start.
constexpr bool QuotedBehind(std::string_view piece, bool quoted) {
  return quoted != (std::count(piece.begin(), piece.end(), '\'') % 2 == 1);
}

/// Marks the value that stands in `spliced` from `begin` on, if it has a quote.
void MarkIfBroken(std::string& spliced, std::size_t begin);

/// A name as part of a type.
template <std::size_t kSize>
struct Name {
  consteval Name(const char (&text)[kSize]) {  // NOLINT(google-explicit-constructor): a literal
    std::copy_n(text, kSize, letters.begin());
  }
  constexpr std::string_view Text() const { return {letters.data(), kSize - 1}; }
  std::array<char, kSize> letters{};
};

/// A value under a name. It only looks at the text, which must live until the splice is done.
template <Name kName>
struct Value {
  std::string_view text;

  static constexpr bool Bears(std::string_view name) { return name == kName.Text(); }
  std::string_view Find(std::string_view name) const {
    return Bears(name) ? text : std::string_view();
  }
};

template <Name kName>
struct Unset {
  constexpr Value<kName> operator=(std::string_view text) const {  // NOLINT: reads as it is written
    return {text};
  }
};

/// A record whose fields are named by a letter and a number, such as the columns of a line: "L0" to
/// "L22". It gives its letter, the count of its fields and the text of each.
template <class T>
concept NumberedFields = requires(const T& record, std::size_t field) {
  { T::kLetter } -> std::convertible_to<char>;
  { T::kFields } -> std::convertible_to<std::size_t>;
  { record.Field(field) } -> std::convertible_to<std::string_view>;
};

/// The number behind the letter of a field's name; `fields` when it names none.
constexpr std::size_t FieldNumber(std::string_view name, char letter, std::size_t fields) {
  if (name.size() < 2 || name[0] != letter || (name[1] == '0' && name.size() > 2)) return fields;
  std::size_t number = 0;
  for (const char digit : name.substr(1)) {
    if (digit < '0' || digit > '9') return fields;
    number = number * 10 + static_cast<std::size_t>(digit - '0');
    if (number >= fields) return fields;
  }
  return number;
}

template <class T>
constexpr bool Bears(std::string_view name) {
  if constexpr (NumberedFields<T>) {
    return FieldNumber(name, T::kLetter, T::kFields) < T::kFields;
  } else {
    return T::Bears(name);
  }
}

/// The name of the first place in `text`, which is cut off up to behind it; empty when there is no
/// further one. An open brace that nothing closes gives the brace itself.
constexpr std::string_view TakePlace(std::string_view& text) {
  const std::size_t open = text.find('{');
  if (open == std::string_view::npos) {
    text = {};
    return {};
  }
  const std::size_t close = text.find('}', open);
  if (close == std::string_view::npos) {
    const std::string_view brace = text.substr(open, 1);
    text = {};
    return brace;
  }
  const std::string_view place = text.substr(open + 1, close - open - 1);
  text.remove_prefix(close + 1);
  return place.empty() ? std::string_view("{") : place;
}

/// Whether every place of the text has its argument and every argument a place.
template <class... Arguments>
constexpr bool NamesFit(std::string_view text) {
  std::array<bool, sizeof...(Arguments) + 1> used{};
  for (std::string_view place = TakePlace(text); !place.empty(); place = TakePlace(text)) {
    std::size_t argument = 0;
    bool found = false;
    (((Bears<Arguments>(place) ? (used[argument] = found = true) : false), ++argument), ...);
    if (!found) return false;
  }
  return std::count(used.begin(), used.end(), true) == sizeof...(Arguments);
}

/// Not constant, so that a text that calls for it does not compile.
inline void PlacesAndArgumentsDiffer() {}

/// A text that has been held against its arguments.
template <class... Arguments>
class CheckedText {
 public:
  template <class Text>
  requires std::convertible_to<const Text&, std::string_view>
  consteval CheckedText(const Text& text) : text_(text) {  // NOLINT: taken as it stands
    if (!NamesFit<Arguments...>(text_)) PlacesAndArgumentsDiffer();
  }
  constexpr std::string_view Text() const { return text_; }

 private:
  std::string_view text_;
};

template <class T>
void AppendIfBorne(std::string& spliced, std::string_view place, const T& argument) {
  if constexpr (NumberedFields<T>) {
    const std::size_t field = FieldNumber(place, T::kLetter, T::kFields);
    if (field < T::kFields) spliced.append(argument.Field(field));
  } else {
    spliced.append(argument.Find(place));
  }
}

}  // namespace splice

/// "code"_a = value: the value under that name.
template <splice::Name kName>
constexpr splice::Unset<kName> operator""_a() {
  return {};
}

/// The text with each value in its place.
template <class... Arguments>
std::string Splice(splice::CheckedText<std::type_identity_t<Arguments>...> text,
                   const Arguments&... arguments) {
  std::string_view rest = text.Text();
  std::string spliced;
  spliced.reserve(rest.size() + 32 * sizeof...(arguments));
  bool quoted = false;
  while (!rest.empty()) {
    const std::string_view piece = rest.substr(0, rest.find('{'));
    spliced.append(piece);
    quoted = splice::QuotedBehind(piece, quoted);
    const std::size_t begin = spliced.size();
    [[maybe_unused]] const std::string_view place = splice::TakePlace(rest);
    (splice::AppendIfBorne(spliced, place, arguments), ...);
    if (quoted) splice::MarkIfBroken(spliced, begin);
  }
  return spliced;
}

/// The value that has broken a text, whole; nothing when none has.
std::optional<std::string_view> BrokenValue(std::string_view text);

/// Values between quotes, parted by commas, as an IN takes them.
std::string QuotedList(const std::vector<std::string>& values);

}  // namespace store
