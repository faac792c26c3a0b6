// What the demo franchise promises to whoever works on it, asked of the database that holds it.
#include <gtest/gtest.h>

#include <sstream>

#include "demo/demo_line_money.h"
#include "demo/franchise_sql.h"
#include "demo/sql_writer.h"
#include "gateway/gateway.h"
#include "tests/support/private_server.h"

namespace store::demo {
namespace {

class Demo : public testing::Test {
 protected:
  static void SetUpTestSuite() { TestServer().LoadDemo(); }
  static std::string Value(const std::string& select) {
    const auto rows = TestServer().Rows("demo", select);
    return rows.empty() ? "" : rows[0][0];
  }
  static void ExpectNone(const std::string& what, const std::string& from) {
    EXPECT_EQ(Value(Splice("SELECT COUNT(*) FROM {from}", "from"_a = from)), "0") << what;
  }
};

TEST_F(Demo, DocumentsAddUpAndTheirKeysSayWhoWroteThem) {
  for (const auto& [header, lines, kind] :
       {std::array{"PEM22", "PSM22", "22"}, {"PEM23", "PSM23", "23"}, {"PES13", "PSS13", "13"}}) {
    EXPECT_NE(Value(Splice("SELECT COUNT(*) FROM {header}", "header"_a = header)), "0");
    ExpectNone(
        "a header that is not the sum of its lines",
        Splice(
            "{header} H LEFT JOIN (SELECT PE_ID,SUM(PS_AMT) A,SUM(PS_TAX) T FROM {lines} GROUP BY "
            "PE_ID) L ON L.PE_ID=H.PE_ID WHERE NOT (PE_AMT<=>A AND PE_TAX<=>T AND "
            "PE_TOT<=>A+T)",
            "header"_a = header, "lines"_a = lines));
    ExpectNone(
        "a key of another day, store, user or kind",
        Splice("{header} H LEFT JOIN ST ON ST.ST_CODE=SUBSTRING(H.PE_ID,13,LENGTH(H.PE_ID)-18) "
               "AND RCT_CODE=PE_FCTCODE WHERE ST.ST_CODE IS NULL OR H.PE_ID NOT LIKE "
               "CONCAT(DATE_FORMAT(PE_SDATE,'%Y%m%d'),PE_FCTCODE,ST.ST_CODE,'{kind}____')",
               "header"_a = header, "kind"_a = kind));
  }
}

TEST_F(Demo, OrdersStandInEveryStateAndReceivedOnesAreLinkedBothWays) {
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(DISTINCT PE_CK ORDER BY PE_CK) FROM PEM22 WHERE "
                  "PE_FCTCODE='1001'"),
            "0,1,2,3,4,8,9");
  ExpectNone("a received order without its receipt, or another one with a link",
             "PEM22 O LEFT JOIN PEM23 R ON R.PE_ID=O.PE_LINK AND R.PE_LINK=O.PE_ID AND "
             "R.PE_TCTCODE=O.PE_TCTCODE WHERE IF(O.PE_CK='4',R.PE_ID IS NULL,O.PE_LINK<>'')");
  ExpectNone("a receipt whose order is not received",
             "PEM23 R LEFT JOIN PEM22 O ON O.PE_LINK=R.PE_ID AND O.PE_CK='4' WHERE R.PE_LINK<>'' "
             "AND O.PE_ID IS NULL");
  ExpectNone("an order to a partner that the lookups do not offer",
             "PEM22 JOIN CT ON CT_CODE=PE_TCTCODE LEFT JOIN CTCOM ON CTCOM.CT_CODE=CT.CT_CODE "
             "WHERE NOT (CT_GUBUN='0' AND IFNULL(CT_LEVEL2,'') IN ('0','1'))");
}

TEST_F(Demo, StockAndBalancesAgreeWithThePostedSlips) {
  const struct {
    const char* header;
    const char* lines;
    const char* stock;
    const char* balance;
  } cases[] = {{"PEM23", "PSM23", "INQTY", "CM_M23"}, {"PES13", "PSS13", "OTQTY", "CM_M13"}};
  for (const auto& c : cases) {
    ExpectNone(
        "stock that the lines do not make",
        Splice("(SELECT SUM(Q) MOVED FROM (SELECT PE_FCTCODE S,PS_HCTCODE D,PR_CODE P,"
               "-PS_SQTY Q FROM {header} JOIN {lines} USING (PE_ID) UNION ALL SELECT RCT_CODE,"
               "HCT_CODE,PR_CODE,{stock} FROM IV) M GROUP BY S,D,P) B WHERE MOVED<>0",
               "header"_a = c.header, "lines"_a = c.lines, "stock"_a = c.stock));
    ExpectNone("a balance that the slips do not make",
               Splice("(SELECT SUM(T) LEFT_OVER FROM (SELECT PE_FCTCODE S,PE_TCTCODE P,"
                      "REPLACE(LEFT(PE_PDATE,7),'-','') M,-PE_TOT T FROM {header} UNION ALL SELECT "
                      "CM_FCTCODE,CM_TCTCODE,CM_MM,{balance} FROM CMM) M GROUP BY S,P,M) B WHERE "
                      "LEFT_OVER<>0",
                      "header"_a = c.header, "balance"_a = c.balance));
  }
}

TEST_F(Demo, MastersHoldWhatTheFormsRelyOn) {
  const std::pair<const char*, const char*> faults[] = {
      {"a barcode that is no EAN-13 of Korea",
       "(SELECT PR_BCODE B FROM PR) P WHERE B NOT REGEXP '^880[0-9]{10}$' OR RIGHT(B,1)<>(1000-"
       "MID(B,1,1)-MID(B,3,1)-MID(B,5,1)-MID(B,7,1)-MID(B,9,1)-MID(B,11,1)-3*(MID(B,2,1)+"
       "MID(B,4,1)+MID(B,6,1)+MID(B,8,1)+MID(B,10,1)+MID(B,12,1)))%10"},
      {"a barcode twice", "(SELECT 1 FROM PR GROUP BY PR_BCODE HAVING COUNT(*)>1) P"},
      {"a short code twice", "(SELECT 1 FROM PR GROUP BY PR_PTNO HAVING COUNT(*)>1) P"},
      {"stock twice", "(SELECT 1 FROM IV GROUP BY RCT_CODE,HCT_CODE,PR_CODE HAVING COUNT(*)>1) I"},
      {"a balance twice",
       "(SELECT 1 FROM CMM GROUP BY CM_FCTCODE,CM_TCTCODE,CM_MGU,CM_MM HAVING COUNT(*)>1) C"},
      {"an order setting twice",
       "(SELECT 1 FROM SAFEIV GROUP BY RCT_CODE,PR_CODE,CT_CODE HAVING COUNT(*)>1) S"},
      {"a depot code that a form could not cut off", "HCT WHERE LENGTH(HCT_CODE)<>6"},
      {"a store without exactly one default depot",
       "(SELECT 1 FROM RCT LEFT JOIN HCT ON HCT.RCT_CODE=RCT.RCT_CODE AND HCT_BAS='1' GROUP BY "
       "RCT.RCT_CODE HAVING COUNT(HCT_CODE)<>1) H"},
      {"an item of no category, or a category of another length",
       "PR LEFT JOIN KIND ON KIND.KD_ID=PR.KD_ID WHERE NOT LENGTH(KIND.KD_ID)<=>15"},
      {"a login that its box cannot hold", "ST WHERE LENGTH(ST_CODE)>8 OR LENGTH(ST_PWD)>8"},
      {"a name that could never be posted",
       "(SELECT CT_NAME N FROM CT UNION SELECT PR_NAME FROM PR) N WHERE N LIKE '%\\'%'"},
  };
  for (const auto& [what, from] : faults) ExpectNone(what, from);
  EXPECT_EQ(Value("SELECT COUNT(DISTINCT INTERVAL(ORD(CONVERT(LEFT(CT_NAME,1) USING utf32)),"
                  "0xAC00,0xB098,0xB2E4,0xB77C,0xB9C8,0xBC14,0xC0AC,0xC544,0xC790,0xCC28,0xCE74,"
                  "0xD0C0,0xD30C,0xD558)) FROM CT WHERE CT_NAME>='가'"),
            "14")
      << "a partner under every tab";
}

TEST_F(Demo, GivesEachOrderTypeSomethingToDoAtOneSupplier) {
  // The settings of store 1001 for 명지식품, with what it has and what it sold in thirty days.
  TestServer().Sql(
      "demo",
      "CREATE OR REPLACE VIEW GOODS AS SELECT S.*,PR_NAME,PR_END,KD_LVL,CT_DANLV,"
      "(SELECT IFNULL(SUM(BSQTY+INQTY-OTQTY),0) FROM IV WHERE RCT_CODE='1001' AND "
      "IV.PR_CODE=S.PR_CODE) HAS,(SELECT IFNULL(SUM(PS_SQTY),0) FROM PES13 JOIN PSS13 USING (PE_ID)"
      " WHERE PE_FCTCODE='1001' AND PE_SDATE>CURDATE()-INTERVAL 30 DAY AND PSS13.PR_CODE=S.PR_CODE)"
      " SOLD FROM SAFEIV S JOIN PR USING (PR_CODE) JOIN KIND USING (KD_ID) JOIN CT USING (CT_CODE) "
      "WHERE RCT_CODE='1001' AND CT_CODE='10016' AND PR_END='0'");
  const struct {
    const char* what;
    const char* from;
    int least;
  } cases[] = {
      {"staff who may confirm", "ST WHERE RCT_CODE='1001' AND ST_ASPLVL<=3", 1},
      {"staff who may not", "ST WHERE RCT_CODE='1001' AND ST_ASPLVL>3", 1},
      {"goods in units", "GOODS WHERE ORD_QTY>1 AND ORD_UP<>0", 20},
      {"goods that the combined order leaves out", "GOODS WHERE ORD_UP=0", 1},
      {"goods under the safety stock", "GOODS WHERE SAFE_QTY>HAS", 10},
      {"goods over it", "GOODS WHERE SAFE_QTY<HAS", 10},
      {"sold goods", "GOODS WHERE SOLD>0", 10},
      {"goods sold every day", "GOODS WHERE SOLD>=30", 2},
      {"sold goods that ran out", "GOODS WHERE SOLD>0 AND HAS=0", 1},
      {"sold goods of which there is too little for as many days more",
       "GOODS WHERE HAS>0 AND SOLD>HAS", 1},
      {"sold goods without level, contract or last price",
       "GOODS G WHERE SOLD>0 AND CT_DANLV='' AND NOT EXISTS (SELECT 1 FROM CTP WHERE "
       "CTP.PR_CODE=G.PR_CODE) AND NOT EXISTS (SELECT 1 FROM PSM23 WHERE PSM23.PR_CODE=G.PR_CODE)",
       1},
      {"goods straight under a top category", "GOODS WHERE KD_LVL='1'", 2},
      {"under a middle one", "GOODS WHERE KD_LVL='2'", 2},
      {"under a lowest one", "GOODS WHERE KD_LVL='3'", 20},
      {"hits of a short word", "GOODS WHERE PR_NAME LIKE '%라면%'", 10},
  };
  for (const auto& c : cases)
    EXPECT_GE(std::stoi(Value(Splice("SELECT COUNT(*) FROM {from}", "from"_a = c.from))), c.least)
        << c.what;
}

TEST_F(Demo, IsTheSameForTheSameArgumentsAndLoadsHoweverSmall) {
  const auto text = [](std::size_t items, std::size_t slips, const char* today) {
    std::ostringstream out;
    WriteFranchise(out, MakeFranchise({items, slips, *ParseDate(today)}), "demo");
    return out.str();
  };
  EXPECT_EQ(text(120, 30, "2026-03-01"), text(120, 30, "2026-03-01"));
  EXPECT_NE(text(120, 30, "2026-03-01"), text(120, 30, "2026-03-02"));
  for (const char* options : {"--items 1 --slips 0", "--items 2 --slips 9 --today 2024-02-29"}) {
    TestServer().LoadDemo(options);
    EXPECT_EQ(Value("SELECT COUNT(*) FROM PR"), std::string(1, options[8]));
  }
}

TEST_F(Demo, TextsReachTheServerAsTheyAreHoweverManyRows) {
  const std::string text = "\\'따옴표\\' \"그대로\"\n끝 \\";
  std::ostringstream out;
  {
    TableWriter writer(out, "T", "A,B");
    for (int row = 1; row <= 1001; ++row) writer.Row(text, row);
  }
  TestServer().Sql("demo", "CREATE OR REPLACE TABLE T (A TEXT,B INT);" + out.str());
  EXPECT_EQ(TestServer().Rows("demo", "SELECT DISTINCT A FROM T"),
            (std::vector<std::vector<std::string>>{{text}}));
  EXPECT_EQ(Value("SELECT CONCAT(COUNT(DISTINCT B),' ',MAX(B)) FROM T"), "1001 1001");
}

TEST(DemoMoney, IsRoundedPerLineByTaxKind) {
  struct Case {
    std::int64_t quantity;
    Won price;
    char kind;
    Won amount, tax;
  };
  for (const Case& c : {Case{1, 1100, '2', 1000, 100},
                        {1, 10, '2', 9, 1},
                        {3, 335, '2', 914, 91},
                        {1, 14, '0', 14, 1},
                        {1, 15, '0', 15, 2},
                        {7, 1234, '1', 8638, 0}}) {
    const DemoLineMoney money = MoneyOf(c.quantity, c.price, c.kind);
    EXPECT_EQ(money.Amount, c.amount) << c.quantity << " x " << c.price << " kind " << c.kind;
    EXPECT_EQ(money.Tax, c.tax) << c.quantity << " x " << c.price << " kind " << c.kind;
  }
}

}  // namespace
}  // namespace store::demo
