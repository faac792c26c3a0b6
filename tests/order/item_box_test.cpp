#include "basics/records.h"
#include "lookup/HELP_BPR.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

TEST_F(OrderDesk, NothingIsEnteredWithoutASupplier) {
  OrderForm& form = Open();
  host.ExpectBox("발주처를 선택하세요.          ");
  Enter("88010005");
  EXPECT_EQ(Lines(), "");
  form.Text1.SetText("나래유통");  // typed, but never looked up
  host.ExpectBox("발주처를 선택하세요.          ");
  Enter("88010005");
}

TEST_F(OrderDesk, TheBoxTellsSearchesFromQuantities) {
  OrderForm& form = Open();
  Supplier("#C0001");
  const struct {
    const char* entry;
    const char* lines;
    const char* picks;
  } steps[] = {
      {"1234", "", ""},  // a quantity, and no line to take it
      {"   ", "", ""},
      {"88010005", "P0005x1 ", ""},
      {"12", "P0005x12 ", ""},
      {"88010003", "P0003x1 P0005x12 ", ""},
      {"2.5", "P0003x3 P0005x12 ", ""},  // whole numbers only, by the settings
      {"-4", "P0003x-4 P0005x12 ", ""},
      {"88010005", "P0005x1 P0003x-4 ", ""},  // again: on top, and from 1
      {"8801000", "P0005x1 P0003x-4 ", "P0009,P0002,P0007,P0001,P0004,P0003,P0005,P0008"},
      {",간장", "P0005x1 P0003x-4 ", "P0009,P0002,P0007,P0001,P0004,P0003,P0005,P0008"},
      {",abc", "P0009x1 P0005x1 P0003x-4 ", "P0009,P0002,P0007,P0001,P0004,P0003,P0005,P0008"},
      {".kg", "P0009x1 P0005x1 P0003x-4 ", "P0002,P0005,P0008"},
      {"9999", "P0009x9999 P0005x1 P0003x-4 ", "P0002,P0005,P0008"},
      // A percent sign is a letter like others: no such name, and the lines stay as they are.
      {",50%소스", "P0009x9999 P0005x1 P0003x-4 ", "P0002,P0005,P0008"},
  };
  for (const auto& step : steps) {
    if (step.entry == std::string(",간장") || step.entry == std::string(",50%소스"))
      host.ExpectBox("선택된 품목이 없습니다.           ");
    Enter(step.entry);
    EXPECT_EQ(Lines(), step.lines) << step.entry;
    EXPECT_EQ(ColumnText(form.FLEX2, 0), step.picks) << step.entry;
  }
  EXPECT_EQ(form.FLEX1.TextMatrix(1, 2), "88010009\r ABC소스");
}

// The filter stands, but it has been walked to its end: there is nothing left to list.
TEST_F(OrderDesk, AQuoteInASearchLeavesTheFormerFilterToDecide) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter(".kg");
  Enter(",o'neil");
  EXPECT_EQ(RecordCountOf(SlotC), 3);
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "");
}

// Neither the next source of the policy, nor 0 where that is allowed, nor another line's quantity.
TEST_F(OrderDesk, APriceThatCannotBeReadIsNoneAndLeavesTheLinesAsTheyAre) {
  OrderForm& form = Open();
  Supplier("#C0001");
  AppOptions.OrderZeroPrice = 1;
  Enter("88010005");
  Enter("4");
  Enter("88010003");
  Enter("8801000");
  ASSERT_EQ(form.FLEX2.TextMatrix(7, 0), "P0005");
  for (const char* table : {"CTP", "PEM23", "SAFEIV", "CT"}) {
    AppOptions.BulkOrderPrice = table == std::string("CTP")      ? "3"
                                : table == std::string("PEM23")  ? "2"
                                : table == std::string("SAFEIV") ? "5"
                                                                 : "4";
    Sql(std::string("RENAME TABLE ") + table + " TO AWAY");
    Enter("88010005");
    form.FLEX2.SetTextMatrix(7, 8, "9");
    form.FLEX2_AfterEdit(7, 8);
    Sql(std::string("RENAME TABLE AWAY TO ") + table);
    EXPECT_EQ(Lines(), "P0003x1 P0005x4 ") << table;
    EXPECT_EQ(form.Label6.Caption, "하우스감귤의 단가를 읽지 못하였습니다. 다시 입력하세요.");
    form.Timer1_Timer();
  }
}

TEST_F(OrderDesk, AnItemWithoutAPriceIsRefusedInALineThatGoesAway) {
  OrderForm& form = Open();
  Supplier("#C0001");
  AppOptions.OrderZeroPrice = 1;
  Sql("UPDATE CTP SET CTP_UP=0 WHERE PR_CODE='P0008'; UPDATE PR SET PR_OP1=0 WHERE PR_CODE='P0008';"
      "DELETE FROM PSM23 WHERE PR_CODE='P0008'");
  Enter("88010008");
  form.FLEX1.SetTextMatrix(1, 5, "700");  // as it was priced when its line was written
  Enter("2");
  Enter("88010003");
  const std::string dear = form.LaAmt[1].Caption;
  AppOptions.OrderZeroPrice = 0;
  Enter("88010008");
  EXPECT_EQ(Lines(), "P0003x1 ");  // the old line went before the price was asked for
  EXPECT_EQ(form.LaAmt[0].Caption, "1");
  EXPECT_EQ(form.LaAmt[1].Caption, form.FLEX1.TextMatrix(1, 10));  // and is not paid for
  EXPECT_NE(form.LaAmt[1].Caption, dear);
  EXPECT_EQ(form.Label6.Caption, "본부정책오류: 힘찬세제의 단가가 정의되지 않았습니다.");
  EXPECT_TRUE(form.Timer1.Enabled);
  const unsigned restarts = form.Timer1.Restarts();
  Enter("88010008");
  EXPECT_GT(form.Timer1.Restarts(), restarts) << "a second refusal has its own five seconds";
  form.Timer1_Timer();
  EXPECT_EQ(form.Label6.Caption, "");
  EXPECT_FALSE(form.Timer1.Enabled);
  form.NoPriceMode = 1;
  Enter("88010008");
  EXPECT_EQ(Lines(), "P0008x1 P0003x1 ");
  EXPECT_EQ(form.FLEX1.TextMatrix(1, 5), "0");
}

// The way to a new product, too: the lookup is where one is registered.
TEST_F(OrderDesk, AnItemIsEnteredFromTheLookup) {
  OrderForm& form = Open();
  Supplier("#C0001");
  host.OnModal("HELP_BPR", [](Form& shown) {
    auto& lookup = dynamic_cast<HELP_BPR&>(shown);
    lookup.Text1.SetText("참기름");  // whose code stands behind a mark of its tax
    lookup.Command1_Click();
    lookup.FLEX1_DblClick();
  });
  form.ItemLookup_Click();
  EXPECT_EQ(Lines(), "P0004x1 ");
  EXPECT_EQ(form.ActiveControl, &form.inBox);
  host.OnModal("HELP_BPR");
  form.ItemLookup_Click();
  EXPECT_EQ(Lines(), "P0004x1 ");
}

TEST_F(OrderDesk, KeysInTheBoxWorkOnTheLines) {
  OrderForm& form = Open();
  Supplier("#C0001");
  for (const char* barcode : {"88010003", "88010005", "88010009"}) Enter(barcode);
  form.inBox_KeyDown(Key::Up);
  EXPECT_EQ(form.FLEX1.Row(), 1);
  form.inBox_KeyDown(Key::Down);
  form.inBox_KeyDown(Key::Down);
  form.inBox_KeyDown(Key::Down);
  EXPECT_EQ(form.FLEX1.Row(), 3);
  EXPECT_EQ(form.ActiveControl, &form.FLEX1);
  form.FLEX1_KeyPress("7");
  EXPECT_EQ(form.inBox.Text(), "7");
  EXPECT_EQ(form.ActiveControl, &form.inBox);
  form.inBox_KeyPress(Key::Enter);
  EXPECT_EQ(Lines(), "P0009x1 P0005x1 P0003x7 ");
  form.inBox.SetText("half typed");
  form.inBox_KeyDown(Key::Delete);
  EXPECT_EQ(Lines(), "P0009x1 P0005x1 ");
  EXPECT_EQ(form.inBox.Text(), "half typed");
  EXPECT_EQ(ColumnText(form.FLEX1, 0), "2,1");
}

}  // namespace
}  // namespace store
