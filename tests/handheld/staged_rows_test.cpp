// The list of staged rows: what it shows, what is ticked, the partner it is narrowed to.
#include "lookup/party_lookups.h"
#include "tests/handheld/batch_desk.h"

namespace store {
namespace {

class StagedRows : public BatchDesk {
 protected:
  StagedRows() {
    Stage({"r2", "-", "P0001", "10", "480"}, "23");
    Stage({"r1", "*", "P0003", "4", "250"}, "23");
    Stage({"r3", "@", "P0004", "1", "5500", "C0002", "가나식품"}, "23");
    Stage({"r4", "-", "P0001", "1", "-480"}, "23", "R");
    Stage({"r5", "-", "P0001", "1", "480"}, "13");
  }
};

TEST_F(StagedRows, AreThoseOfTheRunByPartnerAndKeyEachTicked) {
  FRM_DT900_01& form = Open("23");
  EXPECT_EQ(form.LaRun.Caption, "매입 처리");
  EXPECT_EQ(form.Place.State, WindowState::Maximized);
  EXPECT_EQ(ColumnText(form.FLEX, staged::RowId), "r3,r1,r2");
  EXPECT_EQ(RowText(form.FLEX, 3),
            "1|C0001|한빛상사|박스|-P0001|품명 P0001|규격|10|480|4,800|480|5,280|김검품|r2||");
  EXPECT_FALSE(form.FLEX.Columns()[staged::Supply].Hidden);
  EXPECT_TRUE(form.FLEX.Columns()[staged::Adjustment].Hidden);
  EXPECT_EQ(form.Combo1.Text(), ListEntry("매장", "100101")) << "the default depot";
  EXPECT_EQ(form.DTPicker1.Value(), Today());
  EXPECT_EQ(form.LBL_MSG.Caption, "3 개의 자료를 찾았습니다.");
  EXPECT_TRUE(form.Timer1.Enabled);
  EXPECT_EQ(form.Timer1.Interval, 5000);
  form.Timer1_Timer();
  EXPECT_EQ(form.LBL_MSG.Caption, "");
  EXPECT_FALSE(form.Timer1.Enabled);
  form.Close();
  EXPECT_EQ(ColumnText(Open("23", "R").FLEX, staged::RowId), "r4");
}

TEST_F(StagedRows, AreTickedByHandOrAllTogether) {
  FRM_DT900_01& form = Open("23");
  const auto ticks = [&] { return ColumnText(form.FLEX, staged::Tick); };
  Tick(2, false);
  EXPECT_EQ(ticks(), "1,0,1");
  EXPECT_EQ(form.Label2[0].Caption + " " + form.Label2[1].Caption + " " + form.Label2[2].Caption,
            "선택 2건 공급가액 9,800 부가세 980");
  form.Option1_Click(1);
  EXPECT_EQ(ticks(), "0,1,0");
  EXPECT_FALSE(form.CollectTickedIds());
  EXPECT_EQ(form.TickedIds, std::vector<std::string>{"r1"});
  form.Option1_Click(2);
  EXPECT_EQ(ticks(), "0,0,0");
  EXPECT_TRUE(form.CollectTickedIds());
  form.Option1_Click(0);
  EXPECT_EQ(ticks(), "1,1,1");
  Tick(1, false);
  Tick(1, true);
  EXPECT_EQ(ticks(), "1,1,1");
}

TEST_F(StagedRows, AreNarrowedToAPartnerByItsCode) {
  FRM_DT900_01& form = Open("23");
  form.Text1[1].SetText("한빛상사");
  form.ActiveControl = &form.Text1[1];
  form.Text1_KeyDown(Key::Enter);
  EXPECT_EQ(form.Text1[1].Text(), "C0001 한빛상사");
  EXPECT_EQ(form.ActiveControl, &form.Text1[0]);
  form.Command1_Click(0);
  EXPECT_EQ(ColumnText(form.FLEX, staged::RowId), "r1,r2");
  host.OnModal("HELP_CT", [](Form& lookup) {
    dynamic_cast<HELP_CT&>(lookup).ResultCode = "C0002";
    dynamic_cast<HELP_CT&>(lookup).ResultName = "한빛식품 ";
  });
  form.Command2_Click();
  EXPECT_EQ(form.Text1[1].Text(), "C0002 한빛식품");
  form.Text1[1].SetText("  C0009  ");
  form.Command1_Click(0);
  EXPECT_EQ(form.FLEX.Rows(), 1);
  EXPECT_EQ(form.Label2[0].Caption, "");
}

TEST_F(StagedRows, OfASurveyStandBesideTheStockOnFile) {
  Sql("INSERT INTO IV (RCT_CODE,HCT_CODE,PR_CODE,BSQTY,INQTY,OTQTY) VALUES "
      "('1001','100101','P0001',0,1,0),('1001','100102','P0001',100,0,0),"
      "('1002','100101','P0005',70,0,0)");
  const std::string none = "1000000000000000";
  Stage({"s1", "-", "P0005", "3", "0", none, "재고조사"}, "82");
  Stage({"s2", "-", "P0001", "15", "0", none, "재고조사"}, "82");
  Stage({"s3", "*", "P0003", "4", "0", none, "재고조사"}, "82");
  Stage({"s4", "-", "P0008", "1", "0", none, "재고조사"}, "82");
  FRM_DT900_01& form = Open("82");
  EXPECT_TRUE(form.FLEX.Columns()[staged::Supply].Hidden);
  EXPECT_FALSE(form.FLEX.Columns()[staged::Adjustment].Hidden);
  // A product without stock in the depot takes what the row above it had, the first one nothing.
  EXPECT_EQ(ColumnText(form.FLEX, staged::OnFile), ",13,13,1");
  EXPECT_EQ(ColumnText(form.FLEX, staged::Adjustment), "3,2,-9,0");
  Tick(1, false);
  form.Combo1.SetText(ListEntry("창고", "100102"));
  EXPECT_EQ(ColumnText(form.FLEX, staged::OnFile), ",100,100,100");
  EXPECT_EQ(ColumnText(form.FLEX, staged::Adjustment), "3,-85,-96,-99");
  EXPECT_EQ(ColumnText(form.FLEX, staged::Tick), "0,1,1,1");
  // Without the stock on file every count would be taken for an adjustment.
  Disconnect();
  form.Combo1.SetText(ListEntry("매장", "100101"));
  EXPECT_EQ(form.FLEX.Rows(), 1);
  EXPECT_EQ(form.Label2[0].Caption, "") << "no row is ticked any more";
}

}  // namespace
}  // namespace store
