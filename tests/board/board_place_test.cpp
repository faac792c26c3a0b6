// One row is marked, named and acted on, and the board keeps its place when it is read anew.
#include "tests/board/board_test.h"

namespace store {
namespace {

class BoardPlace : public BoardTest {
 protected:
  BoardPlace() { ShowMay(); }
  /// The slip in the marked row; empty without one. It is the one that is named.
  std::string Marked() const {
    const int row = board.FLEX1.Row();
    const std::string slip = row < 1 ? "" : board.FLEX1.TextMatrix(row, board::SlipId);
    EXPECT_EQ(board.SelectedSlipId, slip);
    EXPECT_EQ(board.SelectedSlipState, row < 1 ? "" : board.FLEX1.TextMatrix(row, board::State));
    return slip;
  }
  void Refresh() { board.Image1_Click(3); }
};

TEST_F(BoardPlace, WhateverMovesTheMarkNamesItsSlip) {
  EXPECT_EQ(Marked(), "");
  for (const std::string& slip : {kConfirmed, kShipped}) {
    PointAt(slip);
    EXPECT_EQ(Marked(), slip);
  }
}

TEST_F(BoardPlace, TheSameSlipIsSelectedOrTheOneThatHasComeIntoItsPlace) {
  PointAt(kApproved, board::Total);
  board.FLEX1.NoteTopRow(1);
  const auto remove = [](const std::string& slip) {
    Sql("DELETE FROM PEM22 WHERE PE_ID='" + slip + "'");
  };
  remove(kConfirmed);  // one above it
  Refresh();
  EXPECT_EQ(Marked(), kApproved);
  EXPECT_EQ(board.FLEX1.Row(), 2);
  EXPECT_EQ(board.FLEX1.Col(), board::Total);
  EXPECT_EQ(board.FLEX1.TopRow(), 1);
  remove(kApproved);
  Refresh();
  EXPECT_EQ(Marked(), kShipped);
  remove(kShipped);
  Refresh();
  EXPECT_EQ(Marked(), kEditing) << "the last one, when it was the last";
  remove(kEditing);
  Refresh();
  EXPECT_EQ(Marked(), "");
}

TEST_F(BoardPlace, AReceiptLeavesTheBoardWhereItWas) {
  PointAt(kApproved);
  host.OnModal("frm_PE_UNIT",
               [](Form&) { Sql("UPDATE PEM22 SET PE_CK='4' WHERE PE_ID='" + kApproved + "'"); });
  board.FLEX1_DblClick();
  EXPECT_EQ(Marked(), kShipped);
}

TEST_F(BoardPlace, AnotherSearchSelectsTheSameSlipOrNone) {
  PointAt(kConfirmed);
  board.Option1_Click(2);
  EXPECT_EQ(Marked(), kConfirmed);
  board.Option1_Click(1);
  EXPECT_EQ(Marked(), "") << "its place in another list is nobody's";
  board.Image1_Click(4);
  EXPECT_EQ(StateOf(kConfirmed), "1") << "and what is not marked is not touched";
}

TEST_F(BoardPlace, SurvivesAReadThatFailedAndTheBoardSaysWhenItWasRead) {
  EXPECT_EQ(board.LaRead.Caption, "10:20 조회");
  PointAt(kApproved);
  Disconnect();
  host.Clock.Minute = 31;
  Refresh();
  EXPECT_EQ(board.LaRead.Caption, "10:31 서버에서 읽지 못했습니다");
  EXPECT_EQ(Marked(), "");
  Reconnect();
  host.Clock.Minute = 32;
  Refresh();
  EXPECT_EQ(board.LaRead.Caption, "10:32 조회");
  EXPECT_EQ(Marked(), kApproved);
}

TEST_F(BoardPlace, ANumberThatIsNoneLeavesNothingSelected) {
  PointAt(kEditing);
  host.ExpectBox("전표를 찾을 수 없습니다.");
  board.Text2.SetText("99");
  board.Text2_KeyPress(Key::Enter);
  EXPECT_EQ(Marked(), "");
}

}  // namespace
}  // namespace store
