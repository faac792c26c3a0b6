// A receipt that was typed and not confirmed.
#include "tests/board/drafts_desk.h"

namespace store {
namespace {

const std::string kOrder = "202405161001u01220003";  // 20 of P0001, 18 shipped; 30 of P0003

class ReceiptDrafts : public DraftsDesk {
 protected:
  static std::string Rows13() { return Lines(Receipt().FLEX1, receipt::Received); }
  /// From the board, with the hands of `work` in the form.
  void OpenModally(std::function<void()> work) {
    host.OnModal("frm_PE_UNIT", [work = std::move(work)](Form&) { work(); });
    GoOn();
    ReleaseDroppedForms();
  }
};

TEST_F(ReceiptDrafts, WhatWasCountedComesBackAfterACrashAndGoesWithTheConfirmation) {
  OpenReceipt(kOrder);
  EXPECT_EQ(Rows13(), "P0003x30@300 P0001x18@700 ");
  Receive(2, "17");
  Receipt().FLEX1.SetRow(1);
  Receipt().inBox_KeyDown(Key::Delete);
  const std::string day = FormatDateValue(AddDays(Today(), -2), "YYYY-MM-DD");
  Receipt().DTPicker1.SetValue(day);
  Receipt().Combo1.SetListIndex(2);
  Crash();
  EXPECT_EQ(Shown(), "쓰던 전표 1건");
  OpenModally([&] {
    EXPECT_EQ(Rows13(), "P0001x17@700 ");
    EXPECT_EQ(Receipt().LaAmt[2].Caption, "11,900");
    EXPECT_EQ(Receipt().DTPicker1.Value(), day);
    EXPECT_EQ(Receipt().Combo1.Text().substr(0, 6), "창고");
    host.ExpectBox("입고확정처리 하시겠습니까?", box::Yes);
    host.ExpectBox("입고처리가 정상적으로 처리되었습니다.");
    Receipt().Command1_Click(1);
  });
  EXPECT_EQ(Value("SELECT ROUND(PS_SQTY) FROM PSM23 WHERE PS_DATE='" + day + "'"), "17");
  EXPECT_EQ(Shown(), "");
}

TEST_F(ReceiptDrafts, ClosingKeepsWhatWasCountedAndNothingElse) {
  OpenReceipt(kOrder).Close();
  EXPECT_TRUE(KeptDrafts().empty());
  OpenReceipt(kOrder);
  Receive(1, "29");
  Receipt().Press(Key::Escape);
  EXPECT_EQ(KeptDrafts().size(), 1u);
  OpenReceipt(kOrder);
  Receive(1, "28");
  Receive(1, "30");  // as it was
  Receipt().Label4_Click();
  EXPECT_EQ(KeptDrafts().size(), 1u);
  Board().Activate();
  OpenModally([] { EXPECT_EQ(Rows13(), "P0003x29@300 P0001x18@700 "); });
  EXPECT_EQ(KeptDrafts().size(), 1u) << "closed once more";
}

TEST_F(ReceiptDrafts, LinesThatCannotBeReadCostTheDraftNothing) {
  OpenReceipt(kOrder);
  Receive(1, "29");
  Receipt().Close();
  Board().Activate();
  host.DuringEvents = [] { Sql("RENAME TABLE PR TO AWAY"); };
  host.ExpectBox("쓰던 내용은 그대로 있습니다.");
  OpenModally([] { EXPECT_EQ(Rows13(), ""); });
  host.DuringEvents = nullptr;
  Sql("RENAME TABLE AWAY TO PR");
  EXPECT_EQ(Shown(), "쓰던 전표 1건");
  OpenModally([] { EXPECT_EQ(Rows13(), "P0003x29@300 P0001x18@700 "); });
}

// What was received elsewhere must not be received again from a list of drafts.
TEST_F(ReceiptDrafts, OfAnOrderThatHasMovedOnItIsOnlyLookedAt) {
  OpenReceipt(kOrder);
  Receive(1, "29");
  Receipt().Close();
  Sql("UPDATE PEM22 SET PE_CK='4',PE_LINK='202405171001u02230001' WHERE PE_ID='" + kOrder + "'");
  Board().Activate();
  host.ExpectBox("이어서 입고할 수 없습니다.");
  GoOn();
  EXPECT_EQ(OpenForm("frm_PE_UNIT"), nullptr);
  host.OnModal("frmDrafts", [](Form& form) {
    auto& list = dynamic_cast<frmDrafts&>(form);
    EXPECT_EQ(ColumnText(list.FLEX1, 2) + ColumnText(list.FLEX1, 3), "입고한빛상사");
    EXPECT_EQ(ColumnText(list.FLEX2, 2) + " " + ColumnText(list.FLEX2, 3), "콩나물,맑은생수 29,18");
  });
  Board().LaDraft.Click();
  EXPECT_EQ(Shown(), "쓰던 전표 1건");
}

}  // namespace
}  // namespace store
