// The other order types at the real windows, with the keyboard alone: what a clerk of such a chain
// does, and what then stands in the database.
#include <QRadioButton>
#include <algorithm>

#include "gateway/splice.h"
#include "tests/journeys/widgets/journey.h"
#include "tests/journeys/widgets/journey_checks.h"
#include "ui/desk.h"

namespace store {
namespace {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;

constexpr int kPatience = 40;  // presses of a key on the way to somewhere

class OrderTypesJourney : public Journey {
 protected:
  void SetUp() override {
    Journey::SetUp();
    SetOption("발주정보거래처", "1");
  }
  /// With the Tab key to a widget.
  static void TabTo(FormWindow& window, const std::string& name) {
    for (int i = 0; i < kPatience && Hands::KeyboardAt(window) != name; ++i) {
      Hands::Press(window, Qt::Key_Tab);
    }
    ASSERT_EQ(Hands::KeyboardAt(window), name);
  }
  static void Enter(FormWindow& window, const std::string& text) {
    Hands::Type(window, QString::fromStdString(text));
    Hands::Press(window, Qt::Key_Return);
  }
  FormWindow& NewOrder() {
    Hands::Press(Board(), Qt::Key_F2);
    return Order();
  }
  /// Down the rows of a grid that has the keyboard, from its first one.
  static void GoDown(FormWindow& window, int rows) {
    for (int i = 0; i < rows; ++i) Hands::Press(window, Qt::Key_Down);
  }
  /// The year before, which all sales lie behind.
  static void OpenPeriod(FormWindow& order) {
    TabTo(order, "DTPicker1_0");
    Hands::Press(order, Qt::Key_Home);
    Hands::Press(order, Qt::Key_Down);
  }
  /// An option by its letter; its button stays down for a moment.
  static void Choose(FormWindow& order, Qt::Key letter, const char* option) {
    Hands::Press(order, letter, Qt::AltModifier);
    const auto* button = order.findChild<QRadioButton*>(option);
    ASSERT_TRUE(Hands::Wait([&] { return button->isChecked(); }));
  }
  static Table StoredLines(const std::string& id) {
    return DemoRows(
        Splice("SELECT PR_CODE,FORMAT(PS_SQTY,0),FORMAT(PS_UP,0),FORMAT(PS_AMT,0) FROM "
               "PSM22 WHERE PE_ID='{id}' ORDER BY PS_NO",
               "id"_a = id));
  }
  static Row StoredHeader(const std::string& id) {
    return DemoRows(
        Splice("SELECT PE_CK,PE_TCTCODE,PE_TCTNAME,FORMAT(PE_TOT,0) FROM PEM22 WHERE "
               "PE_ID='{id}'",
               "id"_a = id))[0];
  }
};

/// One item of each of three suppliers, ordered in sixes: code, barcode, supplier's name.
Table ItemsOfThreeSuppliers() {
  return DemoRows(
      "SELECT P.PR_CODE,P.PR_BCODE,C.CT_NAME FROM (SELECT S.CT_CODE,MIN(S.PR_CODE) AS CODE FROM "
      "SAFEIV S JOIN PR ON PR.PR_CODE=S.PR_CODE WHERE RCT_CODE='1001' AND CT_CODE<>'' AND "
      "ORD_UP<>0 "
      "AND PR_END='0' AND ORD_QTY=6 GROUP BY CT_CODE) F JOIN PR P ON P.PR_CODE=F.CODE JOIN CT C ON "
      "C.CT_CODE=F.CT_CODE ORDER BY C.CT_CODE LIMIT 3");
}

TEST_F(OrderTypesJourney, OneOrderGoesToThreeSuppliersAndTheGoodsComeIn) {
  SetOption("발주타입", "1");
  SetOption("단가[0]발주", "1");
  ASSERT_NO_FATAL_FAILURE(Start("u03,3333"));
  const Table items = ItemsOfThreeSuppliers();
  ASSERT_EQ(items.size(), 3u);
  FormWindow& order = NewOrder();
  Hands::Press(order, Qt::Key_Tab);
  ASSERT_EQ(Hands::KeyboardAt(order), "inBox");
  for (const int item : {0, 1}) Enter(order, items[static_cast<size_t>(item)][1]);
  EXPECT_EQ(Hands::Rows(order, "FLEX1", {7}), (Table{{"6"}, {"6"}})) << "the unit comes first";

  // The third one by its supplier; five are fewer than the unit, seven will do.
  ASSERT_NO_FATAL_FAILURE(Choose(order, Qt::Key_2, "Option1_1"));
  ASSERT_NO_FATAL_FAILURE(TabTo(order, "PRHELP"));
  const auto suppliers = Hands::Rows(order, "PRHELP", {0, 1, 2, 3});
  size_t cell = 0;
  while (cell < suppliers.size() * 4 && suppliers[cell / 4][cell % 4] != items[2][2]) ++cell;
  GoDown(order, static_cast<int>(cell / 4));
  for (size_t step = 0; step < cell % 4; ++step) Hands::Press(order, Qt::Key_Right);
  Hands::Press(order, Qt::Key_Return);
  Hands::Press(order, Qt::Key_Down, Qt::ControlModifier);
  ASSERT_EQ(Hands::KeyboardAt(order), "FLEX2");
  GoDown(order, Hands::RowWith(order, "FLEX2", 3, items[2][1]));
  hands.AnswerBox("발주단위 이하 발주할 수 없습니다.", Qt::Key_Return);
  Enter(order, "5");
  EXPECT_EQ(Hands::Rows(order, "FLEX1", {7}), (Table{{"6"}, {"6"}}));
  Enter(order, "7");
  EXPECT_EQ(Hands::Rows(order, "FLEX1", {7}), (Table{{"7"}, {"6"}, {"6"}}));

  hands.AnswerBox("발주확정할 수 있는 권한이 없습니다.", Qt::Key_Return);
  Hands::Press(order, Qt::Key_F9, Qt::ShiftModifier);
  ASSERT_NO_FATAL_FAILURE(Save({}));
  const std::string id = DemoValue("SELECT MAX(PE_ID) FROM PEM22 WHERE PE_TCTNAME='통합 발주'");
  EXPECT_EQ(StoredHeader(id), (Row{"0", "1000000000000000", "통합 발주", "0"}));
  EXPECT_EQ(StoredLines(id), (Table{{items[2][0], "7", "0", "0"},
                                    {items[1][0], "6", "0", "0"},
                                    {items[0][0], "6", "0", "0"}}));

  ASSERT_NO_FATAL_FAILURE(StartAgain("u01,1111"));
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(StateOf(id), "발주편집");
  EXPECT_GE(Hands::RowWith(Board(), "FLEX1", 2, "통합 발주"), 0);
  ASSERT_NO_FATAL_FAILURE(WalkTo(id));
  Hands::Press(Board(), Qt::Key_Return);
  EXPECT_EQ(Hands::TextOf(Order(), "Text1"), "");
  ASSERT_NO_FATAL_FAILURE(Save(Qt::ShiftModifier));
  EXPECT_EQ(StoredHeader(id), (Row{"1", "1000000000000000", "통합 발주", "0"}));

  ShipOrder(id, items[0][1], 0);
  Hands::Press(Board(), Qt::Key_4, Qt::AltModifier);
  ASSERT_TRUE(Hands::Wait([&] { return StateOf(id) == "물류출고"; }));
  hands.WorkIn("frm_PE_UNIT", [](FormWindow& receipt) { Hands::Press(receipt, Qt::Key_F9); });
  hands.AnswerBox("입고확정처리 하시겠습니까?", Qt::Key_Y);
  hands.AnswerBox("입고처리가 정상적으로 처리되었습니다.", Qt::Key_Return);
  const std::string stock =
      Splice("SELECT IFNULL(SUM(INQTY),0) FROM IV WHERE RCT_CODE='1001' AND PR_CODE='{code}'",
             "code"_a = items[2][0]);
  const int before = std::stoi(DemoValue(stock));
  ASSERT_NO_FATAL_FAILURE(WalkTo(id));
  Hands::Press(Board(), Qt::Key_Return);
  ASSERT_TRUE(Hands::Wait([] { return TheDesk().WindowNamed("frm_PE_UNIT") == nullptr; }));
  EXPECT_EQ(DemoValue(Splice("SELECT CONCAT(PE_TCTNAME,COUNT(PS_NO)) FROM PEM23 JOIN PSM23 USING "
                             "(PE_ID) WHERE PE_LINK='{id}' GROUP BY PE_ID",
                             "id"_a = id)),
            "통합 발주3");
  EXPECT_EQ(std::stoi(DemoValue(stock)), before + 7);
}

// 명지식품 has what a proposal is made for: items that have run short, and one without a price.
constexpr const char* kFoods = "명지식품";
constexpr const char* kPriceless = "1002084";

TEST_F(OrderTypesJourney, AProposalGoesOverInOneStroke) {
  DemoSql(Splice("UPDATE IV SET BSQTY=0,INQTY=0,OTQTY=0 WHERE RCT_CODE='1001' AND PR_CODE='{code}'",
                 "code"_a = kPriceless));
  SetOption("발주타입", "2");
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  FormWindow& order = NewOrder();
  Enter(order, kFoods);
  ASSERT_NO_FATAL_FAILURE(OpenPeriod(order));
  Hands::Press(order, Qt::Key_F7);
  // Sold in all these days, three times over, less the stock.
  const Table sold = DemoRows(
      "SELECT B.PR_CODE,FORMAT(SUM(B.PS_SQTY)*3,0),FORMAT(SUM(B.PS_SQTY)*3-IFNULL((SELECT "
      "SUM(BSQTY+INQTY-OTQTY) FROM IV WHERE RCT_CODE='1001' AND IV.PR_CODE=B.PR_CODE),0),0) FROM "
      "PES13 A JOIN PSS13 B ON B.PE_ID=A.PE_ID JOIN PR C ON C.PR_CODE=B.PR_CODE WHERE "
      "A.PE_FCTCODE='1001' AND B.PR_CODE IN (SELECT PR_CODE FROM SAFEIV WHERE RCT_CODE='1001' AND "
      "CT_CODE='10016') GROUP BY B.PR_CODE ORDER BY B.PR_CODE");
  ASSERT_NO_FATAL_FAILURE(TabTo(order, "Text3"));
  Enter(order, "3");
  Table proposed = Hands::Rows(order, "FLEX2", {0, 6, 8});
  std::sort(proposed.begin(), proposed.end());
  for (Row& row : proposed) row[2] = row[2].empty() ? "0" : row[2];
  EXPECT_EQ(proposed, sold);

  ASSERT_NO_FATAL_FAILURE(TabTo(order, "Check2"));
  Hands::Press(order, Qt::Key_Space);
  ASSERT_NO_FATAL_FAILURE(Choose(order, Qt::Key_3, "Option1_0"));
  Hands::Press(order, Qt::Key_F11, Qt::ShiftModifier);
  Table wanted;
  for (const Row& row : sold) {
    if (row[2][0] != '-' && row[2] != "0" && row[0] != kPriceless)
      wanted.push_back({row[0], row[2]});
  }
  ASSERT_GE(wanted.size(), 2u);
  Table lines = Hands::Rows(order, "FLEX1", {1, 7});
  std::sort(lines.begin(), lines.end());
  EXPECT_EQ(lines, wanted) << "what is short, and nothing that is hidden or has no price";
  EXPECT_NE(Hands::TextOf(order, "Label6").find("의 단가가 정의되지 않았습니다."),
            std::string::npos);

  ASSERT_NO_FATAL_FAILURE(TabTo(order, "inBox"));
  hands.WorkIn("frm_OrderPLU", [](FormWindow& panel) {
    Hands::Press(panel, Qt::Key_Right);
    Hands::Press(panel, Qt::Key_Return);
  });
  Enter(order, ",라면");
  const Table more = Hands::Rows(order, "FLEX1", {1, 7});
  EXPECT_EQ(more[0][1], "1");
  EXPECT_EQ(more[0][0],
            DemoValue("SELECT P.PR_CODE FROM SAFEIV S JOIN PR P ON P.PR_CODE=S.PR_CODE WHERE "
                      "S.RCT_CODE='1001' AND S.CT_CODE='10016' AND PR_END='0' AND PR_NAME LIKE "
                      "'%라면%' ORDER BY PR_NAME LIMIT 1,1"));
  ASSERT_NO_FATAL_FAILURE(Save(Qt::ShiftModifier));
  const std::string id = NewestOrder();
  EXPECT_EQ(StoredHeader(id)[0] + StoredHeader(id)[2], "2명지식품");
  Table stored = DemoRows(
      Splice("SELECT PR_CODE,FORMAT(PS_SQTY,0) FROM PSM22 WHERE PE_ID='{id}' ORDER BY PS_NO",
             "id"_a = id));
  EXPECT_EQ(stored, more);
}

TEST_F(OrderTypesJourney, QuantitiesGoInUnits) {
  SetOption("발주타입", "3");
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  FormWindow& order = NewOrder();
  // Chosen in the lookup the supplier's list knows the units.
  Hands::Type(order, kFoods);
  hands.See("HELP_CT", [](FormWindow& lookup) {
    ASSERT_TRUE(Hands::Wait([&] { return Hands::KeyboardAt(lookup) == "Text1"; }));
    Hands::Press(lookup, Qt::Key_Return);
    ASSERT_EQ(Hands::KeyboardAt(lookup), "FLEX1");
    Hands::Press(lookup, Qt::Key_Return);
  });
  Hands::Press(order, Qt::Key_F1);
  ASSERT_EQ(Hands::KeyboardAt(order), "inBox");
  ASSERT_NO_FATAL_FAILURE(TabTo(order, "Check1"));
  Hands::Press(order, Qt::Key_Space);
  ASSERT_NO_FATAL_FAILURE(OpenPeriod(order));
  ASSERT_NO_FATAL_FAILURE(TabTo(order, "PRHELP"));
  Hands::Press(order, Qt::Key_Return);
  const Table shown = Hands::Rows(order, "FLEX2", {0, 3, 5, 9});
  ASSERT_FALSE(shown.empty());
  EXPECT_EQ(shown[0][2],
            DemoValue(Splice("SELECT FORMAT(SUM(PS_SQTY),0) FROM PES13 JOIN PSS13 USING "
                             "(PE_ID) WHERE PE_FCTCODE='1001' AND PR_CODE='{code}'",
                             "code"_a = shown[0][0])));
  size_t item = 0;
  while (std::stoi(shown[item][3]) < 2) ++item;
  const int unit = std::stoi(shown[item][3]);
  ASSERT_NO_FATAL_FAILURE(TabTo(order, "inBox"));
  Enter(order, shown[item][1]);
  EXPECT_EQ(Hands::Rows(order, "FLEX1", {1, 7}), (Table{{shown[item][0], std::to_string(unit)}}));
  hands.AnswerBox(QString("적정발주량 [%1]").arg(2 * unit), Qt::Key_Return);
  Enter(order, std::to_string(unit + 1));
  EXPECT_EQ(Hands::Rows(order, "FLEX1", {7}), (Table{{std::to_string(unit)}}));
  Enter(order, std::to_string(2 * unit));
  EXPECT_EQ(Hands::Rows(order, "FLEX1", {7}), (Table{{std::to_string(2 * unit)}}));
  Enter(order, "0");
  EXPECT_EQ(Hands::Rows(order, "FLEX1", {7}), Table());
  Enter(order, shown[item][1]);
  ASSERT_NO_FATAL_FAILURE(Save(Qt::ShiftModifier));
  const std::string id = NewestOrder();
  EXPECT_EQ(StoredHeader(id)[0] + StoredHeader(id)[2], "2명지식품");
  EXPECT_EQ(StoredLines(id)[0][1], std::to_string(unit));
}

}  // namespace
}  // namespace store
