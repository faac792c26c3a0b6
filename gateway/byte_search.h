#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace store {

/// Finds one text (the needle) in a long run of bytes, ASCII letters without case. It compares only
/// the three bytes of the needle that are rarest in the run, and the rest where all three are met.
/// A search for the needle's first byte would stop far too often: nearly every syllable of Hangul
/// begins with one of a few bytes, and in codes and barcodes all ten digits are common.
class ByteSearch {
 public:
  /// `sample` is the run, or a good part of it, from which the rarity of bytes is judged.
  ByteSearch(std::string_view needle, std::string_view sample);

  static constexpr size_t npos = std::string_view::npos;

  /// Places where the needle begins, rising.
  struct Hits {
    std::array<size_t, 256> places;
    size_t count = 0;
    size_t next = npos;  ///< Where to go on from; npos when the run is done.
  };
  /// Fills `hits` with the occurrences at or after `from`, as many as fit. One call gives many of
  /// them, because each call costs some preparation and a common needle occurs every few hundred
  /// bytes.
  void Next(std::string_view run, size_t from, Hits& hits) const;

 private:
  void NoteIfEqual(std::string_view run, size_t place, Hits& hits) const;

  std::string folded_;
  bool hasLetters_ = false;
  bool watchesAll_ = false;          // a needle of up to three bytes is met where those are
  std::array<size_t, 3> watched_{};  // places in the needle; the same ones again in a short one
};

/// ASCII capital to small; every other byte stays.
inline char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

/// Whether two texts of equal length are the same, ASCII letters without case.
bool SameFolded(std::string_view a, std::string_view b);

}  // namespace store
