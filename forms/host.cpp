#include "forms/host.h"

namespace store {

HostDoor EmptyHost() {
  HostDoor host;
  host.MsgBox = [](const std::string&, int, const std::string&) { return box::Ok; };
  const auto noWindow = [](Form&) {};
  host.ShowModal = noWindow;
  host.Show = noWindow;
  host.Hide = noWindow;
  host.Minimize = noWindow;
  host.CloseWindow = noWindow;
  host.EndProgram = [] {};
  host.ScreenSize = [](int& width, int& height) { width = height = 0; };
  host.SetPointer = [](int) {};
  host.Beep = [] {};
  host.ScanTaken = [] {};
  host.DoEvents = [] {};
  host.ShowServer = [](ServerLink, std::chrono::milliseconds) {};
  host.OfferStop = [](std::chrono::milliseconds) { return false; };
  host.ShowProgress = [](const std::string&, int, int) {};
  host.Print = [](const PrintedDocument&) { return PrintFate::Cancelled; };
  host.WritePdf = [](const PrintedDocument&, const std::string&) { return false; };
  host.Now = [] { return ClockTime{2000, 1, 1, 0, 0, 0}; };
  host.Sleep = [](int) {};
  host.OpenAddress = [](const std::string&) { return false; };
  host.StartProgram = [](const std::string&, const std::string&, WindowState) {
    return std::string();
  };
  host.GetSetting = [](const std::string&, const std::string&, const std::string&) {
    return std::string();
  };
  host.SaveSetting = [](const std::string&, const std::string&, const std::string&,
                        const std::string&) {};
  host.ForgetSettings = [](const std::string&, const std::string&) {};
  host.MakeSerialPort = MakeAbsentPort;
  host.PreviousInstance = [] { return false; };
  return host;
}

HostDoor Host = EmptyHost();

void EndProgram() {
  Host.Ending = true;
  Host.EndProgram();
}

bool ProgramEnding() { return Host.Ending; }

CalendarDate Today() {
  const ClockTime now = Host.Now();
  return {now.Year, now.Month, now.Day};
}

namespace {

int depth = 0;  // of the long steps that are running, one within another

}  // namespace

Hourglass::Hourglass() {
  if (depth++ == 0) Host.SetPointer(PointerHourglass);
}

Hourglass::~Hourglass() {
  if (--depth == 0) Host.SetPointer(PointerNormal);
}

}  // namespace store
