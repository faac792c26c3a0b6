// A pass over several partners: what goes together, what is left, and what a failure leaves.
#include "slips/slip_keys.h"
#include "tests/handheld/batch_desk.h"

namespace store {
namespace {

class BatchPass : public BatchDesk {
 protected:
  void StageTwoStores() {
    Stage({"a1", "-", "P0001", "2", "700", "1000", "본사"}, "14");
    Stage({"a2", "*", "P0003", "1", "300", "1000", "본사"}, "14");
    Stage({"b1", "-", "P0001", "5", "700", "1002", "왕십리점"}, "14");
  }
  /// Every slip of a table in the order of their keys: partner, number of lines, total.
  std::string Slips(const std::string& table, const std::string& lines) {
    return Value(
        "SELECT IFNULL(GROUP_CONCAT(slip ORDER BY PE_ID),'') FROM (SELECT h.PE_ID,CONCAT("
        "RIGHT(h.PE_ID,4),' ',PE_TCTCODE,' ',COUNT(PR_CODE),' ',PE_TOT+0e0) slip FROM " +
        table + " h LEFT JOIN " + lines +
        " l ON l.PE_ID=h.PE_ID WHERE PE_TMAN='핸디처리' GROUP BY h.PE_ID) s");
  }
  void ExpectNothingWritten() {
    for (const char* table : {"PES13", "PEM13", "PES23", "ME", "PEM23 WHERE PE_TMAN='핸디처리'"}) {
      EXPECT_EQ(Value(std::string("SELECT COUNT(*) FROM ") + table), "0") << table;
    }
    EXPECT_EQ(Stock("P0001"), "5/10/3");
    EXPECT_EQ(Value("SELECT SUM(CM_M13+CM_M23)+0e0 FROM CMM"), "14630");
  }
};

TEST_F(BatchPass, MakesOneSlipAPartnerAndLeavesWhatIsNotTicked) {
  Stage({"r1", "*", "P0001", "1", "100"}, "23");
  Stage({"r2", "*", "P0003", "2", "100", "C0002", "한빛식품"}, "23");
  Stage({"r3", "*", "P0002", "3", "100"}, "23");
  Stage({"r4", "*", "P0005", "4", "100", "C0002", "한빛식품"}, "23");
  Open("23");
  Tick(2, false);
  host.ExpectBox("저장이 완료되었습니다.");
  MakeSlips();
  EXPECT_EQ(Slips("PEM23", "PSM23"), "0001 C0001 1 100,0002 C0002 2 600");
  EXPECT_EQ(Left(), "r3");
  host.ExpectBox("저장이 완료되었습니다.");
  Batch().Command1_Click(4);
  EXPECT_EQ(Left(), "");
  host.ExpectBox("처리할 자료가 없습니다.");
  MakeSlips();
  Batch().Command1_Click(4);  // with nothing ticked, nothing happens
}

TEST_F(BatchPass, CountsByItselfAndTakesNoNumberOfAnOrderTwice) {
  Sql("INSERT INTO PEM22 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE) VALUES ('" +
      Key("220005") + "','0','','2024-05-17','1001','C0001')");
  for (const std::int16_t before : std::initializer_list<std::int16_t>{77, 1, 0}) {
    Sql("DELETE FROM PES13");
    Stage({"r1", "-", "P0001", "1", "100"}, "13");
    Stage({"r2", "-", "P0001", "1", "100", "C0002", "한빛식품"}, "13");
    ResetSlipKeys();
    SlipSeqCounter = before;
    SlipKeyPrefix = Key("").substr(0, 12);
    Open("13");
    host.ExpectBox("저장이 완료되었습니다.");
    MakeSlips();
    EXPECT_EQ(Slips("PES13", "PSS13"), "0001 C0001 1 110,0002 C0002 1 110");
    EXPECT_EQ(NextSlipId("PEM22"), Key("220006")) << before;
    Batch().Close();
  }
}

TEST_F(BatchPass, TellsRowsWithoutAProductAndLeavesThem) {
  Stage({"r1", "-", " ", "1", "100"}, "23");
  Stage({"r2", "*", "P0003", "2", "100"}, "23");
  Stage({"r3", "-", "", "3", "100", "C0002", "한빛식품"}, "23");
  Open("23");
  host.ExpectBox("품목코드가 없는 자료 2건은 처리하지 않고 남겨 둡니다.", box::No);
  MakeSlips();
  EXPECT_EQ(host.Boxes.back().Style, box::Question + box::YesNo);
  ExpectNothingWritten();
  EXPECT_EQ(Left(), "r1,r2,r3");
  host.ExpectBox("품목코드가 없는 자료 2건", box::Yes);
  host.ExpectBox("저장이 완료되었습니다.");
  MakeSlips();
  EXPECT_EQ(Slips("PEM23", "PSM23"), "0001 C0001 1 200") << "no slip for the other partner";
  EXPECT_EQ(Value("SELECT PS_NO FROM PSM23 WHERE PR_CODE='P0003'"), "1") << "they take no number";
  EXPECT_EQ(Left(), "r1,r3");
  host.ExpectBox("품목코드가 없는 자료 2건", box::Yes);
  host.ExpectBox("처리할 자료가 없습니다.");
  MakeSlips();
  EXPECT_EQ(Left(), "r1,r3");
}

TEST_F(BatchPass, GoesOnToAFurtherSlipWhereTheLinesRunOut) {
  BaseSettings.MaxSlipLines = 2;
  for (const char* id : {"r1", "r2", "r3", "r4", "r5"}) {
    Stage({id, "*", "P0003", "1", "100"}, "23");
  }
  Stage({"r6", "*", "P0003", "1", "100", "C0002", "한빛식품"}, "23");
  Open("23");
  host.ExpectBox("전표의 최대행수(2)를 넘는 자료 3건은 같은 거래처의 다음 전표로 나눕니다.",
                 box::Yes);
  host.ExpectBox("저장이 완료되었습니다.");
  MakeSlips();
  EXPECT_EQ(Slips("PEM23", "PSM23"),
            "0001 C0001 2 200,0002 C0001 2 200,0003 C0001 1 100,0004 C0002 1 100");
  EXPECT_EQ(Left(), "");
}

TEST_F(BatchPass, NeverGivesTwoSurveysOneKey) {
  BaseSettings.MaxSlipLines = 1;
  const std::string none = "1000000000000000";
  for (const char* id : {"s1", "s2", "s3"}) {
    Stage({id, "-", "P0001", "15", "0", none, "재고조사"}, "82");
  }
  Open("82");
  host.ExpectBox("2건은 같은 거래처의 다음 전표로", box::Yes);
  host.ExpectBox("저장이 완료되었습니다.");
  MakeSlips();
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(RIGHT(ME_ID,4) ORDER BY ME_ID) FROM ME"), "0001,0002,0003");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM MS"), "3");
}

TEST_F(BatchPass, SendsEachStoreItsShipmentInABatchOfItsOwn) {
  StageTwoStores();
  Open("14");
  host.ExpectBox("전표 2건의 저장이 완료되었습니다.");
  MakeSlips();
  EXPECT_EQ(Slips("PEM13", "PSM13"), "0001 1000 2 1840,0003 1002 1 3850");
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(RIGHT(PE_ID,4),' ',PE_FCTCODE ORDER BY PE_ID) FROM PES23"),
            "0002 1000,0004 1002");
  EXPECT_EQ(Stock("P0001"), "5/10/10");
  EXPECT_EQ(Left(), "");
}

TEST_F(BatchPass, TellsTheStoreWhoseShipmentFailedAndLeavesItsRows) {
  StageTwoStores();
  // The name of the first breaks its statements.
  Sql("UPDATE DT900 SET PS_rctNAME='가''게' WHERE PS_rctCODE='1000'");
  Open("14");
  host.ExpectBox("전표 2건 중 1건의 저장이 완료되었습니다.\r저장이 실패한 가맹점: 가'게\r\r MSG: ");
  MakeSlips();
  EXPECT_GT(host.Boxes.back().Text.size(), 120u) << "the server's words: " << host.Boxes[0].Text;
  EXPECT_EQ(Slips("PEM13", "PSM13"), "0003 1002 1 3850");
  EXPECT_EQ(Stock("P0001"), "5/10/8");
  EXPECT_EQ(Left(), "a1,a2");
  EXPECT_EQ(ColumnText(Batch().FLEX, staged::RowId), "a1,a2");
}

TEST_F(BatchPass, LeavesEverythingWhenItFails) {
  // The balance is near what its column can hold, and stands behind all lines.
  Stage({"r1", "*", "P0001", "1", "100", "C0002", "한빛식품"}, "23");
  Stage({"r2", "*", "P0001", "1", "100"}, "23");
  Sql("UPDATE CMM SET CM_M23=99999999999990");
  Open("23").DTPicker1.SetValue("2024-05-16");
  host.ExpectBox("저장이 실패하였습니다.\r\r MSG: ");
  MakeSlips();
  EXPECT_NE(host.Boxes.back().Text.find("CM_M23"), std::string::npos) << host.Boxes.back().Text;
  EXPECT_EQ(host.Boxes.back().Title, "오류");
  Sql("UPDATE CMM SET CM_M23=IF(CM_MM='202405',5280,9350)");
  ExpectNothingWritten();
  EXPECT_EQ(Left(), "r1,r2");
  EXPECT_EQ(Batch().FLEX.Rows(), 3) << "the rows stay listed";
}

TEST_F(BatchPass, PostsNothingWhenItsRowsAreGone) {
  const struct {
    const char* module;
    const char* change;
  } cases[] = {
      {"23", "DELETE FROM DT900"}, {"23", "DELETE FROM DT900 WHERE PE_ID='r1'"},
      {"14", "DELETE FROM DT900"}, {"66", "DELETE FROM DT900"},
      {"82", "DELETE FROM DT900"},
  };
  for (const auto& c : cases) {
    Sql("DELETE FROM DT900");
    Stage({"r1", "*", "P0001", "1", "100"}, c.module);
    Stage({"r2", "*", "P0003", "1", "100"}, c.module);
    Open(c.module);
    Sql(c.change);
    host.ExpectBox("이미 처리되었거나 삭제된 자료가 있어 저장하지 않았습니다.");
    MakeSlips();
    ExpectNothingWritten();
    EXPECT_EQ(Value("SELECT PR_OP1+0e0 FROM PR WHERE PR_CODE='P0001'"), "700");
    EXPECT_EQ(ColumnText(Batch().FLEX, staged::RowId), Left());
    Batch().Close();
  }
}

TEST_F(BatchPass, StopsBeforeAnythingIsSentWhereSomethingIsMissing) {
  Stage({"r1", "*", "P0001", "1", "100"}, "23");
  Stage({"r2", "*", "P0003", "1", "100", "C0002", "한빛식품"}, "23");
  FRM_DT900_01& form = Open("23");
  form.Combo1.Clear();
  host.ExpectBox("하치장명은 필수입력입니다.        ");
  MakeSlips();
  form.Combo1.AddItem(ListEntry("이름뿐", "      "));
  form.Combo1.SetListIndex(0);
  host.ExpectBox("입출고될 기본하치장을 반드시 선택하세요.     ");
  MakeSlips();
  EXPECT_EQ(host.Boxes.back().Title, "하치장선택");
  form.Combo1.Clear();
  form.Combo1.AddItem(ListEntry("매장", "100101"));
  form.Combo1.SetListIndex(0);
  BaseSettings.MaxSlipLines = 0;
  host.ExpectBox("최대전표건수가 설정되지 않았습니다.");
  MakeSlips();
  BaseSettings.MaxSlipLines = 100;
  Disconnect();
  host.ExpectBox("저장이 실패하였습니다.");  // there is no key
  MakeSlips();
  Reconnect();
  ExpectNothingWritten();
  EXPECT_EQ(Left(), "r1,r2");
}

TEST_F(BatchPass, KnowsNoOtherModules) {
  for (const char* module : {"99", "81"}) {
    Stage({"r1", "*", "P0001", "1", "100"}, module);
    Open(module);
    host.ExpectBox("전표구분없음");
    if (std::string(module) == "99") host.ExpectBox("모듈이 지정되지 않았습니다.");
    MakeSlips();
    ExpectNothingWritten();
    Batch().Close();
  }
  EXPECT_EQ(Left(), "r1,r1");
}

}  // namespace
}  // namespace store
