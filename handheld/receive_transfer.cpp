// The terminal's line while a transfer runs.
#include <array>
#include <utility>

#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "handheld/DT9RECEV.h"
#include "handheld/FRM_NAMECHK.h"
#include "handheld/port_settings.h"
#include "handheld/wire/replies.h"

namespace store {
namespace {

constexpr const char* kStart = "수신 시작";
constexpr const char* kStop = "수신 종료";

// The terminal wants to be left alone for so long on both sides of the reply that opens a transfer.
constexpr int kBeforeOpening = 400;
constexpr int kAfterOpening = 200;
constexpr int kSlice = 20;

/// Holds the work, not the painting.
void Wait(int milliseconds) {
  for (int waited = 0; waited < milliseconds; waited += kSlice) {
    Host.Sleep(kSlice);
    Host.DoEvents();
  }
}

/// News of the line that nobody is told.
bool IsNotice(int code) { return code >= comm::Send && code <= comm::EndOfFile; }

/// What the operator reads about an error. A lost byte reads like a wrong one.
const char* ErrorText(int code) {
  static constexpr std::array<std::pair<int, const char*>, 10> texts = {{
      {comm::Break, "중단 신호 수신"},
      {comm::CtsTimeout, "CTS 시간 초과"},
      {comm::DsrTimeout, "DSR 시간 초과"},
      {comm::Framing, "프레이밍 오류"},
      {comm::Overrun, "패리티 오류"},
      {comm::CarrierTimeout, "반송파 검출 시간 초과"},
      {comm::ReceiveOverflow, "수신 버퍼 초과"},
      {comm::Parity, "패리티 오류"},
      {comm::SendFull, "전송 버퍼에 여유가 없음"},
      {comm::DeviceBlock, "DCB 검색 오류"},
  }};
  for (const auto& [error, text] : texts) {
    if (error == code) return text;
  }
  return "알 수 없는 오류 또는 이벤트";
}

}  // namespace

bool DT9RECEV::AskInspector() {
  auto* check = dynamic_cast<FRM_NAMECHK*>(TheForm("FRM_NAMECHK"));
  if (check == nullptr) return false;
  Host.ShowModal(*check);
  Label7.Caption = check->InspectorCode;
  return !Trim(Label7.Caption).empty();
}

void DT9RECEV::StartOrStop() {
  if (Command1[1].Caption == kStart) {
    if (!AskInspector()) return;
  } else {
    Label7.Caption.clear();
  }
  ResetGrid();
  Host.SetPointer(PointerArrowHourglass);
  SetPortOpen(!MSComm1->PortOpen());
  if (MSComm1->PortOpen()) {
    ShowReceiving();
  } else {
    ShowIdle();
  }
  Host.SetPointer(PointerArrow);
}

// What has arrived belongs to the transfer that it came with.
void DT9RECEV::SetPortOpen(bool open) {
  receiver_.Clear();
  waiting_.clear();
  TellRefusal(MSComm1->SetPortOpen(open));
}

void DT9RECEV::ShowIdle() {
  Command1[1].Caption = kStart;
  Command1[0].Enabled = true;
  Command1[2].Enabled = true;
  Command1[3].Enabled = false;
}

void DT9RECEV::ShowReceiving() {
  Command1[1].Caption = kStop;
  LastRecordValid = true;
  Label1.Caption = FourDigits(0);
  for (const size_t button : {0, 2, 3}) Command1[button].Enabled = false;
}

void DT9RECEV::OnCommEvent(int code) {
  if (code == comm::Receive) {
    OnHandheldChunk(MSComm1->Input());
  } else if (!IsNotice(code)) {
    InTurn([this, code] { ReportError(code); });
  }
}

void DT9RECEV::ReportError(int code) {
  Host.Beep();
  const int answer = Host.MsgBox(ErrorText(code), box::OkCancel, "취소후 다시 전송하세요");
  if (answer == box::Cancel && MSComm1->PortOpen()) SetPortOpen(false);
}

void DT9RECEV::OnHandheldChunk(const std::string& text) {
  InTurn([this, text] {
    Host.DoEvents();
    Answer(receiver_.Take(text));
  });
}

void DT9RECEV::InTurn(std::function<void()> work) {
  waiting_.push_back(std::move(work));
  if (busy_) return;
  busy_ = true;
  while (!waiting_.empty()) {
    const std::function<void()> next = std::move(waiting_.front());
    waiting_.pop_front();
    next();
  }
  busy_ = false;
}

void DT9RECEV::Answer(const LineMessage& message) {
  switch (message.Step) {
    case LineStep::Wait:
      return;
    case LineStep::Opening:
      return AcceptTransfer();
    case LineStep::Record:
      return AcceptReceived(message.Record);
    case LineStep::Closing:
      return EndTransfer();
    case LineStep::Reject:
      return MSComm1->Output(Reject(AckCounter));
  }
}

// The opening is answered with 1, so that the first record gets 2.
void DT9RECEV::AcceptTransfer() {
  Wait(kBeforeOpening);
  MSComm1->Output(AcceptOpening());
  AckCounter = 2;
  Wait(kAfterOpening);
}

// A record of a wrong kind is accepted as well, so that the terminal comes to its end.
void DT9RECEV::AcceptReceived(const std::string& record) {
  LastRecordValid = ParseHandheldRecord(record);
  FLEX.SetTopRow(FLEX.Rows());  // the newest row stays in view
  MSComm1->Output(AcceptRecord(AckCounter));
  Label1.Caption = FourDigits(AckCounter - 1);
  ++AckCounter;
}

// The last record decides about the whole transfer.
void DT9RECEV::EndTransfer() {
  ShowIdle();
  if (MSComm1->PortOpen()) SetPortOpen(false);
  FLEX.SetTopRow(0);
  if (!LastRecordValid) {
    ResetGrid();
    Label1.Caption = FourDigits(0);
  } else if (ParseNumber(Label1.Caption) > 0) {
    Command1[3].Enabled = true;
    FillPartnerNames();
    MarkNewProducts();
  }
}

}  // namespace store
