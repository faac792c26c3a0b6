#include "start/start_data.h"

#include "basics/records.h"
#include "gateway/gateway.h"
#include "slips/slip_checks.h"
#include "tests/start/way_in_test.h"

namespace store {
namespace {

class StartData : public WayInTest {
 protected:
  static std::string Joined(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts) joined += (&text == &texts[0] ? "" : "|") + text;
    return joined;
  }
  /// The settings: decimals and rounding of quantity, price, amount and rate, and the rest.
  static std::string Settings() {
    const BaseSettingsRecord& set = BaseSettings;
    std::vector<std::string> texts;
    for (const int number :
         {set.QtyDecimals, set.QtyRounding, set.PriceDecimals, set.PriceRounding,
          set.AmountDecimals, set.AmountRounding, set.RateDecimals, set.RateRounding,
          set.MaxSlipLines, set.CodeLengthA, set.ProductCodeLength})
      texts.push_back(std::to_string(number));
    for (const std::string& text : {set.ProductCodeMode, set.VatPercent, set.VatRounding})
      texts.push_back(text);
    return Joined(texts);
  }
};

TEST_F(StartData, ReadsTheBaseCodes) {
  const struct {
    const char* what;
    const char* rows;
    const char* settings;
  } cases[] = {
      {"no row", "", "0|0|0|0|0|0|0|0|0|0|0|||"},
      {"one foreign row brings the defaults", "('TM01','7','','','')", "0|3|0|3|0|3|0|3|0|0|0|||"},
      {"every key; what does not fit leaves the default",
       "('Z401','','','1','1'),('Z402','','','2자리','0'),('Z403','','','3',NULL),"
       "('Z404','','','4','99999'),('ZA05','50','','',''),('ZY01','','5','',''),"
       "('ZY02','자동','8','',''),('Z103','','10','','0'),('Z101','','77','','7')",
       "1|1|2|0|3|0|4|3|100|5|8|자동|10|0"},
      {"the last of two rows of one key counts", "('ZA05','300','','',''),('ZA05','200','','','')",
       "0|3|0|3|0|3|0|3|200|0|0|||"},
  };
  for (const auto& c : cases) {
    StartAgain();
    Sql("DELETE FROM BAS");
    if (*c.rows != '\0')
      Sql(std::string("INSERT INTO BAS (BAS_CODE,BAS_OP1,BAS_OP2,BAS_OP3,BAS_OP4) VALUES ") +
          c.rows);
    LoadBaseCodes();
    LoadZ1Settings();
    EXPECT_EQ(Settings(), c.settings) << c.what;
  }
}

TEST_F(StartData, LoadsTheStoreOfTheUser) {
  const auto store = [] {
    return Joined({Session.StoreCode, Session.StoreName, Session.StoreNo, Session.StorePhone,
                   Session.StoreBlank, Session.StoreAddress1, Session.StoreAddress2,
                   Session.StoreKind, Session.DepotCode, Session.DepotName});
  };
  Session.UserStoreCode = "1001";
  LoadStore();
  EXPECT_EQ(store(),
            "1001|성수역점|206-12-34567|02-700-1001| |서울 성동구|성수동 2가|1|100101|매장");

  StartAgain();
  Sql("DELETE FROM RCTI; UPDATE HCT SET HCT_BAS='0'");
  Session.UserStoreCode = "1001";
  LoadStore();
  EXPECT_EQ(store(), "1001|성수역점|206-12-34567|| |서울 성동구|성수동 2가|1||");

  StartAgain();
  Session.UserStoreCode = "9999";
  host.ExpectBox("기본사용자를 등록하세요.              ");
  LoadStore();
  EXPECT_EQ(store(), "|||||||||");
  EXPECT_EQ(host.Boxes.back().Style, box::Question);
  EXPECT_EQ(host.Boxes.back().Title, "기본사용자오류");
}

TEST_F(StartData, NamesAPartnerAndAsksForNoneWithoutACode) {
  EXPECT_EQ(PartnerNameOf("C0001"), "한빛상사");
  EXPECT_EQ(PartnerNameOf("C9999"), "");
  EXPECT_EQ(PartnerNameOf("C'"), "");
  LastErrorText = "untouched";
  EXPECT_EQ(PartnerNameOf(""), "");
  EXPECT_EQ(LastErrorText, "untouched");
}

}  // namespace
}  // namespace store
