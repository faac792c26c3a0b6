#include "order/frm_Order01.h"
#include "order/frm_OrderPLU.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

/// The form that proposes, for supplier C0001. P0001 has 12 pieces in stock, P0008 one.
class SuggestedOrders : public OrderDesk {
 protected:
  SuggestedOrders() { host.Clock = {2024, 5, 17, 10, 20, 30}; }
  frm_Order01& Propose() {
    auto& form = Open<frm_Order01>(2);
    Supplier("#C0001");
    return form;
  }
  /// The proposal as "code base/stock/shortage".
  static std::string Proposal(const Grid& picks) {
    std::string rows;
    for (int row = 1; row < picks.Rows(); ++row) {
      rows += picks.TextMatrix(row, 0) + " " + picks.TextMatrix(row, 6) + "/" +
              picks.TextMatrix(row, 7) + "/" + picks.TextMatrix(row, 8) + "  ";
    }
    return rows;
  }
  static std::string Marks(const Grid& picks) { return ColumnText(picks, 1); }
};

TEST_F(SuggestedOrders, WhatWasSoldIsProposedAgainstTheStock) {
  Sale(3, "P0001", "4");
  Sale(9, "P0001", "5");  // the first day of the period
  Sale(0, "P0002", "10");
  Sale(10, "P0003", "70");  // a day before it
  Sale(2, "P0003", "30");
  Sale(40, "P0008", "5");
  Sql("UPDATE PES13 SET PE_FCTCODE='1002' WHERE PE_ID LIKE '20240515%'");  // a neighbour's sale
  Sale(2, "P0003", "30");
  const struct {
    const char* what;
    std::int16_t setUpOnly;
    int perDay;
    int ofSupplier;
    const char* proposal;
  } cases[] = {
      {"of the period", 0, 0, 0, "P0001 9/12/-3  P0002 10/0/10  P0003 30/0/30  "},
      {"a day of it", 0, 1, 0, "P0002 1/0/1  P0003 3/0/3  "},
      {"of all time, of the supplier", 0, 0, 1,
       "P0008 5/1/4  P0001 9/12/-3  P0002 10/0/10  P0003 100/0/100  "},
      {"of what is set up", 1, 0, 1, "P0001 9/12/-3  P0002 10/0/10  "},
  };
  frm_Order01& form = Propose();
  EXPECT_EQ(form.Text2.Text(), "17") << "from the first of the month";
  form.DTPicker1[0].SetValue("2024-05-08");
  EXPECT_EQ(form.Text2.Text(), "10");
  for (const auto& c : cases) {
    AppOptions.OrderInfoPartnersOnly = c.setUpOnly;
    form.Check1.Value = c.perDay;
    form.Check3.Value = c.ofSupplier;
    form.Text3.SetText("3");
    form.Check2.Value = 1;
    form.Option1_Click(0);
    form.LaEP_Click(0);
    EXPECT_EQ(Proposal(form.FLEX2), c.proposal) << c.what;
    EXPECT_EQ(form.FLEX2.TextMatrix(form.FLEX2.Rows() - 1, 2), "식품") << c.what;
    EXPECT_EQ(form.Text3.Text(), "") << c.what;
    EXPECT_EQ(form.Check2.Value, 0) << c.what;
    EXPECT_FALSE(form.Option1[0].Value) << c.what;
    EXPECT_FALSE(form.SSPanel1.Visible) << c.what;
    EXPECT_TRUE(form.FLEX2.Redraw) << c.what;
  }
}

TEST_F(SuggestedOrders, TheSafetyStockIsProposedOnceAnItem) {
  const struct {
    std::int16_t setUpOnly;
    int ofSupplier;
    const char* proposal;
  } cases[] = {
      {0, 0, "P0002 5/0/5  P0003 8/0/8  P0001 10/12/-2  P0001 10/12/-2  P0004 3/0/3  "},
      {0, 1, "P0002 5/0/5  P0003 8/0/8  P0001 10/12/-2  P0001 10/12/-2  "},
      {1, 0, "P0002 5/0/5  P0001 10/12/-2  "},
  };
  Sql("UPDATE PR SET PR_NAME=CONCAT('가',PR_CODE) WHERE PR_CODE IN ('P0002','P0003')");
  frm_Order01& form = Propose();
  form.LaOrder_Click(1);
  EXPECT_EQ(form.FLEX2.TextMatrix(0, 6), "적정재고");
  for (const auto& c : cases) {
    AppOptions.OrderInfoPartnersOnly = c.setUpOnly;
    form.Check4.Value = c.ofSupplier;
    form.LaEP_Click(1);
    EXPECT_EQ(Proposal(form.FLEX2), c.proposal) << c.setUpOnly << c.ofSupplier;
  }
  form.LaOrder_Click(0);
  EXPECT_EQ(form.FLEX2.TextMatrix(0, 6), "판매량");
}

TEST_F(SuggestedOrders, WithoutTheStockThereIsNoProposal) {
  AppOptions.OrderInfoPartnersOnly = 1;
  frm_Order01& form = Propose();
  Sql("RENAME TABLE IV TO IV_AWAY");
  form.LaEP_Click(1);
  Sql("RENAME TABLE IV_AWAY TO IV");
  EXPECT_EQ(Proposal(form.FLEX2), "") << "all of it would be ordered once more";
  form.LaEP_Click(1);
  EXPECT_NE(Proposal(form.FLEX2), "");
}

TEST_F(SuggestedOrders, AProposalIsMultipliedEditedHiddenAndMarked) {
  AppOptions.OrderInfoPartnersOnly = 1;
  Sql("UPDATE SAFEIV SET SAFE_QTY=2 WHERE PR_CODE='P0002'; UPDATE IV SET BSQTY=1,INQTY=0,OTQTY=0,"
      "PR_CODE='P0002' WHERE PR_CODE='P0008'");
  frm_Order01& form = Propose();
  form.LaEP_Click(1);
  ASSERT_EQ(Proposal(form.FLEX2), "P0002 2/1/1  P0001 10/12/-2  ");
  form.Text3.SetText("3");
  form.Text3_KeyPress(Key::Enter);
  EXPECT_EQ(Proposal(form.FLEX2), "P0002 6/1/5  P0001 30/12/18  ");
  form.Text3_KeyPress(Key::Enter);
  EXPECT_EQ(Proposal(form.FLEX2), "P0002 6/1/5  P0001 30/12/18  ") << "of what was fetched";
  form.FLEX2.Select(2, 6);
  form.FLEX2.SetTextMatrix(2, 6, "12");
  form.FLEX2_AfterEdit(2, 6);
  EXPECT_EQ(Proposal(form.FLEX2), "P0002 6/1/5  P0001 12/12/0  ");
  EXPECT_EQ(Lines(), "") << "nothing goes over by itself";
  form.Check2.Value = 1;
  form.Check2_Click();
  EXPECT_FALSE(form.FLEX2.RowHidden(1));
  EXPECT_TRUE(form.FLEX2.RowHidden(2));
  form.Check2.Value = 0;
  form.Check2_Click();
  EXPECT_FALSE(form.FLEX2.RowHidden(2));
  form.FLEX2.SetTextMatrix(1, 1, "-1");
  form.Option1_Click(1);
  EXPECT_EQ(Marks(form.FLEX2), "0,-1");
  form.Option1_Click(2);
  EXPECT_EQ(Marks(form.FLEX2), "-1,0");
  form.Option1_Click(0);
  EXPECT_EQ(Marks(form.FLEX2), "-1,-1");
}

class Transfers : public SuggestedOrders {
 protected:
  /// P0001 to order 7 of, P0002 with nothing to order, P0003 without a price, P0009 hidden, P0006
  /// not in the list any more, P0005 to order 4 of; what is short is one less.
  frm_Order01& Marked() {
    Sql("DELETE FROM CTP WHERE PR_CODE='P0003'; UPDATE CT SET CT_DANLV='' WHERE CT_CODE='C0001'");
    frm_Order01& form = Propose();
    for (const char* row :
         {"P0001\t-1\t\t\t\t\t7\t\t6", "P0002\t-1\t\t\t\t\t0\t\t-1", "P0003\t-1\t\t\t\t\t5\t\t4",
          "P0009\t-1\t\t\t\t\t9\t\t8", "P0006\t-1\t\t\t\t\t3\t\t2", "P0005\t0\t\t\t\t\t4\t\t3"}) {
      form.FLEX2.AddItem(row);
    }
    form.FLEX2.SetRowHidden(4, true);
    return form;
  }
};

TEST_F(Transfers, TakeTheMarkedRowsAndLeaveTheRefusedMarked) {
  frm_Order01& form = Marked();
  Host.DoEvents = [&] {
    EXPECT_EQ(form.AddInProgress, -1);
    EXPECT_FALSE(form.FLEX1.Redraw);
    EXPECT_TRUE(form.SSPanel1.Visible);
    EXPECT_FALSE(form.SSPanel2.Visible);
    EXPECT_EQ(form.ProgressBar1.Max, 6);
    ++host.EventRounds;
  };
  host.ExpectBox("선택된 품목이 없습니다.           ");
  form.Image1_Click(0);
  EXPECT_EQ(Lines(), "P0001x7 ") << "the missing item's quantity must not land here";
  EXPECT_EQ(Marks(form.FLEX2), "0,-1,-1,-1,-1,0");
  EXPECT_EQ(form.Label6.Caption, "본부정책오류: 콩나물의 단가가 정의되지 않았습니다.");
  EXPECT_EQ(form.ProgressBar1.Value, 6);
  EXPECT_GT(host.EventRounds, 1) << "the bar moves";
  EXPECT_TRUE(form.FLEX1.Redraw);
  EXPECT_FALSE(form.SSPanel1.Visible);
  EXPECT_EQ(form.AddInProgress, 0);

  Sql("INSERT INTO CTP (CT_CODE,RCT_CODE,PR_CODE,CTP_GU,CTP_UP,CTP_FDATE,CTP_TDATE) VALUES "
      "('C0001','1000','P0003','',250,'0000-00-00','0000-00-00')");
  form.FLEX2.SetTextMatrix(5, 1, "0");
  form.FLEX2.SetTextMatrix(6, 1, "-1");
  form.Image1_Click(1);
  EXPECT_EQ(Lines(), "P0005x3 P0003x4 P0001x7 ") << "by what is short";
  EXPECT_EQ(Marks(form.FLEX2), "0,-1,0,-1,0,0");
}

TEST_F(Transfers, NeedASupplier) {
  auto& form = Open<frm_Order01>(2);
  const struct {
    std::function<void()> click;
    const char* title;
  } cases[] = {{[&] { form.LaEP_Click(0); }, "발주처선택"},
               {[&] { form.LaEP_Click(1); }, "발주처선택"},
               {[&] { form.Image1_Click(0); }, "발주처"},
               {[&] { form.Image5_Click(); }, "발주처"}};
  for (const auto& c : cases) {
    host.ExpectBox("발주처를 선택하세요.");
    c.click();
    EXPECT_EQ(host.Boxes.back().Title, c.title);
  }
}

// What was picked comes back as if it had been entered; leaving the panel without a pick enters the
// last one again.
TEST_F(SuggestedOrders, SeveralHitsArePickedOnThePanel) {
  frm_Order01& form = Propose();
  const auto pickTile = [](int row, int col) {
    return [=](Form& shown) {
      auto& panel = dynamic_cast<frm_OrderPLU&>(shown);
      panel.PRHELP[0].Select(row, col);
      panel.PRHELP_DblClick();
    };
  };
  host.OnModal("frm_OrderPLU", pickTile(0, 1));
  Enter(".kg");  // P0002, P0005, P0008
  EXPECT_EQ(Lines(), "P0005x1 ");
  Enter("6");
  host.OnModal("frm_OrderPLU", [](Form& shown) { shown.KeyDown(Key::Escape); });
  Enter(".kg");
  EXPECT_EQ(Lines(), "P0005x1 ");
  const auto& panel = dynamic_cast<frm_OrderPLU&>(*OpenForm("frm_OrderPLU"));
  EXPECT_EQ(panel.Reload, -1);
  EXPECT_EQ(panel.ListMode, -1);

  form.SetFocus(form.inBox);
  host.OnModal("frm_OrderPLU", pickTile(0, 2));
  Enter(",abc");  // one hit, and the filter stands on it
  EXPECT_TRUE(form.KeyDown(Key::F1));
  EXPECT_EQ(Lines(), "P0008x1 P0009x1 P0005x1 ") << "the panel as it was left";
  EXPECT_EQ(panel.Reload, 0);
  host.OnModal("frm_OrderPLU", pickTile(0, 0));
  form.Command2_Click();
  EXPECT_EQ(Lines(), "P0008x1 P0009x1 P0005x1 ") << "only a look";
  form.SetFocus(form.Text1);
  EXPECT_FALSE(form.KeyDown(Key::F1)) << "in the supplier box the key is the lookup's";
}

}  // namespace
}  // namespace store
