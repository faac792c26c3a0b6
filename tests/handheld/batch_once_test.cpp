// A staged row becomes goods once: whoever else makes slips of it, and whatever the line does.
#include <utility>

#include "tests/handheld/batch_desk.h"
#include "tests/support/cutting_proxy.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

using Cut = CuttingProxy::Cut;

constexpr const char* kStored = "저장이 완료되었습니다.";
constexpr const char* kGone = "이미 처리되었거나 삭제된 자료가 있어 저장하지 않았습니다.";
constexpr const char* kNotFound = "저장이 확인되지 않았습니다.";
constexpr const char* kUnknown = "저장되었는지 알 수 없습니다.\r다시 시도하면";

/// A run of the form, and what its two rows come to when they are posted once.
struct ModuleRun {
  const char* module;
  const char* slips;  ///< A SELECT of how many slips there are.
  const char* stock;  ///< Of P0001, "opening/in/out".
};

constexpr ModuleRun kRuns[] = {
    {"23", "SELECT COUNT(*) FROM PEM23 WHERE PE_TMAN='핸디처리'", "5/11/3"},
    {"13", "SELECT COUNT(*) FROM PES13", "5/10/4"},
    {"14", "SELECT COUNT(*) FROM PEM13", "5/10/4"},
    {"82", "SELECT COUNT(*) FROM ME", "5/-1/3"},
    {"66", "SELECT PR_OP1=100 FROM PR WHERE PR_CODE='P0001'", "5/10/3"},
};

class BatchOnce : public BatchDesk {
 protected:
  FRM_DT900_01& StageAndOpen(const std::string& module) {
    if (OpenForm("FRM_DT900_01") != nullptr) Batch().Close();
    StartAgain();
    SetUpDesk();
    for (const char* id : {"r1", "r2"}) {
      Stage({id, "*", id[1] == '1' ? "P0001" : "P0003", "1", "100", "1002", "왕십리점"}, module);
    }
    return Open(module);
  }
  void Press(const std::string& told, int button = 3) {
    host.ExpectBox(told);
    Batch().Command1_Click(button);
    host.ExpectAllShown();
  }
  void ExpectPosted(const ModuleRun& run, bool posted) {
    EXPECT_EQ(Value(run.slips), posted ? "1" : "0");
    EXPECT_EQ(Stock("P0001"), posted ? run.stock : "5/10/3");
    EXPECT_EQ(Left(), posted ? "" : "r1,r2");
  }
};

// The other workstation is not done yet when the button is pressed here.
TEST_F(BatchOnce, OfTwoWorkstationsAtTheSameMomentTheLaterPostsNothing) {
  for (const ModuleRun& run : kRuns) {
    SCOPED_TRACE(run.module);
    StageAndOpen(run.module);
    Somebody other("DELETE FROM DT900 WHERE PE_ID='r2'; DO SLEEP(0.6); COMMIT");
    Press(kGone);
    other.Leave();
    EXPECT_EQ(Value(run.slips), "0");
    EXPECT_EQ(Stock("P0001"), "5/10/3");
    EXPECT_EQ(ColumnText(Batch().FLEX, staged::RowId), "r1");
  }
}

TEST_F(BatchOnce, ALostReplyIsLookedForAndPostsNothingTwice) {
  const struct {
    Cut cut;
    bool staysAway;
    const char* told;
    bool posted;
    const char* toldAgain;
  } cases[] = {
      {Cut::Before, false, kNotFound, false, kStored},
      {Cut::Before, true, kUnknown, false, kStored},
      {Cut::After, false, kStored, true, nullptr},
      {Cut::After, true, kUnknown, true, kStored},
  };
  for (const ModuleRun& run : kRuns) {
    for (const auto& c : cases) {
      SCOPED_TRACE(std::string(run.module) + " " + c.told);
      CuttingProxy line(TestServer().Port());
      StageAndOpen(run.module);
      BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
      line.CutNextBatch(c.cut, c.staysAway);
      Press(c.told);
      ExpectPosted(run, c.posted);
      if (c.staysAway) Press(kUnknown);
      line.Return();
      if (c.toldAgain != nullptr) Press(c.toldAgain);
      ExpectPosted(run, true);
      ResetGateway();
    }
  }
}

TEST_F(BatchOnce, AFirstTryThatStillRunsPostsOnce) {
  for (const ModuleRun& run : kRuns) {
    SCOPED_TRACE(run.module);
    CuttingProxy line(TestServer().Port());
    StageAndOpen(run.module);
    BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
    Somebody holder(std::string("SELECT PE_ID FROM DT900 FOR UPDATE; ") + kUntilTwoWait +
                    "ROLLBACK");
    line.CutNextBatch(Cut::Running);
    Press(kNotFound);
    Press(kStored);
    holder.Leave();
    ExpectPosted(run, true);
    ResetGateway();
  }
}

TEST_F(BatchOnce, OneRowTakenOffBetweenTwoTriesIsToldApart) {
  CuttingProxy line(TestServer().Port());
  StageAndOpen("23");
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  line.CutNextBatch(Cut::After, true);
  Press(kUnknown);
  line.Return();
  Tick(2, false);
  Press("앞서 시도한 내용으로 이미 저장되었습니다.");
  ExpectPosted(kRuns[0], true);
  EXPECT_EQ(Batch().FLEX.Rows(), 1) << "the list is read again";
  ResetGateway();
}

// A server that fails at once after the look has lost what it had just shown.
TEST_F(BatchOnce, WhatTheLookFindsHasToLast) {
  CuttingProxy line(TestServer().Port());
  StageAndOpen("66");
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  const auto sleep = std::exchange(Host.Sleep, [this](int) {
    Stage({"r1", "*", "P0001", "1", "100", "1002", "왕십리점"}, "66");
  });
  line.CutNextBatch(Cut::After);
  Press(kNotFound);
  Host.Sleep = sleep;
  ResetGateway();
}

TEST_F(BatchOnce, ALostReplyIsNotTakenForThatOfEarlierRows) {
  CuttingProxy line(TestServer().Port());
  StageAndOpen("23");
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  line.CutNextBatch(Cut::After, true);
  Press(kUnknown);
  line.Return();
  Batch().Close();
  Stage({"r3", "*", "P0001", "1", "100", "1002", "왕십리점"}, "23");
  Open("23");
  line.CutNextBatch(Cut::After);
  Press(kStored);
  EXPECT_EQ(Left(), "");
  ResetGateway();
}

TEST_F(BatchOnce, OfTwoStoresTheOneWhoseReplyIsLostIsTold) {
  CuttingProxy line(TestServer().Port());
  StageAndOpen("14");
  Stage({"q1", "-", "P0001", "2", "700", "1000", "본사"}, "14");
  Batch().Command1_Click(0);
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  line.CutNextBatch(Cut::Before);
  Press(
      "전표 2건 중 1건의 저장이 완료되었습니다.\r저장이 실패한 가맹점: 본사\r\r MSG: 저장이 확인");
  EXPECT_EQ(Left(), "q1");
  Press(kStored);
  EXPECT_EQ(Stock("P0001"), "5/10/6");
  ResetGateway();
}

TEST_F(BatchOnce, AShipmentOfUnknownFateIsToldBesideOneThatCouldNotBeginAnyMore) {
  CuttingProxy line(TestServer().Port());
  StageAndOpen("14");
  Stage({"q1", "-", "P0001", "2", "700", "1000", "본사"}, "14");
  Batch().Command1_Click(0);
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  line.CutNextBatch(Cut::After, true);
  Press(
      "전표 2건 중 0건의 저장이 완료되었습니다.\r저장이 실패한 가맹점: 본사, 왕십리점\r\r MSG: "
      "서버에 연결되지 않아 저장되었는지 알 수 없습니다.");
  line.Return();
  Batch().Command1_Click(0);
  Press(kStored);  // that of the other store
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(Stock("P0001"), "5/10/6");
  ResetGateway();
}

TEST_F(BatchOnce, AReceivingDepotThatCannotBeReadStopsTheShipment) {
  StageAndOpen("14");
  Sql("RENAME TABLE HCT TO AWAY");
  Press("저장이 실패하였습니다.");
  Sql("RENAME TABLE AWAY TO HCT");
  ExpectPosted(kRuns[2], false);
  Press(kStored);
  ExpectPosted(kRuns[2], true);
}

TEST_F(BatchOnce, TheDeletionOfRowsIsToldTruly) {
  const struct {
    Cut cut;
    bool staysAway;
    const char* told;
    const char* left;
  } cases[] = {
      {Cut::Before, false, kNotFound, "r1,r2"}, {Cut::Before, true, kUnknown, "r1,r2"},
      {Cut::After, false, kStored, ""},         {Cut::After, true, kUnknown, ""},
      {Cut::Never, false, kStored, ""},
  };
  for (const auto& c : cases) {
    CuttingProxy line(TestServer().Port());
    StageAndOpen("23");
    BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
    line.CutNextBatch(c.cut, c.staysAway);
    Press(c.told, 4);
    EXPECT_EQ(Left(), c.left) << c.told;
    ResetGateway();
  }
  // Rows that became slips elsewhere were not deleted here.
  StageAndOpen("23");
  Sql("DELETE FROM DT900 WHERE PE_ID='r1'");
  Press(kGone, 4);
  EXPECT_EQ(Left(), "r2");
}

}  // namespace
}  // namespace store
