#include "forms/open_forms.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

TEST_F(OrderDesk, ANewFormIsEmptyAndReadyForTheSupplier) {
  OrderForm& form = Open();
  EXPECT_EQ(form.Caption, "발주시스템");
  EXPECT_EQ(form.LaSatae.Caption, "");
  EXPECT_EQ(form.Text4.Text(), form.DTOrderDate.Value());
  EXPECT_EQ(form.Combo1.List().size(), 2u);
  EXPECT_EQ(form.Combo1.ListIndex(), 0);
  EXPECT_EQ(form.ActiveControl, &form.Text1);
  for (const Label& amount : form.LaAmt) EXPECT_EQ(amount.Caption, "0");
  EXPECT_FALSE(form.HoldsWork());
}

TEST_F(OrderDesk, AStoredOrderComesWithItsLinesNewestOnTop) {
  OrderForm& form = Open("202405171001u01220001");
  EXPECT_EQ(form.Text1.Text() + "/" + form.Text1.Tag, "한빛상사/C0001");
  EXPECT_EQ(form.DTOrderDate.Value(), "2024-05-17");
  EXPECT_EQ(form.Text4.Text(), "2024-05-17");
  EXPECT_EQ(RowText(form.FLEX1, 1), "|P0002|88010001\r국산쌀|10kg|1|5000| |1|5000|0|5,000");
  EXPECT_EQ(RowText(form.FLEX1, 2), "|P0001|8801000\r맑은생수|2L*6|0|700| |10|7000|700|7,700");
  EXPECT_EQ(form.LaAmt[0].Caption, "2");
  EXPECT_EQ(form.LaAmt[1].Caption, "12,700");
  EXPECT_EQ(form.LaAmt[2].Caption, "12,000");
  EXPECT_EQ(form.LaAmt[3].Caption, "700");
  EXPECT_FALSE(form.HoldsWork());
  form.Combo1.SetListIndex(1);
  EXPECT_TRUE(form.HoldsWork());
  form.Combo1.SetListIndex(0);
  form.FLEX1.SetRow(1);
  Enter("2");
  EXPECT_TRUE(form.HoldsWork());
}

TEST_F(OrderDesk, OnlyAnOrderInEditingCanBeChanged) {
  const struct {
    const char* id;
    const char* word;
    bool editable;
  } cases[] = {{"202405171001u01220001", "발주편집", true},
               {"202405171001u01220002", "발주확정", false},
               {"202405161001u01220003", "발주편집", false},
               {"202405151001u02220004", "발주확정", false},
               {"202405101001u01220005", "", false}};
  for (const auto& c : cases) {
    OrderForm& form = Open(c.id);
    EXPECT_EQ(form.LaSatae.Caption, c.word) << c.id;
    for (const Control* control : std::initializer_list<const Control*>{
             &form.LaCTHELP, &form.Text1, &form.DTOrderDate, &form.Combo1, &form.inBox, &form.FLEX2,
             &form.LaBtn[0], &form.LaBtn[1]}) {
      EXPECT_EQ(control->Enabled, c.editable) << c.id;
    }
    EXPECT_TRUE(form.FLEX1.Enabled);
    form.FLEX1_KeyPress("1");
    EXPECT_EQ(form.inBox.Text(), c.editable ? "1" : "") << c.id;
    form.FLEX1.SetRow(1);
    form.FLEX1_KeyDown(Key::Delete);
    EXPECT_EQ(form.HoldsWork(), c.editable) << c.id;
    form.KeyDown(Key::Escape);
    EXPECT_EQ(OpenForm("frm_Order"), nullptr);
    EXPECT_EQ(host.FormsShown.back(), "frm_Start");
    ReleaseDroppedForms();
  }
}

TEST_F(OrderDesk, MakingTheFormSmallHidesTheBoard) {
  OrderForm& form = Open();
  form.Label5_Click(1);
  EXPECT_EQ(host.FormsHidden, std::vector<std::string>{"frm_Start"});
  EXPECT_EQ(host.FormsMinimized, std::vector<std::string>{"frm_Order"});
  form.Label5_Click(0);
  EXPECT_EQ(host.FormsShown.back(), "frm_Start");
}

}  // namespace
}  // namespace store
