#include "slips/post_receipt.h"

#include "tests/slips/slip_samples.h"
#include "tests/support/small_store_test.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

class PostReceiptTest : public SmallStoreTest {
 protected:
  const std::string ofReceipt = " WHERE PE_ID='" + kReceiptKey + "'";

  std::int16_t Post(const HeadArray& head, const std::vector<std::vector<std::string>>& lines,
                    const std::string& table = "PEM23") {
    return PostReceipt(head, LineTable(lines), table);
  }
  /// State and link of the order.
  std::string Order() {
    return Value("SELECT CONCAT(PE_CK,PE_LINK) FROM PEM22 WHERE PE_ID='202405161001u01220003'");
  }
  /// A product's rows in a depot of 1001, "opening/in/out", the smallest first.
  std::string Stock(const std::string& product, const std::string& depot = "100101") {
    return Value(
        "SELECT GROUP_CONCAT(CONCAT_WS('/',BSQTY+0e0,INQTY+0e0,OTQTY+0e0) ORDER BY INQTY) FROM IV "
        "WHERE RCT_CODE='1001' AND HCT_CODE='" +
        depot + "' AND PR_CODE='" + product + "'");
  }
  /// The balances of 1001, "partner month out/in".
  std::string Balances() {
    return Value(
        "SELECT GROUP_CONCAT(CONCAT(CM_TCTCODE,' ',CM_MM,' ',CM_M13+0e0,'/',CM_M23+0e0) ORDER BY "
        "CM_TCTCODE,CM_MM,CM_M23) FROM CMM WHERE CM_FCTCODE='1001' AND CM_MGU='C' AND CM_CK='0'");
  }
};

TEST_F(PostReceiptTest, WritesEveryColumn) {
  const HeadArray head = ReceiptHead();
  EXPECT_EQ(Post(head, {ReceiptLine("1", "P0001", "18")}), -1);
  EXPECT_EQ(LastErrorText, "");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PE_CK,PE_PDATE,PE_SDATE BETWEEN now() - INTERVAL 5 MINUTE "
                  "AND now(),PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,"
                  "PE_MISU,PE_EC,PE_DC,PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,ST_CODE,PE_PRJ,PE_LINK,"
                  "INPUT_PROGRAM) FROM PEM23" +
                  ofReceipt),
            "1|2024-05-16|1|1001|성수역점|C0001|한빛상사|23000.0000|1400.0000|24400.0000|1.5000|"
            "2.5000|3.5000|E005|A|담당|메모|u01|과제|202405161001u01220003|1235");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT,"
                  "PS_SQTY,PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX,ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,"
                  "PS_HCTNAME,PS_INCK,PS_TMID) FROM PSM23" +
                  ofReceipt),
            "1|2024-05-16|P0001|품명 P0001|규격|0|박스|18.0000|20.0000|11.0000|700.0000|12600.0000|"
            "1260.0000|u01|0|비고|100101|매장|I|T1");
  EXPECT_EQ(head, ReceiptHead());
}

TEST_F(PostReceiptTest, ClosesTheOrderAndLinksItWhateverItsState) {
  for (const char* state : {"2", "0"}) {
    UseSmallStore();
    Sql(std::string("UPDATE PEM22 SET PE_CK='") + state + "' WHERE PE_CK='2'");
    EXPECT_EQ(Post(ReceiptHead(), {ReceiptLine("1", "P0001", "1")}), -1);
    EXPECT_EQ(Order(), "4" + kReceiptKey);
    EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22 WHERE PE_CK='4'"), "2");
  }
}

TEST_F(PostReceiptTest, MovesTheStockOfEachLineInItsDepot) {
  std::vector<std::string> otherDepot = ReceiptLine("3", "P0001", "7");
  otherDepot[line::DepotCode] = "100102";
  EXPECT_EQ(Post(ReceiptHead(), {ReceiptLine("1", "P0001", "18.5"), ReceiptLine("2", "P0003", "30"),
                                 otherDepot, ReceiptLine("4", "", "9")}),
            -1);
  // The row that is there is raised and otherwise left as it is.
  EXPECT_EQ(Stock("P0001"), "5/28.5/3");
  EXPECT_EQ(Value("SELECT PR_NAME FROM IV WHERE HCT_CODE='100101' AND PR_CODE='P0001'"),
            "맑은생수");
  EXPECT_EQ(Stock("P0001", "100102"), "0/7/0");
  // A new row takes the line's texts; a blank follows PR_STD.
  EXPECT_EQ(Stock("P0003"), "0/30/0");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PR_NAME,PR_STD,PR_UNT,PR_BCODE,HCT_CODE) FROM IV WHERE "
                  "PR_CODE='P0003'"),
            "품명 P0003|규격 |박스||100101");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM IV"), "4");
}

TEST_F(PostReceiptTest, AddsAFurtherRowWhereStockHasNoSingleRow) {
  // A new product twice on one slip: both lines find nothing and both make a row.
  EXPECT_EQ(Post(ReceiptHead(), {ReceiptLine("1", "P0003", "30"), ReceiptLine("2", "P0003", "4")}),
            -1);
  EXPECT_EQ(Stock("P0003"), "0/4/0,0/30/0");
  // Next time there are two, and nobody can tell which to raise.
  HeadArray next = ReceiptHead();
  next[head::Id] = "202405171001u01230079";
  std::vector<std::string> again = ReceiptLine("1", "P0003", "5");
  again[line::Id] = next[head::Id];
  EXPECT_EQ(Post(next, {again}), -1);
  EXPECT_EQ(Stock("P0003"), "0/4/0,0/5/0,0/30/0");
}

TEST_F(PostReceiptTest, CountsOnceWhereOthersMakeFurtherRowsMeanwhile) {
  Somebody others(
      "INSERT INTO IV (RCT_CODE,HCT_CODE,PR_CODE) VALUES "
      "('1001','100101','P0001'); INSERT INTO CMM (CM_FCTCODE,CM_TCTCODE,CM_MGU,CM_MM) VALUES "
      "('1001','C0001','C','202405'); DO SLEEP(1); COMMIT");
  EXPECT_EQ(Post(ReceiptHead(), {ReceiptLine("1", "P0001", "18")}), -1);
  others.Leave();
  EXPECT_EQ(Value("SELECT SUM(INQTY)+0e0 FROM IV WHERE PR_CODE='P0001'"), "28");
  EXPECT_EQ(Value("SELECT SUM(CM_M23)+0e0 FROM CMM WHERE CM_MM='202405'"), "29680");
}

TEST_F(PostReceiptTest, HoldsEachCountAgainstItsOwnLine) {
  // Of 40 products each third has one row, each fifth two.
  std::vector<std::vector<std::string>> lines;
  std::string wanted;
  for (int i = 1; i <= 40; ++i) {
    const std::string product = "Q" + std::to_string(100 + i);
    const int rows = i % 3 == 0 ? 1 : i % 5 == 0 ? 2 : 0;
    for (int row = 0; row < rows; ++row) {
      Sql("INSERT INTO IV (RCT_CODE,HCT_CODE,PR_CODE,INQTY) VALUES ('1001','100101','" + product +
          "',1000)");
    }
    lines.push_back(ReceiptLine(std::to_string(i), product, std::to_string(i)));
    const std::string raised = std::to_string(1000 + i);
    const std::string added = std::to_string(i);
    wanted += (i > 1 ? "," : "") + (rows == 1 ? raised : rows == 2 ? added + ",1000,1000" : added);
  }
  EXPECT_EQ(Post(ReceiptHead(), lines), -1);
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(INQTY+0e0 ORDER BY PR_CODE,INQTY) FROM IV WHERE PR_CODE "
                  "LIKE 'Q%'"),
            wanted);
}

TEST_F(PostReceiptTest, AddsTheTotalToTheMonthOfTheDocument) {
  const struct {
    const char* date;
    const char* partner;
    const char* before;  ///< What the table gets first.
    const char* balances;
  } cases[] = {
      {"2024-05-16", "C0001", "DO 0", "C0001 202404 0/9350,C0001 202405 0/29680"},
      {"2024-04-30", "C0001", "DO 0", "C0001 202404 0/33750,C0001 202405 0/5280"},
      {"2024-06-01", "C0001", "DO 0",
       "C0001 202404 0/9350,C0001 202405 0/5280,C0001 202406 0/24400"},
      {"2024-05-16", "C0002", "DO 0",
       "C0001 202404 0/9350,C0001 202405 0/5280,C0002 202405 0/24400"},
      // Two rows of a month: a third.
      {"2024-05-16", "C0001", "UPDATE CMM SET CM_MM='202405'",
       "C0001 202405 0/5280,C0001 202405 0/9350,C0001 202405 0/24400"},
  };
  for (const auto& c : cases) {
    UseSmallStore();
    Sql(c.before);
    HeadArray head = ReceiptHead();
    head[head::Date] = c.date;
    head[head::ToCode] = c.partner;
    EXPECT_EQ(Post(head, {ReceiptLine("1", "P0001", "1")}), -1);
    EXPECT_EQ(Balances(), c.balances) << c.date << ", " << c.partner;
  }
}

TEST_F(PostReceiptTest, WithQuantitiesOfZeroIsWrittenInFull) {
  HeadArray head = ReceiptHead();
  head[head::Supply] = head[head::Tax] = head[head::Total] = "";
  head[head::ToCode] = "C0002";
  EXPECT_EQ(Post(head, {ReceiptLine("1", "P0003", "0")}), -1);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PSM23" + ofReceipt), "1");
  EXPECT_EQ(Stock("P0003"), "0/0/0");
  EXPECT_EQ(Balances(), "C0001 202404 0/9350,C0001 202405 0/5280,C0002 202405 0/0");
}

TEST_F(PostReceiptTest, IsToldFromAnotherUnderItsKeyByTheLines) {
  const std::vector<std::string> sent = ReceiptLine("1", "P0001", "18");
  EXPECT_EQ(Post(ReceiptHead(), {sent}), -1);
  const auto traced = [](const std::vector<std::vector<std::string>>& lines) {
    return Value("SELECT COUNT(*) FROM (" + ReceiptTrace(ReceiptHead(), LineTable(lines), "PEM23") +
                 ") t");
  };
  EXPECT_EQ(traced({sent}), "1");
  EXPECT_EQ(traced({sent, ReceiptLine("2", "P0003", "1")}), "0");
  for (const int column : {line::ProductCode, line::Quantity, line::Supply, line::DepotCode}) {
    std::vector<std::string> other = sent;
    other[static_cast<std::size_t>(column)] = "17";
    EXPECT_EQ(traced({other}), "0") << column;
  }
}

TEST_F(PostReceiptTest, InStateZeroMovesNeitherStockNorBalance) {
  HeadArray head = ReceiptHead();
  head[head::State] = "0";
  EXPECT_EQ(Post(head, {ReceiptLine("1", "P0001", "18")}), -1);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PSM23" + ofReceipt), "1");
  EXPECT_EQ(Order(), "4" + kReceiptKey);
  EXPECT_EQ(Stock("P0001"), "5/10/3");
  EXPECT_EQ(Balances(), "C0001 202404 0/9350,C0001 202405 0/5280");
}

TEST_F(PostReceiptTest, OnTheSaleSideLowersStock) {
  EXPECT_EQ(Post(ReceiptHead(), {ReceiptLine("1", "P0001", "4"), ReceiptLine("2", "P0003", "6")},
                 "PES13"),
            -1);
  EXPECT_EQ(Value("SELECT CONCAT(PE_TOT,INPUT_PROGRAM) FROM PES13" + ofReceipt), "24400.00001235");
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(PR_CODE,PS_SQTY+0e0 ORDER BY PS_NO) FROM PSS13" + ofReceipt),
            "P00014,P00036");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM23" + ofReceipt), "0");
  EXPECT_EQ(Stock("P0001"), "5/10/7");
  EXPECT_EQ(Stock("P0003"), "0/0/6");
  EXPECT_EQ(Balances(), "C0001 202404 0/9350,C0001 202405 24400/5280");
}

TEST_F(PostReceiptTest, TakesACountThatCannotBeReadForNone) {
  Disconnect();
  EXPECT_EQ(Post(ReceiptHead(), {ReceiptLine("1", "P0001", "18")}, "PES13"), 0);
  ASSERT_EQ(SqlBatch.size(), 6u);  // header, order, line; stock and balance
  EXPECT_EQ(SqlBatch[4].substr(0, 14), "INSERT INTO IV");
  EXPECT_EQ(SqlBatch[5].substr(0, 16), " insert into CMM");
}

TEST_F(PostReceiptTest, IsAllOrNothing) {
  // The balance is the last statement; its column cannot hold this total and what it has.
  HeadArray head = ReceiptHead();
  head[head::Total] = "99999999999999";
  EXPECT_EQ(Post(head, {ReceiptLine("1", "P0001", "18")}), 0);
  EXPECT_NE(LastErrorText.find("CM_M23"), std::string::npos) << LastErrorText;
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM23" + ofReceipt), "0");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PSM23" + ofReceipt), "0");
  EXPECT_EQ(Order(), "2 ");
  EXPECT_EQ(Stock("P0001"), "5/10/3");
}

}  // namespace
}  // namespace store
