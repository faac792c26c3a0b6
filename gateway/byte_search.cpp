#include "gateway/byte_search.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <numeric>
#include <vector>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace store {
namespace {

bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

std::array<std::uint32_t, 256> CountFolded(std::string_view sample) {
  std::array<std::uint32_t, 256> counts{};
  // Counting the whole run would take longer than the search. 64 slices spread over it show well
  // enough which bytes are rare; one slice would not, since neighbours in a sorted column are
  // alike.
  constexpr size_t slices = 64;
  constexpr size_t sliceBytes = 64;
  const size_t stride = std::max(sample.size() / slices, sliceBytes);
  for (size_t at = 0; at < sample.size(); at += stride) {
    for (const char c : sample.substr(at, sliceBytes)) {
      ++counts[static_cast<unsigned char>(FoldAscii(c))];
    }
  }
  return counts;
}

}  // namespace

ByteSearch::ByteSearch(std::string_view needle, std::string_view sample) : folded_(needle) {
  std::transform(folded_.begin(), folded_.end(), folded_.begin(), FoldAscii);
  hasLetters_ = std::any_of(folded_.begin(), folded_.end(), IsAsciiLetter);
  const std::array<std::uint32_t, 256> counts = CountFolded(sample);
  const auto rarity = [&](size_t i) { return counts[static_cast<unsigned char>(folded_[i])]; };
  std::vector<size_t> places(folded_.size());
  std::iota(places.begin(), places.end(), size_t{0});
  const size_t wanted = std::min(places.size(), watched_.size());
  std::partial_sort(places.begin(), places.begin() + static_cast<std::ptrdiff_t>(wanted),
                    places.end(), [&](size_t a, size_t b) { return rarity(a) < rarity(b); });
  for (size_t i = 0; i < watched_.size() && wanted > 0; ++i) watched_[i] = places[i % wanted];
  watchesAll_ = folded_.size() <= watched_.size();
}

void ByteSearch::NoteIfEqual(std::string_view run, size_t place, Hits& hits) const {
  if (!watchesAll_) {
    const std::string_view text = run.substr(place, folded_.size());
    if (hasLetters_ ? !SameFolded(text, folded_) : text != folded_) return;
  }
  hits.places[hits.count++] = place;
}

bool SameFolded(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return FoldAscii(x) == FoldAscii(y);
         });
}

void ByteSearch::Next(std::string_view run, size_t from, Hits& hits) const {
  hits.count = 0;
  hits.next = npos;
  const size_t length = folded_.size();
  if (length == 0 || run.size() < length) return;
  const size_t last = run.size() - length;  // the last place where the needle can begin
  size_t at = from;
#ifdef __SSE2__
  // With the case bit set on both sides, a letter equals its capital and its small form only.
  struct Watch {
    const char* bytes;
    __m128i wanted;
    __m128i caseBit;
  };
  const auto watch = [&](size_t i) {
    const char byte = folded_[watched_[i]];
    return Watch{run.data() + watched_[i], _mm_set1_epi8(byte),
                 _mm_set1_epi8(IsAsciiLetter(byte) ? char{0x20} : char{0})};
  };
  const auto meets = [](const Watch& w, size_t position) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(w.bytes + position));
    return _mm_cmpeq_epi8(_mm_or_si128(bytes, w.caseBit), w.wanted);
  };
  const Watch first = watch(0);
  const Watch second = watch(1);
  const Watch third = watch(2);
  const auto meetsAll = [&](size_t position) {
    return _mm_and_si128(_mm_and_si128(meets(first, position), meets(second, position)),
                         meets(third, position));
  };
  for (; at + 63 <= last; at += 64) {
    if (hits.count + 64 > hits.places.size()) {
      hits.next = at;
      return;
    }
    const __m128i found[4] = {meetsAll(at), meetsAll(at + 16), meetsAll(at + 32),
                              meetsAll(at + 48)};
    const __m128i any =
        _mm_or_si128(_mm_or_si128(found[0], found[1]), _mm_or_si128(found[2], found[3]));
    if (_mm_movemask_epi8(any) == 0) continue;
    std::uint64_t places = 0;
    for (int i = 3; i >= 0; --i) {
      places = places << 16 | static_cast<std::uint32_t>(_mm_movemask_epi8(found[i]));
    }
    for (; places != 0; places &= places - 1) {
      NoteIfEqual(run, at + static_cast<size_t>(std::countr_zero(places)), hits);
    }
  }
#endif
  for (; at <= last; ++at) {
    if (hits.count == hits.places.size()) {
      hits.next = at;
      return;
    }
    if (SameFolded(run.substr(at, length), folded_)) hits.places[hits.count++] = at;
  }
}

}  // namespace store
