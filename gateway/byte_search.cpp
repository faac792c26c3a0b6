#include "gateway/byte_search.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
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
  std::vector<size_t> places(folded_.size());
  std::iota(places.begin(), places.end(), size_t{0});
  const size_t wanted = std::min(places.size(), watched_.size());
  std::partial_sort(places.begin(), places.begin() + static_cast<std::ptrdiff_t>(wanted),
                    places.end(), [&](size_t a, size_t b) { return rarity(a) < rarity(b); });
  for (size_t i = 0; i < watched_.size() && wanted > 0; ++i) watched_[i] = places[i % wanted];
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
  __m128i wanted[3];
  __m128i caseBit[3];
  for (size_t i = 0; i < watched_.size(); ++i) {
    const char byte = folded_[watched_[i]];
    wanted[i] = _mm_set1_epi8(byte);
    caseBit[i] = _mm_set1_epi8(IsAsciiLetter(byte) ? char{0x20} : char{0});
  }
  const auto meets = [&](size_t position, size_t i) {
    const __m128i bytes =
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(run.data() + position + watched_[i]));
    return _mm_cmpeq_epi8(_mm_or_si128(bytes, caseBit[i]), wanted[i]);
  };
  for (; at + 15 <= last; at += 16) {
    const __m128i all = _mm_and_si128(_mm_and_si128(meets(at, 0), meets(at, 1)), meets(at, 2));
    auto hits = static_cast<std::uint32_t>(_mm_movemask_epi8(all));
    while (hits != 0) {
      const size_t place = at + static_cast<size_t>(__builtin_ctz(hits));
      if (EqualAt(run.data() + place)) return place;
      hits &= hits - 1;
    }
  }
#endif
  for (; at <= last; ++at) {
    if (FoldAscii(run[at + watched_[0]]) == folded_[watched_[0]] && EqualAt(run.data() + at)) {
      return at;
    }
  }
  return npos;
}

}  // namespace store
