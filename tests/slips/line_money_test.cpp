#include "slips/line_money.h"

#include <gtest/gtest.h>

#include "basics/formats.h"
#include "basics/records.h"
#include "slips/process_state.h"

namespace store {
namespace {

constexpr const char* kOnTop = "0";
constexpr const char* kFree = "1";
constexpr const char* kWithin = "2";
constexpr const char* kCut = "0";
constexpr const char* kRound = "1";

class LineMoneyRules : public testing::Test {
 protected:
  LineMoneyRules() {
    ResetProcessState();
    BaseSettings.VatPercent = "10";
    FormatSetup();
  }
};

TEST_F(LineMoneyRules, SplitEachLineIntoSupplyAndTax) {
  const struct {
    double quantity;
    double price;
    const char* taxKind;
    const char* rounding;
    double supply;
    double tax;
  } cases[] = {
      // Nothing bought costs nothing, whatever the tax.
      {0, 700, kOnTop, kCut, 0, 0},
      {0, 700, kOnTop, kRound, 0, 0},
      {0, 700, kFree, kCut, 0, 0},
      {0, 700, kWithin, kCut, 0, 0},
      // The amount is rounded half up on its decimal digits: 0.285 * 100 is a hair below 28.5 as a
      // double. It may be large enough to be grouped when it is shown.
      {7, 1234, kFree, kCut, 8638, 0},
      {0.285, 100, kFree, kCut, 29, 0},
      {0.284, 100, kFree, kCut, 28, 0},
      {1, 0.4999999, kFree, kCut, 0, 0},
      {-0.285, 100, kFree, kCut, -29, 0},
      {1234, 1000567, kFree, kCut, 1234699678, 0},
      {1234, 1000567, kOnTop, kCut, 1234699678, 123469967},
      // Within the price: the supply is whole, the tax takes the rest.
      {1, 1100, kWithin, kCut, 1000, 100},
      {1, 1000, kWithin, kCut, 909, 91},
      {1, 100, kWithin, kRound, 91, 9},
      {-1, 1000, kWithin, kCut, -909, -91},
      // On top, cut: towards minus infinity.
      {3, 100, kOnTop, kCut, 300, 30},
      {1, 19, kOnTop, kCut, 19, 1},
      {1, -15, kOnTop, kCut, -15, -2},
      {1, -20, kOnTop, kCut, -20, -2},
      // On top, rounded: the same on both sides of zero.
      {1, 14, kOnTop, kRound, 14, 1},
      {1, 15, kOnTop, kRound, 15, 2},
      {1, -14, kOnTop, kRound, -14, -1},
      {1, -15, kOnTop, kRound, -15, -2},
      {1, -4, kOnTop, kRound, -4, 0},
      // Only "0" cuts, and only "1" and "2" are special kinds.
      {1, 15, kOnTop, "", 15, 2},
      {1, 15, kOnTop, "3", 15, 2},
      {1, 100, "", kCut, 100, 10},
      {1, 100, "9", kCut, 100, 10},
      {1, 100, "*", kCut, 100, 10},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.quantity << " x " << c.price << ", kind " << c.taxKind
                                    << ", rounding " << c.rounding);
    BaseSettings.VatRounding = c.rounding;
    const LineMoney money = ComputeLineMoney(c.quantity, c.price, c.taxKind);
    EXPECT_EQ(money.Supply, c.supply);
    EXPECT_EQ(money.Tax, c.tax);
    EXPECT_EQ(money.Sum(), c.supply + c.tax);
  }
}

TEST_F(LineMoneyRules, TakeTheRateFromTheSettings) {
  BaseSettings.VatRounding = kRound;
  const struct {
    const char* percent;
    double onTop;
    double within;
  } cases[] = {{"5", 50, 48}, {"7.5", 75, 70}, {"", 0, 0}, {"0", 0, 0}};
  for (const auto& c : cases) {
    BaseSettings.VatPercent = c.percent;
    EXPECT_EQ(ComputeLineMoney(1, 1000, kOnTop).Tax, c.onTop) << c.percent;
    EXPECT_EQ(ComputeLineMoney(1, 1000, kWithin).Tax, c.within) << c.percent;
  }
}

TEST_F(LineMoneyRules, KeepWholeWonWhereAmountsAreShownWithDecimals) {
  BaseSettings.AmountDecimals = 2;
  BaseSettings.VatRounding = kRound;
  FormatSetup();
  EXPECT_EQ(ComputeLineMoney(1, 1234.5, kOnTop).Supply, 1235);
  EXPECT_EQ(ComputeLineMoney(1, 1234.5, kOnTop).Tax, 124);
}

}  // namespace
}  // namespace store
