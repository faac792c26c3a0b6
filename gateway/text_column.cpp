#include "gateway/text_column.h"

#include <algorithm>

#include "gateway/byte_search.h"

namespace store {
namespace {

constexpr char kSeparator = '\x1f';
constexpr std::uint32_t kBlock = 16;
constexpr std::uint8_t kLong = 255;

/// Whether a hit at `place` is one within the text from `start` to `end`. A text that holds the
/// separator byte itself can look like a border between two.
bool Stands(size_t place, size_t start, size_t end, const TextMatch& match) {
  if (place < start || place + match.needle.size() > end) return false;
  return (!match.fromStart || place == start) &&
         (!match.toEnd || place + match.needle.size() == end);
}

}  // namespace

void TextColumn::NoteLength(size_t length) {
  if (rows_ == 0) commonLength_ = static_cast<std::uint32_t>(length);
  if (uniform_ && length != commonLength_) {
    // The first text of another length: from here on every row needs its own. Block starts of the
    // rows so far follow from the common length.
    uniform_ = false;
    const bool isLong = commonLength_ >= kLong;
    shortLengths_.assign(rows_, isLong ? kLong : static_cast<std::uint8_t>(commonLength_));
    for (std::uint32_t r = 0; r < rows_; ++r) {
      if (isLong) longLengths_.emplace_back(r, commonLength_);
      if (r % kBlock == 0) blockStarts_.push_back(r * (commonLength_ + 1) + 1);
    }
  }
  if (uniform_) return;
  if (rows_ % kBlock == 0) blockStarts_.push_back(static_cast<std::uint32_t>(arena_.size() + 1));
  if (length >= kLong) longLengths_.emplace_back(rows_, static_cast<std::uint32_t>(length));
  shortLengths_.push_back(length >= kLong ? kLong : static_cast<std::uint8_t>(length));
}

void TextColumn::Append(std::string_view value) {
  NoteLength(value.size());
  arena_.push_back(kSeparator);
  arena_.append(value);
  if (!nulls_.empty()) nulls_.push_back(false);
  ++rows_;
}

void TextColumn::AppendNull() {
  if (nulls_.empty()) nulls_.assign(rows_, false);
  NoteLength(0);
  arena_.push_back(kSeparator);
  nulls_.push_back(true);
  ++rows_;
}

void TextColumn::Seal() {
  arena_.push_back(kSeparator);
  arena_.shrink_to_fit();
  shortLengths_.shrink_to_fit();
  longLengths_.shrink_to_fit();
  blockStarts_.shrink_to_fit();
  nulls_.shrink_to_fit();
}

size_t TextColumn::Length(std::uint32_t row) const {
  if (uniform_) return commonLength_;
  if (shortLengths_[row] != kLong) return shortLengths_[row];
  const auto found =
      std::lower_bound(longLengths_.begin(), longLengths_.end(), row,
                       [](const auto& entry, std::uint32_t r) { return entry.first < r; });
  return found->second;
}

size_t TextColumn::Start(std::uint32_t row) const {
  if (uniform_) return size_t{row} * (commonLength_ + 1) + 1;
  size_t start = blockStarts_[row / kBlock];
  for (std::uint32_t r = row - row % kBlock; r < row; ++r) start += Length(r) + 1;
  return start;
}

std::string_view TextColumn::At(std::uint32_t row) const {
  return std::string_view(arena_).substr(Start(row), Length(row));
}

bool TextColumn::IsNull(std::uint32_t row) const { return !nulls_.empty() && nulls_[row]; }

bool TextColumn::Meets(std::uint32_t row, const TextMatch& match) const {
  if (IsNull(row)) return false;
  const std::string_view text = At(row);
  const size_t length = match.needle.size();
  if (text.size() < length) return false;
  if (match.fromStart && match.toEnd && text.size() != length) return false;
  if (match.fromStart) return SameFolded(text.substr(0, length), match.needle);
  if (match.toEnd) return SameFolded(text.substr(text.size() - length), match.needle);
  const auto same = [](char a, char b) { return FoldAscii(a) == FoldAscii(b); };
  return std::search(text.begin(), text.end(), match.needle.begin(), match.needle.end(), same) !=
         text.end();
}

void TextColumn::FindAll(const TextMatch& match, std::vector<std::uint32_t>& rows) const {
  if (match.needle.empty() && !(match.fromStart && match.toEnd)) {
    for (std::uint32_t r = 0; r < rows_; ++r) {
      if (!IsNull(r)) rows.push_back(r);
    }
    return;
  }
  // The separators turn "begins with" and "ends with" into parts of the searched text.
  std::string wanted = match.needle;
  if (match.fromStart) wanted.insert(wanted.begin(), kSeparator);
  if (match.toEnd) wanted.push_back(kSeparator);
  const ByteSearch search(wanted, arena_);

  std::uint32_t row = 0;
  size_t start = 1;  // arena position of `row`'s text
  size_t from = 0;
  for (;;) {
    const size_t hit = search.Next(arena_, from);
    if (hit == ByteSearch::npos) return;
    const size_t place = hit + (match.fromStart ? 1 : 0);  // where the needle itself begins
    if (place == 0) {  // a needle that begins with the separator byte met the first border
      from = 1;
      continue;
    }
    if (uniform_) {
      row = static_cast<std::uint32_t>((place - 1) / (commonLength_ + 1));
      start = Start(row);
    } else {
      // Hits come in order, so the next one is seldom many blocks ahead.
      size_t block = row / kBlock;
      while (block + 1 < blockStarts_.size() && blockStarts_[block + 1] <= place) ++block;
      if (block > row / kBlock) {
        row = static_cast<std::uint32_t>(block) * kBlock;
        start = blockStarts_[block];
      }
      while (start + Length(row) < place) start += Length(row++) + 1;
    }
    if (row < rows_ && !IsNull(row) && Stands(place, start, start + Length(row), match)) {
      rows.push_back(row);
      from = start + Length(row);
    } else {
      from = hit + 1;
    }
  }
}

size_t TextColumn::BytesHeld() const {
  return sizeof(*this) + arena_.capacity() + shortLengths_.capacity() +
         longLengths_.capacity() * sizeof(longLengths_[0]) +
         blockStarts_.capacity() * sizeof(blockStarts_[0]) + nulls_.capacity() / 8;
}

}  // namespace store
