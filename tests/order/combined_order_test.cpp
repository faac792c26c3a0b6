// Order type 1: everything that the store may order, from several suppliers in one order.
#include "basics/text.h"
#include "order/frm_Order02.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

class CombinedOrder : public OrderDesk {
 protected:
  CombinedOrder() {
    AppOptions.OrderInfoPartnersOnly = 1;
    AppOptions.OrderZeroPrice = 1;
    Sql("INSERT INTO KIND (KD_ID,KD_NAME,KD_LVL) VALUES ('100020003000000','쌀','3');"
        "UPDATE PR SET KD_ID='100020003000000' WHERE PR_CODE='P0002'");
  }
  /// A list's names.
  static std::string Names(const ComboBox& combo) {
    std::string names;
    for (const std::string& entry : combo.List()) names += std::string(NameOfEntry(entry)) + " ";
    return names;
  }
  static std::string Names(const frm_Order02& form) {
    std::string names;
    for (const ComboBox& combo : form.Combo2) names += Names(combo) + "/";
    return names;
  }
  static std::string Cells(const Grid& grid) {
    std::string cells;
    for (int row = 0; row < grid.Rows(); ++row) {
      for (int col = 0; col < grid.Cols(); ++col) {
        cells += std::string(NameOfEntry(grid.TextMatrix(row, col))) + " ";
      }
    }
    return cells;
  }
  static void Choose(frm_Order02& form, size_t level, const std::string& name) {
    ComboBox& combo = form.Combo2[level];
    for (size_t i = 0; i < combo.List().size(); ++i) {
      if (NameOfEntry(combo.List()[i]) == name) combo.SetListIndex(static_cast<int>(i));
    }
  }
};

// P0001 (생수) is to be had from C0002 alone, as C0001 has no price for it.
TEST_F(CombinedOrder, WhatMayBeOrderedIsNarrowedByCategory) {
  auto& form = Open<frm_Order02>(1);
  EXPECT_EQ(Cells(form.PRHELP), "곡류 생수 식품 쌀     ");
  EXPECT_EQ(Names(form), "식품 ///");
  form.PRHELP_Click(0, 1);
  EXPECT_EQ(RowText(form.FLEX2, 1), "P0001|||8801000|맑은생수|2L*6|12|20|||박스");
  EXPECT_EQ(form.FLEX2.Rows(), 2);
  EXPECT_EQ(Names(form), "식품 /곡류 음료 /생수 /");
  Choose(form, 0, "식품");
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "P0002,P0001,P0004");
  EXPECT_EQ(Names(form), "식품 /곡류 음료 //");
  Choose(form, 1, "곡류");
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "P0002");
  EXPECT_EQ(Names(form), "식품 /곡류 음료 /쌀 /");
  form.PRHELP_Click(1, 0);
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "P0002") << "an empty cell is no choice";
}

TEST_F(CombinedOrder, OrBySupplier) {
  auto& form = Open<frm_Order02>(1);
  form.Option1_Click(1);
  EXPECT_EQ(Cells(form.PRHELP), "다온물산 한빛상사 한빛식품  ");
  EXPECT_EQ(Names(form), "///");
  Enter(",생수");  // no supplier is chosen yet: any part of any name
  EXPECT_EQ(Lines(), "P0001x20 ");
  form.PRHELP_Click(0, 1);
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "P0002");
  EXPECT_EQ(Names(form), "식품 ///");
  Choose(form, 0, "식품");
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "P0002");
  EXPECT_EQ(Names(form), "식품 /곡류 음료 //") << "what the supplier is set up for, price or not";
  Enter(",국산");
  EXPECT_EQ(Lines(), "P0002x10 P0001x20 ");
  for (const char* elsewhere : {",산쌀", ",맑은"}) {
    host.ExpectBox("선택된 품목이 없습니다.           ");
    Enter(elsewhere);  // not the start of a name; another supplier's
  }
  form.Option1_Click(0);
  EXPECT_EQ(Names(form), "식품 ///");
  Enter(",산쌀");
  EXPECT_EQ(Lines(), "P0002x10 P0001x20 ");
}

TEST_F(CombinedOrder, AnEntryMustNotBeBelowTheUnit) {
  auto& form = Open<frm_Order02>(1);
  form.Combo2[0].SetListIndex(0);
  ASSERT_EQ(ColumnText(form.FLEX2, 7), "10,20,6");
  const auto enter = [&](const std::string& quantity) {
    form.FLEX2.Select(1, 8);
    form.FLEX2.SetTextMatrix(1, 8, quantity);
    form.FLEX2_AfterEdit(1, 8);
  };
  enter("13");  // not a multiple, and does not have to be one
  EXPECT_EQ(Lines(), "P0002x13 ");
  for (const char* tooFew : {"9", "0", ""}) {
    host.ExpectBox("발주단위 이하 발주할 수 없습니다.     ");
    enter(tooFew);
    EXPECT_EQ(form.FLEX2.TextMatrix(1, 8), "");
  }
  host.ExpectBox("999,999개 이상 발주할 수 없습니다.     ");
  enter("1000000");
  Sql("UPDATE SAFEIV SET ORD_QTY=0");
  form.Close();
  ReleaseDroppedForms();
  auto& again = Open<frm_Order02>(1);
  again.Combo2[0].SetListIndex(0);
  again.FLEX2.Select(1, 8);
  again.FLEX2_AfterEdit(1, 8);
  EXPECT_EQ(Lines(), "") << "without a unit nothing means nothing";
}

TEST_F(CombinedOrder, IsStoredWithoutASupplierOfItsOwnAndComesBackSo) {
  Sql("DELETE FROM PEM22");
  auto& form = Open<frm_Order02>(1);
  for (const char* barcode : {"88010001", "88010004"}) Enter(barcode);
  host.ExpectBox("계속해서 발주하시겠습니까?", box::No);
  form.LaBtn_Click(0);
  ReleaseDroppedForms();
  const std::string id = Value("SELECT PE_ID FROM PEM22");
  EXPECT_EQ(Value("SELECT CONCAT(PE_TCTCODE,PE_TCTNAME) FROM PEM22"), "1000000000000000통합 발주");
  auto& again = Open<frm_Order02>(1, id);
  EXPECT_EQ(again.Text1.Text() + again.Text1.Tag, "");
  EXPECT_EQ(Lines(), "P0002x10 P0004x6 ");
  Enter("88010004");
  host.ExpectBox("계속해서 발주하시겠습니까?", box::No);
  again.LaBtn_Click(1);
  EXPECT_EQ(Value("SELECT CONCAT(PE_ID,PE_CK,PE_TCTNAME) FROM PEM22"), id + "1통합 발주");
  ReleaseDroppedForms();
  AppOptions.OrderType = 0;  // another type shows the slip as it is stored
  Open(id);
  EXPECT_EQ(Order().Text1.Text() + Order().Text1.Tag, "통합 발주1000000000000000");
}

}  // namespace
}  // namespace store
