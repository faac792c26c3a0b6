#include "gateway/byte_search.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace store {
namespace {

bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

std::array<std::uint32_t, 256> CountFolded(std::string_view sample) {
  std::array<std::uint32_t, 256> counts{};
  // A slice from the middle tells enough; counting millions of bytes would cost more than it saves.
  constexpr size_t slice = 16384;
  if (sample.size() > slice) sample = sample.substr((sample.size() - slice) / 2, slice);
  for (const char c : sample) ++counts[static_cast<unsigned char>(FoldAscii(c))];
  return counts;
}

}  // namespace

ByteSearch::ByteSearch(std::string_view needle, std::string_view sample) : folded_(needle) {
  std::transform(folded_.begin(), folded_.end(), folded_.begin(), FoldAscii);
  hasLetters_ = std::any_of(folded_.begin(), folded_.end(), IsAsciiLetter);
  const std::array<std::uint32_t, 256> counts = CountFolded(sample);
  const auto rarity = [&](size_t i) { return counts[static_cast<unsigned char>(folded_[i])]; };
  size_t best = 0;
  for (size_t i = 1; i < folded_.size(); ++i) {
    if (rarity(i) < rarity(best)) best = i;
  }
  size_t next = best == 0 && folded_.size() > 1 ? 1 : 0;
  for (size_t i = 0; i < folded_.size(); ++i) {
    if (i != best && rarity(i) < rarity(next)) next = i;
  }
  first_ = std::min(best, next);
  second_ = std::max(best, next);
}

bool ByteSearch::EqualAt(const char* place) const {
  if (!hasLetters_) return std::memcmp(place, folded_.data(), folded_.size()) == 0;
  return SameFolded(std::string_view(place, folded_.size()), folded_);
}

bool SameFolded(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return FoldAscii(x) == FoldAscii(y);
         });
}

size_t ByteSearch::Next(std::string_view run, size_t from) const {
  const size_t length = folded_.size();
  if (length == 0) return from <= run.size() ? from : npos;
  if (run.size() < length) return npos;
  const size_t last = run.size() - length;  // the last place where the needle can begin
  size_t at = from;
#ifdef __SSE2__
  // A letter is compared with its case bit set on both sides; the few other bytes that this also
  // lets pass fall out in EqualAt.
  const auto caseBit = [&](size_t i) {
    return _mm_set1_epi8(IsAsciiLetter(folded_[i]) ? char{0x20} : char{0});
  };
  const __m128i wantedFirst = _mm_set1_epi8(folded_[first_]);
  const __m128i wantedSecond = _mm_set1_epi8(folded_[second_]);
  const __m128i bitFirst = caseBit(first_);
  const __m128i bitSecond = caseBit(second_);
  const auto load = [&](size_t position) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(run.data() + position));
  };
  for (; at + 15 <= last; at += 16) {
    const __m128i a = _mm_cmpeq_epi8(_mm_or_si128(load(at + first_), bitFirst), wantedFirst);
    const __m128i b = _mm_cmpeq_epi8(_mm_or_si128(load(at + second_), bitSecond), wantedSecond);
    auto hits = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_and_si128(a, b)));
    while (hits != 0) {
      const size_t place = at + static_cast<size_t>(__builtin_ctz(hits));
      if (EqualAt(run.data() + place)) return place;
      hits &= hits - 1;
    }
  }
#endif
  for (; at <= last; ++at) {
    if (FoldAscii(run[at + first_]) == folded_[first_] && EqualAt(run.data() + at)) return at;
  }
  return npos;
}

}  // namespace store
