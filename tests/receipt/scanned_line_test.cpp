// Goods are scanned: the code leads to its line, and is never a quantity.
#include "basics/records.h"
#include "tests/receipt/receipt_desk.h"

namespace store {
namespace {

class ScannedLine : public ReceiptDesk {
 protected:
  void Type(const std::string& text) {
    Receipt().inBox.SetText(text);
    Receipt().inBox_KeyPress(Key::Enter);
  }
  std::string Received() { return ColumnText(Receipt().FLEX1, receipt::Received); }
};

TEST_F(ScannedLine, ACodeLeadsToItsLineAndTheNextNumberIsItsQuantity) {
  frm_PE_UNIT& form = Open(kApproved);  // P0003 above, P0001 below
  for (const char* code : {"8801000", "P0001", "8801000"}) {
    form.FLEX1.SetRow(1);
    form.inBox.SetText("880");
    form.SetFocus(form.FLEX1);
    form.inBox.Scan(code);
    EXPECT_EQ(form.FLEX1.Row(), 2) << code;
    EXPECT_EQ(form.inBox.Text(), "") << code;
    EXPECT_EQ(form.ActiveControl, &form.inBox) << code;
    EXPECT_EQ(Received(), "30,18") << code;
  }
  Type("16");
  EXPECT_EQ(Received(), "30,16");
  EXPECT_EQ(host.ScansTaken, 3);
  EXPECT_EQ(host.Beeps, 0);
}

TEST_F(ScannedLine, ACodeThatIsNotOnTheSlipIsToldAndChangesNothing) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{0, 3}) {
    AppOptions.OrderType = type;
    frm_PE_UNIT& form = Open(kApproved);
    form.FLEX1.SetRow(2);
    host.Beeps = 0;
    for (const char* code : {"8809999999999", "88010005", "12345"}) {
      host.ExpectBox(std::string("[") + code + "]");
      form.inBox.Scan(code);
      EXPECT_EQ(form.inBox.Text(), "");
      EXPECT_EQ(form.FLEX1.Row(), 2);
    }
    EXPECT_EQ(host.Beeps, 3);
    EXPECT_EQ(Received(), "30,18");
    form.Close();
    ReleaseDroppedForms();
  }
}

TEST_F(ScannedLine, WhatAPersonTypesIsAQuantityUnlessItCannotBeOne) {
  const struct {
    std::int16_t type;
    const char* typed;
    const char* box;
    int row;
    const char* received;
  } cases[] = {
      {0, "20", nullptr, 2, "30,20"},
      {0, "8801000", "발주량보다 입고량이 많습니다.", 2, "30,18"},  // seven digits
      {3, "8801000", nullptr, 2, "30,8801000"},
      {0, "88010003", nullptr, 1, "30,18"},  // a barcode of the slip
      {3, "88010003", nullptr, 1, "30,18"},
      {0, "P0003", nullptr, 1, "30,18"},
      {0, "P9999", nullptr, 2, "30,0"},  // no number is none
      {0, "8809999999999", "발주량보다 입고량이 많습니다.", 2, "30,18"},
      {3, "8809999999999", "[8809999999999]", 2, "30,18"},  // where nothing else would stop it
      {0, "", nullptr, 2, "30,0"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.typed + std::string(" on type ") + std::to_string(c.type));
    AppOptions.OrderType = c.type;
    frm_PE_UNIT& form = Open(kApproved);
    form.FLEX1.SetRow(2);
    if (c.box != nullptr) host.ExpectBox(c.box);
    Type(c.typed);
    EXPECT_EQ(form.FLEX1.Row(), c.row);
    EXPECT_EQ(Received(), c.received);
    EXPECT_EQ(form.inBox.Text(), "");
    form.Close();
    ReleaseDroppedForms();
  }
}

TEST_F(ScannedLine, OfSeveralLinesTheNextThatWantsItsQuantityThenTheNext) {
  Sql(std::string("UPDATE PSM22 SET PR_CODE='P0001' WHERE PE_ID='") + kApproved +
      "'; INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PS_TAXGU,PS_SQTY,PS_EQTY,PS_UP) "
      "VALUES ('" +
      kApproved + "',3,'2024-05-16','P0001','맑은생수','0',5,0,700),('" + kApproved +
      "',4,'2024-05-16','P0003','콩나물','0',5,5,700)");
  frm_PE_UNIT& form = Open(kApproved);
  ASSERT_EQ(ColumnText(form.FLEX1, receipt::Code), "P0003,P0001,P0001,P0001");
  ASSERT_EQ(Received(), "5,0,30,18");
  const auto scan = [&] {
    form.inBox.Scan("8801000");
    return form.FLEX1.Row();
  };
  EXPECT_EQ(scan(), 2) << "nothing of it was shipped, and five were ordered";
  EXPECT_EQ(scan(), 2);
  Type("5");
  EXPECT_EQ(scan(), 3) << "all are at their quantity";
  EXPECT_EQ(scan(), 4);
  EXPECT_EQ(scan(), 2);
  form.FLEX1.SetRow(4);
  Type("17");
  form.FLEX1.SetRow(2);
  EXPECT_EQ(scan(), 4) << "one is missing there";
}

TEST_F(ScannedLine, QuantitiesAndLinesAreTakenBack) {
  frm_PE_UNIT& form = Open(kApproved);
  const std::string total = form.LaAmt[1].Caption;
  Receive(2, "16");
  form.FLEX1.SetRow(1);
  form.inBox_KeyDown(Key::Delete);
  EXPECT_EQ(Received(), "16");
  form.LineUndo.Click();
  EXPECT_EQ(Received(), "30,16");
  EXPECT_TRUE(form.FLEX1.Look(1, receipt::Received).Bold);
  EXPECT_EQ(form.FLEX1.Look(1, receipt::Received).BackColor, 0xFFFF00);
  EXPECT_EQ(form.FLEX1.Row(), 1);
  form.LineUndo.Click();
  EXPECT_EQ(Received(), "30,18");
  EXPECT_EQ(form.LaAmt[1].Caption, total);
  EXPECT_FALSE(form.LineUndo.Enabled);
  form.LineRedo.Click();
  form.LineRedo.Click();
  EXPECT_EQ(Received(), "16");
}

}  // namespace
}  // namespace store
