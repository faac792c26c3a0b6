// Deleting a slip in editing, and taking a confirmed one back.
#include "tests/board/board_test.h"
#include "tests/support/cutting_proxy.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

class BoardDeletes : public BoardTest {
 protected:
  BoardDeletes() { ShowMay(); }
};

TEST_F(BoardDeletes, OrTakesBackWhatStillHasTheStateShownAndTellsTruly) {
  const std::string remove =
      " DELETE FROM PEM22 WHERE  PE_ID = '" + kEditing + "' AND PE_CK  = '0' ";
  const std::string revert =
      " UPDATE PEM22 SET PE_CK  = '0' WHERE  PE_ID = '" + kConfirmed + "' AND PE_CK  = '1' ";
  const char* const kDeleted = "[발주편집]전표가 삭제되었습니다.";
  const char* const kReverted = "[발주확정]전표를 [발주편집]상태로 전환되었습니다.";
  const struct {
    const std::string& slip;
    const char* state;  ///< When it is selected.
    const char* moved;  ///< To, before the press.
    const std::string& statement;
    const char* box;
    const char* after;
  } cases[] = {
      {kEditing, "0", "2", remove, "[본부승인] 상태로 바뀐 전표입니다. 삭제하지 않았습니다.", "2"},
      {kConfirmed, "1", "2", revert, "[본부승인] 상태로 바뀐 전표입니다. 전환하지 않았습니다.",
       "2"},
      {kConfirmed, "1", "1", revert, kReverted, "0"},
      {kEditing, "0", "0", remove, kDeleted, "gone"},
  };
  const auto move = [](const std::string& slip, const std::string& state) {
    Sql("UPDATE PEM22 SET PE_CK='" + state + "' WHERE PE_ID='" + slip + "'");
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.slip + " moved to " + c.moved);
    move(c.slip, c.state);
    board.Image1_Click(3);
    Click(c.slip);
    move(c.slip, c.moved);
    host.ExpectBox(c.box);
    board.Image1_Click(4);
    // The guards stand in front: its state, and of one that is deleted, what was read of it.
    ASSERT_EQ(SqlBatch.size(), &c.slip == &kEditing ? 4u : 3u);
    EXPECT_EQ(SqlBatch.back(), c.statement);
    EXPECT_EQ(StateOf(c.slip), c.after);
    EXPECT_EQ(host.Boxes.back().Style, box::Plain);
  }
  // The board has been read again, the lines have gone with their slip, and no other slip has.
  EXPECT_EQ(Slips(), (Texts{kConfirmed, kApproved, kShipped}));
  EXPECT_EQ(ColumnText(board.FLEX1, board::State), "발주편집,본부승인,물류출고");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PSM22 WHERE PE_ID='" + kEditing + "'"), "0");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22"), "5");
}

TEST_F(BoardDeletes, ASecondPressHitsWhatIsMarkedByThen) {
  // What was taken back is in editing now, and the board says so.
  Click(kConfirmed);
  host.ExpectBox("전환되었습니다.");
  board.Image1_Click(4);
  EXPECT_EQ(board.SelectedSlipState, "발주편집");
  EXPECT_EQ(StateOf(kConfirmed), "0");
  // What was deleted has left its place to its neighbour.
  Click(kEditing);
  host.ExpectBox("삭제되었습니다.");
  board.Image1_Click(4);
  EXPECT_EQ(board.SelectedSlipId, kConfirmed);
  host.ExpectBox("삭제되었습니다.");
  board.Image1_Click(4);
  EXPECT_EQ(StateOf(kConfirmed), "gone");
}

TEST_F(BoardDeletes, OneThatIsGoneByThenIsTold) {
  Click(kEditing);
  Sql("DELETE FROM PEM22 WHERE PE_ID='" + kEditing + "'");
  host.ExpectBox("다른 곳에서 이미 삭제된 전표입니다.");
  board.Image1_Click(4);
}

TEST_F(BoardDeletes, ALostReplyIsLookedForAndToldTruly) {
  using Cut = CuttingProxy::Cut;
  const struct {
    const std::string& slip;
    Cut cut;
    bool staysAway;
    const char* told;
    const char* after;
  } cases[] = {
      {kConfirmed, Cut::Before, false, "저장이 확인되지 않았습니다.", "1"},
      {kConfirmed, Cut::After, true, "저장되었는지 알 수 없습니다.", "0"},
      {kConfirmed, Cut::After, false, "전환되었습니다.", "0"},
      {kEditing, Cut::Before, true, "저장되었는지 알 수 없습니다.", "0"},
      {kEditing, Cut::Before, false, "저장이 확인되지 않았습니다.", "0"},
      {kEditing, Cut::After, false, "삭제되었습니다.", "gone"},
  };
  CuttingProxy line(TestServer().Port());
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  for (const auto& c : cases) {
    Sql("UPDATE PEM22 SET PE_CK='1' WHERE PE_ID='" + kConfirmed + "'");
    board.Image1_Click(3);
    Click(c.slip);
    line.CutNextBatch(c.cut, c.staysAway);
    host.ExpectBox(c.told);
    board.Image1_Click(4);
    line.Return();
    EXPECT_EQ(StateOf(c.slip), c.after) << c.told;
  }
  ResetGateway();
}

TEST_F(BoardDeletes, NothingInAnyOtherStateNorBeforeAClick) {
  board.Image1_Click(4);
  for (const std::string& slip : {kApproved, kShipped}) {
    Click(slip);
    board.Image1_Click(4);
  }
  EXPECT_EQ(SqlBatch, (Texts{"", ""}));
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(PE_CK ORDER BY PE_ID) FROM PEM22 WHERE PE_FCTCODE='1001'"),
            "4,3,2,0,1");
  // Without a box, but with a refresh.
  Sql("DELETE FROM PEM22");
  board.Image1_Click(4);
  EXPECT_EQ(Slips(), Texts{});
}

TEST_F(BoardDeletes, NothingWithoutADatabaseAndSaysSo) {
  Click(kEditing);
  Disconnect();
  host.ExpectBox("저장이 실패하였습니다.");
  board.Image1_Click(4);
  EXPECT_EQ(Slips().size(), 4u) << "the board is not read again";
  Reconnect();
  EXPECT_EQ(StateOf(kEditing), "0");
}

}  // namespace
}  // namespace store
