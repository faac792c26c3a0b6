// A transfer is staged once, and never at a price that could not be read.
#include "tests/handheld/receive_desk.h"
#include "tests/support/cutting_proxy.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

using Cut = CuttingProxy::Cut;

constexpr const char* kSaved = "저장이 완료되었습니다.                  ";
constexpr const char* kNotFound = "저장이 확인되지 않았습니다.";
constexpr const char* kUnknown = "저장되었는지 알 수 없습니다.\r다시 시도하면";

class StagingOnce : public ReceiveDesk {
 protected:
  DT9RECEV& Received() {
    DT9RECEV& form = Open();
    Transfer(form, {Trade("1", "C0001", "8801000", "1", "10"),
                    Trade("2", "C0001", "88010004", "2", "20")});
    return form;
  }
  void Save(DT9RECEV& form, const std::string& told) {
    host.ExpectBox(told);
    form.Press(Key::F9);
    host.ExpectAllShown();
  }
  static std::string Rows() {
    return Value("SELECT CONCAT(COUNT(*),' ',COUNT(DISTINCT PE_ID)) FROM DT900");
  }
};

TEST_F(StagingOnce, ALostReplyStagesNothingTwice) {
  const struct {
    Cut cut;
    bool staysAway;
    const char* told;
    const char* staged;
    const char* toldAgain;
  } cases[] = {
      {Cut::Before, false, kNotFound, "0 0", kSaved},
      {Cut::Before, true, kUnknown, "0 0", kSaved},
      {Cut::After, false, kSaved, "2 2", nullptr},
      {Cut::After, true, kUnknown, "2 2", kSaved},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.told);
    StartAgain();
    CuttingProxy line(TestServer().Port());
    BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
    DT9RECEV& form = Received();
    line.CutNextBatch(c.cut, c.staysAway);
    Save(form, c.told);
    EXPECT_EQ(Rows(), c.staged);
    ++host.Clock.Second;
    if (c.staysAway) Save(form, kUnknown);
    line.Return();
    if (c.toldAgain != nullptr) Save(form, c.toldAgain);
    EXPECT_TRUE(form.IsClosed());
    EXPECT_EQ(Rows(), "2 2");
    ResetGateway();
  }
}

// The first try waits at the server while the second comes; whichever of them the server lets pass,
// the rows stand there once.
TEST_F(StagingOnce, AFirstTryThatStillRunsStagesOnce) {
  CuttingProxy line(TestServer().Port());
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  DT9RECEV& form = Received();
  Somebody holder(std::string("SELECT PE_ID FROM DT900 FOR UPDATE; ") + kUntilTwoWait + "ROLLBACK");
  line.CutNextBatch(Cut::Running);
  Save(form, kNotFound);
  ++host.Clock.Second;
  Save(form, kSaved);
  holder.Leave();
  EXPECT_TRUE(form.IsClosed());
  EXPECT_EQ(Rows(), "2 2");
  ResetGateway();
}

TEST_F(StagingOnce, WhatWasChangedAfterALostReplyIsToldApart) {
  CuttingProxy line(TestServer().Port());
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  DT9RECEV& form = Received();
  line.CutNextBatch(Cut::After, true);
  Save(form, kUnknown);
  line.Return();
  form.FLEX.SetTextMatrix(1, received::Code, "C0002");
  Save(form, "앞서 시도한 내용으로 이미 저장되었습니다.");
  EXPECT_TRUE(form.IsClosed());
  EXPECT_EQ(Value("SELECT GROUP_CONCAT(PS_rctCODE) FROM DT900"), "C0001,C0001");
  ResetGateway();
}

// Nobody knows whether the first is stored (it is), and the terminal sends once more.
TEST_F(StagingOnce, WhatTheTerminalSendsAfterALostReplyIsStagedUnlessItIsTheSameAgain) {
  for (const bool same : {false, true}) {
    SCOPED_TRACE(same);
    StartAgain();
    CuttingProxy line(TestServer().Port());
    BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
    DT9RECEV& form = Received();
    line.CutNextBatch(Cut::After, true);
    Save(form, kUnknown);
    line.Return();
    ++host.Clock.Second;
    Transfer(form, {Trade("1", "C0001", "8801000", "1", "10"),
                    Trade("2", "C0001", "88010004", same ? "2" : "3", "20")});
    Save(form, kSaved);
    EXPECT_EQ(Rows(), same ? "2 2" : "4 4");
    EXPECT_TRUE(form.IsClosed());
    ResetGateway();
  }
}

TEST_F(StagingOnce, AnotherTransferUnderTheSameKeyIsNotTakenForThisOne) {
  DT9RECEV& form = Received();
  Sql("INSERT INTO DT900 (PE_ID,PR_CODE) VALUES ('20240517102030u02000001','P0009')");
  Save(form, "저장이 실패하였습니다.                  ");
  ++host.Clock.Second;
  Save(form, kSaved);
  EXPECT_EQ(Rows(), "3 3");
}

TEST_F(StagingOnce, APriceThatCannotBeReadStopsTheSave) {
  // The contract, the store's level in its place, and the price of that level.
  for (const char* table : {"RCTP", "RCT", "UP"}) {
    StartAgain();
    DT9RECEV& form = Open("매    출", "14");
    Transfer(form, {Trade("1", "1001", "88010003", "3", "10", '2')});
    Sql(std::string("RENAME TABLE ") + table + " TO AWAY");
    host.ExpectBox("계약가형태로", box::Yes);
    Save(form, "저장이 실패하였습니다.\r계약가를 읽지 못하였습니다.");
    Sql(std::string("RENAME TABLE AWAY TO ") + table);
    EXPECT_FALSE(form.IsClosed()) << table;
    EXPECT_EQ(Rows(), "0 0") << table;
    host.ExpectBox("계약가형태로", box::Yes);
    Save(form, kSaved);
    EXPECT_EQ(Value("SELECT PS_UP FROM DT900"), "270.0000");
  }
}

}  // namespace
}  // namespace store
