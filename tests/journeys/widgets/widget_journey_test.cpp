// The whole road of an order at the real windows: once with the keyboard alone, once more with the
// mouse where a clerk would take it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <algorithm>

#include "board/frm_Start.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "tests/journeys/widgets/journey.h"
#include "tests/journeys/widgets/journey_checks.h"
#include "ui/desk.h"
#include "ui/form_window.h"

namespace store {
namespace {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;

// Contract prices that are valid for ever: 500, 4,570 and 790.
constexpr const char* kCider = "8807908952040";
constexpr const char* kWater = "8808885601938";
constexpr const char* kTomato = "8809614929071";

constexpr const char* kDepot = "100101";
constexpr int kTabOfSupplier = 9;  // "차"
constexpr int kTabs = 15;

/// How a clerk goes about it.
enum class By { Keys, Mouse };

// What the board searches for when it opens, and by 입고예정.
constexpr const char* kOfToday =
    "PE_PDATE=DATE_FORMAT(NOW(),'%Y-%m-%d') AND PE_CK NOT IN ('4','8','9')";
constexpr const char* kDue = "PE_CK IN ('2','3')";

std::string Grouped(int number) { return QLocale(QLocale::English).toString(number).toStdString(); }

int Tax(int supply) { return (supply + 5) / 10; }

/// The name cell of an item in order and receipt.
std::string NameCell(const std::string& barcode) {
  return barcode + " " + DemoValue("SELECT PR_NAME FROM PR WHERE PR_BCODE='" + barcode + "'");
}

Row MoneyCells(int supply) {
  return {Grouped(supply), Grouped(Tax(supply)), Grouped(supply + Tax(supply))};
}

/// An order's line as it is shown: number, name, price, quantity, money.
Row SeenOrderLine(const std::string& number, const JourneyLine& line) {
  Row row = {number, NameCell(line.Barcode), Grouped(line.Price), Grouped(line.Quantity)};
  for (std::string& cell : MoneyCells(line.Quantity * line.Price)) row.push_back(std::move(cell));
  return row;
}

/// A receipt's line as it is shown, with the quantities ordered, shipped and received.
Row SeenReceiptLine(const std::string& number, const JourneyLine& line, int shipped) {
  Row row = {number,           NameCell(line.Barcode), Grouped(line.Price), Grouped(line.Ordered),
             Grouped(shipped), Grouped(line.Quantity)};
  for (std::string& cell : MoneyCells(line.Quantity * line.Price)) row.push_back(std::move(cell));
  return row;
}

Table OrderLines(const QWidget& order) {
  return Hands::Rows(order, "FLEX1", {0, 2, 5, 7, 8, 9, 10});
}
Table ReceiptLines(const QWidget& receipt) {
  return Hands::Rows(receipt, "FLEX1", {0, 2, 5, 6, 7, 8, 9, 10, 11});
}
/// Count of lines, total, supply amount, VAT.
Row Totals(const QWidget& window) {
  Row totals;
  for (const char* name : {"LaAmt_0", "LaAmt_1", "LaAmt_2", "LaAmt_3"}) {
    totals.push_back(Hands::TextOf(window, name));
  }
  return totals;
}

class WidgetJourney : public Journey {
 protected:
  void LogIn();
  void ExpectNotices();
  void ExpectBoard(const std::string& search);
  void ChooseSupplierFromTabs(FormWindow& order);
  std::string WriteOrder(By hand);
  void ChangeOrder(const std::string& id);
  void ConfirmAgain(const std::string& id);
  void Receive(const std::string& id, int ordered, int received, By hand);
};

void WidgetJourney::LogIn() {
  hands.WorkIn("frmLogin", [](FormWindow& login) {
    Hands::Type(login, "u01");
    Hands::Press(login, Qt::Key_Return);
    EXPECT_EQ(Hands::KeyboardAt(login), "txtPassword");
    Hands::Type(login, "1111");
    Hands::Press(login, Qt::Key_Return);
  });
}

void WidgetJourney::ExpectNotices() {
  EXPECT_EQ(Hands::Rows(Board(), "FLEX0", {0, 1, 2}),
            DemoRows(R"(SELECT N.NID,REPLACE(REPLACE(SUBJECT,'\\''',''''),'\\"','"'),)"
                     "DATE_FORMAT(WDAY,'%Y.%m.%d %H:%i') FROM NOTICE N JOIN SETCONFIGNOTICE S ON "
                     "S.NID=N.NID WHERE CID_1001='T' ORDER BY WDAY DESC LIMIT 10"));
}

/// The store, its slips that the search finds, their count and their total, as they are stored.
void WidgetJourney::ExpectBoard(const std::string& search) {
  EXPECT_EQ(Hands::TextOf(Board(), "LaCaption"),
            "1001   " + DemoValue("SELECT RCT_NAME FROM RCT WHERE RCT_CODE='1001'"));
  const std::string slips = Splice(
      "(SELECT *,(SELECT COUNT(*) FROM PSM22 L WHERE L.PE_ID=H.PE_ID) AS LINES_N FROM PEM22 H "
      "WHERE PE_FCTCODE='1001' AND PE_LINK='' AND {search}) S",
      "search"_a = search);
  Table shown = Hands::Rows(Board(), "FLEX1", {1, 2, 3, 4, 5, 6, 7, kSlipIdColumn});
  std::sort(shown.begin(), shown.end(), [](const Row& a, const Row& b) { return a[7] < b[7]; });
  EXPECT_EQ(shown, DemoRows("SELECT REPLACE(PE_PDATE,'-','.'),PE_TCTNAME,ELT(PE_CK+1,'발주편집',"
                            "'발주확정','본부승인','물류출고'),FORMAT(LINES_N,0),FORMAT(PE_AMT,0),"
                            "IF(PE_TAX=0,'',FORMAT(PE_TAX,0)),FORMAT(PE_TOT,0),PE_ID FROM " +
                            slips + " ORDER BY PE_ID"));
  EXPECT_EQ((Row{Hands::TextOf(Board(), "Label6_0"), Hands::TextOf(Board(), "Label6_1")}),
            DemoRows("SELECT CONCAT(COUNT(*),'건   ',FORMAT(SUM(LINES_N),0),' 상품'),"
                     "CONCAT(FORMAT(SUM(PE_TOT),0),'원') FROM " +
                     slips)[0]);
}

/// From the far end of the tabs to the one of the supplier's first consonant.
void WidgetJourney::ChooseSupplierFromTabs(FormWindow& order) {
  hands.See("HELP_CT", [](FormWindow& lookup) {
    ASSERT_TRUE(Hands::Wait([&] { return Hands::KeyboardAt(lookup) == "Text1"; }));
    EXPECT_EQ(Hands::TextOf(lookup, "Text1"), "참나무");
    for (int tab = kTabs; tab > kTabOfSupplier; --tab) {
      EXPECT_EQ(Hands::Rows(lookup, "FLEX1", {1}), Table());
      Hands::Press(lookup, Qt::Key_Left, Qt::AltModifier);
    }
    EXPECT_EQ(Hands::Rows(lookup, "FLEX1", {1}), (Table{{kJourneySupplierName}}));
    EXPECT_EQ(Hands::KeyboardAt(lookup), "FLEX1");
    Hands::Press(lookup, Qt::Key_Return);
  });
  Hands::Press(order, Qt::Key_F1);
}

/// Two items stay of four scans: the water is scanned twice, the cider taken out again.
std::string WidgetJourney::WriteOrder(By hand) {
  if (hand == By::Keys) {
    Hands::Press(Board(), Qt::Key_F2);
  } else {
    Hands::Click(Board(), "Image1_0");
  }
  FormWindow& order = Order();
  EXPECT_EQ(Hands::KeyboardAt(order), "Text1");
  EXPECT_EQ(Hands::TextOf(order, "LaSatae"), "");
  Hands::Type(order, "참나무");
  if (hand == By::Keys) {
    ChooseSupplierFromTabs(order);
  } else {
    Hands::Press(order, Qt::Key_Return);
  }
  EXPECT_EQ(Hands::TextOf(order, "Text1"), kJourneySupplierName);
  EXPECT_EQ(Hands::KeyboardAt(order), "inBox");
  for (const auto& [barcode, quantity] :
       {std::pair{kWater, "7"}, {kCider, "2"}, {kTomato, "5"}, {kWater, "12"}}) {
    Hands::Type(order, barcode);
    Hands::Press(order, Qt::Key_Return);
    Hands::Type(order, quantity);
    Hands::Press(order, Qt::Key_Return);
  }
  EXPECT_EQ(OrderLines(order),
            (Table{SeenOrderLine("3", {kWater, 12, 4570}), SeenOrderLine("2", {kTomato, 5, 790}),
                   SeenOrderLine("1", {kCider, 2, 500})}));
  // The cider stands lowest: two steps down from the water, and out it goes.
  Hands::Press(order, Qt::Key_Down);
  Hands::Press(order, Qt::Key_Down);
  Hands::Press(order, Qt::Key_Delete);
  EXPECT_EQ(OrderLines(order),
            (Table{SeenOrderLine("2", {kWater, 12, 4570}), SeenOrderLine("1", {kTomato, 5, 790})}));
  EXPECT_EQ(Totals(order), (Row{"2", "64,669", "58,790", "5,879"}));
  Save({});
  std::string id = NewestOrder();
  ExpectOrder(id, "0", kDepot, {{kWater, 12, 4570}, {kTomato, 5, 790}});
  return id;
}

void WidgetJourney::ChangeOrder(const std::string& id) {
  ASSERT_NO_FATAL_FAILURE(WalkTo(id));
  Hands::Press(Board(), Qt::Key_Return);
  FormWindow& order = Order();
  EXPECT_EQ(Hands::TextOf(order, "LaSatae"), "발주편집");
  EXPECT_EQ(Hands::TextOf(order, "Text1"), kJourneySupplierName);
  // Loaded the other way round: what was written last is on top.
  EXPECT_EQ(OrderLines(order),
            (Table{SeenOrderLine("", {kTomato, 5, 790}), SeenOrderLine("", {kWater, 12, 4570})}));
  EXPECT_EQ(Totals(order), (Row{"2", "64,669", "58,790", "5,879"}));
  Hands::Press(order, Qt::Key_Tab);
  EXPECT_EQ(Hands::KeyboardAt(order), "inBox");
  Hands::Press(order, Qt::Key_Down);
  EXPECT_EQ(Hands::KeyboardAt(order), "FLEX1");
  Hands::Type(order, "6");
  EXPECT_EQ(Hands::KeyboardAt(order), "inBox");
  Hands::Press(order, Qt::Key_Return);
  EXPECT_EQ(OrderLines(order)[0], SeenOrderLine("2", {kTomato, 6, 790}));
  EXPECT_EQ(Totals(order), (Row{"2", "65,538", "59,580", "5,958"}));
  Save(Qt::ShiftModifier);
  ExpectOrder(id, "1", kDepot, {{kTomato, 6, 790}, {kWater, 12, 4570}});
  EXPECT_EQ(NewestOrder(), id);
}

/// Takes a confirmed order back into editing on the board and confirms it once more.
void WidgetJourney::ConfirmAgain(const std::string& id) {
  hands.AnswerBox("[발주확정]전표를 [발주편집]상태로 전환되었습니다.", Qt::Key_Return);
  ASSERT_NO_FATAL_FAILURE(WalkTo(id));
  Hands::Press(Board(), Qt::Key_F8);
  EXPECT_EQ(StateOf(id), "발주편집");
  ExpectOrder(id, "0", kDepot, {{kTomato, 6, 790}, {kWater, 12, 4570}});
  ASSERT_NO_FATAL_FAILURE(WalkTo(id));
  Hands::Press(Board(), Qt::Key_Return);
  EXPECT_EQ(Totals(Order()), (Row{"2", "65,538", "59,580", "5,958"}));
  Save(Qt::ShiftModifier);
  ExpectOrder(id, "1", kDepot, {{kWater, 12, 4570}, {kTomato, 6, 790}});
}

/// Logistics ships one tomato less than ordered; the store finds `received` of them.
void WidgetJourney::Receive(const std::string& id, int ordered, int received, By hand) {
  ShipOrder(id, kTomato, 1);
  if (hand == By::Keys) {
    Hands::Press(Board(), Qt::Key_4, Qt::AltModifier);
  } else {
    Hands::Click(Board(), "Option1_3");
  }
  // A button that its letter presses stays down for a moment.
  ASSERT_TRUE(Hands::Wait([&] { return StateOf(id) == "물류출고"; }));
  ExpectBoard(kDue);
  hands.WorkIn("frm_PE_UNIT", [=](FormWindow& receipt) {
    const Table shipped = {SeenReceiptLine("2", {kTomato, ordered - 1, 790, ordered}, ordered - 1),
                           SeenReceiptLine("1", {kWater, 12, 4570, 12}, 12)};
    EXPECT_EQ(ReceiptLines(receipt), shipped);
    EXPECT_EQ(Hands::TextOf(receipt, "Text1"), kJourneySupplierName);
    Hands::Press(receipt, Qt::Key_Down);
    Hands::Type(receipt, QString::number(ordered + 1));
    Hands::Press(receipt, Qt::Key_Return);
    EXPECT_EQ(ReceiptLines(receipt), shipped);
    EXPECT_EQ(Hands::TextOf(receipt, "inBox"), "");
    Hands::Type(receipt, QString::number(received));
    Hands::Press(receipt, Qt::Key_Return);
    EXPECT_EQ(ReceiptLines(receipt)[0],
              SeenReceiptLine("2", {kTomato, received, 790, ordered}, ordered - 1));
    const Row money = MoneyCells(12 * 4570 + received * 790);
    EXPECT_EQ(Totals(receipt), (Row{"2", money[2], money[0], money[1]}));
    Hands::Press(receipt, Qt::Key_F9);
  });
  hands.AnswerBox("발주량보다 입고량이 많습니다.", Qt::Key_Return);
  hands.AnswerBox("입고확정처리 하시겠습니까?", Qt::Key_Y);
  hands.AnswerBox("입고처리가 정상적으로 처리되었습니다.", Qt::Key_Return);
  if (hand == By::Keys) {
    ASSERT_NO_FATAL_FAILURE(WalkTo(id));
    Hands::Press(Board(), Qt::Key_Return);
  } else {
    Hands::ClickCell(Board(), "FLEX1", RowOf(id), 9);
  }
  ASSERT_TRUE(Hands::Wait([] { return TheDesk().WindowNamed("frm_PE_UNIT") == nullptr; }));
  EXPECT_EQ(RowOf(id), -1);  // refreshed by itself
  ExpectBoard(kDue);
}

TEST_F(WidgetJourney, AnOrderGoesOutTheGoodsComeInAndStockSumMoves) {
  LogIn();
  ASSERT_NO_FATAL_FAILURE(Start(""));
  ExpectNotices();
  ExpectBoard(kOfToday);
  const std::string id = WriteOrder(By::Keys);

  EXPECT_EQ(RowOf(id), -1);  // nobody has refreshed it yet
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(StateOf(id), "발주편집");
  ExpectBoard(kOfToday);
  ASSERT_NO_FATAL_FAILURE(ChangeOrder(id));
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(StateOf(id), "발주확정");
  ASSERT_NO_FATAL_FAILURE(ConfirmAgain(id));

  ASSERT_EQ(StockIn(kWater, kDepot), StockSum{});
  const StockSum tomatoes = StockIn(kTomato, kDepot);
  ASSERT_EQ(tomatoes.Rows, 1);
  const StockSum balance = BalanceIn();
  ASSERT_NO_FATAL_FAILURE(Receive(id, 6, 4, By::Keys));
  const std::vector<JourneyLine> received = {{kTomato, 4, 790, 6}, {kWater, 12, 4570, 12}};
  ExpectReceipt(id, kDepot, received);
  EXPECT_EQ(StockIn(kWater, kDepot), (StockSum{1, 12}));
  EXPECT_EQ(StockIn(kTomato, kDepot), (StockSum{1, tomatoes.Amount + 4}));
  EXPECT_EQ(BalanceIn(), (StockSum{1, balance.Amount + 63800}));

  const std::string second = WriteOrder(By::Mouse);
  EXPECT_NE(second, id);
  ASSERT_NO_FATAL_FAILURE(Receive(second, 5, 5, By::Mouse));
  ExpectReceipt(second, kDepot, {{kTomato, 5, 790, 5}, {kWater, 12, 4570, 12}});
  EXPECT_EQ(StockIn(kWater, kDepot), (StockSum{1, 24}));
  EXPECT_EQ(StockIn(kTomato, kDepot), (StockSum{1, tomatoes.Amount + 9}));
  EXPECT_EQ(BalanceIn(), (StockSum{1, balance.Amount + 63800 + 64669}));
  ExpectReceipt(id, kDepot, received);  // the first one is untouched

  hands.AnswerBox("프로그램을 종료하시겠습니까?", Qt::Key_N);
  Hands::Press(Board(), Qt::Key_F12);
  EXPECT_FALSE(TheDesk().Ending());
  EXPECT_TRUE(Board().isVisible());
  CloseBoard();
  EXPECT_EQ(SlotC, nullptr);
}

TEST_F(WidgetJourney, TheCommandLineLogsInWithoutAWindow) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  ExpectNotices();
  ExpectBoard(kOfToday);
  CloseBoard();
}

TEST_F(WidgetJourney, TheBoardEndsTheProgramEvenBesideAnOpenOrder) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  Hands::Press(Board(), Qt::Key_F2);
  Order();
  Hands::ComeTo("frm_Start");
  CloseBoard();
}

}  // namespace
}  // namespace store
