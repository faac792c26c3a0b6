#include "tests/order/order_desk.h"

namespace store {
namespace {

/// Types a quantity into the pick list's row and leaves the cell.
void Pick(OrderForm& form, int row, const std::string& quantity) {
  form.FLEX2.Select(row, 8);
  ASSERT_TRUE(form.FLEX2_BeforeEdit(row, 8));
  form.FLEX2.SetTextMatrix(row, 8, quantity);
  form.FLEX2_AfterEdit(row, 8);
}

TEST_F(OrderDesk, APickListEntryBecomesTheTopLineWithItsQuantity) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter(".kg");  // P0002, P0005, P0008
  EXPECT_FALSE(form.FLEX2_BeforeEdit(1, 4));
  EXPECT_EQ(form.FLEX2.Look(1, 8).BackColor, 0xFFFF00);
  Pick(form, 2, "999999");
  EXPECT_EQ(Lines(), "P0005x999999 ");
  Pick(form, 1, "3");
  Pick(form, 2, "0");
  const int beeps = host.Beeps;
  Pick(form, 2, "abc");
  EXPECT_EQ(host.Beeps, beeps + 1);
  EXPECT_EQ(form.FLEX2.TextMatrix(2, 8), "");
  EXPECT_EQ(Lines(), "P0002x3 P0005x999999 ");
  host.ExpectBox("999,999개 이상 발주할 수 없습니다.     ");
  Pick(form, 2, "1000000");
  EXPECT_EQ(form.FLEX2.TextMatrix(2, 8), "");
  EXPECT_EQ(Lines(), "P0002x3 P0005x999999 ");
  EXPECT_EQ(form.AddInProgress, 0);
  EXPECT_EQ(form.FLEX2.ToolTipText, "[88010005]    하우스감귤        5kg");
}

TEST_F(OrderDesk, AQuantityOfARefusedItemLandsOnTheTopLine) {
  Sql("UPDATE CTP SET CTP_UP=0,CTP_GU='2' WHERE PR_CODE='P0008'; DELETE FROM PSM23 WHERE "
      "PR_CODE='P0008'");
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  Enter(".kg");
  Pick(form, 3, "6");
  EXPECT_EQ(Lines(), "P0005x6 ");
  EXPECT_NE(form.Label6.Caption, "");
}

TEST_F(OrderDesk, TotalsAreTheSumsOfTheShownLines) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");  // 1,500 and VAT on top
  Enter("3");
  Enter("88010009");  // within the price, by the partner's level: 2,750
  Enter("2");
  EXPECT_EQ(RowText(form.FLEX1, 1), "2|P0009|88010009\r ABC소스|500g|2|2750||2|5,000|500|5,500");
  EXPECT_EQ(RowText(form.FLEX1, 2), "1|P0005|88010005\r 하우스감귤|5kg|0|1500||3|4,500|450|4,950");
  EXPECT_EQ(form.LaAmt[0].Caption, "2");
  EXPECT_EQ(form.LaAmt[1].Caption, "10,450");
  EXPECT_EQ(form.LaAmt[2].Caption, "9,500");
  EXPECT_EQ(form.LaAmt[3].Caption, "950");
  form.FLEX1.SetRow(1);
  form.FLEX1_KeyDown(Key::Delete);
  EXPECT_EQ(form.LaAmt[1].Caption, "4,950");
  EXPECT_EQ(form.FLEX1.TextMatrix(1, 0), "1");
}

}  // namespace
}  // namespace store
