#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/grid.h"
#include "gateway/text_column.h"

namespace store {

/// The initial consonants of a text: "우유" gives "ㅇㅇ". What is no syllable of Hangul stays.
std::string InitialsOf(std::string_view text);

/// Finds the rows of a grid in which every word of a text occurs, each in any of the columns: ASCII
/// letters without case, a figure with or without its grouping commas, and initial consonants for
/// the syllables that they begin ("ㅋㄹ" finds "콜라"). The texts of the rows are read once, at the
/// first search, and stand in one run of bytes.
class RowFilter {
 public:
  RowFilter(const Grid& grid, std::vector<int> columns)
      : grid_(grid), columns_(std::move(columns)) {}

  /// Whether each row of the grid, by its number, is found; `text` has at least one word.
  std::vector<bool> Find(std::string_view text);

 private:
  void Read();
  std::string TextOf(int row) const;
  std::vector<std::uint32_t> RowsWith(const std::string& word);

  const Grid& grid_;
  std::vector<int> columns_;
  std::optional<TextColumn> texts_;
  std::optional<TextColumn> initials_;  // once a word of consonants has been looked for
};

/// Whether the text has a word to look for.
bool HasWords(std::string_view text);

}  // namespace store
