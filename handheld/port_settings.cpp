#include "handheld/port_settings.h"

#include "basics/numbers.h"
#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {
namespace {

constexpr const char* kSection = "options";
constexpr const char* kSettings = "설정";
constexpr const char* kPort = "포트";
constexpr const char* kFlow = "흐름제어";
// Names of their own, with a blank in front.
constexpr const char* kUnusedPort = " 포트";
constexpr const char* kUnusedFlow = " 흐름제어";

std::string Read(const char* key, const char* standard) {
  const std::string value = Host.GetSetting(Host.ProgramTitle, kSection, key);
  return value.empty() ? standard : value;
}

void Write(const char* key, const std::string& value) {
  Host.SaveSetting(Host.ProgramTitle, kSection, key, value);
}

int WholeNumber(const std::string& text) {
  std::int16_t number = 0;
  ToInt16(ParseNumber(text), number);
  return number;
}

std::string StatusText(const std::string& port, const std::string& settings) {
  return "Com" + port + ":" + settings;
}

/// False when the platform refuses the stored text.
bool LoadSettings(SerialPort& port, const std::string& stored) {
  if (!stored.empty()) return !TellRefusal(port.SetSettings(stored));
  Write(kSettings, port.Settings());
  return true;
}

void LoadPort(SerialPort& port, const std::string& stored) {
  const int number = WholeNumber(stored);
  if (number == 0) {
    Write(kUnusedPort, std::to_string(port.CommPort()));
  } else {
    TellRefusal(port.SetCommPort(number));
  }
}

bool LoadFlow(SerialPort& port) {
  const int number = WholeNumber(Read(kFlow, "1"));
  if (number != 0) return !TellRefusal(port.SetHandshaking(number));
  Write(kUnusedFlow, std::to_string(port.Handshaking()));
  return true;
}

}  // namespace

bool TellRefusal(const std::string& refused) {
  if (refused.empty()) return false;
  Host.MsgBox(refused, box::Warning, "");
  return true;
}

void LoadPortSettings(SerialPort& port, Label& status) {
  const std::string settings = Read(kSettings, "");
  const std::string number = Read(kPort, "1");
  if (!LoadSettings(port, settings)) return;
  LoadPort(port, number);
  if (!LoadFlow(port)) return;
  status.Caption = StatusText(number, settings);
}

void StorePortSettings(const SerialPort& port) {
  Write(kSettings, port.Settings());
  Write(kPort, std::to_string(port.CommPort()));
  Write(kFlow, std::to_string(port.Handshaking()));
}

std::string PortStatus(const SerialPort& port) {
  return StatusText(std::to_string(port.CommPort()), port.Settings());
}

void ShowPortSettings() {
  if (Form* settings = TheForm("frmProperties")) Host.ShowModal(*settings);
}

}  // namespace store
