// A former order, ordered again.
#include "lookup/lookup_form.h"
#include "tests/board/drafts_desk.h"

namespace store {
namespace {

const std::string kEditing = "202405171001u01220001";    // C0001: 10 of P0001, 1 of P0002
const std::string kConfirmed = "202405171001u01220002";  // C0002: 2 of P0004
const std::string kReceived = "202405101001u01220005";   // C0001: 10 of P0001

class OrderAgain : public DraftsDesk {
 protected:
  void Again(const std::string& slipId) {
    Board().SelectedSlipId = slipId;
    Board().LaAgain.Click();
  }
  static std::string Whole(const std::string& slipId) {
    std::string whole;
    for (const char* table : {"PEM22", "PSM22"}) {
      for (const auto& row : Rows(std::string("SELECT * FROM ") + table + " WHERE PE_ID='" +
                                  slipId + "' ORDER BY 1,2")) {
        for (const std::string& cell : row) whole += cell + "|";
      }
    }
    return whole;
  }
  static std::string CountOfOrders() { return Value("SELECT COUNT(*) FROM PEM22"); }
  void Leave() {
    Order().Close();
    ReleaseDroppedForms();
  }
};

TEST_F(OrderAgain, ItIsANewOrderAtTodaysPricesAndIsStoredWhenItIsSaved) {
  Sql("UPDATE CTP SET CTP_TDATE='2099-12-31',CTP_UP=651 WHERE PR_CODE='P0001'; UPDATE CT SET "
      "CT_NAME='한빛새상사' WHERE CT_CODE='C0001'");
  const std::string before = Whole(kEditing);
  const std::string orders = CountOfOrders();
  Again(kEditing);
  EXPECT_EQ(OrderLines(), "P0001x10@651 P0002x1@6000 ");
  EXPECT_EQ(Order().Text1.Text() + Order().Text1.Tag, "한빛새상사C0001");
  EXPECT_EQ(Order().DTOrderDate.Value(), FormatDateValue(Today(), "YYYY-MM-DD"));
  EXPECT_EQ(Order().Combo1.ListIndex(), 0);
  EXPECT_EQ(Order().SlipId + Order().LaSatae.Caption, "");
  EXPECT_EQ(Order().LaAmt[2].Caption, "12,510");
  EXPECT_EQ(Order().ActiveControl, &Order().inBox);
  EXPECT_FALSE(Order().LineUndo.Enabled);
  EXPECT_TRUE(Order().HoldsWork());
  EXPECT_EQ(CountOfOrders(), orders);

  host.ExpectBox("발주가 정상적으로 처리되었습니다.", box::No);
  Order().LaBtn_Click(0);
  EXPECT_EQ(Whole(kEditing), before);
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(PR_CODE,'x',ROUND(PS_SQTY),'@',ROUND(PS_UP) ORDER BY PS_NO) "
                  "FROM PSM22 WHERE PE_ID=(SELECT MAX(PE_ID) FROM PEM22)"),
            "P0001x10@651,P0002x1@6000");
}

TEST_F(OrderAgain, WhatIsNoLongerToBeHadIsToldInOneBox) {
  Sql("UPDATE PSM22 SET PS_NO=9,PE_ID='" + kEditing +
      "' WHERE PE_ID LIKE '20240510%'; INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,"
      "PS_SQTY,PS_UP) VALUES ('" +
      kEditing + "',3,'2024-05-17','P0006','옛날간장',4,1),('" + kEditing +
      "',4,'2024-05-17','P0008','힘찬세제',5,1),('" + kEditing +
      "',5,'2024-05-17','P0004','참기름',6,1)");
  Sql("DELETE FROM PEM23");
  const struct {
    std::int16_t setUpOnly;
    const char* lines;
    std::vector<std::string> told;
  } cases[] = {
      {0,
       "P0002x1@6000 P0004x6@5500 P0001x20@700 ",  // P0001 stood there twice
       {"[P0006] 옛날간장  4   판매 종료", "[P0008] 힘찬세제  5   단가 없음"}},
      {1,
       "P0002x1@6000 P0001x20@700 ",
       {"[P0006] 옛날간장  4   판매 종료", "[P0008] 힘찬세제  5   취급 품목 아님",
        "[P0004] 참기름  6   취급 품목 아님"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.setUpOnly);
    AppOptions.OrderInfoPartnersOnly = c.setUpOnly;
    host.ExpectBox("다음 품목은 지금 발주할 수 없어 뺐습니다.");
    Again(kEditing);
    std::string told = host.Boxes.back().Text;
    for (const std::string& line : c.told) {
      EXPECT_NE(told.find(line + "\r"), std::string::npos) << line << " in " << told;
      EXPECT_NE(Order().LaRefused.ToolTipText.find(line.substr(0, 7)), std::string::npos);
    }
    EXPECT_EQ(std::count(told.begin(), told.end(), '['), static_cast<long>(c.told.size())) << told;
    EXPECT_EQ(OrderLines(), c.lines);
    EXPECT_EQ(host.Beeps, 0);
    EXPECT_EQ(Order().Label6.Caption, "");
    // What was left out is in no draft either.
    Leave();
    GoOn();
    EXPECT_EQ(OrderLines(), c.lines);
    host.ExpectBox("발주가 정상적으로 처리되었습니다.", box::No);
    Order().LaBtn_Click(0);
    ReleaseDroppedForms();
    OpenItemList();
  }
}

TEST_F(OrderAgain, EachTypeTakesIt) {
  const struct {
    std::int16_t type;
    std::int16_t setUpOnly;
    const char* lines;
  } cases[] = {{0, 0, "P0001x10@0 P0002x1@4800 "},
               {1, 1, "P0001x10@0 P0002x1@4800 "},
               {2, 1, "P0001x10@0 P0002x1@4800 "},
               {3, 1, "P0001x10@0 P0002x1@4800 "}};
  AppOptions.BulkOrderPrice = "5";
  AppOptions.OrderZeroPrice = 1;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.type);
    AppOptions.OrderType = c.type;
    AppOptions.OrderInfoPartnersOnly = c.setUpOnly;
    Again(kEditing);
    EXPECT_EQ(host.FormsShown.back(), ChosenOrderType().FormName);
    EXPECT_EQ(OrderLines(), c.lines);
    EXPECT_EQ(Order().Text1.Tag, "C0001");
    EXPECT_EQ(Order().FLEX1.TextMatrix(1, order_line::Unit), c.type == 3 ? "20" : "");
    host.ExpectBox("발주가 정상적으로 처리되었습니다.", box::No);
    Order().LaBtn_Click(0);
    ReleaseDroppedForms();
    OpenItemList();
  }
}

TEST_F(OrderAgain, AnOrderToSeveralSuppliersGoesWhereOneCanBeWritten) {
  Sql("UPDATE PEM22 SET PE_TCTCODE='1000000000000000',PE_TCTNAME='통합 발주' WHERE PE_ID='" +
      kEditing + "'");
  for (const std::int16_t type : std::initializer_list<std::int16_t>{0, 2, 3}) {
    AppOptions.OrderType = type;
    host.ExpectBox("여러 발주처의 통합 발주라");
    Again(kEditing);
    EXPECT_EQ(OpenForm(ChosenOrderType().FormName), nullptr);
  }
  AppOptions.OrderType = 1;
  AppOptions.BulkOrderPrice = "5";
  Sql("UPDATE SAFEIV SET ORD_UP=640 WHERE PR_CODE='P0001'");
  AppOptions.OrderInfoPartnersOnly = 1;
  Again(kEditing);
  EXPECT_EQ(OrderLines(), "P0001x10@640 P0002x1@4800 ");
  EXPECT_EQ(Order().Text1.Text() + Order().Text1.Tag, "");
}

TEST_F(OrderAgain, WhatCannotBeOrderedAgainIsToldAndOpensNothing) {
  const struct {
    const char* change;
    std::string slip;
    const char* told;
  } cases[] = {
      {"", "", "전표를 먼저 고르세요."},
      {"", "202001011001u01220009", "이미 삭제된 전표입니다."},
      {"DELETE FROM CT WHERE CT_CODE='C0002'", kConfirmed, "[한빛식품 #C0002]에는 지금 발주할 수"},
      {"UPDATE CTCOM SET CT_LEVEL2='9' WHERE CT_CODE='C0001'", kReceived, "[한빛상사 #C0001]에는"},
      {"DELETE FROM PSM22", kEditing, "품목이 없습니다."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.told);
    if (*c.change != '\0') Sql(c.change);
    host.ExpectBox(c.told);
    Again(c.slip);
    EXPECT_EQ(OpenForm("frm_Order"), nullptr);
  }
  Disconnect();
  host.ExpectBox("서버에서 읽지 못해");
  Again(kEditing);
  Reconnect();
  EXPECT_EQ(OpenForm("frm_Order"), nullptr);
}

TEST_F(OrderAgain, PricesThatCannotBeReadLeaveAnEmptyOrder) {
  Sql("RENAME TABLE CTP TO AWAY");
  host.ExpectBox("품목이나 단가를 읽지 못해");
  Again(kEditing);
  Sql("RENAME TABLE AWAY TO CTP");
  EXPECT_EQ(OrderLines() + Order().Text1.Text() + Order().Text1.Tag, "");
  EXPECT_FALSE(Order().HoldsWork());
  Leave();
  EXPECT_EQ(Shown(), "");
  Again(kEditing);
  EXPECT_EQ(OrderLines(), "P0001x10@700 P0002x1@6000 ");
}

TEST_F(OrderAgain, AnOrderAtWorkStandsBeforeIt) {
  WriteOrder();
  const std::string lines = OrderLines();
  Again(kReceived);
  EXPECT_EQ(OrderLines(), lines);
  EXPECT_EQ(host.FormsShown.back(), "frm_Order");
}

}  // namespace
}  // namespace store
