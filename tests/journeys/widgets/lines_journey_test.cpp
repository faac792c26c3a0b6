// Keys at the lines: taken back and done again, a supplier from the list of the last ones, an order
// once more from the board, and a receipt that is walked through with the scanner.
#include <QApplication>
#include <QtTest>

#include "tests/journeys/widgets/journey.h"
#include "tests/journeys/widgets/journey_checks.h"
#include "ui/desk.h"

namespace store {
namespace {

constexpr const char* kCider = "8807908952040";
constexpr const char* kWater = "8808885601938";

using Table = std::vector<std::vector<std::string>>;

class LinesJourney : public Journey {
 protected:
  static Table Lines(const QWidget& window) { return Hands::Rows(window, "FLEX1", {1, 7}); }
  static void Enter(QWidget& window, const QString& text) {
    Hands::Type(window, text);
    Hands::Press(window, Qt::Key_Return);
  }
  static void Back(QWidget& window) { Hands::Press(window, Qt::Key_Z, Qt::ControlModifier); }
  static void Again(QWidget& window) { Hands::Press(window, Qt::Key_Y, Qt::ControlModifier); }
  static bool CanPress(const QWidget& window, const char* name) {
    return window.findChild<QWidget*>(name)->isEnabled();
  }
};

TEST_F(LinesJourney, LinesAreTakenBackAndTheOrderIsWrittenAgain) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  Hands::Press(Board(), Qt::Key_F2);
  FormWindow& order = Order();
  Enter(order, "#10006");
  const std::string cider = CodeOf(kCider);
  const std::string water = CodeOf(kWater);
  Enter(order, kCider);
  Enter(order, "12");
  Enter(order, kWater);
  const Table written = {{water, "1"}, {cider, "12"}};
  EXPECT_EQ(Lines(order), written);

  // A box that is typed into has its own typing back, and then the lines have theirs.
  Hands::Type(order, "34");
  Back(order);
  EXPECT_EQ(Hands::TextOf(order, "inBox"), "");
  EXPECT_EQ(Lines(order), written);
  Back(order);
  EXPECT_EQ(Lines(order), (Table{{cider, "12"}}));
  Back(order);
  EXPECT_EQ(Lines(order), (Table{{cider, "1"}}));
  Again(order);
  Again(order);
  EXPECT_EQ(Lines(order), written);
  EXPECT_EQ(Hands::TextOf(order, "LaAmt_0"), "2");

  // A scan into the supplier's box: the lookup comes up, and everything is back after it.
  order.findChild<QWidget*>("Text1")->setFocus();
  hands.See("HELP_CT", [](FormWindow& lookup) {
    ASSERT_TRUE(Hands::Wait([&] { return Hands::KeyboardAt(lookup) == "Text1"; }));
    Hands::Press(lookup, Qt::Key_Escape);
  });
  Enter(order, kCider);
  EXPECT_EQ(Lines(order), Table());
  Back(order);
  EXPECT_EQ(Lines(order), written);
  EXPECT_EQ(Hands::TextOf(order, "Text1"), kJourneySupplierName);
  EXPECT_EQ(Hands::KeyboardAt(order), "inBox");
  // And a letter typed there: the first key takes the letter back, the second the lines.
  order.findChild<QWidget*>("Text1")->setFocus();
  Hands::Type(order, "k");
  EXPECT_EQ(Lines(order), Table());
  Back(order);
  Back(order);
  EXPECT_EQ(Hands::TextOf(order, "Text1"), kJourneySupplierName);
  EXPECT_EQ(Lines(order), written);
  Save(Qt::NoModifier);
  const std::string id = NewestOrder();

  // The same once more, changed, from the board.
  Hands::ComeTo("frm_Start");
  Hands::Press(Board(), Qt::Key_F5);
  ASSERT_NO_FATAL_FAILURE(WalkTo(id));
  Hands::Press(Board(), Qt::Key_F6);
  FormWindow& second = Order();
  ASSERT_TRUE(Hands::Wait([&] { return Hands::KeyboardAt(second) == "inBox"; }));
  EXPECT_EQ(Lines(second), written);
  EXPECT_FALSE(CanPress(second, "LineUndo"));
  Enter(second, "3");
  Save(Qt::NoModifier);
  EXPECT_NE(NewestOrder(), id);
  ExpectOrder(id, "0", "100101", {{kWater, 1, 4570}, {kCider, 12, 500}});
  ExpectOrder(NewestOrder(), "0", "100101", {{kWater, 3, 4570}, {kCider, 12, 500}});

  // The list of suppliers opens by the arrow and takes a number.
  Hands::ComeTo("frm_Start");
  Hands::Press(Board(), Qt::Key_F2);
  FormWindow& third = Order();
  EXPECT_EQ(Hands::KeyboardAt(third), "Text1");
  Hands::Press(third, Qt::Key_Down);
  QWidget* list = QApplication::activePopupWidget();
  ASSERT_NE(list, nullptr);
  QTest::keyClick(list, Qt::Key_1);
  EXPECT_EQ(Hands::TextOf(third, "Text1"), kJourneySupplierName);
  EXPECT_EQ(Hands::KeyboardAt(third), "inBox");
  Enter(third, kCider);
  EXPECT_EQ(Lines(third), (Table{{cider, "1"}}));
  Hands::Press(third, Qt::Key_Escape);

  // The goods of the first order come.
  ShipOrder(id, kCider, 2);
  Hands::ComeTo("frm_Start");
  Hands::Press(Board(), Qt::Key_F5);
  ASSERT_NO_FATAL_FAILURE(WalkTo(id));
  hands.WorkIn("frm_PE_UNIT", [&](FormWindow& receipt) {
    ASSERT_TRUE(Hands::Wait([&] { return Hands::KeyboardAt(receipt) == "inBox"; }));
    const auto quantities = [&] { return Hands::Rows(receipt, "FLEX1", {1, 8}); };
    ASSERT_EQ(quantities(), (Table{{cider, "10"}, {water, "1"}}));
    Enter(receipt, kCider);
    EXPECT_EQ(Hands::TextOf(receipt, "inBox"), "");
    Enter(receipt, "9");
    EXPECT_EQ(quantities(), (Table{{cider, "9"}, {water, "1"}}));
    hands.AnswerBox("[8801111111111]", Qt::Key_Return);
    Enter(receipt, "8801111111111");
    receipt.findChild<QWidget*>("FLEX1")->setFocus();
    Enter(receipt, kWater);  // on the lines the code is the box's all the same
    Enter(receipt, "0");
    EXPECT_EQ(quantities(), (Table{{cider, "9"}, {water, "0"}}));
    Back(receipt);
    EXPECT_EQ(quantities(), (Table{{cider, "9"}, {water, "1"}}));
    Hands::Press(receipt, Qt::Key_Escape);
  });
  Hands::Press(Board(), Qt::Key_Return);
  CloseBoard();
}

}  // namespace
}  // namespace store
