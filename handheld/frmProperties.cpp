#include "handheld/frmProperties.h"

#include <algorithm>

#include "basics/text.h"
#include "forms/open_forms.h"
#include "handheld/DT9RECEV.h"
#include "handheld/port_settings.h"

namespace store {
namespace {

constexpr int kPorts = 4;
constexpr int kMessageMilliseconds = 5000;
constexpr std::string_view kParityLetters = "eonms";  // in the order of the list

DT9RECEV* Receiver() { return dynamic_cast<DT9RECEV*>(OpenForm("DT9RECEV")); }

/// Gives the port its new number. False, with the old one in force, when it is refused.
bool ChangePort(DT9RECEV& receiver, int number) {
  SerialPort& port = *receiver.MSComm1;
  const int old = port.CommPort();
  if (number == old) return true;
  if (port.PortOpen()) receiver.SetPortOpen(false);
  if (!TellRefusal(port.SetCommPort(number))) return true;
  port.SetCommPort(old);
  return false;
}

}  // namespace

frmProperties::frmProperties() : Form("frmProperties") {
  Caption = "핸디터미널 설정";
  optFlow = {OptionButton("없음"), OptionButton("Xon / Xoff"), OptionButton("RTS"),
             OptionButton("Xon / RTS")};
  Command1 = {Button("적용"), Button("닫기")};
  for (int port = 1; port <= kPorts; ++port) cboPort.AddItem("Com" + std::to_string(port));
  for (const char* speed : {"9600", "19200", "115200"}) cboSpeed.AddItem(speed);
  for (const char* bits : {"4", "5", "6", "7", "8"}) cboDataBits.AddItem(bits);
  for (const char* parity : {"Even", "Odd", "None", "Mark", "Space"}) cboParity.AddItem(parity);
  for (const char* bits : {"1", "1.5", "2"}) cboStopBits.AddItem(bits);
  Timer1.Interval = kMessageMilliseconds;
  PublishControls();
}

void frmProperties::PublishControls() {
  Publish("cboPort", cboPort);
  Publish("cboSpeed", cboSpeed);
  Publish("cboDataBits", cboDataBits);
  Publish("cboParity", cboParity);
  Publish("cboStopBits", cboStopBits);
  Publish("optFlow", optFlow);
  Publish("Command1", Command1);
  Publish("LBL_MSG", LBL_MSG);
  Publish("Timer1", Timer1);
  for (ComboBox* list : {&cboPort, &cboSpeed, &cboDataBits, &cboParity, &cboStopBits}) {
    list->KeyDown = [this](Key key) {
      if (key == Key::Enter) FocusNext();
    };
    list->OwnKeys = {Key::Enter};
    TabOrder.push_back(list);
  }
  for (int i = 0; i < static_cast<int>(optFlow.size()); ++i) {
    OptionButton& option = optFlow[static_cast<size_t>(i)];
    option.Click = [this, i] { optFlow_Click(i); };
    TabOrder.push_back(&option);
  }
  for (int i = 0; i < static_cast<int>(Command1.size()); ++i) {
    Command1[static_cast<size_t>(i)].Click = [this, i] { Command1_Click(i); };
    TabOrder.push_back(&Command1[static_cast<size_t>(i)]);
  }
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmProperties::Load() {
  ShapeWindow(*this, placement::Centered, false);
  Place.OnTop = true;
  LBL_MSG.Caption.clear();
  LoadPropertySettings();
}

bool frmProperties::KeyDown(Key key) {
  if (key != Key::F9 && key != Key::Escape) return false;
  Command1_Click(key == Key::F9 ? 0 : 1);
  return true;
}

void frmProperties::Command1_Click(int index) {
  if (index == 0) ApplyPortSettings();
  if (index == 1) Close();
}

void frmProperties::optFlow_Click(int index) {
  flow_ = index;
  for (int i = 0; i < static_cast<int>(optFlow.size()); ++i)
    optFlow[static_cast<size_t>(i)].Value = i == index;
}

void frmProperties::Timer1_Timer() {
  Timer1.Enabled = false;
  LBL_MSG.Caption.clear();
}

// The fields are taken from the right, as the stop bits alone can hold a point.
void frmProperties::LoadPropertySettings() {
  const DT9RECEV* receiver = Receiver();
  if (receiver == nullptr) return;
  const SerialPort& port = *receiver->MSComm1;
  const std::string settings = port.Settings();
  const int length = CharLength(settings);
  const int extra = settings.find('.') == std::string::npos ? 0 : 2;
  ShowSpeed(LeftChars(settings, length - 6 - extra));
  const std::string parity = MidChars(settings, length - 4 - extra, 1);
  const size_t entry = parity.empty() ? std::string_view::npos : kParityLetters.find(parity);
  if (entry != std::string_view::npos) cboParity.SetListIndex(static_cast<int>(entry));
  cboDataBits.SetText(MidChars(settings, length - 2 - extra, 1));
  cboStopBits.SetText(RightChars(settings, 1 + extra));
  cboPort.SetListIndex(port.CommPort() - 1);
  optFlow_Click(port.Handshaking());
  SetFocus(cboPort);
}

// A port may have been set up elsewhere, to a speed that the list does not offer.
void frmProperties::ShowSpeed(const std::string& speed) {
  cboSpeed.SetText(speed);
  if (cboSpeed.Text() == speed) return;
  cboSpeed.AddItem(speed);
  cboSpeed.SetText(speed);
}

std::string frmProperties::ChosenSettings() const {
  return Trim(cboSpeed.Text()) + "," + LeftChars(cboParity.Text(), 1) + "," +
         Trim(cboDataBits.Text()) + "," + Trim(cboStopBits.Text());
}

void frmProperties::ApplyPortSettings() {
  DT9RECEV* receiver = Receiver();
  if (receiver == nullptr) return;
  SerialPort& port = *receiver->MSComm1;
  if (!ChangePort(*receiver, cboPort.ListIndex() + 1)) return;
  TellRefusal(port.SetSettings(ChosenSettings()));
  TellRefusal(port.SetHandshaking(flow_));
  StorePortSettings(port);
  receiver->Label2.Caption = PortStatus(port);
  LBL_MSG.Caption = "적용되었습니다.";
  Timer1.Enabled = true;
  Timer1.Restart();
}

}  // namespace store
