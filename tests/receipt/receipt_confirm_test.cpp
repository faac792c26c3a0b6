#include "basics/dates.h"
#include "basics/records.h"
#include "slips/slip_keys.h"
#include "tests/receipt/receipt_desk.h"

namespace store {
namespace {

constexpr const char* kDone = "입고처리가 정상적으로 처리되었습니다.";

TEST_F(ReceiptDesk, TheChosenDepotTakesEveryLineAndTheOrderIsClosed) {
  frm_PE_UNIT& form = Open(kApproved);
  form.Combo1.SetListIndex(1);
  Receive(2, "17");
  host.ExpectBox("입고확정처리 하시겠습니까?           ", box::Yes);
  host.ExpectBox(kDone);
  form.Command1_Click(1);
  EXPECT_EQ(OpenForm("frm_PE_UNIT"), nullptr);
  EXPECT_EQ(
      Rows(Splice("SELECT O.PE_CK,PE_TOT,PS_NO,PR_CODE,PS_SQTY,PS_HCTCODE,PS_HCTNAME FROM "
                  "(SELECT PE_CK,PE_LINK FROM PEM22 WHERE PE_ID='{approved}') O JOIN PEM23 R ON "
                  "R.PE_ID=O.PE_LINK JOIN PSM23 L ON L.PE_ID=R.PE_ID ORDER BY PS_NO",
                  "approved"_a = kApproved)),
      (std::vector<std::vector<std::string>>{
          {"4", "22090.0000", "1", "P0003", "30.0000", "100102", "창고"},
          {"4", "22090.0000", "2", "P0001", "17.0000", "100102", "창고"}}));
  EXPECT_EQ(Value("SELECT SUM(INQTY) FROM IV WHERE HCT_CODE='100102'"), "47.0000");
}

TEST_F(ReceiptDesk, ADateThatNobodyHasChosenIsTheDayOfTheConfirmation) {
  const ClockTime today = host.Clock;
  for (const bool chosen : {false, true}) {
    StartDay();
    const CalendarDate past = AddDays(Today(), -32);
    host.Clock = {past.Year, past.Month, past.Day, 10, 0, 0};
    frm_PE_UNIT& form = Open(kApproved);
    host.Clock = today;
    if (chosen) form.DTPicker1.SetValue(FormatDateValue(AddDays(Today(), -3), "YYYY-MM-DD"));
    host.ExpectBox("입고확정", box::Yes);
    host.ExpectBox(kDone);
    form.Command1_Click(1);
    EXPECT_EQ(Value("SELECT MIN(DATEDIFF(NOW(),PE_PDATE)) FROM PEM23"), chosen ? "3" : "0");
  }
}

TEST_F(ReceiptDesk, NoAndMissingThingsStopBeforeAnythingIsWritten) {
  frm_PE_UNIT& form = Open(kApproved);
  host.ExpectBox("입고확정", box::No);
  form.Command1_Click(1);
  EXPECT_EQ(SlipSeqCounter, 0);
  form.Command1_Click(0);

  const std::string today = form.DTPicker1.Value();
  form.DTPicker1.SetValue(FormatDateValue(AddDays(Today(), 62), "YYYY-MM-DD"));
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox("발주일자를 확인바랍니다.");
  form.Command1_Click(1);
  form.DTPicker1.SetValue(today);

  std::string name;
  name.swap(Session.StoreName);
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox("본사/가맹점입력은 필수입력입니다.                ");
  form.Command1_Click(1);
  name.swap(Session.StoreName);

  OpenRecordset(SlotC, "SELECT 'P0003' AS PR_CODE,'콩나물','','','1'");
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox(
      "[8801000\r맑은생수 ] 상품의 발주단가정보에서 오류가 발생하였습니다. \r\r 다시 시도");
  host.ExpectBox("전표순번자료가 없습니다.                    ");
  form.Command1_Click(1);
  EXPECT_EQ(SlipSeqCounter, 3);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM23"), "3");
}

TEST_F(ReceiptDesk, AnUnknownOrderStopsAtThePartner) {
  Open("no such order");
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox("거래처입력오류 확인바랍니다.             ");
  Receipt().Command1_Click(1);
}

TEST_F(ReceiptDesk, ZeroLinesAreLeftOutOnlyWhenTheOptionSaysSo) {
  const struct {
    int option;
    const char* numbers;
  } cases[] = {{0, "P0003:1 P0001:2 "}, {1, "P0001:1 "}};
  for (const auto& c : cases) {
    AppOptions.SkipZeroReceipt = static_cast<std::int16_t>(c.option);
    Open(kApproved);
    Receive(1, "0");
    host.ExpectBox("입고확정", box::Yes);
    host.ExpectBox(kDone);
    Receipt().Command1_Click(1);
    std::string numbers;
    for (const auto& row : Rows("SELECT PR_CODE,PS_NO FROM PSM23 WHERE PE_ID=(SELECT MAX(PE_ID) "
                                "FROM PEM23) ORDER BY PS_NO")) {
      numbers += row[0] + ":" + row[1] + " ";
    }
    EXPECT_EQ(numbers, c.numbers) << c.option;
  }
  AppOptions.SkipZeroReceipt = 1;
  Open(kApproved);
  Receive(1, "0");
  Receive(2, "0");
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox("전표순번자료가 없습니다.                    ");
  Receipt().Command1_Click(1);
}

TEST_F(ReceiptDesk, MoreRowsThanASlipMayHoldAreToldByTheirLimit) {
  BaseSettings.MaxSlipLines = 1;
  Open(kApproved);
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox("셋팅최대처리건수(1건)\r");
  host.ExpectBox("전표순번자료가 없습니다.                    ");
  Receipt().Command1_Click(1);
}

TEST_F(ReceiptDesk, AFailedReceiptLeavesOrderStockAndFormAsTheyWere) {
  Open(kApproved);
  Sql("RENAME TABLE CMM TO CMM_AWAY");
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox("저장이 실패하였습니다.\r\r MSG: ");
  Receipt().Command1_Click(1);
  Sql("RENAME TABLE CMM_AWAY TO CMM");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM23"), "3");
  EXPECT_EQ(Value("SELECT SUM(INQTY) FROM IV"), "11.0000");
  EXPECT_EQ(
      Value(Splice("SELECT PE_CK FROM PEM22 WHERE PE_ID='{approved}'", "approved"_a = kApproved)),
      "2");
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox(kDone);
  Receipt().Command1_Click(1);
  EXPECT_EQ(Value("SELECT SUM(INQTY) FROM IV"), "59.0000");
}

}  // namespace
}  // namespace store
