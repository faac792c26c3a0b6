// The two panes about the selected slip.
#include "tests/board/board_test.h"

namespace store {
namespace {

template <size_t N>
std::string Captions(const std::array<Label, N>& labels) {
  std::string texts;
  for (const Label& label : labels) texts += (&label == &labels[0] ? "" : "|") + label.Caption;
  return texts;
}

constexpr const char* kHanbit =
    "한빛상사|110-81-11111|02-555-0101|02-555-0199|한대표|010-5555-0101|ask@hb.example|한담당|010-"
    "5555-0102|tm@hb.example|[04780] 서울 성동구 뚝섬로 1";

class BoardDetails : public BoardTest {
 protected:
  BoardDetails() { ShowMay(); }
};

TEST_F(BoardDetails, ShowThePartnerByButtonAndByKey) {
  PointAt(kEditing);
  board.Image5_Click();
  EXPECT_EQ(Captions(board.LaCT), kHanbit);
  PointAt(kConfirmed);
  board.FLEX1_KeyDown(Key::F4);
  // What is NULL there empties the label.
  EXPECT_EQ(Captions(board.LaCT), "한빛식품||02-555-0202||||||||[] 경기 광주시 초월읍");
}

TEST_F(BoardDetails, KeepTheirTextsWhenNothingIsFound) {
  PointAt(kEditing);
  board.Image5_Click();
  board.FLEX1.SetRow(0);  // the header's text is no partner
  board.FLEX1_KeyDown(Key::F4);
  EXPECT_EQ(Captions(board.LaCT), kHanbit);
  Disconnect();
  PointAt(kConfirmed);
  board.Image5_Click();
  EXPECT_EQ(Captions(board.LaCT), kHanbit);
}

TEST_F(BoardDetails, AskForConditionsByTheTotalAndSoFindNone) {
  Sql("UPDATE PEM22 SET PE_COND='현금' WHERE PE_ID='" + kEditing + "'");
  PointAt(kEditing);
  board.Image5_Click();
  EXPECT_EQ(Captions(board.LaPM), "|||||||");
  // Only a slip whose key reads as the total would be shown.
  Sql("INSERT INTO PEM22 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE,PE_COND,PE_CSDAY,"
      "PE_CSCT,PE_MEMO1,PE_MEMO2,PE_MEMO3,PE_GRDAY,PE_TYPE) VALUES ('12700','0','2024-05-01',now(),"
      "'1002','C0001','조건','납기','장소','하나','둘','셋','유효','형태')");
  board.Image5_Click();
  EXPECT_EQ(Captions(board.LaPM), "조건|납기|장소|하나|둘|셋|유효|형태");
  PointAt(kConfirmed);
  board.Image5_Click();
  EXPECT_EQ(board.LaPM[0].Caption, "조건");
}

}  // namespace
}  // namespace store
