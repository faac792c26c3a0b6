// What was done to the lines is taken back and done again, step by step and cell by cell.
#include <functional>
#include <vector>

#include "basics/records.h"
#include "lookup/party_lookups.h"
#include "order/frm_Order.h"
#include "order/frm_Order01.h"
#include "order/frm_OrderPLU.h"
#include "slips/drafts.h"
#include "slips/item_list.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

class LineUndo : public OrderDesk {
 protected:
  /// All that belongs to the lines, and the supplier whose prices they have.
  std::string Stand() {
    std::string stand = Order().Text1.Text() + "/" + Order().Text1.Tag;
    for (int row = 1; row < Order().FLEX1.Rows(); ++row) {
      stand += "\n" + RowText(Order().FLEX1, row);
    }
    stand += "\ncurrent " + std::to_string(Order().FLEX1.Row());
    for (const Label& total : Order().LaAmt) stand += "  " + total.Caption;
    return stand;
  }
  /// What a person does, on a row where they have gone to another one first.
  struct Act {
    std::function<void()> Do;
    int Row = 0;
  };
  using Acts = std::vector<Act>;
  /// Does the acts, takes all of them back and does them again, and once more; every step on the
  /// way has to stand as it stood when it was done.
  void ThereAndBack(const Acts& acts) {
    std::vector<std::string> stands = {Stand()};
    for (const Act& act : acts) {
      if (act.Row > 0) Order().FLEX1.SetRow(act.Row);
      stands.back() = Stand();
      act.Do();
      stands.push_back(Stand());
      EXPECT_FALSE(Order().LineRedo.Enabled);
    }
    for (int round = 0; round < 2; ++round) {
      for (size_t step = acts.size(); step-- > 0;) {
        ASSERT_TRUE(Order().LineUndo.Enabled) << step;
        Order().LineUndo.Click();
        EXPECT_EQ(Stand(), stands[step]) << "back before act " << step;
      }
      EXPECT_FALSE(Order().LineUndo.Enabled);
      for (size_t step = 0; step < acts.size(); ++step) {
        ASSERT_TRUE(Order().LineRedo.Enabled) << step;
        Order().LineRedo.Click();
        EXPECT_EQ(Stand(), stands[step + 1]) << "act " << step << " again";
      }
    }
  }
  Act Entering(const std::string& text, int row = 0) {
    return {[this, text] { Enter(text); }, row};
  }
  Act Deleting(int row) {
    return {[this] { Order().FLEX1_KeyDown(Key::Delete); }, row};
  }
  void Choose(const char* code, const char* name) {
    host.OnModal("HELP_CT", [=](Form& form) {
      dynamic_cast<HELP_CT&>(form).ResultCode = code;
      dynamic_cast<HELP_CT&>(form).ResultName = name;
    });
    Order().LaCTHELP_Click();
  }
};

TEST_F(LineUndo, EveryActOnANewOrderIsOneStep) {
  OrderForm& form = Open();
  Supplier("#C0001");
  EXPECT_FALSE(form.LineUndo.Enabled) << "there is no line yet";
  const auto pick = [&form](const char* quantity) {
    return Act{[&form, quantity] {
      EXPECT_TRUE(form.FLEX2_BeforeEdit(1, 8));
      form.FLEX2.SetTextMatrix(1, 8, quantity);
      form.FLEX2.SetRow(1);
      form.FLEX2_AfterEdit(1, 8);
    }};
  };
  Enter(".kg");  // lists, and is no act on the lines
  const auto quickPick = [&] {
    host.OnModal("frm_OrderPLU", [](Form& shown) {
      PickList.Set(0, 0, "P0007");
      Host.Hide(shown);
    });
    form.KeyDown(Key::F1);
  };
  ThereAndBack({Entering("88010005"),
                Entering("12"),
                Entering(",국산"),
                Entering("88010003"),
                Entering("88010005"),  // again: its line goes to the top, at 1
                Entering("7", 3),
                Deleting(2),
                pick("40"),
                pick("41"),
                {quickPick},
                Deleting(1)});
  // What was typed in the pick list went and came with its line.
  EXPECT_EQ(form.FLEX2.TextMatrix(1, 8), "41");
  for (const char* quantity : {"41", "40", ""}) {
    while (form.FLEX2.TextMatrix(1, 8) != quantity && form.LineUndo.Enabled) form.LineUndo.Click();
    EXPECT_EQ(form.FLEX2.TextMatrix(1, 8), quantity);
  }
}

TEST_F(LineUndo, AStoredOrderComesBackAsItWasRead) {
  OrderForm& form = Open("202405171001u01220001");
  Sql("UPDATE CTP SET CTP_UP=999");  // its own prices stay
  form.Timer1.Enabled = false;
  ThereAndBack({Deleting(2), Deleting(1), Entering("88010005"), Entering("3")});
  while (form.LineUndo.Enabled) form.LineUndo.Click();
  EXPECT_EQ(RowText(form.FLEX1, 1), "|P0002|88010001\r국산쌀|10kg|1|5000| |1|5000|0|5,000");
  EXPECT_EQ(form.LaAmt[1].Caption, "12,700");
}

TEST_F(LineUndo, AnotherActEndsWhatCouldBeDoneAgain) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  Enter("12");
  form.LineUndo.Click();
  EXPECT_TRUE(form.LineRedo.Enabled);
  Enter("4");
  EXPECT_FALSE(form.LineRedo.Enabled);
  form.LineUndo.Click();
  EXPECT_EQ(Lines(), "P0005x1 ");
  // A code that is refused is no step, unless it has cost a line.
  host.ExpectBox("선택된 품목이 없습니다.");
  Enter("99999999");
  EXPECT_EQ(Lines(), "P0005x1 ");
  EXPECT_TRUE(form.LineRedo.Enabled);
  Sql("DELETE FROM CTP; DELETE FROM PEM23; UPDATE CT SET CT_DANLV=''");
  Enter("88010005");
  EXPECT_EQ(Lines(), "");
  form.LineUndo.Click();
  EXPECT_EQ(Lines(), "P0005x1 ");
}

TEST_F(LineUndo, TheSupplierComesBackWithItsLinesAndItsItems) {
  for (const std::int16_t setUpOnly : std::initializer_list<std::int16_t>{0, 1}) {
    SCOPED_TRACE(setUpOnly);
    AppOptions.OrderInfoPartnersOnly = setUpOnly;
    OrderForm& form = Open();
    Supplier("#C0001");
    host.ExpectBox("선택된 품목이 없습니다.");
    Enter("99999999");
    const std::string refused = form.LaRefused.Caption;
    const auto another = [&] {  // letter by letter, and then a choice: one step
      form.SetFocus(form.Text1);
      form.Text1.SetText("8");
      form.Text1.SetText("88");
      Choose("C0002", "한빛식품");
    };
    const auto add = [&] { form.AddFromCode("P0001"); };
    const auto type = [&] { form.Text1.SetText("나"); };
    ThereAndBack({{add}, Entering("3"), {another}, {add}, Entering("5"), Deleting(1), {type}});
    for (int step = 0; step < 5; ++step) form.LineUndo.Click();
    EXPECT_EQ(form.Text1.Tag, "C0001");
    EXPECT_EQ(form.LaRefused.Caption, refused);
    EXPECT_EQ(Lines(), "P0001x3 ");
    form.AddFromCode("P0002");  // its items are those that can be ordered
    EXPECT_EQ(Lines().substr(0, 8), "P0002x1 ");
    form.Close();
    ReleaseDroppedForms();
    OpenItemList();
  }
}

// The lines would stand under the other one's items.
TEST_F(LineUndo, ASupplierWhoseItemsCannotBeReadStaysAway) {
  AppOptions.OrderInfoPartnersOnly = 1;
  OrderForm& form = Open();
  Supplier("#C0001");
  form.AddFromCode("P0001");
  const std::string lines = Lines();
  Choose("C0002", "한빛식품");
  const std::string stand = Stand();
  const RecordsetSlot items = SlotC;
  Disconnect();
  host.ExpectBox("발주처를 되돌리지 못했습니다.");
  form.LineUndo.Click();
  Reconnect();
  EXPECT_EQ(Stand(), stand);
  EXPECT_EQ(SlotC, items);
  form.LineUndo.Click();
  EXPECT_EQ(form.Text1.Tag, "C0001");
  EXPECT_EQ(Lines(), lines);
}

// Whoever changed what comes back would store it a second time under a number of its own.
TEST_F(LineUndo, AnOrderWhoseSaveMayHaveComeThroughDoesNotComeBack) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  Sql("RENAME TABLE PSM22 TO PSM22_AWAY");
  host.ExpectBox("저장이 실패하였습니다.");
  form.LaBtn_Click(0);
  Sql("RENAME TABLE PSM22_AWAY TO PSM22");
  EXPECT_TRUE(form.LineUndo.Enabled) << "it was refused";
  Supplier("#C0002");
  EXPECT_TRUE(form.LineUndo.Enabled);
}

TEST_F(LineUndo, ASaveEndsWhatCanBeTakenBack) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  host.ExpectBox("발주가 정상적으로 처리되었습니다.", box::Yes);
  form.LaBtn_Click(0);
  EXPECT_FALSE(form.LineUndo.Enabled);
  form.LineUndo.Click();
  EXPECT_EQ(Lines(), "");
  Supplier("#C0002");
  EXPECT_FALSE(form.LineUndo.Enabled);
}

TEST_F(LineUndo, TheDraftFollows) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  Enter("12");
  Enter("88010003");
  form.LineUndo.Click();
  form.LineUndo.Click();
  form.Close();
  const std::vector<Draft> kept = KeptDrafts();
  ASSERT_EQ(kept.size(), 1u);
  ASSERT_EQ(kept[0].Lines.size(), 1u);
  EXPECT_EQ(kept[0].Lines[0].Code + "x" + kept[0].Lines[0].Quantity, "P0005x1");
}

// The transfer is one act, and its rows are marked again; the multiplier is another.
TEST_F(LineUndo, ATransferAndTheMultiplierAreTakenBackWithTheirMarks) {
  host.Clock = {2024, 5, 17, 10, 20, 30};
  Sale(3, "P0001", "4");
  Sale(0, "P0002", "10");
  auto& form = Open<frm_Order01>(2);
  Supplier("#C0001");
  form.LaEP_Click(0);
  form.Option1_Click(0);
  ASSERT_EQ(ColumnText(form.FLEX2, pick::Mark), "-1,-1");
  form.Text3.SetText("2");
  form.Text3_KeyPress(Key::Enter);
  ASSERT_EQ(ColumnText(form.FLEX2, proposal::Base), "8,20");
  form.Image1_Click(0);
  ASSERT_EQ(Lines(), "P0002x20 P0001x8 ");
  ASSERT_EQ(ColumnText(form.FLEX2, pick::Mark), "0,0");
  for (int round = 0; round < 2; ++round) {
    form.LineUndo.Click();
    EXPECT_EQ(Lines(), "");
    EXPECT_EQ(ColumnText(form.FLEX2, pick::Mark), "-1,-1");
    form.LineUndo.Click();
    EXPECT_EQ(ColumnText(form.FLEX2, proposal::Base), "4,10");
    EXPECT_EQ(ColumnText(form.FLEX2, proposal::Shortage), "-8,10");
    EXPECT_FALSE(form.LineUndo.Enabled);
    form.LineRedo.Click();
    form.LineRedo.Click();
    EXPECT_EQ(Lines(), "P0002x20 P0001x8 ");
    EXPECT_EQ(ColumnText(form.FLEX2, pick::Mark), "0,0");
  }
  // A list that was made anew has marks of its own, and the multiplier's step is void.
  form.LaEP_Click(0);
  form.Option1_Click(0);
  form.LineUndo.Click();
  EXPECT_EQ(Lines(), "");
  form.LineUndo.Click();
  EXPECT_EQ(ColumnText(form.FLEX2, pick::Mark), "-1,-1");
  EXPECT_EQ(ColumnText(form.FLEX2, proposal::Base), "4,10");
}

TEST_F(LineUndo, TheOldestStepsGoFirst) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  for (int i = 0; i < 250; ++i) Enter(std::to_string(1000 + i));
  int taken = 0;
  for (; form.LineUndo.Enabled; ++taken) form.LineUndo.Click();
  EXPECT_EQ(taken, 200);
  EXPECT_EQ(Lines(), "P0005x1049 ");
}

}  // namespace
}  // namespace store
