// Order type 3: the category view with stock and sales, and quantities from the pick list.
#include "forms/options_file.h"
#include "order/frm_Order03.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

/// C0001 supplies P0001 (safety stock 10, unit 20, 12 in stock) and P0002 (5, 10, none).
class UnitOrder : public OrderDesk {
 protected:
  UnitOrder() {
    AppOptions.OrderInfoPartnersOnly = 1;
    host.Clock = {2024, 5, 17, 10, 20, 30};
    Sql("UPDATE PR SET KD_ID='100000000000000' WHERE PR_CODE IN ('P0001','P0002')");
  }
  frm_Order03& OpenOnStoredOrder() { return Open<frm_Order03>(3, "202405171001u01220001"); }
  static void Type(frm_Order03& form, int row, const std::string& quantity) {
    form.FLEX2.Select(row, 10);
    form.FLEX2.SetTextMatrix(row, 10, quantity);
    form.FLEX2_AfterEdit(row, 10);
  }
};

TEST_F(UnitOrder, ACategoryShowsStockShortageAndSales) {
  Sale(16, "P0001", "7");
  Sale(0, "P0001", "2");
  Sale(17, "P0002", "9");
  Sql("INSERT INTO IV (RCT_CODE,HCT_CODE,PR_CODE,BSQTY) VALUES ('1001','100102','P0001',-4)");
  frm_Order03& form = OpenOnStoredOrder();
  ASSERT_EQ(form.PRHELP.Rows(), 1);
  form.PRHELP_Click(0, 0);
  EXPECT_EQ(form.FLEX2.TextMatrix(0, 5), "규격");
  EXPECT_EQ(RowText(form.FLEX2, 1), "P0001|||8801000|맑은생수|2L*6|10|8|2|20||");
  EXPECT_EQ(RowText(form.FLEX2, 2), "P0002|||88010001|국산쌀|10kg|5|||10||") << "never stocked";
  form.Check1.Value = 1;
  Sql("UPDATE IV SET BSQTY=90 WHERE PR_CODE='P0001'");
  form.PRHELP_Click(0, 0);
  SetFilter(SlotC, " PR_CODE = 'P0002'");
  SlotC.reset();  // by another form, before anybody has looked at the rows
  EXPECT_EQ(form.FLEX2.TextMatrix(0, 5), "판매");
  EXPECT_EQ(RowText(form.FLEX2, 1), "P0001|||8801000|맑은생수|9|10|187||20||") << "no shortage";
  EXPECT_EQ(form.FLEX2.TextMatrix(2, 5), "0") << "sold in the month before";
  EXPECT_EQ(form.FLEX2.Look(1, 6).BackColor, 0xE0E0E0);
  EXPECT_EQ(form.FLEX2.Look(1, 9).BackColor, 0xE0E0E0);
  EXPECT_EQ(form.FLEX2.Look(1, 10).BackColor, 0xFFFF00);
}

TEST_F(UnitOrder, ThePickListTakesAnyQuantityAndAZeroTakesTheLineOut) {
  frm_Order03& form = OpenOnStoredOrder();
  ASSERT_EQ(Lines(), "P0002x1 P0001x10 ");
  form.PRHELP_Click(0, 0);
  AppOptions.OrderZeroPrice = 1;
  Type(form, 1, "7");
  EXPECT_EQ(Lines(), "P0001x7 P0002x1 ") << "only the item box looks at the unit";
  Type(form, 2, "0");
  EXPECT_EQ(Lines(), "P0001x7 ");
  Type(form, 1, "12345678");
  EXPECT_EQ(Lines(), "P0001x12345678 ") << "nor is the length of the entry looked at";
  form.FLEX2.SetTextMatrix(1, 8, "1234567");
  host.ExpectBox("999,999개 이상 발주할 수 없습니다.     ");
  Type(form, 1, "3");
  EXPECT_EQ(form.FLEX2.TextMatrix(1, 8) + "/" + form.FLEX2.TextMatrix(1, 10), "/3");
  Type(form, 1, "");
  EXPECT_EQ(Lines(), "");
  EXPECT_EQ(form.LaAmt[0].Caption + form.LaAmt[1].Caption, "00");
}

// After a supplier was typed the list knows no units: a typed quantity is dropped and nothing said.
TEST_F(UnitOrder, WithoutAUnitNoQuantityIsTaken) {
  AppOptions.OrderZeroPrice = 1;
  frm_Order03& form = OpenOnStoredOrder();
  Supplier("#C0001");
  Enter("88010001");
  EXPECT_EQ(form.FLEX1.TextMatrix(1, 7), "");
  Enter("12");
  EXPECT_EQ(form.FLEX1.TextMatrix(1, 7) + form.inBox.Text(), "");
  Sql("UPDATE SAFEIV SET ORD_QTY=0");
  form.Close();
  ReleaseDroppedForms();
  OpenOnStoredOrder().FLEX1.SetRow(1);
  Enter("12");
  EXPECT_EQ(Lines(), "P0002x1 P0001x10 ");
}

// The options window may have named another type since the program began.
TEST_F(UnitOrder, TheStateFollowsTheOptionAtEachClick) {
  for (const auto& [option, state] :
       {std::pair("3", "2"), std::pair("1", "1"), std::pair("", "1")}) {
    Sql("UPDATE PEM22 SET PE_CK='0' WHERE PE_ID='202405171001u01220001'");
    WriteOption(kOptionSection, kOrderTypeKey, option);
    host.ExpectBox("계속해서 발주하시겠습니까?", box::No);
    OpenOnStoredOrder().LaBtn_Click(1);
    ReleaseDroppedForms();
    EXPECT_EQ(Value("SELECT PE_CK FROM PEM22 WHERE PE_ID='202405171001u01220001'"), state)
        << option;
  }
}

}  // namespace
}  // namespace store
