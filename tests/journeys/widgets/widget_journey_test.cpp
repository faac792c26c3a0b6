// The whole road of an order at the real windows, with keys and clicks only.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "session/main_start.h"
#include "session/numbers.h"
#include "session/options.h"
#include "slips/process_state.h"
#include "tests/journeys/journey_checks.h"
#include "tests/journeys/widgets/hands.h"
#include "tests/support/private_server.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/run_store.h"

namespace store {
namespace {

// Contract prices that are valid for ever: 500, 4,570 and 790.
constexpr const char* kCider = "8807908952040";
constexpr const char* kWater = "8808885601938";
constexpr const char* kTomato = "8809614929071";

constexpr int kSlipIdColumn = 8;
constexpr int kStateColumn = 3;

class WidgetJourney : public testing::Test {
 protected:
  void SetUp() override {
    ResetProcessState();
    static const bool loaded = [] {
      TestServer().LoadDemo();
      return true;
    }();
    (void)loaded;
    PrepareStore(*qApp);
    Host.ProgramFolder = folder_.path().toStdString();
    WriteOption("TARNWICK", "데이터서버", TestServer().ServerOption());
    WriteOption("TARNWICK", "회사아이디", "demo");
    WriteOption("TARNWICK", "일괄발주단가", "3");
  }
  void TearDown() override {
    EXPECT_TRUE(hands.AllDone()) << "did not come: " << hands.NextAnnounced().toStdString();
    TheDesk().Clear();
    ResetProcessState();
  }

  void Start(const std::string& commandLine) {
    if (commandLine.empty()) {
      hands.WorkIn("frmLogin", [](FormWindow& login) {
        Hands::Type(login, "u01");
        Hands::Press(login, Qt::Key_Return);
        Hands::Type(login, "1111");
        Hands::Press(login, Qt::Key_Return);
      });
    }
    bool goesOn = false;
    Dispatch([&] { goesOn = Main_Start(commandLine); });
    ASSERT_TRUE(goesOn);
    ASSERT_TRUE(Hands::Wait([this] { return !Hands::TextOf(Board(), "Label6_0").isEmpty(); }));
  }
  FormWindow& Board() { return Hands::Window("frm_Start"); }
  FormWindow& Order() {
    FormWindow& order = Hands::Window("frm_Order");
    // A person begins when the supplier box blinks.
    Hands::Wait([&] { return !Hands::TextOf(order, "LaAmt_0").isEmpty(); });
    return order;
  }
  /// Row of a slip on the board, or -1.
  int RowOf(const std::string& slipId) {
    return Hands::RowWith(Board(), "FLEX1", kSlipIdColumn, QString::fromStdString(slipId));
  }
  std::string StateOf(const std::string& slipId) {
    return Hands::Cell(Board(), "FLEX1", RowOf(slipId), kStateColumn).toStdString();
  }
  void Save(Qt::KeyboardModifiers modifiers) {
    hands.AnswerBox("계속해서 발주하시겠습니까?", Qt::Key_N);
    Hands::Press(Order(), Qt::Key_F9, modifiers);
    ASSERT_TRUE(Hands::Wait([] { return OpenForm("frm_Order") == nullptr; }));
  }
  void ExpectBoardAsStored();
  std::string WriteOrder();
  void ChangeOrder(const std::string& id);
  void Receive(const std::string& id, int row, const char* tooMany, const char* tomatoes);

  QTemporaryDir folder_;
  Hands hands;
};

void WidgetJourney::ExpectBoardAsStored() {
  EXPECT_EQ(Hands::TextOf(Board(), "LaCaption").toStdString(),
            "1001   " + DemoValue("SELECT RCT_NAME FROM RCT WHERE RCT_CODE='1001'"));
  EXPECT_EQ(Hands::Cell(Board(), "FLEX0", 0, 0).toStdString(),
            DemoValue("SELECT N.NID FROM NOTICE N JOIN SETCONFIGNOTICE S ON S.NID=N.NID WHERE "
                      "CID_1001='T' ORDER BY WDAY DESC LIMIT 1"));
  const auto sums = DemoRows(
      "SELECT COUNT(*),SUM(PE_TOT) FROM PEM22 WHERE PE_FCTCODE='1001' AND "
      "PE_PDATE=DATE_FORMAT(NOW(),'%Y-%m-%d') AND PE_CK NOT IN ('4','8','9') AND PE_LINK=''")[0];
  EXPECT_TRUE(
      Hands::TextOf(Board(), "Label6_0").startsWith(QString::fromStdString(sums[0] + "건")));
  EXPECT_EQ(Hands::TextOf(Board(), "Label6_1").toStdString(),
            FormatNumber(ParseNumber(sums[1]), "###,##0") + "원");
}

std::string WidgetJourney::WriteOrder() {
  Hands::Press(Board(), Qt::Key_F2);
  FormWindow& order = Order();
  EXPECT_TRUE(Hands::Wait([&] {
    return order.focusWidget() != nullptr && order.focusWidget()->objectName() == "Text1" &&
           OpenForm("frm_Order")->FocusRevision() > 0;
  }));
  Hands::Type(order, "참나무");
  Hands::Press(order, Qt::Key_Return);
  EXPECT_EQ(Hands::TextOf(order, "Text1").toStdString(), kJourneySupplierName);
  EXPECT_EQ(order.focusWidget()->objectName(), "inBox");
  for (const auto& [barcode, quantity] :
       {std::pair{kWater, "7"}, {kCider, "2"}, {kTomato, "5"}, {kWater, "12"}}) {
    Hands::Type(order, barcode);
    Hands::Press(order, Qt::Key_Return);
    Hands::Type(order, quantity);
    Hands::Press(order, Qt::Key_Return);
  }
  // The cider stands lowest: two steps down from the water, and out it goes.
  EXPECT_TRUE(Hands::Cell(order, "FLEX1", 2, 2).startsWith(kCider));
  Hands::Press(order, Qt::Key_Down);
  Hands::Press(order, Qt::Key_Down);
  Hands::Press(order, Qt::Key_Delete);
  EXPECT_EQ(Hands::TextOf(order, "LaAmt_0"), "2");
  EXPECT_EQ(Hands::TextOf(order, "LaAmt_1"), "64,669");
  Save({});
  const std::string id = NewestOrder();
  ExpectOrder(id, "0", "100101", {{kWater, 12, 4570}, {kTomato, 5, 790}});
  return id;
}

void WidgetJourney::ChangeOrder(const std::string& id) {
  Hands::ClickCell(Board(), "FLEX1", RowOf(id), 2, true);
  FormWindow& order = Order();
  ASSERT_TRUE(Hands::Wait([&] { return Hands::TextOf(order, "LaAmt_0") == "2"; }));
  EXPECT_TRUE(Hands::Cell(order, "FLEX1", 0, 2).startsWith(kTomato));
  Hands::ClickCell(order, "FLEX1", 0, 2);
  Hands::Type(order, "6");
  Hands::Press(order, Qt::Key_Return);
  Save(Qt::ShiftModifier);
  ExpectOrder(id, "1", "100101", {{kTomato, 6, 790}, {kWater, 12, 4570}});
}

/// Logistics ships one tomato less; `row` is the tomatoes' row on the receipt.
void WidgetJourney::Receive(const std::string& id, int row, const char* tooMany,
                            const char* tomatoes) {
  ShipOrder(id, kTomato, 1);
  Hands::Click(Board(), "Option1_3");
  ASSERT_EQ(StateOf(id), "물류출고");
  hands.WorkIn("frm_PE_UNIT", [=](FormWindow& receipt) {
    Hands::Wait([&] { return Hands::TextOf(receipt, "LaAmt_0") == "2"; });
    EXPECT_EQ(Hands::Cell(receipt, "FLEX1", row, 8).toInt() + 2, atoi(tooMany));
    for (int step = 0; step <= row; ++step) Hands::Press(receipt, Qt::Key_Down);
    Hands::Type(receipt, tooMany);
    Hands::Press(receipt, Qt::Key_Return);
    Hands::Type(receipt, tomatoes);
    Hands::Press(receipt, Qt::Key_Return);
    EXPECT_EQ(Hands::Cell(receipt, "FLEX1", row, 8), tomatoes);
    Hands::Press(receipt, Qt::Key_F9);
  });
  hands.AnswerBox("발주량보다 입고량이 많습니다.", Qt::Key_Return);
  hands.AnswerBox("입고확정처리 하시겠습니까?", Qt::Key_Y);
  hands.AnswerBox("입고처리가 정상적으로 처리되었습니다.", Qt::Key_Return);
  Hands::ClickCell(Board(), "FLEX1", RowOf(id), 9);
  ASSERT_TRUE(Hands::Wait([] { return OpenForm("frm_PE_UNIT") == nullptr; }));
  EXPECT_EQ(RowOf(id), -1);  // refreshed by itself
}

TEST_F(WidgetJourney, AnOrderGoesOutTheGoodsComeInAndStockMoves) {
  Start("");
  ExpectBoardAsStored();
  const std::string id = WriteOrder();

  EXPECT_EQ(RowOf(id), -1);
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(StateOf(id), "발주편집");
  ChangeOrder(id);
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(StateOf(id), "발주확정");
  hands.AnswerBox("[발주편집]상태로 전환되었습니다.", Qt::Key_Return);
  Hands::ClickCell(Board(), "FLEX1", RowOf(id), 2);
  Hands::Press(Board(), Qt::Key_F8);
  EXPECT_EQ(StateOf(id), "발주편집");
  EXPECT_EQ(DemoValue("SELECT PE_CK FROM PEM22 WHERE PE_ID='" + id + "'"), "0");
  Hands::ClickCell(Board(), "FLEX1", RowOf(id), 2, true);
  ASSERT_TRUE(Hands::Wait([&] { return Hands::TextOf(Order(), "LaAmt_0") == "2"; }));
  Save(Qt::ShiftModifier);
  ExpectOrder(id, "1", "100101", {{kWater, 12, 4570}, {kTomato, 6, 790}});

  ASSERT_EQ(StockIn(kWater, "100101"), "none");
  const double tomatoes = ParseNumber(StockIn(kTomato, "100101"));
  const double balance = ParseNumber(BalanceIn());
  Receive(id, 0, "7", "4");
  ExpectReceipt(id, "100101", {{kTomato, 4, 790, 6}, {kWater, 12, 4570, 12}});
  EXPECT_EQ(StockIn(kWater, "100101"), "12.0000");
  EXPECT_EQ(ParseNumber(StockIn(kTomato, "100101")), tomatoes + 4);
  EXPECT_EQ(ParseNumber(BalanceIn()), balance + 63800);

  const std::string second = WriteOrder();
  Receive(second, 0, "6", "5");
  EXPECT_EQ(StockIn(kWater, "100101"), "24.0000");
  EXPECT_EQ(ParseNumber(StockIn(kTomato, "100101")), tomatoes + 9);
  EXPECT_EQ(ParseNumber(BalanceIn()), balance + 63800 + 64669);

  hands.AnswerBox("프로그램을 종료하시겠습니까?", Qt::Key_N);
  Hands::Press(Board(), Qt::Key_F12);
  EXPECT_FALSE(TheDesk().Ending());
  hands.AnswerBox("프로그램을 종료하시겠습니까?", Qt::Key_Y);
  Hands::Press(Board(), Qt::Key_F12);
  EXPECT_TRUE(TheDesk().Ending());
  EXPECT_EQ(SlotC, nullptr);
}

TEST_F(WidgetJourney, TheCommandLineLogsInWithoutAWindow) {
  Start("u01,1111");
  ExpectBoardAsStored();
}

}  // namespace
}  // namespace store

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
