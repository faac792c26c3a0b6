#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace store::demo {

/// A small generator of our own (splitmix64): the standard distributions differ between libraries,
/// and the same arguments must give the same franchise on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
  }

  /// A whole number from low to high, both included.
  std::int64_t Between(std::int64_t low, std::int64_t high) {
    return low + static_cast<std::int64_t>(Next() % static_cast<std::uint64_t>(high - low + 1));
  }

  /// A position in a sequence of that length.
  std::size_t Index(std::size_t length) { return static_cast<std::size_t>(Next() % length); }

  /// True that many times in a hundred.
  bool Percent(int chance) { return Between(1, 100) <= chance; }

  /// True that many times in `of`.
  bool OneOf(std::int64_t times, std::int64_t of) { return Between(1, of) <= times; }

  template <typename Sequence>
  const auto& Pick(const Sequence& sequence) {
    return sequence[Index(std::size(sequence))];
  }

 private:
  std::uint64_t state_;
};

}  // namespace store::demo
