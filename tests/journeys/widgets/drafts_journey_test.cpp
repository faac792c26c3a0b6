// An order that was closed, and one whose program was gone, brought back with the keyboard.
#include "tests/journeys/widgets/journey.h"
#include "tests/support/private_server.h"
#include "ui/desk.h"

namespace store {
namespace {

constexpr const char* kCider = "8807908952040";
constexpr const char* kWater = "8808885601938";

class DraftsJourney : public Journey {
 protected:
  static std::vector<std::vector<std::string>> LinesOf(const QWidget& order) {
    return Hands::Rows(order, "FLEX1", {0, 5, 7});
  }
  std::string Offer() {
    const FormWindow& board = *TheDesk().WindowNamed("frm_Start");  // in front or not
    const auto* offer = board.findChild<QWidget*>("LaDraft");
    return offer->isVisibleTo(&board) ? Hands::TextOf(board, "LaDraft") : "";
  }
  /// Opens the newest draft from the list.
  FormWindow& GoOn() {
    hands.WorkIn("frmDrafts", [](FormWindow& list) {
      EXPECT_EQ(Hands::KeyboardAt(list), "FLEX1");
      Hands::Press(list, Qt::Key_Return);
    });
    Hands::Press(Board(), Qt::Key_D, Qt::ControlModifier);
    FormWindow& order = Order();
    EXPECT_TRUE(Hands::Wait([&] { return Hands::KeyboardAt(order) == "inBox"; }));
    return order;
  }
};

TEST_F(DraftsJourney, AnOrderIsGoneOnWithAfterItsCloseAndAfterTheProgramWasGone) {
  Start("u01,1111");
  EXPECT_EQ(Offer(), "");
  Hands::Press(Board(), Qt::Key_F2);
  FormWindow& order = Order();
  Hands::Type(order, "#10006");
  Hands::Press(order, Qt::Key_Return);
  for (const auto& [barcode, quantity] : {std::pair(kCider, "12"), std::pair(kWater, "7")}) {
    EXPECT_TRUE(Hands::Wait([&] { return Hands::KeyboardAt(order) == "inBox"; }));
    Hands::Type(order, barcode);
    Hands::Press(order, Qt::Key_Return);
    Hands::Type(order, quantity);
    Hands::Press(order, Qt::Key_Return);
  }
  const auto lines = LinesOf(order);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0][2], "7");
  Hands::Press(order, Qt::Key_Escape);
  EXPECT_TRUE(Hands::Wait([&] { return Offer() == "쓰던 전표 1건"; }));

  EXPECT_EQ(LinesOf(GoOn()), lines);
  EXPECT_EQ(Offer(), "");
  Hands::Type(Order(), "9");
  Hands::Press(Order(), Qt::Key_Return);
  const auto changed = LinesOf(Order());
  EXPECT_EQ(changed[0][2], "9");
  // Nobody closes anything: the program is gone.
  Restart("u01,1111");
  EXPECT_EQ(Offer(), "쓰던 전표 1건");
  EXPECT_EQ(LinesOf(GoOn()), changed);
  Save(Qt::NoModifier);
  Hands::ComeTo("frm_Start");
  EXPECT_TRUE(Hands::Wait([&] { return Offer().empty(); }));
  const auto stored = TestServer().Rows(
      "demo",
      "SELECT ROUND(PS_SQTY) FROM PSM22 WHERE PE_ID=(SELECT MAX(PE_ID) FROM PEM22 WHERE PE_ID LIKE "
      "CONCAT(DATE_FORMAT(NOW(),'%Y%m%d'),'1001u01%')) ORDER BY PS_NO");
  EXPECT_EQ(stored, (std::vector<std::vector<std::string>>{{"9"}, {"12"}}));
  CloseBoard();
}

}  // namespace
}  // namespace store
