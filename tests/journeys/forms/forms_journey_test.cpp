// The whole road of an order, driven as a clerk drives it, without a screen.
#include <gtest/gtest.h>

#include "basics/dates.h"
#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "order/order_form.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/process_state.h"
#include "start/Main_Start.h"
#include "start/frmLogin.h"
#include "start/frmSplash.h"
#include "start/options.h"
#include "tests/journeys/journey_checks.h"
#include "tests/support/private_server.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

// Contract prices that are valid for ever: 500, 4,570 and 790.
constexpr const char* kCider = "8807908952040";
constexpr const char* kWater = "8808885601938";
constexpr const char* kTomato = "8809614929071";

class Workday : public testing::Test {
 protected:
  Workday() {
    ResetProcessState();
    static const bool loaded = [] {
      TestServer().LoadDemo();
      return true;
    }();
    (void)loaded;
    RegisterStartForms();
    RegisterBoardForms();
    RegisterOrderForms();
    RegisterReceiptForms();
    Host.Version = {1, 0, 1};
    ParseDateText(DemoValue("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d %H:%i:%s')"), host.Clock);
    WriteOption("TARNWICK", "데이터서버", TestServer().ServerOption());
    WriteOption("TARNWICK", "회사아이디", "demo");
    WriteOption("TARNWICK", "일괄발주단가", "3");
  }
  ~Workday() override { ResetProcessState(); }

  void Start(const std::string& commandLine) {
    if (commandLine.empty()) {
      host.OnModal("frmLogin", [](Form& form) {
        auto& login = dynamic_cast<frmLogin&>(form);
        login.txtUserName.SetText("u01");
        login.txtUserName_KeyPress(Key::Enter);
        login.txtPassword.SetText("1111");
        login.txtPassword_KeyPress(Key::Enter);
      });
    }
    host.OnModal("frmSplash", [](Form& form) { dynamic_cast<frmSplash&>(form).Timer1_Timer(); });
    ASSERT_TRUE(Main_Start(commandLine));
  }

  frm_Start& Board() { return *dynamic_cast<frm_Start*>(OpenForm("frm_Start")); }
  OrderForm& Order() { return *dynamic_cast<OrderForm*>(OpenForm("frm_Order")); }

  void Enter(const std::string& text) {
    Order().inBox.SetText(text);
    Order().inBox_KeyPress(Key::Enter);
  }
  void Save(int button) {
    host.ExpectBox("계속해서 발주하시겠습니까?", box::No);
    Order().LaBtn_Click(button);
  }
  /// Clicks the board's row of a slip and gives its state word.
  std::string Click(const std::string& slipId) {
    for (int row = 1; row < Board().FLEX1.Rows(); ++row) {
      if (Board().FLEX1.TextMatrix(row, 8) != slipId) continue;
      Board().FLEX1.Select(row, 1);
      Board().FLEX1_Click();
      return Board().FLEX1.TextMatrix(row, 3);
    }
    return "not on the board";
  }
  std::string WriteOrder();
  void Receive(const std::string& orderId, int tomato);

  ScriptedHost host;
};

void ExpectBoardAsStored(frm_Start& board) {
  EXPECT_EQ(board.LaCaption.Caption,
            "1001   " + DemoValue("SELECT RCT_NAME FROM RCT WHERE RCT_CODE='1001'"));
  EXPECT_EQ(board.FLEX0.Rows() - 1, 10);
  const auto sums = DemoRows(
      "SELECT COUNT(DISTINCT H.PE_ID),COUNT(*),(SELECT SUM(PE_TOT) FROM PEM22 WHERE "
      "PE_FCTCODE='1001' AND PE_PDATE=DATE_FORMAT(NOW(),'%Y-%m-%d') AND PE_CK NOT IN "
      "('4','8','9') AND PE_LINK='') FROM PEM22 H JOIN PSM22 L ON H.PE_ID=L.PE_ID WHERE "
      "PE_FCTCODE='1001' AND PE_PDATE=DATE_FORMAT(NOW(),'%Y-%m-%d') AND PE_CK NOT IN ('4','8','9') "
      "AND PE_LINK=''")[0];
  EXPECT_EQ(board.Label6[0].Caption,
            sums[0] + "건   " + FormatNumber(ParseNumber(sums[1]), "#,###") + " 상품");
  EXPECT_EQ(board.Label6[1].Caption, FormatNumber(ParseNumber(sums[2]), "###,##0") + "원");
  EXPECT_GT(board.FLEX1.Rows(), 1);
}

/// Two items stay of four scans: the water is scanned twice, the cider taken out again.
std::string Workday::WriteOrder() {
  Board().Image1_Click(0);
  Order().Text1.SetText("참나무");
  Order().Text1_KeyPress(Key::Enter);
  EXPECT_EQ(Order().Text1.Text(), kJourneySupplierName);
  for (const auto& [barcode, quantity] :
       {std::pair{kWater, "7"}, {kCider, "2"}, {kTomato, "5"}, {kWater, "12"}}) {
    Enter(barcode);
    Enter(quantity);
  }
  EXPECT_EQ(Order().FLEX1.Rows(), 4);
  Order().FLEX1.SetRow(3);
  EXPECT_EQ(Order().FLEX1.TextMatrix(3, 1), CodeOf(kCider));
  Order().FLEX1_KeyDown(Key::Delete);
  EXPECT_EQ(Order().LaAmt[0].Caption, "2");
  EXPECT_EQ(Order().LaAmt[2].Caption, "58,790");  // 12 x 4,570 and 5 x 790
  Save(0);
  std::string id = NewestOrder();
  ExpectOrder(id, "0", "100101", {{kWater, 12, 4570}, {kTomato, 5, 790}});
  return id;
}

/// Logistics ships one tomato less; the store counts `tomato` of them.
void Workday::Receive(const std::string& orderId, int tomato) {
  ShipOrder(orderId, kTomato, 1);
  Board().Option1_Click(3);
  EXPECT_EQ(Click(orderId), "물류출고");
  host.OnModal("frm_PE_UNIT", [&](Form& form) {
    auto& receipt = dynamic_cast<frm_PE_UNIT&>(form);
    ASSERT_EQ(receipt.FLEX1.Rows(), 3);
    const int row = receipt.FLEX1.TextMatrix(1, 1) == CodeOf(kTomato) ? 1 : 2;
    const double ordered = ParseNumber(receipt.FLEX1.TextMatrix(row, 6));
    EXPECT_EQ(receipt.FLEX1.TextMatrix(row, 8), NumberText(ordered - 1));
    receipt.FLEX1.SetRow(row);
    host.ExpectBox("발주량보다 입고량이 많습니다.                  ");
    for (const std::string& typed : {NumberText(ordered + 1), std::to_string(tomato)}) {
      receipt.inBox.SetText(typed);
      receipt.inBox_KeyPress(Key::Enter);
    }
    host.ExpectBox("입고확정처리 하시겠습니까?           ", box::Yes);
    host.ExpectBox("입고처리가 정상적으로 처리되었습니다.");
    receipt.Command1_Click(1);
  });
  Board().FLEX1.Select(Board().FLEX1.Row(), 9);
  Board().FLEX1_Click();
  EXPECT_EQ(Click(orderId), "not on the board");  // refreshed by itself
}

TEST_F(Workday, AnOrderGoesOutTheGoodsComeInAndStockMoves) {
  Start("");
  ExpectBoardAsStored(Board());
  const std::string id = WriteOrder();

  EXPECT_EQ(Click(id), "not on the board");  // nobody has refreshed it yet
  Board().Image1_Click(3);
  EXPECT_EQ(Click(id), "발주편집");
  Board().FLEX1_DblClick();
  Order().FLEX1.SetRow(1);  // loaded the other way round: the tomatoes are on top
  Enter("6");
  Save(1);
  const std::vector<JourneyLine> changed = {{kTomato, 6, 790}, {kWater, 12, 4570}};
  ExpectOrder(id, "1", "100101", changed);

  Board().Image1_Click(3);
  EXPECT_EQ(Click(id), "발주확정");
  host.ExpectBox("[발주확정]전표를 [발주편집]상태로 전환되었습니다.");
  Board().Image1_Click(4);
  EXPECT_EQ(Click(id), "발주편집");
  Board().FLEX1_DblClick();
  Save(1);
  ExpectOrder(id, "1", "100101", {{kWater, 12, 4570}, {kTomato, 6, 790}});

  ASSERT_EQ(StockIn(kWater, "100101"), "none");
  const double tomatoes = ParseNumber(StockIn(kTomato, "100101"));
  const double balance = ParseNumber(BalanceIn());
  Receive(id, 4);
  const std::vector<JourneyLine> received = {{kTomato, 4, 790, 6}, {kWater, 12, 4570, 12}};
  ExpectReceipt(id, "100101", received);
  EXPECT_EQ(StockIn(kWater, "100101"), "12.0000");
  EXPECT_EQ(ParseNumber(StockIn(kTomato, "100101")), tomatoes + 4);
  EXPECT_EQ(DemoRows(Splice("SELECT CONCAT('[',PR_STD,']'),PR_BCODE,BSQTY,OTQTY FROM IV WHERE "
                            "RCT_CODE='1001' AND HCT_CODE='100101' AND PR_CODE='{water}'",
                            "water"_a = CodeOf(kWater))),
            (std::vector<std::vector<std::string>>{
                {"[" +
                     DemoValue(Splice("SELECT PR_STD FROM PR WHERE PR_CODE='{water}'",
                                      "water"_a = CodeOf(kWater))) +
                     " ]",
                 "", "0.0000", "0.0000"}}));
  constexpr double total = 58000 + 5800;  // 12 x 4,570 and 4 x 790, with VAT
  EXPECT_EQ(ParseNumber(BalanceIn()), balance + total);

  const std::string second = WriteOrder();
  EXPECT_NE(second, id);
  Receive(second, 5);
  EXPECT_EQ(StockIn(kWater, "100101"), "24.0000");
  EXPECT_EQ(ParseNumber(StockIn(kTomato, "100101")), tomatoes + 9);
  EXPECT_EQ(ParseNumber(BalanceIn()), balance + total + 58790 + 5879);

  host.ExpectBox(" 프로그램을 종료하시겠습니까?               ", box::Yes);
  Board().Label5_Click(0);
  EXPECT_TRUE(host.Ended);
  EXPECT_EQ(SlotC, nullptr);
}

TEST_F(Workday, TheCommandLineLogsInWithoutAWindow) {
  Start("u01,1111");
  EXPECT_EQ(Session.UserName, DemoValue("SELECT ST_NAME FROM ST WHERE ST_CODE='u01'"));
  ExpectBoardAsStored(Board());
}

}  // namespace
}  // namespace store
