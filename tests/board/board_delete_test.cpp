// Deleting a slip in editing, and taking a confirmed one back.
#include "tests/board/board_test.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kDeleted = "[발주편집]전표가 삭제되었습니다.";
constexpr const char* kReverted = "[발주확정]전표를 [발주편집]상태로 전환되었습니다.";

class BoardDeletes : public BoardTest {
 protected:
  BoardDeletes() { ShowMay(); }
};

TEST_F(BoardDeletes, ASlipInEditingWithItsLines) {
  Click(kEditing);
  host.ExpectBox(kDeleted);
  board.Image1_Click(4);
  EXPECT_EQ(SqlBatch,
            (Texts{"", " DELETE FROM PEM22 WHERE  PE_ID = '" + kEditing + "' AND PE_CK  = '0' "}));
  EXPECT_EQ(StateOf(kEditing), "gone");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PSM22 WHERE PE_ID='" + kEditing + "'"), "0");
  EXPECT_EQ(Slips(), (Texts{kConfirmed, kApproved, kShipped}));
  EXPECT_EQ(host.Boxes.at(0).Style, box::Plain);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22"), "5");
}

TEST_F(BoardDeletes, AConfirmedSlipGoesBackIntoEditing) {
  Click(kConfirmed);
  host.ExpectBox(kReverted);
  board.Image1_Click(4);
  EXPECT_EQ(SqlBatch, (Texts{"", " UPDATE PEM22 SET PE_CK  = '0' WHERE  PE_ID = '" + kConfirmed +
                                     "' AND PE_CK  = '1' "}));
  EXPECT_EQ(StateOf(kConfirmed), "0");
  PointAt(kConfirmed);
  EXPECT_EQ(board.FLEX1.TextMatrix(board.FLEX1.Row(), col::State), "발주편집");
}

TEST_F(BoardDeletes, ASecondPressDoesNothingMore) {
  // The state word stays with the selection after the refresh: it asks for a state that is gone.
  Click(kConfirmed);
  for (int press = 1; press <= 2; ++press) {
    host.ExpectBox(kReverted);
    board.Image1_Click(4);
    EXPECT_EQ(StateOf(kConfirmed), "0");
  }
}

TEST_F(BoardDeletes, NothingThatHeadOfficeHasMovedMeanwhile) {
  const struct {
    const std::string& slip;
    const char* box;
  } cases[] = {{kEditing, kDeleted}, {kConfirmed, kReverted}};
  for (const auto& c : cases) {
    Click(c.slip);
    Sql("UPDATE PEM22 SET PE_CK='2' WHERE PE_ID='" + c.slip + "'");
    host.ExpectBox(c.box);  // it says so all the same; the board then shows the truth
    board.Image1_Click(4);
    EXPECT_EQ(StateOf(c.slip), "2");
    PointAt(c.slip);
    EXPECT_EQ(board.FLEX1.TextMatrix(board.FLEX1.Row(), col::State), "본부승인");
  }
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
  EXPECT_EQ(host.Boxes.at(0).Style, box::Plain);
  EXPECT_EQ(Slips().size(), 4u) << "the board is not read again";
  Reconnect();
  EXPECT_EQ(StateOf(kEditing), "0");
}

}  // namespace
}  // namespace store
