#include "ui/row_filter.h"

#include <algorithm>
#include <array>

#include "basics/numbers.h"
#include "basics/text.h"

namespace store {
namespace {

constexpr unsigned kFirstSyllable = 0xAC00;
constexpr unsigned kLastSyllable = 0xD7A3;
constexpr unsigned kSyllablesOfInitial = 588;  // 21 vowels by 28 endings
constexpr std::array<const char*, 19> kInitials = {"ㄱ", "ㄲ", "ㄴ", "ㄷ", "ㄸ", "ㄹ", "ㅁ",
                                                   "ㅂ", "ㅃ", "ㅅ", "ㅆ", "ㅇ", "ㅈ", "ㅉ",
                                                   "ㅊ", "ㅋ", "ㅌ", "ㅍ", "ㅎ"};
constexpr size_t kLetterBytes = 3;  // of a syllable or a consonant in UTF-8

/// The code point of the letter of three bytes that begins there; 0 where none does.
unsigned LetterOfThree(std::string_view text, size_t at) {
  const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[at + i]); };
  if (text.size() - at < kLetterBytes || (byte(0) & 0xF0U) != 0xE0U) return 0;
  return ((byte(0) & 0x0FU) << 12U) | ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
}

bool IsInitials(std::string_view word) {
  if (word.size() % kLetterBytes != 0) return false;
  for (size_t at = 0; at < word.size(); at += kLetterBytes) {
    const std::string_view letter = word.substr(at, kLetterBytes);
    if (std::find(kInitials.begin(), kInitials.end(), letter) == kInitials.end()) return false;
  }
  return true;
}

std::string WithoutCommas(std::string_view text) {
  std::string plain(text);
  std::erase(plain, ',');
  return plain;
}

bool IsGroupedFigure(std::string_view text) {
  return text.find(',') != std::string_view::npos && IsNumeric(text);
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  for (size_t at = text.find_first_not_of(' '); at != std::string_view::npos;) {
    const size_t end = std::min(text.find(' ', at), text.size());
    words.emplace_back(text.substr(at, end - at));
    at = text.find_first_not_of(' ', end);
  }
  return words;
}

}  // namespace

bool HasWords(std::string_view text) {
  return text.find_first_not_of(' ') != std::string_view::npos;
}

std::string InitialsOf(std::string_view text) {
  std::string initials;
  initials.reserve(text.size());
  for (size_t at = 0; at < text.size();) {
    const unsigned letter = LetterOfThree(text, at);
    if (letter >= kFirstSyllable && letter <= kLastSyllable) {
      initials += kInitials[(letter - kFirstSyllable) / kSyllablesOfInitial];
      at += kLetterBytes;
    } else {
      initials += text[at++];
    }
  }
  return initials;
}

std::string RowFilter::TextOf(int row) const {
  std::string text;
  for (const int column : columns_) {
    const std::string_view cell = NameOfEntry(grid_.TextMatrix(row, column));
    text += cell;
    text += '\n';
    if (IsGroupedFigure(cell)) text += WithoutCommas(cell) + '\n';
  }
  return text;
}

void RowFilter::Read() {
  if (texts_) return;
  texts_.emplace();
  for (int row = grid_.FixedRows(); row < grid_.Rows(); ++row) texts_->Append(TextOf(row));
  texts_->Seal();
}

std::vector<std::uint32_t> RowFilter::RowsWith(const std::string& word) {
  const auto find = [](const TextColumn& texts, const std::string& needle) {
    std::vector<std::uint32_t> rows;
    texts.FindAll({.needle = needle, .fromStart = false, .toEnd = false}, rows);
    return rows;
  };
  if (IsInitials(word)) {
    if (!initials_) {
      initials_.emplace();
      for (std::uint32_t row = 0; row < texts_->Rows(); ++row) {
        initials_->Append(InitialsOf(texts_->At(row)));
      }
      initials_->Seal();
    }
    return find(*initials_, word);
  }
  std::vector<std::uint32_t> rows = find(*texts_, word);
  if (!IsGroupedFigure(word)) return rows;
  const std::vector<std::uint32_t> plain = find(*texts_, WithoutCommas(word));
  rows.insert(rows.end(), plain.begin(), plain.end());
  return rows;
}

std::vector<bool> RowFilter::Find(std::string_view text) {
  Read();
  std::vector<bool> found;
  for (const std::string& word : WordsOf(text)) {
    std::vector<bool> with(static_cast<size_t>(grid_.Rows()), false);
    for (const std::uint32_t row : RowsWith(word)) {
      const size_t gridRow = row + static_cast<size_t>(grid_.FixedRows());
      with[gridRow] = found.empty() || found[gridRow];
    }
    found = std::move(with);
  }
  return found;
}

}  // namespace store
