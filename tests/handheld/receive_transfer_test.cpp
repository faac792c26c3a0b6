#include <numeric>

#include "tests/handheld/receive_desk.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

class ReceiveTransfer : public ReceiveDesk {};

TEST_F(ReceiveTransfer, ATransferIsAnsweredAndShown) {
  DT9RECEV& form = Open();
  EXPECT_EQ(form.laGubun.Caption, "매    입");
  Inspector("u02");
  form.Press(Key::F5);
  EXPECT_TRUE(host.Port->PortOpen());
  EXPECT_EQ(form.Command1[1].Caption, "수신 종료");
  EXPECT_EQ(form.Label1.Caption, "0000");
  EXPECT_FALSE(form.Command1[0].Enabled || form.Command1[2].Enabled || form.Command1[3].Enabled);
  EXPECT_EQ(*(host.Pointers.end() - 2), PointerArrowHourglass);
  EXPECT_EQ(host.Pointers.back(), PointerArrow);
  form.Press(Key::Escape);
  EXPECT_FALSE(form.IsClosed()) << "a disabled button has no key";

  host.Port->Arrive(kOpening);
  EXPECT_EQ(std::accumulate(host.Sleeps.begin(), host.Sleeps.end(), 0), 600);
  EXPECT_GT(host.EventRounds, 10) << "the window is painted meanwhile";
  host.Port->Arrive(FrameOf(Trade("0001", "C0001", "8801000", "00012", "0000480")));
  EXPECT_EQ(form.Label1.Caption, "0001");
  host.Port->Arrive(FrameOf(TradeRecord('0', "0002", "C0002", "99", "신규상품", "3", "150")));
  EXPECT_EQ(form.FLEX.TopRow(), 1) << "the newest row is in view";
  host.Port->Arrive(kClosing);
  EXPECT_EQ(form.FLEX.TopRow(), 0);

  EXPECT_EQ(host.Port->Sent, (Texts{AckText("0001"), AckText("0002"), AckText("0003")}));
  EXPECT_FALSE(host.Port->PortOpen());
  EXPECT_EQ(form.Label1.Caption, "0002");
  EXPECT_EQ(form.Label7.Caption, "u02");
  EXPECT_EQ(form.Command1[1].Caption, "수신 시작");
  EXPECT_TRUE(form.Command1[0].Enabled && form.Command1[2].Enabled && form.Command1[3].Enabled);
  EXPECT_EQ(RowText(form.FLEX, 1), "0001|매    입|C0001|한빛상사|8801000|이름|12|480|C0001");
  EXPECT_EQ(RowText(form.FLEX, 2), "0002|매    입|C0002|한빛식품|99|**********|3|150|C0002");
}

TEST_F(ReceiveTransfer, TheLastRecordDecidesAboutAll) {
  const std::string good = Trade("0001", "C0001", "8801000", "1", "1");
  const std::string wrong = Trade("0002", "C0001", "8801000", "1", "1", '2');
  const std::string unknown = Trade("0003", "C0001", "8801000", "1", "1", '7');
  struct Case {
    const char* what;
    Texts records;
    int rows;
    bool savable;
    std::string count;
  };
  const std::vector<Case> cases = {{"nothing sent", {}, 0, false, "0000"},
                                   {"all good", {good, good}, 2, true, "0002"},
                                   {"a wrong one between", {good, wrong, good}, 3, true, "0003"},
                                   {"a wrong one at the end", {good, wrong}, 0, false, "0000"},
                                   {"an unknown kind at the end", {unknown}, 0, false, "0000"},
                                   {"an empty record at the end", {good, ""}, 0, false, "0000"}};
  DT9RECEV& form = Open();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Transfer(form, c.records);
    EXPECT_EQ(form.FLEX.Rows() - 1, c.rows);
    EXPECT_EQ(form.Command1[3].Enabled, c.savable);
    EXPECT_EQ(form.Label1.Caption, c.count);
    EXPECT_EQ(host.Port->Sent.size(), c.records.size() + 1);
    host.Port->Sent.clear();
  }
  Inspector("u02");
  form.Press(Key::F5);
  host.Port->Arrive(FrameOf(wrong));
  host.Port->Arrive(FrameOf(unknown));
  EXPECT_EQ(RowText(form.FLEX, 1), "||매    출에서 처리바람!!!|**선택오류**|||||");
  EXPECT_EQ(RowText(form.FLEX, 2), "||에서 처리바람!!!|**선택오류**|||||");
}

TEST_F(ReceiveTransfer, WithoutAKindEveryRecordIsWrong) {
  DT9RECEV& form = Open("");
  EXPECT_EQ(form.laGubun.Caption, "이동입고");
  EXPECT_FALSE(form.ParseHandheldRecord(Trade("0001", "C0001", "8801000", "1", "1")));
}

TEST_F(ReceiveTransfer, EveryRunTakesAKindOfTheTerminal) {
  int runs = 0;
  for (const HandheldRun& run : HandheldRuns()) {
    if (std::string(run.FormName) != "DT9RECEV") continue;
    DT9RECEV& form = Open(run.KindCaption, run.ModuleCode, run.ReturnMark);
    int taken = 0;
    for (const char kind : std::string("0123456"))
      taken += form.ParseHandheldRecord(Trade("1", "", "1", "1", "1", kind)) ? 1 : 0;
    EXPECT_EQ(taken, 1) << run.MenuText;
    form.Close();
    ++runs;
  }
  EXPECT_EQ(runs, 7);
}

TEST_F(ReceiveTransfer, RejectsDoNotCount) {
  DT9RECEV& form = Open();
  Inspector("u02");
  form.Press(Key::F5);
  host.Port->Arrive("x");
  host.Port->Arrive(kOpening);
  host.Port->Arrive("0001 without a beginning ZZ\x03");
  host.Port->Arrive(FrameOf(Trade("0001", "C0001", "8801000", "1", "1")));
  EXPECT_EQ(host.Port->Sent,
            (Texts{NakText("0000"), AckText("0001"), NakText("0002"), AckText("0002")}));
}

TEST_F(ReceiveTransfer, WhatArrivesInAWaitHasItsTurnAfterwards) {
  DT9RECEV& form = Open();
  Inspector("u02");
  form.Press(Key::F5);
  int round = 0;
  host.DuringEvents = [&] {
    ++round;
    if (round == 3) host.Port->Arrive(FrameOf(Trade("0001", "C0001", "8801000", "1", "1")));
    if (round == 5) {
      EXPECT_FALSE(form.Close()) << "the terminal is being answered";
    }
    if (round == 8) host.Port->Arrive(FrameOf(Trade("0002", "C0001", "8801000", "2", "1")));
    if (round == 9) host.Port->Arrive(kClosing);
  };
  host.Port->Arrive(kOpening);
  EXPECT_EQ(host.Port->Sent, (Texts{AckText("0001"), AckText("0002"), AckText("0003")}));
  EXPECT_EQ(ColumnText(form.FLEX, received::Sequence), "0001,0002");
  EXPECT_TRUE(form.Command1[3].Enabled);
  host.DuringEvents = nullptr;
  EXPECT_TRUE(form.Close());
}

TEST_F(ReceiveTransfer, NobodyReceivesWithoutAnInspector) {
  DT9RECEV& form = Open();
  Transfer(form, {Trade("0001", "C0001", "8801000", "1", "1")});
  Inspector("");
  form.Press(Key::F5);
  EXPECT_EQ(host.Port->Openings, 1);
  EXPECT_EQ(form.FLEX.Rows(), 2) << "the rows under review stay";
  EXPECT_EQ(form.Label7.Caption, "");

  Inspector("u02");
  form.Press(Key::F5);
  host.Port->Arrive(kOpening);
  host.Port->Arrive(FrameOf(Trade("0001", "C0001", "8801000", "1", "1")));
  form.Press(Key::F5);
  EXPECT_FALSE(host.Port->PortOpen());
  EXPECT_EQ(form.FLEX.Rows(), 1) << "what was received is gone";
  EXPECT_EQ(form.Label7.Caption, "");
  EXPECT_EQ(form.Command1[1].Caption, "수신 시작");
  EXPECT_FALSE(form.Command1[3].Enabled);
}

TEST_F(ReceiveTransfer, APortThatDoesNotOpenIsTold) {
  DT9RECEV& form = Open();
  host.Port->RefusesToOpen = true;
  Inspector("u02");
  host.ExpectBox("거절됨");
  form.Press(Key::F5);
  EXPECT_EQ(host.Boxes.back().Style, box::Warning);
  EXPECT_EQ(form.Command1[1].Caption, "수신 시작");
  EXPECT_TRUE(form.Command1[0].Enabled && form.Command1[2].Enabled);
  EXPECT_EQ(host.Pointers.back(), PointerArrow);
}

TEST_F(ReceiveTransfer, TheBufferGoesWithThePort) {
  DT9RECEV& form = Open();
  Inspector("u02");
  form.Press(Key::F5);
  host.Port->Arrive(
      "\x02"
      "0001");
  form.Press(Key::F5);
  Inspector("u02");
  form.Press(Key::F5);
  host.Port->Arrive(FrameOf(Trade("0002", "C0001", "8801000", "1", "1")));
  EXPECT_EQ(ColumnText(form.FLEX, received::Sequence), "0002");
  EXPECT_TRUE(form.Close());
  EXPECT_EQ(host.Port->Sent.size(), 1U);
}

TEST_F(ReceiveTransfer, ErrorsOfTheLineAreTold) {
  const std::vector<std::pair<int, const char*>> errors = {
      {1001, "중단 신호 수신"},
      {1002, "CTS 시간 초과"},
      {1003, "DSR 시간 초과"},
      {1004, "프레이밍 오류"},
      {1005, "알 수 없는 오류 또는 이벤트"},
      {1006, "패리티 오류"},
      {1007, "반송파 검출 시간 초과"},
      {1008, "수신 버퍼 초과"},
      {1009, "패리티 오류"},
      {1010, "전송 버퍼에 여유가 없음"},
      {1011, "DCB 검색 오류"},
      {comm::DeviceLost, "알 수 없는 오류 또는 이벤트"},
      {0, "알 수 없는 오류 또는 이벤트"},
  };
  DT9RECEV& form = Open();
  Inspector("u02");
  form.Press(Key::F5);
  for (const auto& [code, text] : errors) {
    host.ExpectBox("취소후 다시 전송하세요", box::Ok);
    host.Port->OnComm(code);
    EXPECT_EQ(host.Boxes.back().Text, text) << code;
    EXPECT_EQ(host.Boxes.back().Style, box::OkCancel);
  }
  EXPECT_EQ(host.Beeps, static_cast<int>(errors.size()));
  for (const int notice : {1, 3, 4, 5, 6, 7}) host.Port->OnComm(notice);
  EXPECT_TRUE(host.Port->PortOpen());

  host.ExpectBox("취소후 다시 전송하세요", box::Cancel);
  host.Port->OnComm(comm::Framing);
  EXPECT_FALSE(host.Port->PortOpen());
  EXPECT_EQ(form.Command1[1].Caption, "수신 종료") << "until it is pressed";
}

TEST_F(ReceiveTransfer, RowsWithoutAnInspectorAreNotSaved) {
  DT9RECEV& form = Open();
  Inspector("u02");
  form.Press(Key::F5);
  host.ExpectBox("취소후 다시 전송하세요", box::Cancel);
  host.Port->OnComm(comm::Framing);
  form.Press(Key::F5);
  EXPECT_TRUE(host.Port->PortOpen());
  EXPECT_EQ(form.Label7.Caption, "");
  host.Port->Arrive(kOpening);
  host.Port->Arrive(FrameOf(Trade("0001", "C0001", "8801000", "1", "1")));
  host.Port->Arrive(kClosing);

  Inspector("");
  form.Press(Key::F9);
  EXPECT_FALSE(form.IsClosed());
  EXPECT_EQ(Value("SELECT COUNT(*) FROM DT900"), "0");
  Inspector("u01");
  host.ExpectBox("저장이 완료되었습니다.");
  form.Press(Key::F9);
  EXPECT_EQ(Value("SELECT DT_CHECK FROM DT900"), "u01");
}

TEST_F(ReceiveTransfer, TheTitleOfTheModuleBlinks) {
  DT9RECEV& form = Open("매    출", "14");
  EXPECT_TRUE(form.Timer1.Enabled);
  EXPECT_EQ(form.Timer1.Interval, 500);
  form.Timer1_Timer();
  EXPECT_EQ(form.LBL_TITLE[1].Caption, "  ** 가맹점 출고 **");
  form.Timer1_Timer();
  EXPECT_EQ(form.LBL_TITLE[1].Caption, "");
  form.Close();
  EXPECT_FALSE(form.Timer1.Enabled);
}

}  // namespace
}  // namespace store
