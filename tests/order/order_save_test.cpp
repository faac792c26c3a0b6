#include "basics/records.h"
#include "forms/open_forms.h"
#include "slips/slip_keys.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

constexpr const char* kAgain = "계속해서 발주하시겠습니까?";

class OrderSave : public OrderDesk {
 protected:
  OrderSave() { Sql("DELETE FROM PEM22"); }
  /// A key of the database's day and the store.
  static std::string TodaysKey(const std::string& end) {
    return Value("SELECT DATE_FORMAT(NOW(),'%Y%m%d')") + "1001" + end;
  }
  void FillOrder() {
    Open();
    Supplier("#C0001");
    Enter("88010005");
    Enter("3");
    Enter("88010003");
  }
};

TEST_F(OrderSave, LinesAreNumberedFromTheTopAndGoToTheChosenDepot) {
  FillOrder();
  Order().Combo1.SetListIndex(1);
  host.ExpectBox(kAgain, box::No);
  Order().LaBtn_Click(0);
  EXPECT_EQ(OpenForm("frm_Order"), nullptr);
  EXPECT_EQ(
      Rows("SELECT PE_ID,PE_CK,PS_NO,PR_CODE,PS_SQTY,PS_HCTCODE,PS_HCTNAME FROM PEM22 JOIN PSM22 "
           "USING (PE_ID) ORDER BY PS_NO"),
      (std::vector<std::vector<std::string>>{
          {TodaysKey("u01220001"), "0", "1", "P0003", "1.0000", "100102", "창고"},
          {TodaysKey("u01220001"), "0", "2", "P0005", "3.0000", "100102", "창고"}}));
}

TEST_F(OrderSave, GoingOnKeepsTheDepotAndStartsAfresh) {
  FillOrder();
  Order().Combo1.SetListIndex(1);
  host.ExpectBox(kAgain, box::Yes);
  Order().LaBtn_Click(1);
  EXPECT_EQ(Value("SELECT PE_CK FROM PEM22"), "1");
  EXPECT_EQ(Order().SlipId, "");
  EXPECT_EQ(Order().Text1.Text() + Order().Text1.Tag, "");
  EXPECT_EQ(Order().FLEX1.Rows(), 1);
  EXPECT_EQ(Order().LaAmt[1].Caption, "0");
  EXPECT_EQ(Order().Combo1.ListIndex(), 1);
  EXPECT_EQ(Order().ActiveControl, &Order().Text1);
}

TEST_F(OrderSave, AChangeRewritesTheOrderUnderItsKey) {
  FillOrder();
  host.ExpectBox(kAgain, box::No);
  Order().LaBtn_Click(0);
  const std::string id = Value("SELECT PE_ID FROM PEM22");
  Open(id);
  Order().FLEX1.SetRow(1);  // the last line of before stands on top
  Order().FLEX1_KeyDown(Key::Delete);
  Order().FLEX1.SetRow(1);
  Enter("8");
  host.ExpectBox(kAgain, box::No);
  Order().LaBtn_Click(1);
  EXPECT_EQ(
      Rows("SELECT H.PE_ID,PE_CK,PE_TOT,PS_NO,PR_CODE,PS_SQTY FROM PEM22 H LEFT JOIN PSM22 L "
           "ON H.PE_ID=L.PE_ID"),
      (std::vector<std::vector<std::string>>{{id, "1", "2400.0000", "1", "P0003", "8.0000"}}));
}

TEST_F(OrderSave, ChecksComeInTheirOrderAndARefusalUsesUpAKey) {
  Open();
  const std::string today = Order().DTOrderDate.Value();
  Order().DTOrderDate.SetValue("2001-01-01");
  host.ExpectBox("발주일자를 확인바랍니다. 현재일기준 전후한달만 처리가능합니다.");
  Order().LaBtn_Click(0);
  Order().DTOrderDate.SetValue(today);
  std::string name;
  name.swap(Session.StoreName);
  host.ExpectBox("본사/가맹점입력은 필수입력입니다.                ");
  Order().LaBtn_Click(0);
  name.swap(Session.StoreName);
  host.ExpectBox("거래처입력오류 확인바랍니다.             ");
  Order().LaBtn_Click(0);
  Supplier("#C0001");
  host.ExpectBox("전표순번자료가 없습니다.                    ");
  Order().LaBtn_Click(0);
  EXPECT_EQ(SlipSeqCounter, 4);
  Enter("88010005");
  Order().Text1.Change = nullptr;  // a name typed over, with the lines still there
  Order().Text1.SetText("한빛");
  host.ExpectBox("거래처입력오류 확인바랍니다.             ");
  Order().LaBtn_Click(0);
  EXPECT_EQ(Order().ActiveControl, &Order().Text1);
  Order().LaBtn_Click(2);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22"), "0");
}

TEST_F(OrderSave, AMissingItemOrDepotIsToldInTwoBoxes) {
  FillOrder();
  OpenRecordset(SlotC, "SELECT 'P0003' AS PR_CODE,'콩나물','','','1'");
  host.ExpectBox("[P0005] 품목정보가 부족하여 \r\r 순번항목을 구성할 수 없습니다.");
  host.ExpectBox("전표순번자료가 없습니다.                    ");
  Order().LaBtn_Click(0);
  Order().Combo1.Clear();
  host.ExpectBox("입고될 기본하치장을 반드시 선택하세요.     ");
  host.ExpectBox("전표순번자료가 없습니다.                    ");
  Order().LaBtn_Click(0);
}

TEST_F(OrderSave, MoreLinesThanTheSlipHoldsStopTheSave) {
  FillOrder();
  for (const std::int16_t limit : {std::int16_t{1}, std::int16_t{0}}) {
    BaseSettings.MaxSlipLines = limit;
    host.ExpectBox("최대전표건수를 확인하세요 셋팅최대처리건수(" + std::to_string(limit) + "건)");
    host.ExpectBox("전표순번자료가 없습니다.                    ");
    Order().LaBtn_Click(0);
    EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22"), "0");
  }
}

TEST_F(OrderSave, AFailedSaveTellsTheServersWordsAndKeepsTheOrder) {
  FillOrder();
  Sql("UPDATE PR SET PR_NAME='o''neil' WHERE PR_CODE='P0005'");
  OpenRecordset(SlotC, "SELECT PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2 FROM PR");
  host.ExpectBox(
      "저장이 실패하였습니다.\r\r MSG: 작은따옴표(')가 있는 값은 쓸 수 없습니다: o'neil");
  Order().LaBtn_Click(0);
  EXPECT_EQ(Lines(), "P0003x1 P0005x3 ");
  EXPECT_EQ(Order().SlipId, "") << "the key of an order is that under which it was stored";
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM22"), "0");
}

TEST_F(OrderSave, WithoutTheDatabaseNoKeyAndNothingIsLost) {
  FillOrder();
  Disconnect();
  host.ExpectBox("발주일자를 확인바랍니다.");
  Order().LaBtn_Click(0);
  Reconnect();
  EXPECT_EQ(Lines(), "P0003x1 P0005x3 ");
  host.ExpectBox(kAgain, box::No);
  Order().LaBtn_Click(0);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PSM22"), "2");
}

}  // namespace
}  // namespace store
