#include "basics/records.h"
#include "gateway/odbc_api.h"
#include "tests/receipt/receipt_desk.h"

namespace store {
namespace {

TEST_F(ReceiptDesk, ShowsWhatWasShippedAsWhatHasCome) {
  frm_PE_UNIT& form = Open(kApproved);
  EXPECT_EQ(form.Caption, "매입전표작성");
  EXPECT_EQ(form.Text1.Text() + "/" + form.Text1.Tag, "한빛상사/C0001");
  EXPECT_EQ(form.DTOrderDate.Value(), "2024-05-16");
  EXPECT_EQ(form.Text4.Text(), form.DTPicker1.Value());
  EXPECT_EQ(form.Combo1.ListIndex(), 0);
  EXPECT_EQ(RowText(form.FLEX1, 1),
            "2|P0003|88010003\r콩나물|300g|1|300|30|30|30|9,000|0|9,000|88010003");
  EXPECT_EQ(RowText(form.FLEX1, 2),
            "1|P0001|8801000\r맑은생수|2L*6|0|700|20|18|18|12,600|1,260|13,860|8801000");
  EXPECT_EQ(form.LaAmt[0].Caption, "2");
  EXPECT_EQ(form.LaAmt[1].Caption, "22,860");
  EXPECT_EQ(form.LaAmt[2].Caption, "21,600");
  EXPECT_EQ(form.LaAmt[3].Caption, "1,260");
  EXPECT_TRUE(form.FLEX1.Look(2, 8).Bold);
  EXPECT_EQ(form.FLEX1.Look(2, 8).BackColor, 0xFFFF00);
  EXPECT_EQ(form.ActiveControl, &form.inBox);
}

TEST_F(ReceiptDesk, NoMoreThanWasOrderedButOnTypeThree) {
  Open(kApproved);
  const struct {
    const char* entry;
    const char* received;
    bool refused;
  } steps[] = {{"20", "20", false}, {"21", "20", true},   {"0", "0", false}, {"-3", "-3", false},
               {"", "0", false},    {"1,5", "15", false}, {"x", "0", false}};
  for (const auto& step : steps) {
    if (step.refused) host.ExpectBox("발주량보다 입고량이 많습니다.                  ");
    Receive(2, step.entry);
    EXPECT_EQ(Receipt().FLEX1.TextMatrix(2, 8), step.received) << step.entry;
    EXPECT_EQ(Receipt().inBox.Text(), "");
  }
  AppOptions.OrderType = 3;
  Receive(2, "21");
  EXPECT_EQ(Receipt().FLEX1.TextMatrix(2, 8), "21");
  EXPECT_EQ(Receipt().LaAmt[2].Caption, "23,700");
}

std::string sentToTheServer;

TEST_F(ReceiptDesk, WithTheOptionOnTheItemsOfThePartnerAreRead) {
  AppOptions.OrderInfoPartnersOnly = 1;
  Odbc.ExecDirect = [](SQLHSTMT statement, SQLCHAR* text, SQLINTEGER length) {
    sentToTheServer.assign(reinterpret_cast<char*>(text), static_cast<size_t>(length));
    return SQLExecDirect(statement, text, length);
  };
  Open(kApproved);
  Odbc = OdbcApi();
  EXPECT_EQ(sentToTheServer,
            " SELECT PR.PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR.PR_BCODE,' ',"
            "KD_ID FROM SAFEIV LEFT JOIN PR ON SAFEIV.PR_CODE = PR.PR_CODE  WHERE PR_END = '0' AND "
            "RCT_CODE = '1001' AND CT_CODE = '" +
                Receipt().Text1.Tag + "' ");
}

TEST_F(ReceiptDesk, KeysMoveRemoveAndLeave) {
  frm_PE_UNIT& form = Open(kApproved);
  form.inBox.SetText("5");
  form.inBox_KeyPress(Key::Enter);  // no row is current yet
  EXPECT_EQ(form.FLEX1.TextMatrix(1, 8), "30");
  form.inBox_KeyDown(Key::Down);
  form.inBox_KeyDown(Key::Down);
  form.inBox_KeyDown(Key::Down);
  EXPECT_EQ(form.FLEX1.Row(), 2);
  form.inBox_KeyDown(Key::Up);
  EXPECT_EQ(form.FLEX1.Row(), 1);
  form.FLEX1_KeyPress("9");
  EXPECT_EQ(form.inBox.Text(), "9");
  form.inBox_KeyDown(Key::Delete);
  EXPECT_EQ(ColumnText(form.FLEX1, 1), "P0001");
  EXPECT_EQ(form.LaAmt[0].Caption, "1");
  form.Label4_Click();
  EXPECT_EQ(OpenForm("frm_PE_UNIT"), nullptr);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM23 WHERE PE_LINK='202405161001u01220003'"), "0");
}

TEST_F(ReceiptDesk, AnotherStoresDepotLeavesNoneChosen) {
  Sql("UPDATE PSM22 SET PS_HCTCODE='100999' WHERE PE_ID='202405161001u01220003'");
  frm_PE_UNIT& form = Open(kApproved);
  EXPECT_EQ(form.Combo1.ListIndex(), -1);
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox(
      "입고될 기본하치장을 반드시 선택하세요.  \r또는 최대전표건수를 확인하세요 "
      "셋팅최대처리건수(100건)\r");
  host.ExpectBox("전표순번자료가 없습니다.                    ");
  form.Command1_Click(1);
}

}  // namespace
}  // namespace store
