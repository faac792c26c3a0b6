#include "handheld/DT9RECEV.h"

#include "forms/host.h"
#include "handheld/port_settings.h"
#include "lookup/party_lookups.h"

namespace store {
namespace {

constexpr int kBlinkMilliseconds = 500;

/// `Command1` by what its buttons do.
enum Command { Settings, Receive, Leave, Store };

/// The title that blinks; modules without a slip of their own have none.
std::string TitleOf(const std::string& module) {
  if (module == "13") return "  ** 거래처 매출 **";
  if (module == "14") return "  ** 가맹점 출고 **";
  if (module == "23") return "  ** 거래처 매입 **";
  return {};
}

std::vector<GridColumn> ReceivedColumns() {
  return {{"순번", 720, Align::Right},       {"구분", 1500, Align::Center},
          {"코드", 1500, Align::Center},     {"거래처", 2000, Align::Left},
          {"상품코드", 1800, Align::Left},   {"상품명", 2400, Align::Left},
          {"수량", 900, Align::Right},       {"단가", 1100, Align::Right},
          {"등록거래처", 1500, Align::Right}};
}

}  // namespace

DT9RECEV::DT9RECEV() : HandheldForm("DT9RECEV"), MSComm1(Host.MakeSerialPort()) {
  Caption = "핸디터미널 수신";
  LBL_TITLE[0].Caption = "핸디터미널 자료 수신";
  const std::array<std::array<const char*, 2>, 4> buttons = {{
      {"포트 설정", "통신포트 설정"},
      {"수신 시작", "핸디터미널 자료를 PC로 수신받음"},
      {"작업 종료", "프로그램 종료"},
      {"작업 저장", "수신된 자료를 임시저장소에 저장"},
  }};
  for (size_t i = 0; i < buttons.size(); ++i) {
    Command1[i].Caption = buttons[i][0];
    Command1[i].ToolTipText = buttons[i][1];
  }
  Command1[Store].Enabled = false;
  FLEX.SetColumns(ReceivedColumns());
  Timer1.Interval = kBlinkMilliseconds;
  MSComm1->OnComm = [this](int code) { OnCommEvent(code); };
  PublishControls();
}

void DT9RECEV::PublishControls() {
  Publish("Command1", Command1);
  Publish("Command2", Command2);
  Publish("Command3", Command3);
  Publish("LBL_TITLE", LBL_TITLE);
  Publish("laGubun", laGubun);
  Publish("Label1", Label1);
  Publish("Label2", Label2);
  Publish("Label7", Label7);
  Publish("FLEX", FLEX);
  Publish("Text1", Text1);
  Publish("Timer1", Timer1);
  for (int i = 0; i < static_cast<int>(Command1.size()); ++i)
    Command1[static_cast<size_t>(i)].Click = [this, i] { Command1_Click(i); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  for (TextBox& box : Text1) {
    box.KeyDown = [this](Key key) {
      if (key == Key::Enter) FocusNext();
    };
    box.OwnKeys = {Key::Enter};
  }
  FLEX.DblClick = [this] { FLEX_DblClick(); };
  FLEX.KeyDown = [this](Key key) {
    if (key == Key::Enter) FLEX_DblClick();
  };
  FLEX.OwnKeys = {Key::Enter};
  Timer1.Tick = [this] { Timer1_Timer(); };
  TabOrder = {&FLEX, &Text1[0], &Text1[1]};
}

void DT9RECEV::Load() {
  ShapeWindow(*this, placement::Centered, false);
  if (!KindCaption.empty()) laGubun.Caption = KindCaption;
  LoadPortSettings(*MSComm1, Label2);
}

void DT9RECEV::Activate() {
  if (!taxColumn_.empty()) return;
  taxColumn_ = ModuleCode == "23" ? "PR_TAX2" : "PR_TAX";
  Timer1.Enabled = true;
  SetFocus(FLEX);
}

// The terminal is being answered; a moment later the window can be closed.
bool DT9RECEV::QueryUnload() { return !busy_; }

void DT9RECEV::Unload() {
  Timer1.Enabled = false;
  if (MSComm1->PortOpen()) SetPortOpen(false);
}

bool DT9RECEV::KeyDown(Key key) {
  const auto press = [this](int index) {
    if (Command1[static_cast<size_t>(index)].Enabled) Command1_Click(index);
    return true;
  };
  switch (key) {
    case Key::F3:
      return press(Settings);
    case Key::F5:
      return press(Receive);
    case Key::F9:
      return press(Store);
    case Key::Escape:
      return press(Leave);
    case Key::F6:
      Command2_Click();
      return true;
    case Key::F1:
      Command3_Click();
      return true;
    default:
      return false;
  }
}

void DT9RECEV::Command1_Click(int index) {
  if (index == Settings) ShowPortSettings();
  if (index == Receive) StartOrStop();
  if (index == Leave) Close();
  if (index == Store) Save();
}

void DT9RECEV::Command3_Click() {
  std::string code;
  if (ModuleCode == "14") {
    HELP_RCT stores;
    Host.ShowModal(stores);
    code = stores.ResultCode;
  } else {
    HELP_CT partners;
    Host.ShowModal(partners);
    code = partners.ResultCode;
  }
  if (!code.empty()) Text1[1].SetText(code);
}

void DT9RECEV::Timer1_Timer() {
  std::string& title = LBL_TITLE[1].Caption;
  title = title.empty() ? TitleOf(ModuleCode) : std::string();
}

}  // namespace store
