#include "slips/post_order.h"

#include "tests/slips/slip_samples.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

class PostOrder : public SmallStoreTest {
 protected:
  const std::string ofOrder = " WHERE PE_ID='" + kOrderKey + "'";

  /// One column of the order's lines, joined by ",".
  std::string Lines(const std::string& column) {
    return Value("SELECT IFNULL(GROUP_CONCAT(" + column + " ORDER BY PS_NO),'') FROM PSM22" +
                 ofOrder);
  }
};

TEST_F(PostOrder, WritesEveryColumn) {
  const HeadArray head = OrderHead();
  EXPECT_EQ(PostNewOrder(head, LineTable({OrderLine("1", "P0001", "12")}), "PEM22"), -1);
  EXPECT_EQ(LastErrorText, "");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PE_CK,PE_PDATE,PE_SDATE BETWEEN now() - INTERVAL 5 MINUTE "
                  "AND now(),PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,"
                  "PE_TMAN,ST_CODE,PE_PRJ,PE_LINK,PE_COND,PE_GRDAY,PE_CSDAY,PE_CSCT,PE_TYPE,"
                  "PE_MEMO1,PE_MEMO2,PE_MEMO3) FROM PEM22" +
                  ofOrder),
            "1|2024-05-16|1|1001|성수역점|C0001|한빛상사|12345.5000|1234.5000|13580.0000|담당|u01|"
            "과제| |조건|유효일|납기일|장소|형태|참조1|참조2|참조3");
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT,"
                  "PS_SQTY,PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX,ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,"
                  "PS_HCTNAME) FROM PSM22" +
                  ofOrder),
            "1|2024-05-16|P0001|품명 P0001|규격|2|박스|12.0000|3.2500|11.0000|700.5000|8406.0000|"
            "840.6000|u01|0|비고|100102|창고");
  EXPECT_EQ(head, OrderHead());
}

TEST_F(PostOrder, PassesOverRowsWithoutAProduct) {
  const StringTable lines = LineTable({OrderLine("1", "P0001", "1"),
                                       OrderLine("2", "", "5"),
                                       {},
                                       OrderLine("3", "P0003", "2"),
                                       {}});
  EXPECT_EQ(PostNewOrder(OrderHead(), lines, "PEM22"), -1);
  EXPECT_EQ(Lines("CONCAT(PS_NO,PR_CODE)"), "1P0001,3P0003");
  Sql("DELETE FROM PEM22" + ofOrder);
  EXPECT_EQ(PostNewOrder(OrderHead(), LineTable({OrderLine("1", "", "12")}), "PEM22"), -1);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22" + ofOrder), "1") << "a header may stand alone";
  EXPECT_EQ(Lines("PR_CODE"), "");
}

TEST_F(PostOrder, StoresTheLeadingPartOfANumber) {
  const struct {
    const char* text;
    const char* stored;
  } cases[] = {{"1,200", "1.0000"}, {"", "0.0000"},    {" 12.5kg", "12.5000"}, {"kg", "0.0000"},
               {"-7", "-7.0000"},   {"1e3", "1.0000"}, {".5", "0.5000"},       {"007", "7.0000"}};
  for (const auto& c : cases) {
    HeadArray head = OrderHead();
    head[head::Supply] = c.text;
    EXPECT_EQ(PostNewOrder(head, LineTable({OrderLine("1", "P0001", c.text)}), "PEM22"), -1);
    EXPECT_EQ(Value("SELECT PE_AMT FROM PEM22" + ofOrder), c.stored) << c.text;
    EXPECT_EQ(Lines("PS_SQTY"), c.stored) << c.text;
    Sql("DELETE FROM PEM22" + ofOrder);
  }
}

TEST_F(PostOrder, WritesNothingWhenOneStatementIsRefused) {
  const struct {
    const char* number;
    const char* product;
    const char* serverSays;
  } cases[] = {{"2", "Kelly's", "쓸 수 없습니다: Kelly's"}, {"1", "P0002", "Duplicate entry"}};
  for (const auto& c : cases) {
    const StringTable lines =
        LineTable({OrderLine("1", "P0001", "1"), OrderLine(c.number, c.product, "1")});
    EXPECT_EQ(PostNewOrder(OrderHead(), lines, "PEM22"), 0);
    EXPECT_NE(LastErrorText.find(c.serverSays), std::string::npos) << LastErrorText;
    EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22" + ofOrder), "0");
    EXPECT_EQ(Lines("PR_CODE"), "");
  }
}

class ChangeOrder : public PostOrder {
 protected:
  ChangeOrder() {
    PostNewOrder(OrderHead(),
                 LineTable({OrderLine("1", "P0001", "1"), OrderLine("2", "P0002", "2")}), "PEM22");
    Sql("UPDATE PEM22 SET PE_CK='3', PE_SDATE='2001-02-03'" + ofOrder);
  }
};

TEST_F(ChangeOrder, RewritesHeaderAndLinesUnderTheSameKeyWhateverTheState) {
  HeadArray head = OrderHead();
  head[head::State] = "2";
  head[head::Total] = "99";
  EXPECT_EQ(PostOrderChange(head, LineTable({OrderLine("1", "P0009", "9")}), "PEM22"), -1);
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PE_CK,PE_TOT,PE_SDATE > now() - INTERVAL 5 MINUTE) FROM "
                  "PEM22" +
                  ofOrder),
            "2|99.0000|1");
  EXPECT_EQ(Lines("PR_CODE"), "P0009") << "old lines go with their header";
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PSM22 WHERE PE_ID='202405171001u01220001'"), "2");
}

TEST_F(ChangeOrder, LeavesTheOldOrderWhenTheNewOneIsRefused) {
  const StringTable lines = LineTable({OrderLine("1", "P0009", "9"), OrderLine("1", "P0010", "9")});
  EXPECT_EQ(PostOrderChange(OrderHead(), lines, "PEM22"), 0);
  EXPECT_EQ(Value("SELECT CONCAT_WS('|',PE_CK,PE_SDATE) FROM PEM22" + ofOrder),
            "3|2001-02-03 00:00:00");
  EXPECT_EQ(Lines("PR_CODE"), "P0001,P0002");
}

}  // namespace
}  // namespace store
