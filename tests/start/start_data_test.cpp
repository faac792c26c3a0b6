#include "start/start_data.h"

#include "basics/records.h"
#include "gateway/gateway.h"
#include "slips/slip_checks.h"
#include "tests/start/way_in_test.h"

namespace store {
namespace {

using StartData = WayInTest;

TEST_F(StartData, WithoutBaseCodesStaysAtZero) {
  Sql("DELETE FROM BAS");
  LoadBaseCodes();
  LoadZ1Settings();
  EXPECT_EQ(BaseSettings.QtyRounding, 0);
  EXPECT_EQ(BaseSettings.AmountRounding, 0);
  EXPECT_EQ(BaseSettings.MaxSlipLines, 0);
  EXPECT_EQ(BaseSettings.VatPercent, "");
}

TEST_F(StartData, OneForeignRowBringsTheDefaults) {
  Sql("DELETE FROM BAS; INSERT INTO BAS (BAS_CODE,BAS_OP1) VALUES ('TM01','7')");
  LoadBaseCodes();
  EXPECT_EQ(BaseSettings.QtyRounding, 3);
  EXPECT_EQ(BaseSettings.PriceRounding, 3);
  EXPECT_EQ(BaseSettings.AmountRounding, 3);
  EXPECT_EQ(BaseSettings.RateRounding, 3);
  EXPECT_EQ(BaseSettings.QtyDecimals, 0);
  EXPECT_EQ(BaseSettings.MaxSlipLines, 0);
}

TEST_F(StartData, ReadsEveryKeyOfTheBaseCodes) {
  Sql("DELETE FROM BAS; INSERT INTO BAS (BAS_CODE,BAS_OP1,BAS_OP2,BAS_OP3,BAS_OP4) VALUES"
      " ('Z401','','','1','1'),('Z402','','','2자리','0'),('Z403','','','3',NULL),"
      " ('Z404','','','4','99999'),('ZA05','50','','',''),('ZY01','','5','',''),"
      " ('ZY02','자동','8','',''),('Z103','','10','','0'),('Z101','','77','','7')");
  LoadBaseCodes();
  LoadZ1Settings();
  const BaseSettingsRecord& set = BaseSettings;
  EXPECT_EQ(set.QtyDecimals, 1);
  EXPECT_EQ(set.QtyRounding, 1);
  EXPECT_EQ(set.PriceDecimals, 2);
  EXPECT_EQ(set.PriceRounding, 0);
  EXPECT_EQ(set.AmountDecimals, 3);
  EXPECT_EQ(set.AmountRounding, 0);
  EXPECT_EQ(set.RateDecimals, 4);
  EXPECT_EQ(set.RateRounding, 3);  // what does not fit leaves the default
  EXPECT_EQ(set.MaxSlipLines, 100);
  EXPECT_EQ(set.CodeLengthA, 5);
  EXPECT_EQ(set.ProductCodeMode, "자동");
  EXPECT_EQ(set.ProductCodeLength, 8);
  EXPECT_EQ(set.VatPercent, "10");
  EXPECT_EQ(set.VatRounding, "0");
}

TEST_F(StartData, TakesTheLastOfTwoRowsOfOneKey) {
  Sql("DELETE FROM BAS; INSERT INTO BAS (BAS_CODE,BAS_OP1) VALUES ('ZA05','300'),('ZA05','200')");
  LoadBaseCodes();
  EXPECT_EQ(BaseSettings.MaxSlipLines, 200);
}

TEST_F(StartData, LoadsTheStoreOfTheUser) {
  Session.UserStoreCode = "1001";
  LoadStore();
  EXPECT_EQ(Session.StoreCode, "1001");
  EXPECT_EQ(Session.StoreName, "성수역점");
  EXPECT_EQ(Session.StoreNo, "206-12-34567");
  EXPECT_EQ(Session.StorePhone, "02-700-1001");
  EXPECT_EQ(Session.StoreBlank, " ");
  EXPECT_EQ(Session.StoreAddress1, "서울 성동구");
  EXPECT_EQ(Session.StoreAddress2, "성수동 2가");
  EXPECT_EQ(Session.StoreKind, "1");
  EXPECT_EQ(Session.DepotCode, "100101");
  EXPECT_EQ(Session.DepotName, "매장");
}

TEST_F(StartData, GoesOnWithoutDetailsWithoutADepotAndWithoutAStore) {
  Sql("DELETE FROM RCTI; UPDATE HCT SET HCT_BAS='0'");
  Session.UserStoreCode = "1001";
  LoadStore();
  EXPECT_EQ(Session.StorePhone, "");
  EXPECT_EQ(Session.StoreAddress1, "서울 성동구");
  EXPECT_EQ(Session.DepotCode, "");

  StartAgain();
  Session.UserStoreCode = "9999";
  host.ExpectBox("기본사용자를 등록하세요.              ");
  LoadStore();
  EXPECT_EQ(Session.StoreCode, "");
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
