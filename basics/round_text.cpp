#include "basics/round_text.h"

#include <algorithm>
#include <vector>

#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"

namespace store {
namespace {

constexpr int kUpOnAnyDigit = 1;
constexpr int kHalfUp = 3;

struct Rounding {
  int decimals;
  int mode;
  std::string format;
};

Rounding RoundingOf(std::string_view kind) {
  const BaseSettingsRecord& set = BaseSettings;
  if (kind == set.QtyKind) return {set.QtyDecimals, set.QtyRounding, FormatQty};
  if (kind == set.PriceKind) return {set.PriceDecimals, set.PriceRounding, FormatPrice};
  if (kind == set.AmountKind) return {0, kHalfUp, FormatAmount};
  return {set.AmountDecimals, set.AmountRounding, ""};
}

// The digits of a number in cells 1 and up; cell 0 is room for a carry. The decimals begin at cell
// `point`. What is no digit, a sign among it, counts as 0.
struct DigitTable {
  std::vector<int> cells;
  size_t point;
};

DigitTable ReadDigits(std::string_view value, size_t decimals) {
  const size_t length = value.size();
  const size_t found = value.find('.');
  const size_t point = found == std::string_view::npos ? length + 1 : found + 1;
  const size_t digits = found == std::string_view::npos ? length : length - 1;
  // One cell behind the wanted decimals, as it decides on rounding.
  DigitTable table{std::vector<int>(std::max(digits, point + decimals) + 1, 0), point};
  for (size_t i = 1; i < table.cells.size(); ++i) {
    const size_t at = i < point ? i : i + 1;
    if (at > length) continue;
    const char c = value[at - 1];
    if (c >= '0' && c <= '9') table.cells[i] = c - '0';
  }
  return table;
}

void RoundUp(DigitTable& table, size_t last) {
  ++table.cells[last];
  for (size_t i = last; i > 0 && table.cells[i] >= 10; --i) {
    table.cells[i] = 0;
    ++table.cells[i - 1];
  }
}

// From the right end: zeros behind the last kept decimal fall away, the whole part keeps its
// digits.
std::string ReadOut(const DigitTable& table, size_t last) {
  std::string reversed;
  const size_t units = table.point - 1;
  for (size_t k = last; k >= 1; --k) {
    const bool started = !reversed.empty();
    if (k == units && started) reversed += '.';
    if (table.cells[k] != 0 || started || k == units)
      reversed += static_cast<char>('0' + table.cells[k]);
  }
  if (table.cells[0] != 0) reversed += '1';
  std::string text(reversed.rbegin(), reversed.rend());
  return text.empty() ? "0" : text;
}

}  // namespace

std::string RoundText(std::string_view value, std::string_view kind) {
  const Rounding rounding = RoundingOf(kind);
  const auto decimals = static_cast<size_t>(std::max(rounding.decimals, 0));
  DigitTable table = ReadDigits(value, decimals);
  const size_t last = decimals + table.point - 1;
  const int dropped = table.cells[last + 1];
  const bool up = (rounding.mode == kUpOnAnyDigit && dropped != 0) ||
                  (rounding.mode == kHalfUp && dropped >= 5);
  if (up) RoundUp(table, last);
  const std::string text = FormatText(ReadOut(table, last), rounding.format);
  return ParseNumber(value) < 0 ? "-" + text : text;
}

}  // namespace store
