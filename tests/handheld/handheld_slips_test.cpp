// The slips, stock and balances that a pass writes, every column of them.
#include "tests/handheld/batch_desk.h"

namespace store {
namespace {

class HandheldSlips : public BatchDesk {
 protected:
  /// Everything but the key: each column of the only header and of its lines, a line a row.
  std::string Header(const std::string& table) {
    return Value(
        "SELECT CONCAT_WS('|',PE_ID,PE_CK,PE_PDATE,DATE(PE_SDATE)=CURDATE(),PE_FCTCODE,PE_FCTNAME,"
        "PE_TCTCODE,PE_TCTNAME,PE_AMT+0e0,PE_TAX+0e0,PE_TOT+0e0,PE_MISU+0e0,PE_EC+0e0,PE_DC+0e0,"
        "PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,ST_CODE,PE_PRJ,PE_LINK) FROM " +
        table + " WHERE PE_MEMO='메모'");
  }
  std::string Lines(const std::string& table, const std::string& key) {
    return Value(
        "SELECT GROUP_CONCAT(CONCAT_WS('|',PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT,"
        "PS_SQTY+0e0,PS_EQTY+0e0,PS_COST+0e0,PS_UP+0e0,PS_AMT+0e0,PS_TAX+0e0,ST_CODE,PS_TYPE,"
        "PS_MEMO,PS_HCTCODE,PS_HCTNAME,PS_INCK,PS_TMID) ORDER BY PS_NO SEPARATOR ' & ') FROM " +
        table + " WHERE PE_ID='" + key + "'");
  }
  /// Balances of 1001 in May with a party, "partner|store kind out/in", of every row there is.
  std::string Balance(const std::string& party) {
    return Value(
        "SELECT GROUP_CONCAT(CONCAT(CM_MGU,' ',CM_MM,' ',CM_M13+0e0,'/',CM_M23+0e0,' ',CM_CK) "
        "ORDER BY CM_MM) FROM CMM WHERE CM_FCTCODE='1001' AND CM_TCTCODE='" +
        party + "'");
  }
  void Post(const std::string& module, const std::string& mark = "") {
    FRM_DT900_01& form = Open(module, mark);
    form.DTPicker1.SetValue("2024-05-16");
    form.Text1[0].SetText("메모");
    host.ExpectBox("저장이 완료되었습니다.            ");
    MakeSlips();
    EXPECT_EQ(host.Boxes.back().Title, "처리완료");
    EXPECT_EQ(host.Boxes.back().Style, box::Information);
    EXPECT_EQ(LastErrorText, "");
  }
};

TEST_F(HandheldSlips, OfAPurchaseRaiseStockAndTheMonthOfTheirDate) {
  Stage({"r1", "-", "P0001", "10", "480"}, "23");
  Stage({"r2", "@", "P0004", "1", "5500"}, "23");
  Stage({"r3", "*", "P0003", "4", "1250"}, "23");
  Post("23");
  // 4,800 + 480, 5,000 + 500, 5,000: amounts above a thousand go in whole.
  EXPECT_EQ(Header("PEM23"), Key("230001") +
                                 "|1|2024-05-16|1|1001|성수역점|C0001|한빛상사|14800|980|15780|"
                                 "15780|0|0|E005||핸디처리|메모|u01||");
  EXPECT_EQ(Lines("PSM23", Key("230001")),
            "1|2024-05-16|P0001|품명 P0001|규격|0|박스|10|0|0|480|4800|480|u01|0||100101|매장|| & "
            "2|2024-05-16|P0004|품명 P0004|규격|2|박스|1|0|0|5500|5000|500|u01|0||100101|매장|| & "
            "3|2024-05-16|P0003|품명 P0003|규격|1|박스|4|0|0|1250|5000|0|u01|0||100101|매장||");
  EXPECT_EQ(Stock("P0001"), "5/20/3");
  EXPECT_EQ(Stock("P0004"), "0/1/0");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PR_NAME,PR_STD,PR_UNT,PR_BCODE) FROM IV WHERE "
                  "PR_CODE='P0004'"),
            "품명 P0004|규격 |박스|");
  EXPECT_EQ(Balance("C0001"), "C 202404 0/9350 0,C 202405 0/21060 0");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(Batch().FLEX.Rows(), 1);
}

TEST_F(HandheldSlips, OfASaleLowerStock) {
  Stage({"r1", "-", "P0001", "2", "700", "C0002", "한빛식품"}, "13");
  Stage({"r2", "*", "P0003", "1", "300", "C0002", "한빛식품"}, "13");
  Post("13");
  EXPECT_EQ(Header("PES13"), Key("130001") +
                                 "|1|2024-05-16|1|1001|성수역점|C0002|한빛식품|1700|140|1840|1840|"
                                 "0|0|E005||핸디처리|메모|u01||");
  EXPECT_EQ(Value("SELECT INPUT_PROGRAM FROM PES13"), "");
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(PR_CODE,' ',PS_SQTY+0e0 ORDER BY PS_NO) FROM PSS13"),
            "P0001 2,P0003 1");
  EXPECT_EQ(Stock("P0001"), "5/10/5");
  EXPECT_EQ(Stock("P0003"), "0/0/1");
  EXPECT_EQ(Balance("C0002"), "C 202405 1840/0 0");
}

TEST_F(HandheldSlips, OfReturnsHaveNegativeMoneyWhileStockStillMovesByThePositiveQuantity) {
  Stage({"r1", "-", "P0001", "3", "-485"}, "23", "R");
  Post("23", "R");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PE_AMT+0e0,PE_TAX+0e0,PE_TOT+0e0) FROM PEM23 WHERE "
                  "PE_MEMO='메모'"),
            "-1455|-146|-1601");
  EXPECT_EQ(Stock("P0001"), "5/13/3");
  EXPECT_EQ(Balance("C0001"), "C 202404 0/9350 0,C 202405 0/3679 0");
}

TEST_F(HandheldSlips, OfAProductTwiceMakeTwoRowsWhereThereWasNone) {
  Stage({"r1", "*", "P0003", "4", "250"}, "23");
  Stage({"r2", "*", "P0003", "7", "250"}, "23");
  Stage({"r3", "-", "P0001", "1", "480"}, "23");
  Stage({"r4", "-", "P0001", "2", "480"}, "23");
  Post("23");
  EXPECT_EQ(Stock("P0003"), "0/4/0,0/7/0");
  EXPECT_EQ(Stock("P0001"), "5/13/3");
}

TEST_F(HandheldSlips, OfAShipmentStandInBothStoresBooksAndMoveTheSendersStockOnly) {
  Stage({"r1", "-", "P0001", "2", "700", "1002", "왕십리점"}, "14");
  Post("14");
  EXPECT_EQ(Header("PEM13"), Key("130001") +
                                 "|1|2024-05-16|1|1001|성수역점|1002|왕십리점|1400|140|1540|1540|0|"
                                 "0|E005||핸디처리|메모|u01||");
  EXPECT_EQ(Lines("PSM13", Key("130001")),
            "1|2024-05-16|P0001|품명 P0001|규격|0|박스|2|0|0|700|1400|140|u01|0||100101|매장||");
  // The columns of the parties are swapped, so here too PE_FCTCODE is the store it goes to.
  EXPECT_EQ(Header("PES23"), Key("230002") +
                                 "|0|2024-05-16|1|1002|왕십리점|1001|성수역점|1400|140|1540|1540|0|"
                                 "0|E005||핸디처리|메모|u01||");
  EXPECT_EQ(Lines("PSS23", Key("230002")),
            "1|2024-05-16|P0001|품명 P0001|규격|0|박스|2|0|0|700|1400|140|u01|0||100201|매장||");
  EXPECT_EQ(Stock("P0001"), "5/10/5");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM IV WHERE RCT_CODE='1002'"), "0");
  EXPECT_EQ(Balance("1002"), "R 202405 1540/0 0");
}

TEST_F(HandheldSlips, OfASurveyAdjustStockByWhatWasCounted) {
  const std::string none = "1000000000000000";
  Stage({"s1", "-", "P0001", "15", "0", none, "재고조사"}, "82");  // 12 on file
  Stage({"s2", "*", "P0008", "1", "0", none, "재고조사"}, "82");   // as on file
  Stage({"s3", "*", "P0008", "0", "0", none, "재고조사"}, "82");
  Post("82");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',ME_ID,ME_CK,ME_GU,ME_IO,ME_PDATE=CURDATE(),DATE(ME_SDATE),"
                  "ME_FCTCODE,ME_FCTNAME,ME_TCTCODE,ME_TCTNAME,ME_AMT+0e0,ME_TAX+0e0,ME_TOT+0e0,"
                  "ME_TMAN,ST_CODE,ME_PRJ,ME_LINK,ME_MEMO) FROM ME"),
            Key("0001") + "|1|82|I|1|2024-05-16|1001|성수역점|||0|0|0|핸디처리|u01|||메모");
  EXPECT_EQ(
      Value("SELECT GROUP_CONCAT(CONCAT_WS('|',ME_ID,MS_NO,MS_DATE=CURDATE(),PR_CODE,PR_NAME,"
            "PR_STD,PS_TAXGU,PS_UNT,PS_SQTY+0e0,PS_EQTY+0e0,PS_COST+0e0,PS_UP+0e0,PS_AMT+0e0,"
            "PS_TAX+0e0,ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME) ORDER BY MS_NO SEPARATOR "
            "' & ') FROM MS"),
      Key("0001|1|1") + "|P0001|품명 P0001|규격|0|박스|3|0|0|0|0|0|u01|0||100101|매장 & " +
          Key("0001|2|1") + "|P0008|품명 P0008|규격|1|박스|-1|0|0|0|0|0|u01|0||100101|매장");
  EXPECT_EQ(Stock("P0001"), "5/13/3");
  EXPECT_EQ(Stock("P0008"), "0/0/0");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM CMM"), "2");
  EXPECT_EQ(Left(), "");
}

TEST_F(HandheldSlips, OfPricesAreNone) {
  const std::string none = "1000000000000000";
  Stage({"p1", "-", "P0001", "0", "1500", none, "상품관리"}, "66");
  Stage({"p2", "-", "P0005", "0", "990", none, "상품관리"}, "66");
  Open("66");
  Tick(2, false);
  host.ExpectBox("저장이 완료되었습니다.");
  MakeSlips();
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(PR_OP1+0e0 ORDER BY PR_CODE) FROM PR WHERE PR_CODE IN "
                  "('P0001','P0002','P0005')"),
            "1500,5000,1000");
  EXPECT_EQ(Left(), "p2");
  EXPECT_EQ(ColumnText(Batch().FLEX, staged::RowId), "p2");
}

}  // namespace
}  // namespace store
