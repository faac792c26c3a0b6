#include "demo/barcode.h"

#include <cstdint>

namespace store::demo {

char CheckDigit(std::string_view twelve) {
  int sum = 0;
  int weight = 1;
  for (const char digit : twelve) {
    sum += (digit - '0') * weight;
    weight = 4 - weight;
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

std::string Barcode(std::size_t n) {
  // A factor without a common divisor with the modulus maps different n to different numbers.
  constexpr std::uint64_t kNumbers = 1'000'000'000;
  constexpr std::uint64_t kFactor = 387'420'489;
  constexpr std::uint64_t kOffset = 104'395'301;
  const std::uint64_t number = (n % kNumbers * kFactor + kOffset) % kNumbers;
  const std::string digits = std::to_string(number);
  std::string code = "880" + std::string(9 - digits.size(), '0') + digits;
  code += CheckDigit(code);
  return code;
}

}  // namespace store::demo
