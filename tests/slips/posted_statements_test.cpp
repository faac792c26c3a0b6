// The statements as a database administrator sees them arrive, word for word.
#include "slips/post_order.h"
#include "slips/post_receipt.h"
#include "tests/slips/slip_samples.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

class PostedStatements : public SmallStoreTest {};

constexpr const char* kOrderHeader =
    " INSERT INTO PEM22 ( "
    "PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,"
    "PE_AMT,PE_TAX,PE_TOT,PE_TMAN,ST_CODE,PE_PRJ,PE_LINK,PE_COND,PE_GRDAY,PE_CSDAY,PE_CSCT,PE_TYPE,"
    "PE_MEMO1,PE_MEMO2,PE_MEMO3) VALUES  ('202405171001u01220077','1','2024-05-16',now(),  '1001',"
    "'성수역점','C0001','한빛상사',    12345.5 ,1234.5 ,13580 ,  '담당' ,'u01' ,'과제' ,' ' ,  "
    "'조건',"
    "'유효일','납기일','장소','형태','참조1','참조2','참조3')";

constexpr const char* kOrderLine =
    " INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE, PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT, PS_SQTY,"
    "PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX, ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME) VALUES  ( "
    "'202405171001u01220077',1,'2024-05-16',    'P0001','품명 P0001','규격', '2','박스',    "
    "12,3.25,11,700.5,8406,840.6,    'u01','0','비고','100102','창고' ) ";

std::string ReceiptLineStatement(const std::string& front, const std::string& quantity) {
  return " INSERT INTO PSM23 (PE_ID,PS_NO,PS_DATE, PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT, PS_SQTY,"
         "PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX, ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME,"
         "PS_INCK,PS_TMID) VALUES  ( '202405171001u01230078'," +
         front + ",'규격', '0','박스',    " + quantity +
         ",20,11,700,12600,1260,    'u01','0','비고','100101','매장','I','T1' ) ";
}

TEST_F(PostedStatements, OfAChangeBeginWithTheRemovalOfTheHeader) {
  PostOrderChange(OrderHead(), LineTable({OrderLine("1", "P0001", "12")}), "PEM22");
  EXPECT_EQ(SqlBatch, (Texts{"", " DELETE FROM PEM22 WHERE PE_ID = '202405171001u01220077' ",
                             kOrderHeader, kOrderLine}));
}

TEST_F(PostedStatements, OfAnOrderWithoutLinesAreTheHeaderAlone) {
  PostNewOrder(OrderHead(), LineTable({Texts{}, OrderLine("1", "", "12")}), "PEM22");
  EXPECT_EQ(SqlBatch, (Texts{"", kOrderHeader}));
}

TEST_F(PostedStatements, OfAReceiptEndWithStockAndBalance) {
  const StringTable lines =
      LineTable({ReceiptLine("1", "P0001", "18"), ReceiptLine("2", "P0003", "0.5")});
  EXPECT_EQ(PostReceipt(ReceiptHead(), lines, "PEM23"), -1);
  const std::string header =
      " INSERT INTO PEM23 ( PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,"
      "ST_CODE,PE_PRJ,PE_LINK,INPUT_PROGRAM) VALUES  ('202405171001u01230078','1','2024-05-16',"
      "NOW(),  '1001','성수역점','C0001','한빛상사',    23000 ,1400 ,24400 ,1.5 ,2.5 ,3.5 ,  "
      "'E005' ,'A' ,'담당' ,  '메모','u01','과제','202405161001u01220003','1235')";
  const std::string closing =
      " UPDATE PEM22 SET PE_CK = '4' , PE_LINK = '202405171001u01230078' WHERE PE_ID = "
      "'202405161001u01220003'";
  const std::string raised =
      "UPDATE IV SET INQTY = INQTY + 18 WHERE  RCT_CODE='1001' AND HCT_CODE='100101' AND "
      "PR_CODE='P0001'";
  const std::string inserted =
      "INSERT INTO IV (RCT_CODE, HCT_CODE, PR_CODE, PR_NAME, PR_STD, PR_UNT, PR_BCODE, INQTY) "
      "values  ('1001','100101','P0003','품명 P0003','규격 ','박스','',0.5)";
  const std::string balance =
      " update CMM set CM_M23 = CM_M23 + 24400 where  CM_FCTCODE='1001' and CM_TCTCODE='C0001' "
      "and CM_MGU='C' and CM_MM='202405' ";
  EXPECT_EQ(SqlBatch, (Texts{"", header, closing,
                             ReceiptLineStatement("1,'2024-05-16',    'P0001','품명 P0001'", "18"),
                             ReceiptLineStatement("2,'2024-05-16',    'P0003','품명 P0003'", "0.5"),
                             raised, inserted, balance}));
}

TEST_F(PostedStatements, InsertStockAndBalanceWhereTheCountCannotBeRead) {
  Disconnect();
  EXPECT_EQ(PostReceipt(ReceiptHead(), LineTable({ReceiptLine("1", "P0001", "18")}), "PES13"), 0);
  ASSERT_EQ(SqlBatch.size(), 6u);
  EXPECT_EQ(
      SqlBatch[4],
      "INSERT INTO IV (RCT_CODE, HCT_CODE, PR_CODE, PR_NAME, PR_STD, PR_UNT, PR_BCODE, OTQTY) "
      "values  ('1001','100101','P0001','품명 P0001','규격 ','박스','',18)");
  EXPECT_EQ(SqlBatch[5],
            " insert into CMM (CM_FCTCODE, CM_TCTCODE, CM_MGU, CM_MM, CM_M13, CM_CK) values   "
            "('1001','C0001','C','202405',24400,'0')");
}

}  // namespace
}  // namespace store
