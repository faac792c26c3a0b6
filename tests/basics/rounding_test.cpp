#include <gtest/gtest.h>

#include "basics/formats.h"
#include "basics/records.h"
#include "basics/round_text.h"

namespace store {
namespace {

class Rounding : public testing::Test {
 protected:
  void TearDown() override {
    BaseSettings = {};
    ResetFormats();
  }
};

TEST_F(Rounding, OfAmountsIsHalfUpToWholeWon) {
  BaseSettings.AmountDecimals = 0;
  FormatSetup();
  const std::pair<const char*, const char*> cases[] = {
      {"2.5", "3"},        {"2.4", "2"},   {"9.5", "10"},
      {"999.5", "1,000"},  {"-2.5", "-3"}, {"-0.4", "-0"},
      {"", "0"},           {"0", "0"},     {"1234567", "1,234,567"},
      {"1,234", "10,234"},  // the comma takes a place as a zero
      {"0.49999", "0"},    {"100", "100"}, {"1.15x", "1"},
  };
  for (const auto& [value, rounded] : cases) EXPECT_EQ(RoundText(value, "금액"), rounded) << value;
}

TEST_F(Rounding, OfQuantitiesAndPricesFollowsTheSettings) {
  struct Case {
    std::int16_t decimals;
    std::int16_t mode;
    const char* value;
    const char* rounded;
  };
  const Case cases[] = {
      {2, 3, "1.10", "1.10"},  {2, 3, "1.005", "1.01"}, {2, 3, "1.004", "1.00"},
      {2, 1, "1.001", "1.01"}, {0, 1, "1.05", "1"},  // only the first dropped digit is looked at
      {0, 1, "1.5", "2"},      {1, 3, "1.15", "1.2"},   {1, 0, "1.19", "1.1"},
      {1, 2, "-1.99", "-1.9"}, {1, 3, "9.95", "10.0"},  {3, 3, "1234.5", "1,234.500"},
      {2, 3, "", ".00"},       {0, 3, "99.5", "100"},   {-1, 3, "15.5", "16"},
  };
  for (const Case& c : cases) {
    BaseSettings.QtyDecimals = BaseSettings.PriceDecimals = c.decimals;
    BaseSettings.QtyRounding = BaseSettings.PriceRounding = c.mode;
    FormatSetup();
    EXPECT_EQ(RoundText(c.value, "수량"), c.rounded) << c.value << " to " << c.decimals;
    EXPECT_EQ(RoundText(c.value, "단가"), c.rounded) << c.value << " to " << c.decimals;
  }
}

TEST_F(Rounding, OfAnyOtherKindGivesPlainDigits) {
  BaseSettings.AmountDecimals = 2;
  BaseSettings.AmountRounding = 3;
  FormatSetup();
  EXPECT_EQ(RoundText("1234567.005", "세액"), "1234567.01");
  EXPECT_EQ(RoundText("1.100", "세액"), "1.1");
  EXPECT_EQ(RoundText("0.05", "세액"), "0.05");
  EXPECT_EQ(RoundText("10", "세액"), "10");
  EXPECT_EQ(RoundText("99.999", "세액"), "100");
}

TEST_F(Rounding, FormatsAreBuiltFromTheDecimals) {
  BaseSettings.QtyDecimals = 1;
  BaseSettings.PriceDecimals = 2;
  BaseSettings.AmountDecimals = -3;
  BaseSettings.RateDecimals = 4;
  FormatSetup();
  EXPECT_EQ(FormatQty, "###,###.0");
  EXPECT_EQ(FormatPrice, "###,###.#0");
  EXPECT_EQ(FormatAmount, "###,##0");
  EXPECT_EQ(FormatRate, "###,###.###0");
}

}  // namespace
}  // namespace store
