// What a staged row comes to, by its tax mark and the customer's rounding. No database.
#include <gtest/gtest.h>

#include "basics/formats.h"
#include "basics/records.h"
#include "handheld/FRM_DT900_01.h"

namespace store {
namespace {

struct Case {
  const char* product;  ///< The mark and the code.
  const char* quantity;
  const char* price;
  const char* rounding;  ///< `VatRounding`
  const char* money;     ///< supply|tax|sum
};

void ExpectMoney(const Case& c) {
  BaseSettings.VatRounding = c.rounding;
  FormatSetup();
  FRM_DT900_01 form;
  form.FLEX.SetRows(2);
  form.FLEX.SetTextMatrix(1, staged::Product, c.product);
  form.FLEX.SetTextMatrix(1, staged::Quantity, c.quantity);
  form.FLEX.SetTextMatrix(1, staged::Price, c.price);
  form.RecalcRow(1);
  const auto cell = [&](int col) { return form.FLEX.TextMatrix(1, col); };
  EXPECT_EQ(cell(staged::Supply) + "|" + cell(staged::Tax) + "|" + cell(staged::Sum), c.money)
      << c.product << " " << c.quantity << " x " << c.price << ", rounding " << c.rounding;
}

class RowMoney : public testing::Test {
 protected:
  RowMoney() { BaseSettings.VatPercent = "10"; }
  ~RowMoney() override {
    ResetRecords();
    ResetFormats();
  }
};

TEST_F(RowMoney, FollowsTaxMarkAndRounding) {
  const Case cases[] = {
      {"*P1", "3", "1005", "0", "3,015||3,015"},
      {"@P1", "3", "1000", "0", "2,727|273|3,000"},
      {"@P1", "1", "1100", "1", "1,000|100|1,100"},
      {"@P1", "2", "-1000", "1", "-1,818|-182|-2,000"},
      // On top: cut towards minus infinity, or rounded, mirrored around zero.
      {"-P1", "1", "1019", "0", "1,019|101|1,120"},
      {"-P1", "1", "1015", "1", "1,015|102|1,117"},
      {"-P1", "1", "-1011", "0", "-1,011|-102|-1,113"},
      {"-P1", "1", "-1015", "1", "-1,015|-102|-1,117"},
      {"-P1", "1", "-1014", "", "-1,014|-101|-1,115"},
      // Any other mark, and none at all, is taxed on top.
      {" P1", "2", "500", "0", "1,000|100|1,100"},
      {"", "2", "500", "0", "1,000|100|1,100"},
      // Nothing is shown for zero; cells may be grouped or no number at all.
      {"-P1", "0", "500", "0", "||"},
      {"-P1", "1,200", "1,000", "0", "1,200,000|120,000|1,320,000"},
      {"-P1", "", "500", "1", "||"},
      // The quantity format comes first: whole pieces, whole won.
      {"*P1", "2.5", "10.4", "0", "30||30"},
  };
  for (const Case& c : cases) ExpectMoney(c);
}

TEST_F(RowMoney, TakesFractionsAsTheSettingsLetThem) {
  BaseSettings.QtyDecimals = 2;
  BaseSettings.AmountDecimals = 1;
  const Case cases[] = {
      {"*P1", "2.55", "10", "0", "25.5||25.5"},
      {"-P1", "1.5", "9", "1", "13.5|1.0|14.5"},  // 1.35 is rounded to 1
      {"@P1", "1.5", "11", "0", "15.0|1.5|16.5"},
  };
  for (const Case& c : cases) ExpectMoney(c);
}

}  // namespace
}  // namespace store
