#include "gateway/text_column.h"

#include <algorithm>

#include "gateway/byte_search.h"

namespace store {
namespace {

constexpr char kSeparator = '\x1f';
constexpr std::uint32_t kBlock = 16;

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

size_t TextColumn::LongLength(std::uint32_t row) const {
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
  const size_t lead = match.fromStart ? 1 : 0;  // the needle itself begins behind the separator
  Spot spot;
  size_t taken = 0;  // end of the last row that met
  ByteSearch::Hits hits;
  for (size_t from = 0; from != ByteSearch::npos; from = hits.next) {
    search.Next(arena_, from, hits);
    for (size_t i = 0; i < hits.count; ++i) {
      const size_t place = hits.places[i] + lead;
      // A needle that begins with the separator byte can meet the border before the first text.
      if (hits.places[i] < taken || place == 0) continue;
      spot = GoTo(place, spot);
      const size_t end = spot.start + Length(spot.row);
      if (!Stands(place, spot.start, end, match) || IsNull(spot.row)) continue;
      rows.push_back(spot.row);
      taken = end;
    }
  }
}

TextColumn::Spot TextColumn::GoTo(size_t place, Spot from) const {
  if (uniform_) {
    const auto row = static_cast<std::uint32_t>((place - 1) / (commonLength_ + 1));
    return {row, Start(row)};
  }
  // Places come in order, so the next one is seldom many blocks ahead.
  const size_t former = from.row / kBlock;
  size_t block = former;
  while (block + 1 < blockStarts_.size() && blockStarts_[block + 1] <= place) ++block;
  if (block > former) from = {static_cast<std::uint32_t>(block) * kBlock, blockStarts_[block]};
  for (size_t next = 0; (next = from.start + Length(from.row) + 1) <= place; ++from.row) {
    from.start = next;
  }
  return from;
}

size_t TextColumn::BytesHeld() const {
  return sizeof(*this) + arena_.capacity() + shortLengths_.capacity() +
         longLengths_.capacity() * sizeof(longLengths_[0]) +
         blockStarts_.capacity() * sizeof(blockStarts_[0]) + nulls_.capacity() / 8;
}

}  // namespace store
