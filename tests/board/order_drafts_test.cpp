// An order that was written and not saved, from the crash or the close to the day it is gone on
// with.
#include <fstream>

#include "lookup/lookup_form.h"
#include "slips/post_order.h"
#include "tests/board/drafts_desk.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

const std::string kSlip = "202405171001u01220001";  // in editing: 10 of P0001, 1 of P0002
constexpr const char* kSaved = "발주가 정상적으로 처리되었습니다.";

class OrderDrafts : public DraftsDesk {
 protected:
  void Save(int answer = box::No) {
    host.ExpectBox(kSaved, answer);
    Order().LaBtn_Click(0);
  }
  static std::string Stored(const std::string& where) {
    std::string lines;
    for (const auto& row :
         Rows("SELECT PR_CODE,ROUND(PS_SQTY),ROUND(PS_UP),PE_TCTCODE,PE_PDATE,PS_HCTCODE "
              "FROM PEM22 JOIN PSM22 "
              "USING (PE_ID) WHERE " +
              where + " ORDER BY PS_NO")) {
      for (const std::string& cell : row) lines += cell + " ";
    }
    return lines;
  }
};

TEST_F(OrderDrafts, WhatWasTypedComesBackAfterACrashAndGoesWithTheSave) {
  EXPECT_EQ(Shown(), "");
  WriteOrder();
  const std::string day = FormatDateValue(AddDays(Today(), 3), "YYYY-MM-DD");
  Order().DTOrderDate.SetValue(day);
  Order().Combo1.SetListIndex(2);
  const std::string depot = Order().Combo1.Text();
  const std::string total = Order().LaAmt[1].Caption;
  EXPECT_EQ(OrderLines(), "P0001x12@700 P0002x3@6000 ");

  for (int crash = 0; crash < 2; ++crash) {  // and once more, gone on with
    Crash();
    EXPECT_EQ(Shown(), "쓰던 전표 1건");
    GoOn();
    EXPECT_EQ(Shown(), "") << "it is being written again";
    EXPECT_EQ(OrderLines(), "P0001x12@700 P0002x3@6000 ");
    EXPECT_EQ(Order().Text1.Text() + Order().Text1.Tag, "한빛상사C0001");
    EXPECT_EQ(Order().DTOrderDate.Value(), day);
    EXPECT_EQ(Order().Combo1.Text(), depot);
    EXPECT_EQ(Order().LaAmt[1].Caption, total);
    EXPECT_EQ(Order().FLEX1.TextMatrix(1, 0), "2");
  }
  Save();
  EXPECT_EQ(Stored("PE_PDATE='" + day + "'"), "P0001 12 700 C0001 " + day +
                                                  " 100102 P0002 3 6000 "
                                                  "C0001 " +
                                                  day + " 100102 ");
  EXPECT_EQ(Shown(), "");
  Crash();
  EXPECT_EQ(Shown(), "");
}

TEST_F(OrderDrafts, ClosingKeepsWhatWasWrittenAndAsksNothing) {
  const std::pair<const char*, std::function<void()>> closings[] = {
      {"Esc", [] { Order().KeyDown(Key::Escape); }},
      {"its button", [] { Order().Label5_Click(0); }},
      {"the window", [] { Order().Close(); }},
  };
  int kept = 0;
  for (const auto& [name, close] : closings) {
    WriteOrder();
    close();
    EXPECT_EQ(OpenForm("frm_Order"), nullptr) << name;
    EXPECT_EQ(Shown(), "쓰던 전표 " + std::to_string(++kept) + "건") << name;
    ReleaseDroppedForms();
  }
  WriteOrder();
  host.ExpectBox("프로그램을 종료하시겠습니까?", box::Yes);
  Board().Close();
  Host.Ending = false;
  Crash();
  EXPECT_EQ(Shown(), "쓰던 전표 4건");
}

TEST_F(OrderDrafts, NothingIsKeptOfAnOrderWithoutALineOrWithoutAChange) {
  OpenOrder();
  Order().Close();
  OpenOrder();
  Supplier("#C0001");
  Order().Close();
  WriteOrder();
  for (int line = 0; line < 2; ++line) Order().FLEX1_KeyDown(Key::Delete);
  Order().Close();
  OpenOrder(kSlip);
  Order().Close();
  OpenOrder(kSlip);
  Order().FLEX1.SetRow(2);
  Enter("11");
  Enter("10");  // as it was
  Order().Close();
  OpenOrder("202405171001u01220002");  // confirmed: to be looked at
  Order().FLEX1.SetRow(1);
  Order().FLEX1_KeyDown(Key::Delete);
  Order().Close();
  EXPECT_EQ(Shown(), "");
  // After a save the next order is kept like any other.
  WriteOrder();
  Save(box::Yes);
  Supplier("#C0001");
  Enter("88010001");
  Crash();
  GoOn();
  EXPECT_EQ(OrderLines(), "P0002x1@6000 ");
  EXPECT_EQ(Order().SlipId, "");
}

TEST_F(OrderDrafts, OnAnotherDayItemsAndPricesAreAskedAnew) {
  WriteOrder();
  Enter("88010003");
  Enter("5");
  Enter("88010005");
  Enter("6");
  const std::string before = OrderLines();
  EXPECT_NE(before.find("P0005x6@1500 "), std::string::npos) << before;
  Order().Close();

  const CalendarDate tomorrow = AddDays(Today(), 1);
  host.Clock.Year = tomorrow.Year;
  host.Clock.Month = tomorrow.Month;
  host.Clock.Day = tomorrow.Day;
  Sql("UPDATE CTP SET CTP_UP=1600 WHERE PR_CODE='P0005'; UPDATE PR SET PR_END='1' WHERE "
      "PR_CODE='P0002'; UPDATE CTP SET CTP_TDATE=CURDATE(), CTP_FDATE='2024-01-01', CTP_UP=55, "
      "RCT_CODE='1000' WHERE PR_CODE='P0003'; DELETE FROM HCT WHERE HCT_CODE='100102'");
  Crash();
  host.ExpectBox("[P0002] 국산쌀  3");
  GoOn();
  EXPECT_EQ(host.Boxes.back().Style, box::Warning);
  const std::string after = OrderLines();
  EXPECT_NE(after.find("P0005x6@1600 "), std::string::npos) << after;
  EXPECT_EQ(after.find("P0003x5@55 "), std::string::npos) << "that contract has ended";
  EXPECT_EQ(after.find("P0002"), std::string::npos) << after;
  // What could not be ordered today is not lost with that.
  Order().Close();
  Sql("UPDATE PR SET PR_END='0' WHERE PR_CODE='P0002'");
  Crash();
  GoOn();
  EXPECT_EQ(OrderLines(), after + "P0002x3@6000 ");
  Supplier("#C0002");
  Enter("88010003");
  Crash();
  GoOn();
  EXPECT_EQ(OrderLines().find("P0005"), std::string::npos) << "another supplier, other lines";
}

TEST_F(OrderDrafts, AChangedOrderComesBackOntoItsSlipWithThatSlipsPrices) {
  OpenOrder(kSlip);
  Order().FLEX1.SetRow(2);
  Enter("14");
  Enter("88010005");
  EXPECT_EQ(OrderLines(), "P0005x1@1500 P0002x1@5000 P0001x14@700 ");
  Crash();
  GoOn();
  EXPECT_EQ(OrderLines(), "P0005x1@1500 P0002x1@5000 P0001x14@700 ");
  EXPECT_EQ(Order().SlipId, kSlip);
  Enter("2");
  const std::string orders = Value("SELECT COUNT(*) FROM PEM22");
  Save();
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22"), orders);
  EXPECT_EQ(
      Value("SELECT GROUP_CONCAT(CONCAT(PR_CODE,'x',ROUND(PS_SQTY)) ORDER BY PS_NO) FROM PSM22 "
            "WHERE PE_ID='" +
            kSlip + "'"),
      "P0005x2,P0002x1,P0001x14");
}

TEST_F(OrderDrafts, AnOrderThatSomebodyHasChangedIsToldAndNeverOverwritten) {
  const char* changes[] = {
      "UPDATE PEM22 SET PE_CK='2' WHERE PE_ID='%'",
      "UPDATE PEM22 SET PE_SDATE=NOW() WHERE PE_ID='%'",
      "UPDATE PEM22 SET PE_TOT=1 WHERE PE_ID='%'",
      "DELETE FROM PEM22 WHERE PE_ID='%'",
  };
  for (std::string change : changes) {
    SCOPED_TRACE(change);
    change.replace(change.find('%'), 1, kSlip);
    Sql("UPDATE PEM22 SET PE_CK='0'");
    OpenOrder(kSlip);
    Order().FLEX1.SetRow(2);
    Enter(std::to_string(20 + host.Boxes.size()));
    Order().Close();
    ReleaseDroppedForms();
    Sql(change);
    const std::string before = Stored("PE_ID='" + kSlip + "'");
    host.ExpectBox(kSlip + "은(는) 그 사이에 바뀌었거나");
    GoOn();
    EXPECT_EQ(Order().SlipId, "");
    EXPECT_NE(OrderLines().find("P0001x2"), std::string::npos) << OrderLines();
    EXPECT_EQ(Order().DTOrderDate.Value(), "2024-05-17");
    Order().DTOrderDate.SetValue(FormatDateValue(Today(), "YYYY-MM-DD"));
    Save();
    EXPECT_EQ(Stored("PE_ID='" + kSlip + "'"), before);
    EXPECT_EQ(Shown(), "");
    ReleaseDroppedForms();
  }
}

TEST_F(OrderDrafts, ASaveWhoseReplyWasLostIsNotMadeTwice) {
  const struct {
    bool edited;
    const char* told;
    const char* shown;
  } cases[] = {{false, "이미 저장되어 있습니다.", ""}, {true, "그 사이에 바뀌었거나", ""}};
  for (const auto& c : cases) {
    WriteOrder();
    Sql("RENAME TABLE PSM22 TO PSM22_AWAY");
    host.ExpectBox("저장이 실패하였습니다.");
    Order().LaBtn_Click(0);
    Sql("RENAME TABLE PSM22_AWAY TO PSM22");
    EXPECT_EQ(PostNewOrder(Order().HeadValues, Order().LineValues, "PEM22"), -1);
    const std::string key = Order().HeadValues[head::Id];
    if (c.edited) Enter("13");
    Crash();
    host.ExpectBox(c.told);
    GoOn();
    EXPECT_NE(host.Boxes.back().Text.find(key), std::string::npos);
    EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22 WHERE PE_ID='" + key + "'"), "1");
    EXPECT_EQ(Shown(), c.shown);
    EXPECT_EQ(OpenForm("frm_Order") != nullptr, c.edited);
    EXPECT_TRUE(!c.edited || OrderLines() == "P0001x13@700 P0002x3@6000 ");
    if (c.edited) Order().Close();
    ReleaseDroppedForms();
  }
}

TEST_F(OrderDrafts, WhatCouldNotBeSavedIsGoneOnWithAndSavedOnce) {
  WriteOrder();
  Sql("RENAME TABLE PSM22 TO PSM22_AWAY");
  host.ExpectBox("저장이 실패하였습니다.");
  Order().LaBtn_Click(0);
  Sql("RENAME TABLE PSM22_AWAY TO PSM22; CREATE TABLE CT_AWAY AS SELECT * FROM CT; DELETE FROM CT "
      "WHERE CT_CODE='C0001'");
  Crash();
  GoOn();
  host.ExpectBox("거래처입력오류");  // the supplier is gone
  Order().LaBtn_Click(0);
  Order().Close();
  Sql("INSERT INTO CT SELECT * FROM CT_AWAY WHERE CT_CODE='C0001'; DROP TABLE CT_AWAY");
  GoOn();
  const std::string orders = Value("SELECT COUNT(*)+1 FROM PEM22");
  Save();
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22"), orders);
  EXPECT_EQ(Shown(), "");
}

// The program was ended while the server still worked at the save.
TEST_F(OrderDrafts, ASaveThatIsStillRunningIsWaitedFor) {
  WriteOrder();
  Sql("RENAME TABLE PSM22 TO PSM22_AWAY");
  host.ExpectBox("저장이 실패하였습니다.");
  Order().LaBtn_Click(0);
  Sql("RENAME TABLE PSM22_AWAY TO PSM22");
  EXPECT_EQ(PostNewOrder(Order().HeadValues, Order().LineValues, "PEM22"), -1);
  const std::string ofKey = " WHERE PE_ID='" + Order().HeadValues[head::Id] + "'";
  Crash();
  Somebody saves("CREATE TEMPORARY TABLE H AS SELECT * FROM PEM22" + ofKey +
                 "; CREATE TEMPORARY TABLE L AS SELECT * FROM PSM22" + ofKey +
                 "; DELETE FROM PEM22" + ofKey +
                 "; COMMIT; START TRANSACTION; INSERT INTO PEM22 SELECT * FROM H; DO SLEEP(1); "
                 "INSERT INTO PSM22 SELECT * FROM L; COMMIT");
  host.ExpectBox("이미 저장되어 있습니다.");
  GoOn();
  saves.Leave();
  EXPECT_EQ(Shown(), "");
}

// It was as it had been when the draft was looked at, and a moment later it is not.
TEST_F(OrderDrafts, AnOrderThatChangesWhileItsDraftIsOpenedIsShownAsItStands) {
  OpenOrder(kSlip);
  Enter("88010005");
  Order().Close();
  ReleaseDroppedForms();
  host.DuringEvents = [] { Sql("UPDATE PEM22 SET PE_SDATE=NOW() WHERE PE_ID='" + kSlip + "'"); };
  host.ExpectBox("쓰던 내용은 쓰던 전표 목록에 그대로 있습니다.");
  GoOn();
  host.DuringEvents = nullptr;
  EXPECT_EQ(OrderLines(), "P0002x1@5000 P0001x10@700 ");
  EXPECT_EQ(Shown(), "쓰던 전표 1건");
}

// Its items stand in the list, but nobody can say what they cost.
TEST_F(OrderDrafts, PricesThatCannotBeReadCostTheDraftNothing) {
  WriteOrder();
  Crash();
  Sql("RENAME TABLE CTP TO AWAY");
  host.ExpectBox("쓰던 내용은 그대로 있습니다.");
  GoOn();
  Sql("RENAME TABLE AWAY TO CTP");
  EXPECT_EQ(OrderLines(), "");
  Order().Close();
  EXPECT_EQ(Shown(), "쓰던 전표 1건");
  GoOn();
  EXPECT_EQ(OrderLines(), "P0001x12@700 P0002x3@6000 ");
}

TEST_F(OrderDrafts, WithoutTheServerItIsToldAndKept) {
  OpenOrder(kSlip);
  Enter("88010003");
  Order().Close();
  ReleaseDroppedForms();
  WriteOrder();
  Order().Close();
  Disconnect();
  for (const int row : {1, 2}) {
    host.ExpectBox("서버에 물어볼 수 없어");
    GoOn(row);
    EXPECT_EQ(Shown(), "쓰던 전표 2건");
    EXPECT_EQ(OpenForm("frm_Order"), nullptr);
  }
  Reconnect();
}

TEST_F(OrderDrafts, EachTypeComesBackInItsOwnForm) {
  const struct {
    std::int16_t type;
    std::int16_t setUpOnly;
    const char* product;
  } cases[] = {{0, 0, "P0002"}, {1, 1, "P0004"}, {2, 0, "P0002"}, {3, 1, "P0002"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.type);
    AppOptions.OrderType = c.type;
    AppOptions.OrderInfoPartnersOnly = c.setUpOnly;
    AppOptions.BulkOrderPrice = c.setUpOnly == 1 ? "5" : "3";
    AppOptions.OrderZeroPrice = 1;
    OpenOrder();
    if (c.type != 1) {
      host.OnModal("HELP_CT", [](Form& form) {
        dynamic_cast<LookupForm&>(form).ResultCode = "C0001";
        dynamic_cast<LookupForm&>(form).ResultName = "한빛상사";
      });
      Order().LaCTHELP_Click();
    }
    Order().AddFromCode(c.product);
    Enter("40");
    const std::string lines = OrderLines();
    EXPECT_EQ(lines.substr(0, 9), c.product + std::string("x40@"));
    Crash();
    GoOn();
    EXPECT_EQ(host.FormsShown.back(), ChosenOrderType().FormName);
    EXPECT_EQ(OrderLines(), lines);
    Save();
    EXPECT_EQ(Shown(), "");
    ReleaseDroppedForms();
  }
}

TEST_F(OrderDrafts, AnOrderAtWorkStandsBeforeADraft) {
  WriteOrder();
  Order().Close();
  OpenOrder();
  Supplier("#C0002");
  GoOn();
  EXPECT_EQ(Order().Text1.Tag, "C0002");
  EXPECT_EQ(OrderLines(), "");
  EXPECT_EQ(Shown(), "쓰던 전표 1건");
}

TEST_F(OrderDrafts, TheListShowsWhatIsKeptAndThrowsAwayWhenAsked) {
  WriteOrder();
  Order().Close();
  host.Clock.Hour += 1;
  OpenOrder(kSlip);
  Enter("88010005");
  Order().Close();
  host.OnModal("frmDrafts", [this](Form& form) {
    auto& list = dynamic_cast<frmDrafts&>(form);
    EXPECT_EQ(ColumnText(list.FLEX1, 2), "발주 수정,발주");
    EXPECT_EQ(ColumnText(list.FLEX1, 5), "3,2");
    EXPECT_EQ(ColumnText(list.FLEX1, 6), kSlip + ",");
    EXPECT_EQ(ColumnText(list.FLEX2, 1), "P0005,P0002,P0001");
    list.FLEX1.SetRow(2);
    EXPECT_EQ(ColumnText(list.FLEX2, 2) + ColumnText(list.FLEX2, 3), "맑은생수,국산쌀12,3");
    host.ExpectBox("쓰던 전표를 버립니다.", box::No);
    list.Command2_Click();
    EXPECT_EQ(list.FLEX1.Rows(), 3);
    host.ExpectBox("쓰던 전표를 버립니다.", box::Yes);
    list.Command2_Click();
    EXPECT_EQ(ColumnText(list.FLEX1, 2), "발주 수정");
    list.Press(Key::Escape);
  });
  Board().LaDraft.Click();
  EXPECT_EQ(Shown(), "쓰던 전표 1건");
}

TEST_F(OrderDrafts, TheBoardSaysWhenAFileWasSetAsideAndWhenNoneCanBeWritten) {
  DropAllForms();
  ResetDrafts();
  const auto file = host.Folder / "data" / "drafts" / "small-1001-u01.db";
  std::ofstream(file) << std::string(100, 'x');
  host.ExpectBox("손상되어");
  Host.Show(Board());
  EXPECT_EQ(Shown(), "");
  DropAllForms();
  ResetDrafts();
  std::filesystem::remove_all(host.Folder / "data");
  std::ofstream(host.Folder / "data") << "no folder";
  Host.Show(Board());
  EXPECT_EQ(Shown(), "쓰던 전표를 남기지 못함");
  EXPECT_FALSE(Board().LaDraft.Enabled);
}

}  // namespace
}  // namespace store
