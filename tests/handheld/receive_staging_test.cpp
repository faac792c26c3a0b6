#include "tests/handheld/receive_desk.h"

namespace store {
namespace {

using Table = std::vector<std::vector<std::string>>;

class ReceiveStaging : public ReceiveDesk {
 protected:
  /// Saves, with these boxes on the way.
  void Save(DT9RECEV& form, const std::vector<const char*>& boxes) {
    for (const char* fragment : boxes) host.ExpectBox(fragment, box::Yes);
    form.Press(Key::F9);
    host.ExpectAllShown();
  }
};

TEST_F(ReceiveStaging, EveryValueStandsInItsColumn) {
  DT9RECEV& form = Open();
  Transfer(form, {Trade("0001", "C0001", "8801000", "00012", "0000480"),
                  Trade("0002", "C0001", "88010004", "5", "20")});
  Save(form, {"저장이 완료되었습니다.                  "});
  EXPECT_EQ(host.Boxes.back().Style, box::Information);
  EXPECT_EQ(host.Boxes.back().Title, "확인");
  EXPECT_TRUE(form.IsClosed());
  EXPECT_EQ(Staged("*"), (Table{{"20240517102030u02000001",
                                 "20240517102030u02000001",
                                 "1",
                                 "2024-05-17",
                                 "101",
                                 "-",
                                 "P0001",
                                 "맑은생수",
                                 "2L*6",
                                 "박스",
                                 "12.0000",
                                 "0.0000",
                                 "480.0000",
                                 "0.0000",
                                 "0.0000",
                                 "",
                                 "",
                                 "",
                                 "u01",
                                 "",
                                 "C0001",
                                 "한빛상사",
                                 "u02",
                                 "23",
                                 ""},
                                {"20240517102030u02000002",
                                 "20240517102030u02000002",
                                 "2",
                                 "2024-05-17",
                                 "104",
                                 "@",
                                 "P0004",
                                 "참기름",
                                 "320ml",
                                 "병",
                                 "5.0000",
                                 "0.0000",
                                 "20.0000",
                                 "0.0000",
                                 "0.0000",
                                 "",
                                 "",
                                 "",
                                 "u01",
                                 "",
                                 "C0001",
                                 "한빛상사",
                                 "u02",
                                 "23",
                                 ""}}));
}

TEST_F(ReceiveStaging, TheStatementIsOneTextByPosition) {
  StagedRow row;
  row.Id = "K1";
  row.Row = 1;
  row.Quantity = "12";
  row.Price = "-150";
  row.ReturnMark = "R";
  EXPECT_EQ(StagedRowStatement(row),
            " INSERT INTO DT900 VALUES ( 'K1','K1',1,'','','','','','','',12,0,-150,'0',0,"
            "'','','R','','','','','','','') ");
  EXPECT_EQ(TaxMarkOf("1") + TaxMarkOf("2") + TaxMarkOf("0") + TaxMarkOf(""), "*@--");
}

TEST_F(ReceiveStaging, ReturnsHaveAPositiveQuantityAndANegativePrice) {
  DT9RECEV& form = Open("매출반품 (반품)", "13", "R");
  Transfer(form, {Trade("1", "C0001", "8801000", "-12", "150", '1'),
                  Trade("2", "C0001", "8801000", "7", "-20", '1'),
                  Trade("3", "C0001", "8801000", "1", "0", '1')});
  Save(form, {"저장이 완료되었습니다."});
  EXPECT_EQ(Staged("PS_SQTY, PS_UP, PS_MEMO"), (Table{{"12.0000", "-150.0000", "R"},
                                                      {"7.0000", "-20.0000", "R"},
                                                      {"1.0000", "0.0000", "R"}}));
}

TEST_F(ReceiveStaging, ShipmentsMayTakeTheContractPrice) {
  const auto prices = [&](const std::string& returns, int answer) {
    Sql("DELETE FROM DT900");
    DT9RECEV& form = Open("매    출", "14", returns);
    Transfer(form, {Trade("1", "1001", "8801000", "-3", "10", '2'),
                    Trade("2", "1001", "88010001", "3", "10", '2')});
    host.ExpectBox("판매자료를 계약가형태로 저장하시겠습니까?   ", answer);
    Save(form, {"저장이 완료되었습니다."});
    return Staged("PS_SQTY, PS_UP");
  };
  EXPECT_EQ(prices("", box::No), (Table{{"-3.0000", "10.0000"}, {"3.0000", "10.0000"}}));
  EXPECT_EQ(prices("", box::Yes), (Table{{"-3.0000", "555.0000"}, {"3.0000", "6000.0000"}}));
  EXPECT_EQ(prices("R", box::Yes), (Table{{"3.0000", "-555.0000"}, {"3.0000", "-6000.0000"}}));
}

TEST_F(ReceiveStaging, PurchasesHaveATaxColumnOfTheirOwn) {
  Sql("UPDATE PR SET PR_TAX = '1', PR_TAX2 = '2' WHERE PR_CODE = 'P0001';"
      "UPDATE PR SET PR_TAX2 = '' WHERE PR_CODE = 'P0004'");
  const auto marks = [&](const std::string& kind, const std::string& module, char byte) {
    Sql("DELETE FROM DT900");
    DT9RECEV& form = Open(kind, module);
    Transfer(form, {Trade("1", "C0001", "8801000", "1", "1", byte),
                    Trade("2", "C0001", "88010004", "1", "1", byte)});
    Save(form, {"저장이 완료되었습니다."});
    return Staged("PS_TAXGU");
  };
  EXPECT_EQ(marks("매    입", "23", '0'), (Table{{"@"}, {"-"}}));
  EXPECT_EQ(marks("매    출", "13", '2'), (Table{{"*"}, {"@"}}));
}

TEST_F(ReceiveStaging, UnknownProductsAreCountedAndStagedBlank) {
  DT9RECEV& form = Open();
  Transfer(form, {Trade("1", "C0001", "999", "1", "1"), Trade("2", "C0001", "", "1", "1"),
                  Trade("3", "C0001", "88'1", "1", "1"), Trade("4", "C0001", "8801000", "1", "1")});
  Save(form, {"저장이 완료되었습니다.", "3건의 품목전환 오류"});
  EXPECT_EQ(host.Boxes.back().Title, "품목오류");
  EXPECT_EQ(host.Boxes.back().Style, box::Critical);
  EXPECT_EQ(Staged("CONCAT('[',PR_CODE,PR_NAME,']'), PS_TAXGU"),
            (Table{{"[  ]", "-"}, {"[  ]", "-"}, {"[  ]", "-"}, {"[P0001맑은생수]", "-"}}));
}

TEST_F(ReceiveStaging, ASurveyNeedsNoPartner) {
  DT9RECEV& form = Open("재고조사", "82");
  Transfer(form, {ProductRecord('3', "0001", "8801000", "생수", "00012")});
  Save(form, {"저장이 완료되었습니다."});
  EXPECT_EQ(Staged("PS_rctCODE, PS_rctNAME, PS_SQTY, PS_UP, DT_GU"),
            (Table{{"1000000000000000", "재고조사", "12.0000", "0.0000", "82"}}));
}

TEST_F(ReceiveStaging, ARowWithoutAPartnerStopsAll) {
  const auto stops = [&](const std::vector<std::string>& records) {
    DT9RECEV& form = Open();
    Transfer(form, records);
    Save(form, {" 거래처코드는 필수입니다.            "});
    EXPECT_EQ(host.Boxes.back().Style, box::Critical);
    EXPECT_FALSE(form.IsClosed());
    EXPECT_EQ(form.FLEX.Row(), 2);
    form.Close();
  };
  const std::string good = Trade("1", "C0001", "8801000", "1", "1");
  stops({good, Trade("2", "C9999", "8801000", "1", "1"), good});
  stops({good, Trade("2", "C0001", "8801000", "1", "1", '2'), good});
  EXPECT_EQ(Value("SELECT COUNT(*) FROM DT900"), "0");
}

TEST_F(ReceiveStaging, AFailedSaveKeepsTheRows) {
  Sql("UPDATE PR SET PR_NAME = '아이''스티' WHERE PR_CODE = 'P0001'");
  DT9RECEV& form = Open();
  Transfer(form,
           {Trade("1", "C0001", "88010004", "1", "1"), Trade("2", "C0001", "8801000", "1", "1")});
  const auto fails = [&] {
    Save(form, {"저장이 실패하였습니다.                  "});
    EXPECT_EQ(host.Boxes.back().Style, box::Critical);
    EXPECT_FALSE(form.IsClosed());
    EXPECT_EQ(form.FLEX.Rows(), 3);
    EXPECT_EQ(host.Pointers.back(), PointerNormal);
    EXPECT_EQ(Value("SELECT COUNT(*) FROM DT900"), "0");
  };
  fails();
  Disconnect();
  fails();
  Reconnect();
  Sql("UPDATE PR SET PR_NAME = '아이스티' WHERE PR_CODE = 'P0001'");
  Save(form, {"저장이 완료되었습니다."});
  EXPECT_EQ(Value("SELECT COUNT(*) FROM DT900"), "2");
}

TEST_F(ReceiveStaging, KeysOfTwoInspectorsInOneSecondDiffer) {
  Sql("INSERT INTO ST (ST_CODE, ST_PWD, ST_NAME, RCT_CODE) VALUES ('u0', '', '영', '1001')");
  for (const char* inspector : {"u0", "u01"}) {
    DT9RECEV& form = Open();
    Transfer(form, std::vector<std::string>(12, Trade("1", "C0001", "8801000", "1", "1")),
             inspector);
    Save(form, {"저장이 완료되었습니다."});
  }
  EXPECT_EQ(Value("SELECT COUNT(DISTINCT PE_ID) FROM DT900"), "24");
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(DT_NO ORDER BY PE_ID) FROM DT900 WHERE DT_CHECK = 'u0'"),
            "1,2,3,4,5,6,7,8,9,10,11,12");
}

TEST_F(ReceiveStaging, NothingReceivedIsNothingToSave) {
  DT9RECEV& form = Open();
  form.Press(Key::F9);  // the button is disabled
  EXPECT_FALSE(form.SaveToStaging());
}

}  // namespace
}  // namespace store
