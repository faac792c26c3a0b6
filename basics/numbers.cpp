#include "basics/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "basics/text.h"

namespace store {
namespace {

constexpr int kSignificantDigits = 15;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// What a scan over the start of a text found.
struct Scan {
  double value = 0;
  bool number = false;  // at least one digit
  size_t length = 0;    // bytes looked at, blanks in front included
};

Scan ScanNumber(std::string_view text, bool grouped) {
  std::string plain;
  size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
    if (text[i] == '-') plain += '-';
    ++i;
  }
  Scan scan;
  bool point = false;
  for (; i < text.size(); ++i) {
    if (IsDigit(text[i])) {
      scan.number = true;
      plain += text[i];
    } else if (text[i] == '.' && !point) {
      point = true;
      plain += '.';
    } else if (!(grouped && scan.number && !point && text[i] == ',')) {
      break;
    }
  }
  scan.length = i;
  std::from_chars(plain.data(), plain.data() + plain.size(), scan.value);
  return scan;
}

// A number's decimal digits on both sides of the point: no zeros before the whole part nor after
// the fraction.
struct Digits {
  bool negative = false;
  std::string whole;
  std::string fraction;
};

Digits DigitsOf(double value) {
  Digits digits;
  if (!std::isfinite(value) || value == 0) return digits;
  digits.negative = value < 0;
  // "d.dddddddddddddde+xx": one digit, the point, fourteen digits, the exponent.
  char text[40];
  const auto end = std::to_chars(text, text + sizeof text, std::abs(value),
                                 std::chars_format::scientific, kSignificantDigits - 1);
  const std::string_view written(text, static_cast<size_t>(end.ptr - text));
  const size_t mark = written.find('e');
  std::string all(1, written[0]);
  all += written.substr(2, mark - 2);
  all.erase(all.find_last_not_of('0') + 1);
  const char* exponentText = written.data() + mark + (written[mark + 1] == '+' ? 2 : 1);
  int exponent = 0;
  std::from_chars(exponentText, end.ptr, exponent);

  if (exponent < 0) {
    digits.fraction = std::string(static_cast<size_t>(-exponent - 1), '0') + all;
    return digits;
  }
  const size_t wholeLength = static_cast<size_t>(exponent) + 1;
  digits.whole = all.substr(0, wholeLength);
  digits.whole.append(wholeLength - digits.whole.size(), '0');
  if (all.size() > wholeLength) digits.fraction = all.substr(wholeLength);
  return digits;
}

// Cuts the fraction to `places` digits, half away from zero.
void RoundTo(Digits& digits, size_t places) {
  if (digits.fraction.size() <= places) return;
  const bool up = digits.fraction[places] >= '5';
  digits.fraction.resize(places);
  if (!up) return;
  std::string all = digits.whole + digits.fraction;
  size_t i = all.size();
  while (i > 0 && all[i - 1] == '9') all[--i] = '0';
  if (i > 0) {
    ++all[i - 1];
  } else {
    all.insert(0, 1, '1');
  }
  digits.whole = all.substr(0, all.size() - places);
  digits.fraction = all.substr(all.size() - places);
}

struct Mask {
  size_t leastWhole = 0;
  size_t leastDecimals = 0;
  size_t mostDecimals = 0;
  bool grouped = false;
};

Mask ReadMask(std::string_view text) {
  Mask mask;
  bool point = false;
  for (const char c : text) {
    if (c == '.') point = true;
    if (c == ',') mask.grouped = true;
    if (c != '#' && c != '0') continue;
    if (point) {
      ++mask.mostDecimals;
      if (c == '0') mask.leastDecimals = mask.mostDecimals;
    } else if (c == '0' || mask.leastWhole > 0) {
      ++mask.leastWhole;
    }
  }
  return mask;
}

std::string Grouped(const std::string& whole) {
  std::string grouped;
  for (size_t i = 0; i < whole.size(); ++i) {
    if (i > 0 && (whole.size() - i) % 3 == 0) grouped += ',';
    grouped += whole[i];
  }
  return grouped;
}

}  // namespace

double ParseNumber(std::string_view text) { return ScanNumber(text, false).value; }

double ParseGrouped(std::string_view text) { return ScanNumber(text, true).value; }

bool IsNumeric(std::string_view text) {
  const Scan scan = ScanNumber(text, true);
  return scan.number && text.find_first_not_of(' ', scan.length) == std::string_view::npos;
}

std::string NumberText(double value) {
  const Digits digits = DigitsOf(value);
  std::string text = digits.negative ? "-" : "";
  text += digits.whole.empty() ? "0" : digits.whole;
  if (!digits.fraction.empty()) text += "." + digits.fraction;
  return text;
}

bool ToInt16(double value, std::int16_t& target) {
  const double rounded = std::nearbyint(value);
  using Limits = std::numeric_limits<std::int16_t>;
  if (!(rounded >= Limits::min() && rounded <= Limits::max())) return false;
  target = static_cast<std::int16_t>(rounded);
  return true;
}

std::string FormatNumber(double value, std::string_view maskText) {
  if (maskText.empty()) return NumberText(value);
  const Mask mask = ReadMask(maskText);
  Digits digits = DigitsOf(value);
  RoundTo(digits, mask.mostDecimals);

  digits.whole.erase(0, digits.whole.find_first_not_of('0'));
  digits.fraction.erase(digits.fraction.find_last_not_of('0') + 1);
  const bool nothingLeft = digits.whole.empty() && digits.fraction.empty();
  if (digits.whole.size() < mask.leastWhole)
    digits.whole.insert(0, mask.leastWhole - digits.whole.size(), '0');
  if (digits.fraction.size() < mask.leastDecimals)
    digits.fraction.append(mask.leastDecimals - digits.fraction.size(), '0');

  std::string text = digits.negative && !nothingLeft ? "-" : "";
  text += mask.grouped ? Grouped(digits.whole) : digits.whole;
  if (!digits.fraction.empty()) text += "." + digits.fraction;
  return text;
}

std::string FormatText(std::string_view text, std::string_view mask) {
  if (mask.empty() || !IsNumeric(text)) return std::string(text);
  return FormatNumber(ParseGrouped(text), mask);
}

std::string PlainNumber(std::string_view text) { return FormatText(text, "######.####"); }

}  // namespace store
