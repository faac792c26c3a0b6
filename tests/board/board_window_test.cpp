// The window itself: opening, closing, and the page on the web.
#include <cstdlib>

#include "tests/board/board_test.h"

namespace store {
namespace {

TEST_F(BoardTest, OpensWithTheStoreAndToday) {
  board.LaCT[0].Caption = board.LaPM[7].Caption = "design";
  ShowBoard();
  EXPECT_EQ(board.Caption, "Tarnwick발주시스템");
  EXPECT_EQ(board.LaCaption.Caption, "1001   성수역점");
  for (const DatePicker& date : board.DTOrderDate) EXPECT_EQ(date.Value(), "2024-05-17");
  for (const Label& label : board.LaCT) EXPECT_EQ(label.Caption, "");
  for (const Label& label : board.LaPM) EXPECT_EQ(label.Caption, "");
  EXPECT_TRUE(board.Option1[0].Value);
  EXPECT_EQ(board.Option1[3].Caption, "입고예정(본부승인 및 물류출고)");
  EXPECT_FALSE(board.Frame1.Visible);
  EXPECT_EQ(board.Combo1.List().size(), 3u);
  EXPECT_EQ(board.Combo1.List().at(0).substr(0, 6), "매장");
  EXPECT_EQ(host.Pointers.back(), PointerNormal);
}

TEST_F(BoardTest, ReadsTheDatabaseAtItsFirstActivationAlone) {
  ShowBoard();
  EXPECT_EQ(Slips(), (std::vector<std::string>{kEditing, kConfirmed}));
  Sql("DELETE FROM PEM22 WHERE PE_ID='" + kEditing + "'");
  ShowBoard();
  EXPECT_EQ(Slips().size(), 2u);
  board.Image1_Click(3);
  EXPECT_EQ(Slips(), (std::vector<std::string>{kConfirmed}));
}

TEST_F(BoardTest, AsksBeforeItCloses) {
  ShowBoard();
  OpenRecordset(SlotC, "SELECT PR_CODE FROM PR");
  host.ExpectBox(" 프로그램을 종료하시겠습니까?               ", box::No);
  board.Label5_Click(0);
  EXPECT_FALSE(board.IsClosed());
  EXPECT_TRUE(SlotC);
  EXPECT_FALSE(host.Ended);
  EXPECT_EQ(host.Boxes.at(0).Title, "종료");
  EXPECT_EQ(host.Boxes.at(0).Style, box::Question + box::YesNo);

  host.ExpectBox("종료", box::Yes);
  EXPECT_TRUE(board.KeyDown(Key::F12));
  EXPECT_TRUE(board.IsClosed());
  EXPECT_FALSE(SlotC);
  EXPECT_TRUE(host.Ended);
  EXPECT_EQ(host.Pointers.back(), PointerHourglass);
  EXPECT_FALSE(board.KeyDown(Key::F4));
}

TEST_F(BoardTest, MakesItselfSmallAndOpensTheWebPageWhateverComesOfIt) {
  board.Label5_Click(1);
  EXPECT_EQ(host.FormsMinimized, (std::vector<std::string>{"frm_Start"}));
  EXPECT_FALSE(board.IsClosed());
  setenv("STORE_WEB_HOST", "http://web.example/", 1);
  host.OpensAddresses = false;
  board.Label4_Click();
  unsetenv("STORE_WEB_HOST");
  EXPECT_EQ(host.Addresses, (std::vector<std::string>{"http://web.example/index2.php"}));
}

}  // namespace
}  // namespace store
