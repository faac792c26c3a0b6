// What the board shows.
#include "basics/records.h"
#include "tests/board/board_test.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

class BoardRefresh : public BoardTest {};

TEST_F(BoardRefresh, ShowsASlipInARow) {
  ShowMay();
  EXPECT_EQ(Slips(), (Texts{kEditing, kConfirmed, kApproved, kShipped}));
  EXPECT_EQ(RowText(board.FLEX1, 3),
            "3|2024.05.16|한빛상사|본부승인|2|23000|1400|24400|" + kApproved + "| |C0001");
  EXPECT_EQ(ColumnText(board.FLEX1, 0), "1,2,3,4");
  Sql("DELETE FROM CT");  // a partner that is gone has no code
  board.Image1_Click(3);
  EXPECT_EQ(ColumnText(board.FLEX1, board::PartnerCode), ",,,");
}

TEST_F(BoardRefresh, FindsByTheChosenCondition) {
  const std::string linked = "202405131001u01220006";
  Sql("INSERT INTO PEM22 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE,PE_LINK) VALUES ('" +
      linked +
      "','3','2024-05-13',now(),'1001','C0003','r1');"
      "INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE,PR_CODE) VALUES ('" +
      linked + "',1,'2024-05-13','P0001')");
  Sql("UPDATE PEM22 SET PE_LINK='' WHERE PE_CK='4'");  // received, but nobody has linked it
  const struct {
    const char* what;
    int option;
    int orderType;
    const char* customer;
    Texts slips;
  } cases[] = {
      {"period", 0, 0, "small", {kApproved, kShipped}},
      {"in editing", 1, 0, "small", {kEditing}},
      {"confirmed", 2, 0, "small", {kConfirmed}},
      {"to be received", 3, 0, "small", {kApproved, kShipped}},
      // The other order forms show what is linked already as well.
      {"to be received, type 1", 3, 1, "small", {kApproved, kShipped, linked}},
      {"to be received, shipped only", 3, 0, "fairwind", {kShipped, linked}},
      {"period there", 0, 0, "fairwind", {kApproved, kShipped}},
  };
  ShowBoard();
  board.DTOrderDate[0].SetValue("2024-05-10");
  board.DTOrderDate[1].SetValue("2024-05-16");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    AppOptions.OrderType = static_cast<std::int16_t>(c.orderType);
    Session.DatabaseName = c.customer;
    board.Option1_Click(c.option);
    EXPECT_EQ(Slips(), c.slips);
    for (size_t i = 0; i < 4; ++i) EXPECT_EQ(board.Option1[i].Value, i == size_t(c.option)) << i;
  }
}

TEST_F(BoardRefresh, TellsAStateByWordAndColour) {
  constexpr int kPlain = -1;
  constexpr int kLightRed = 0xFF5555;
  const struct {
    const char* state;
    const char* word;
    int color;
  } cases[] = {{"0", "발주편집", kPlain}, {"1", "발주확정", kLightRed}, {"7", "7", kLightRed}};
  ShowBoard();
  for (DatePicker& date : board.DTOrderDate) date.SetValue("2024-05-15");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.word);
    Sql(std::string("UPDATE PEM22 SET PE_CK='") + c.state + "' WHERE PE_ID='" + kShipped + "'");
    board.Option1_Click(0);
    ASSERT_EQ(Slips(), (Texts{kShipped}));
    EXPECT_EQ(board.FLEX1.TextMatrix(1, board::State), c.word);
    EXPECT_EQ(board.FLEX1.Look(1, board::Confirm),
              (CellLook{.BackColor = c.color, .Picture = true}));
    EXPECT_EQ(board.FLEX1.Look(1, board::State), CellLook{});
  }
}

TEST_F(BoardRefresh, SumsSlipsLinesAndMoney) {
  ShowMay();
  EXPECT_EQ(board.Label6[0].Caption, "4건   6 상품");
  EXPECT_EQ(board.Label6[1].Caption, "53,600원");
  Sql("UPDATE PEM22 SET PE_TOT=1234567.5 WHERE PE_ID='" + kEditing + "'");
  board.Option1_Click(1);
  EXPECT_EQ(board.Label6[0].Caption, "1건   2 상품");
  EXPECT_EQ(board.Label6[1].Caption, "1,234,568원");
  Sql("DELETE FROM PEM22");
  board.Image1_Click(3);
  EXPECT_EQ(board.Label6[0].Caption, "0건    상품");
  EXPECT_EQ(board.Label6[1].Caption, "0원");
}

TEST_F(BoardRefresh, FoldsSlipsWithoutLinesIntoOne) {
  Sql("DELETE FROM PSM22");
  ShowMay();
  EXPECT_EQ(Slips(), (Texts{""}));
  EXPECT_EQ(board.Label6[0].Caption, "1건   4 상품");
}

TEST_F(BoardRefresh, ShowsNothingWhenTheDatabaseIsAway) {
  ShowMay();
  Disconnect();
  board.Image1_Click(3);
  EXPECT_EQ(Slips(), Texts{});
  EXPECT_EQ(board.FLEX0.Rows(), 1);
  EXPECT_EQ(board.Combo1.List().size(), 0u);
  EXPECT_EQ(host.Pointers.back(), PointerNormal);
}

TEST_F(BoardRefresh, WhoStopsItWaitsForNothingMoreAndKeepsTheDepots) {
  ShowMay();
  const Texts depots = board.Combo1.List();
  ASSERT_FALSE(depots.empty());
  Host.OfferStop = [](std::chrono::milliseconds) { return true; };
  int waits = 0;
  Host.ShowServer = [&](ServerLink link, std::chrono::milliseconds) {
    if (link == ServerLink::Waiting) ++waits;
  };
  const Somebody keepsOrdersAndDepots(
      "LOCK TABLES PEM22 WRITE, PSM22 WRITE, HCT WRITE; DO SLEEP(2)");
  board.Image1_Click(3);
  EXPECT_EQ(Slips(), Texts{});
  EXPECT_EQ(waits, 0);
  EXPECT_EQ(board.Combo1.List(), depots);
}

TEST_F(BoardRefresh, ListsTheStoresNoticesNewestFirst) {
  ShowBoard();
  ASSERT_EQ(board.FLEX0.Rows(), 3);
  // Quotes lose their backslash; a tab in the body divides nothing.
  EXPECT_EQ(RowText(board.FLEX0, 1), "2|'신상품' 안내|2024.05.16 18:05|신상품 \"유자차\"\t입고");
  EXPECT_EQ(RowText(board.FLEX0, 2), "1|추석 휴무 안내|2024.05.10 09:30|물류는 쉽니다.");
  Session.StoreCode = "1002";
  board.Image1_Click(3);
  EXPECT_EQ(ColumnText(board.FLEX0, 0), "3,1");
  Session.StoreCode = "1000";  // a store without a column of its own
  board.Image1_Click(3);
  EXPECT_EQ(ColumnText(board.FLEX0, 0), "");
}

TEST_F(BoardRefresh, ListsTenNoticesAtMost) {
  for (int id = 11; id <= 22; ++id) {
    const std::string text = std::to_string(id);
    Sql(
        Splice("INSERT INTO NOTICE VALUES ({text},'알림','2024-06-{text} 10:00:00','');"
               "INSERT INTO SETCONFIGNOTICE (NID,CID_1001) VALUES ({text},'T')",
               "text"_a = text));
  }
  ShowBoard();
  EXPECT_EQ(ColumnText(board.FLEX0, 0), "22,21,20,19,18,17,16,15,14,13");
}

TEST_F(BoardRefresh, ShowsOneNoticeInItsPane) {
  ShowBoard();
  board.FLEX0.SetRow(1);
  EXPECT_EQ(board.Text1[0].Text(), "'신상품' 안내");
  EXPECT_EQ(board.Text1[1].Text(), "신상품 \"유자차\"\t입고");
  EXPECT_EQ(board.Label2.Caption, "2024.05.16 18:05");
  EXPECT_FALSE(board.Frame1.Visible);
  board.FLEX0_DblClick();
  EXPECT_TRUE(board.Frame1.Visible);
  board.Image3_Click();
  EXPECT_FALSE(board.Frame1.Visible);
}

}  // namespace
}  // namespace store
