#include "lookup/party_lookups.h"
#include "tests/handheld/receive_desk.h"

namespace store {
namespace {

class ReceivedRows : public ReceiveDesk {};

TEST_F(ReceivedRows, ArePartnersByTheirCode) {
  DT9RECEV& form = Open();
  Transfer(form, {Trade("1", "C0001", "1", "1", "1"), Trade("2", "", "1", "1", "1"),
                  Trade("3", "1002", "1", "1", "1"), Trade("4", "C'1", "1", "1", "1"),
                  Trade("5", "c0002", "1", "1", "1")});
  EXPECT_EQ(ColumnText(form.FLEX, received::Code), "C0001,,,,C0002");
  EXPECT_EQ(ColumnText(form.FLEX, received::Party), "한빛상사,,,,한빛식품");
  EXPECT_EQ(ColumnText(form.FLEX, received::Registered), "C0001,,1002,C'1,c0002");
}

TEST_F(ReceivedRows, OfAShipmentAreStores) {
  DT9RECEV& form = Open("매    출", "14");
  Transfer(form, {Trade("1", "1002", "1", "1", "1", '2'), Trade("2", "C0001", "1", "1", "1", '2')});
  EXPECT_EQ(ColumnText(form.FLEX, received::Party), "왕십리점,");
}

TEST_F(ReceivedRows, WithoutAPartnerOfTheirOwnStay) {
  DT9RECEV& survey = Open("재고조사", "82");
  Transfer(survey, {ProductRecord('3', "0001", "8801000", "생수", "00012")});
  EXPECT_EQ(RowText(survey.FLEX, 1), "0001|재고조사|1000000000000000|재고조사|8801000|생수|12||");
  survey.Close();
  DT9RECEV& prices = Open("상품관리", "66");
  Transfer(prices, {Trade("0001", "C0001", "1", "1", "1"),
                    ProductRecord('4', "0002", "8801000", "생수", "0001500")});
  EXPECT_EQ(RowText(prices.FLEX, 1), "||매    입에서 처리바람!!!|**선택오류**|||||");
  EXPECT_EQ(RowText(prices.FLEX, 2), "0002|상품관리|1000000000000000|상품관리|8801000|생수||1500|");
}

TEST_F(ReceivedRows, GoToAnotherPartnerAndBack) {
  DT9RECEV& form = Open();
  Transfer(form, {Trade("1", "C0001", "1", "1", "1"), Trade("2", "C0002", "1", "1", "1"),
                  Trade("3", "C0001", "1", "1", "1")});
  struct Case {
    const char* what;
    std::string old;
    std::string changed;
    const char* box;  // what is shown, and how it is answered
    int answer;
    std::string codes;
  };
  const std::vector<Case> cases = {
      {"nobody has the old code", "C0009", "C0001", "변경전 거래처코드가 없습니다.", box::Ok,
       "C0001,C0002,C0001"},
      {"to a new partner", "C0001", "C0003", nullptr, 0, "C0003,C0002,C0003"},
      {"the code in force is not the registered one", "C0003", "C0004",
       "변경전 거래처코드가 없습니다.", box::Ok, "C0003,C0002,C0003"},
      {"to one that is there, refused", "C0001", "C0002", "거래처가 이미존재", box::No,
       "C0003,C0002,C0003"},
      {"to one that is there", "C0001", "C0002", "거래처가 이미존재", box::Yes,
       "C0002,C0002,C0002"},
      {"back", "C0001", "C0001", "거래처가 이미존재", box::Yes, "C0001,C0002,C0001"},
      {"to an unknown one", "C0002", "C9999", nullptr, 0, "C0001,,C0001"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    form.Text1[0].SetText(c.old);
    form.Text1[1].SetText(c.changed);
    if (c.box != nullptr) host.ExpectBox(c.box, c.answer);
    form.Press(Key::F6);
    EXPECT_EQ(ColumnText(form.FLEX, received::Code), c.codes);
    EXPECT_EQ(ColumnText(form.FLEX, received::Registered), "C0001,C0002,C0001");
  }
  EXPECT_EQ(ColumnText(form.FLEX, received::Party), "한빛상사,,한빛상사");
}

TEST_F(ReceivedRows, TheNewPartnerIsLookedUp) {
  const auto look = [&](const std::string& module, const char* window, const std::string& code) {
    DT9RECEV& form = Open("매    출", module);
    form.Text1[1].SetText("before");
    host.OnModal(window,
                 [&](Form& lookup) { dynamic_cast<LookupForm&>(lookup).ResultCode = code; });
    form.Press(Key::F1);
    std::string text = form.Text1[1].Text();
    form.Close();
    return text;
  };
  EXPECT_EQ(look("13", "HELP_CT", "C0002"), "C0002");
  EXPECT_EQ(look("14", "HELP_RCT", "1002"), "1002");
  EXPECT_EQ(look("14", "HELP_RCT", ""), "before");
}

TEST_F(ReceivedRows, AnUnknownProductIsRegistered) {
  Sql("INSERT INTO BAS (BAS_CODE, BAS_NAME1) VALUES ('C301','EA'), ('C10A','과세'),"
      "('C400','재고'), ('C602','선입'), ('C700','매장')");
  BaseSettings.ProductCodeMode = "수동";
  BaseSettings.ProductCodeLength = 5;
  DT9RECEV& form = Open();
  Transfer(form, {TradeRecord('0', "1", "C0001", "777", "신규상품", "1", "1"),
                  Trade("2", "C0001", "8801000", "1", "1")});
  const auto activate = [&](int row, int col) {
    form.FLEX.Select(row, col);
    form.Press(Key::Enter, &form.FLEX);
  };
  activate(2, received::Product);
  activate(1, received::Barcode);
  host.OnModal("NEW_PR", [](Form& product) { product.Close(); });
  activate(1, received::Product);
  EXPECT_EQ(form.FLEX.TextMatrix(1, received::Product), "**********") << "it can be tried again";
  host.OnModal("NEW_PR", [](Form& product) {
    auto& entry = dynamic_cast<NEW_PR&>(product);
    EXPECT_EQ(entry.SuggestedBarcode, "777");
    EXPECT_EQ(entry.txBox[4].Text(), "777");
    entry.txBox[0].SetText("20001");
    entry.txBox[1].SetText("유자차");
    entry.Combo1[5].SetText(ListEntry("식품", "100000000000000"));
    entry.Press(Key::F9);
  });
  activate(1, received::Product);
  EXPECT_EQ(form.FLEX.TextMatrix(1, received::Product), "유자차");
  EXPECT_EQ(Value("SELECT PR_NAME FROM PR WHERE PR_BCODE = '777'"), "유자차");
}

}  // namespace
}  // namespace store
