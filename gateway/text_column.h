#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace store {

/// A text to look for, and whether it must stand at the start, at the end, or be the whole value.
/// ASCII letters compare without case, as in the database.
struct TextMatch {
  std::string needle;
  bool fromStart = true;  ///< The text must begin with the needle.
  bool toEnd = true;      ///< The text must end with the needle.
};

/// One column of a recordset. All its texts stand in one run of bytes (the arena), with a separator
/// byte before each, so that the whole item list is searched by one scan over the run. To find a
/// row's text, the column keeps the start of each 16th row and the length of every row, in one byte
/// where that is enough. While all texts are of one length, as codes are, it keeps neither.
class TextColumn {
 public:
  void Append(std::string_view value);
  void AppendNull();
  void Seal();

  std::uint32_t Rows() const { return rows_; }
  std::string_view At(std::uint32_t row) const;
  bool IsNull(std::uint32_t row) const;

  /// Appends the numbers of all rows that meet `match`, in rising order. NULL meets nothing.
  void FindAll(const TextMatch& match, std::vector<std::uint32_t>& rows) const;
  bool Meets(std::uint32_t row, const TextMatch& match) const;

  size_t BytesHeld() const;
  size_t BytesOfTexts() const { return arena_.size() - rows_ - 1; }

 private:
  void NoteLength(size_t length);
  size_t Length(std::uint32_t row) const {
    if (uniform_) return commonLength_;
    return shortLengths_[row] != kLong ? shortLengths_[row] : LongLength(row);
  }
  size_t LongLength(std::uint32_t row) const;
  size_t Start(std::uint32_t row) const;
  /// A row and the arena position of its text.
  struct Spot {
    std::uint32_t row = 0;
    size_t start = 1;
  };
  /// The row whose text covers `place` of the arena; `from` is that row or one before it.
  Spot GoTo(size_t place, Spot from) const;

  static constexpr std::uint8_t kLong = 255;

  std::string arena_;  // separator, text, separator, text, ... and one separator at the end
  std::vector<std::uint8_t> shortLengths_;  // by row; kLong: the length stands in longLengths_
  std::vector<std::pair<std::uint32_t, std::uint32_t>> longLengths_;  // row, length; rising
  std::vector<std::uint32_t> blockStarts_;  // arena position of each 16th row's text
  std::vector<bool> nulls_;                 // empty while no row is NULL
  std::uint32_t rows_ = 0;
  std::uint32_t commonLength_ = 0;  // holds while uniform_
  bool uniform_ = true;
};

}  // namespace store
