#include "session/base_settings.h"
#include "session/dates.h"
#include "session/options_record.h"
#include "slips/slip_keys.h"
#include "tests/receipt/receipt_desk.h"

namespace store {
namespace {

constexpr const char* kDone = "입고처리가 정상적으로 처리되었습니다.";

TEST_F(ReceiptDesk, EveryColumnOfAReceipt) {
  Host.Version = {1, 2, 35};
  frm_PE_UNIT& form = Open(kApproved);
  form.Combo1.SetListIndex(1);
  Receive(2, "17");
  const std::string today = form.DTPicker1.Value();
  host.ExpectBox("입고확정처리 하시겠습니까?           ", box::Yes);
  host.ExpectBox(kDone);
  form.Command1_Click(1);
  EXPECT_EQ(OpenForm("frm_PE_UNIT"), nullptr);
  const std::string id = FormatDateText(today, "YYYYMMDD") + "1001u01230001";
  EXPECT_EQ(Rows("SELECT PE_CK,PE_PDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,"
                 "PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,CONCAT('[',PE_ACCK,PE_TMAN,PE_MEMO,PE_PRJ,"
                 "']'),ST_CODE,PE_LINK,INPUT_PROGRAM FROM PEM23 WHERE PE_ID='" +
                 id + "'"),
            (std::vector<std::vector<std::string>>{{"1", today, "1001", "성수역점", "C0001",
                                                    "한빛상사", "20900.0000", "1190.0000",
                                                    "22090.0000", "0.0000", "0.0000", "0.0000",
                                                    "E005", "[    ]", "u01", kApproved, "1235"}}));
  EXPECT_EQ(Rows("SELECT PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT,PS_SQTY,PS_EQTY,"
                 "PS_COST,PS_UP,PS_AMT,PS_TAX,ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME,"
                 "PS_INCK,PS_TMID FROM PSM23 WHERE PE_ID='" +
                 id + "' ORDER BY PS_NO"),
            (std::vector<std::vector<std::string>>{
                {"1",       today,     "P0003",  "콩나물",   "300g",      "1",      "봉",
                 "30.0000", "30.0000", "0.0000", "300.0000", "9000.0000", "0.0000", "u01",
                 "0",       "",        "100102", "창고",     "",          ""},
                {"2",       today,     "P0001",  "맑은생수", "2L*6",       "0",         "박스",
                 "17.0000", "20.0000", "0.0000", "700.0000", "11900.0000", "1190.0000", "u01",
                 "0",       "",        "100102", "창고",     "",           ""}}));
  EXPECT_EQ(Rows(Splice("SELECT PE_CK,PE_LINK FROM PEM22 WHERE PE_ID='{0}'", {kApproved})),
            (std::vector<std::vector<std::string>>{{"4", id}}));
  EXPECT_EQ(Value("SELECT SUM(INQTY) FROM IV WHERE HCT_CODE='100102'"), "47.0000");
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
  EXPECT_EQ(Value(Splice("SELECT PE_CK FROM PEM22 WHERE PE_ID='{0}'", {kApproved})), "2");
  host.ExpectBox("입고확정", box::Yes);
  host.ExpectBox(kDone);
  Receipt().Command1_Click(1);
  EXPECT_EQ(Value("SELECT SUM(INQTY) FROM IV"), "59.0000");
}

}  // namespace
}  // namespace store
