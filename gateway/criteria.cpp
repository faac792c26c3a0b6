// The criteria texts of `Filter` and `Find`.
#include <string>

#include "gateway/byte_search.h"
#include "gateway/recordset.h"
#include "gateway/splice.h"

namespace store {
namespace {

/// Walks over a criteria text word by word.
class CriteriaReader {
 public:
  explicit CriteriaReader(std::string_view text) : text_(text) {}

  bool AtEnd() {
    SkipBlanks();
    return at_ == text_.size();
  }

  /// A run of letters, digits and underscores; empty when something else stands here.
  std::string_view Word() {
    SkipBlanks();
    const size_t begin = at_;
    while (at_ < text_.size() && IsWordByte(text_[at_])) ++at_;
    return text_.substr(begin, at_ - begin);
  }

  bool Sign(char sign) {
    SkipBlanks();
    if (at_ >= text_.size() || text_[at_] != sign) return false;
    ++at_;
    return true;
  }

  /// A text between single quotes. A quote inside it cannot be written.
  bool Quoted(std::string& value) {
    if (!Sign('\'')) return false;
    const size_t end = text_.find('\'', at_);
    if (end == std::string_view::npos) return false;
    value = text_.substr(at_, end - at_);
    at_ = end + 1;
    return true;
  }

 private:
  static bool IsWordByte(char c) {
    return (c >= '0' && c <= '9') || c == '_' || (FoldAscii(c) >= 'a' && FoldAscii(c) <= 'z');
  }
  void SkipBlanks() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
  }

  std::string_view text_;
  size_t at_ = 0;
};

/// Takes one percent sign off each end of a pattern. Whatever stands between them are letters, so
/// that a person can look for "50%".
TextMatch ReadPattern(std::string_view pattern) {
  TextMatch match;
  if (!pattern.empty() && pattern.back() == '%') {
    match.toEnd = false;
    pattern.remove_suffix(1);
  }
  if (!pattern.empty() && pattern.front() == '%') {
    match.fromStart = false;
    pattern.remove_prefix(1);
  }
  match.needle = pattern;
  return match;
}

}  // namespace

bool Recordset::Parse(std::string_view criteria, std::vector<Condition>& conditions) const {
  if (BrokenValue(criteria)) return false;
  CriteriaReader reader(criteria);
  do {
    Condition condition{};
    condition.field = FieldNamed(reader.Word());
    if (condition.field < 0) return false;
    std::string value;
    if (reader.Sign('=')) {
      if (!reader.Quoted(condition.match.needle)) return false;
    } else if (SameFolded(reader.Word(), "LIKE")) {
      if (!reader.Quoted(value)) return false;
      condition.match = ReadPattern(value);
    } else {
      return false;
    }
    conditions.push_back(std::move(condition));
    if (reader.AtEnd()) return true;
  } while (SameFolded(reader.Word(), "AND"));
  return false;
}

}  // namespace store
