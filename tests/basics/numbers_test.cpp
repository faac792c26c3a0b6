#include "basics/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace store {
namespace {

TEST(Numbers, AreReadFromTheFrontOfAText) {
  struct Case {
    const char* text;
    double plain;
    double grouped;
    bool numeric;
  };
  const Case cases[] = {
      {"", 0, 0, false},
      {"12", 12, 12, true},
      {"  -12.50 ", -12.5, -12.5, true},
      {"+3", 3, 3, true},
      {".5", 0.5, 0.5, true},
      {"5.", 5, 5, true},
      {"1,234,567.5", 1, 1234567.5, true},
      {"-1,234", -1, -1234, true},
      {"1.2,3", 1.2, 1.2, false},
      {",5", 0, 0, false},
      {"12개", 12, 12, false},
      {"1.2.3", 1.2, 1.2, false},
      {"1e3", 1, 1, false},  // a user code inside a key is no exponent
      {"12 34", 12, 12, false},
      {"0x10", 0, 0, false},
      {"-", 0, 0, false},
      {".", 0, 0, false},
      {"5-", 5, 5, false},
      {"inf", 0, 0, false},
      {"가1", 0, 0, false},
  };
  for (const Case& c : cases) {
    EXPECT_DOUBLE_EQ(ParseNumber(c.text), c.plain) << c.text;
    EXPECT_DOUBLE_EQ(ParseGrouped(c.text), c.grouped) << c.text;
    EXPECT_EQ(IsNumeric(c.text), c.numeric) << c.text;
  }
}

TEST(Numbers, AreWrittenShortAndWithoutExponent) {
  const std::pair<double, const char*> cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {1500, "1500"},
      {0.285 * 100, "28.5"},
      {0.1 + 0.2, "0.3"},
      {-0.5, "-0.5"},
      {1.0 / 3, "0.333333333333333"},
      {0.00001, "0.00001"},
      {100000000000000000.0, "100000000000000000"},
      {123456789012345678.0, "123456789012346000"},
      {999999999999999.9, "1000000000000000"},
      {1.1 * 1.1, "1.21"},
      {std::numeric_limits<double>::infinity(), "0"},
      {std::nan(""), "0"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(NumberText(value), text);
}

TEST(Numbers, GoTo16BitsHalfToEvenOrNotAtAll) {
  const std::pair<double, int> cases[] = {
      {0.5, 0},    {1.5, 2},         {2.5, 2},          {-0.5, 0},
      {-1.5, -2},  {32767.4, 32767}, {32767.5, 7},      {-32768.5, -32768},
      {-32769, 7}, {1e300, 7},       {std::nan(""), 7},
  };
  for (const auto& [value, expected] : cases) {
    std::int16_t target = 7;
    EXPECT_EQ(ToInt16(value, target), expected != 7) << value;
    EXPECT_EQ(target, expected) << value;
  }
}

TEST(Numbers, PrintByMask) {
  struct Case {
    double value;
    const char* mask;
    const char* text;
  };
  const Case cases[] = {
      {0, "###,##0", "0"},
      {1234567, "###,##0", "1,234,567"},
      {-1234.5, "###,##0", "-1,235"},
      {2.5, "###,##0", "3"},
      {-0.4, "###,##0", "0"},
      {999.5, "###,##0", "1,000"},
      {0.285 * 100, "#", "29"},
      {1.005, "#,###.##", "1.01"},  // as it reads, not as it is stored
      {0, "#,###", ""},
      {0.4, "#,###", ""},
      {1000, "#,###", "1,000"},
      {0, "#,###.##", ""},
      {-0.001, "#,###.##", ""},
      {1234.5, "#,###.##", "1,234.5"},
      {1234, "#,###.##", "1,234"},
      {0.25, "#,###.##", ".25"},
      {1234.5678, "######.####", "1234.5678"},
      {12345678.00005, "######.####", "12345678.0001"},
      {-7, "######.####", "-7"},
      {1.1, "###,###.#0", "1.10"},
      {1, "###,###.#0", "1.00"},
      {0, "###,###.#0", ".00"},
      {-0.004, "###,###.#0", ".00"},
      {1234.567, "###,###.#0", "1,234.57"},
      {99.999, "###,###.#0", "100.00"},
      {7, "0000", "0007"},
      {12345, "0000", "12345"},
      {123.45, "", "123.45"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(FormatNumber(c.value, c.mask), c.text) << c.value << " by " << c.mask;
}

TEST(Numbers, InCellsAreFormattedAndOtherTextIsLeftAlone) {
  EXPECT_EQ(FormatText("1,234.5", "###,##0"), "1,235");
  EXPECT_EQ(FormatText(" 12 ", "0000"), "0012");
  EXPECT_EQ(FormatText("", "###,##0"), "");
  EXPECT_EQ(FormatText("품절", "###,##0"), "품절");
  EXPECT_EQ(FormatText("1e3", "###,##0"), "1e3");
  EXPECT_EQ(PlainNumber("1,234,567.50"), "1234567.5");
  EXPECT_EQ(PlainNumber("0"), "");
  EXPECT_EQ(PlainNumber("-3,000"), "-3000");
}

}  // namespace
}  // namespace store
