#include "ui/real_host.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>
#include <cerrno>
#include <cstring>
#include <memory>

#include "basics/deployment.h"
#include "forms/host.h"
#include "forms/program_places.h"
#include "ui/desk.h"
#include "ui/instance_call.h"
#include "ui/instance_lock.h"
#include "ui/message_box.h"
#include "ui/print_document.h"
#include "ui/qt_text.h"
#include "ui/scan_sounds.h"
#include "ui/serial_port.h"

namespace store {
namespace {

void ScreenSize(int& width, int& height) {
  const QSize size = QGuiApplication::primaryScreen()->size();
  width = size.width();
  height = size.height();
}

void SetPointer(int pointer) {
  if (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
  if (pointer == PointerArrow) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  if (pointer == PointerHourglass) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  if (pointer == PointerArrowHourglass) QGuiApplication::setOverrideCursor(Qt::BusyCursor);
}

ClockTime Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate day = now.date();
  const QTime time = now.time();
  return {day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second()};
}

bool OpenAddress(const std::string& address) {
  const QString text = ToQt(address);
  const bool isPath = !text.contains(QStringLiteral("://"));
  return QDesktopServices::openUrl(isPath ? QUrl::fromLocalFile(text) : QUrl(text));
}

// A desktop of X11 or Wayland lets no program say how another one's window opens, so the state that
// a form asks for has nowhere to go.
std::string StartProgram(const std::string& path, const std::string& arguments,
                         WindowState /*state*/) {
  QProcess program;
  program.setProgram(ToQt(path));
  program.setArguments(QProcess::splitCommand(ToQt(arguments)));
  if (program.startDetached()) return {};
  // Why a detached start failed is not kept; that the file cannot be run is what it nearly always
  // is.
  return std::strerror(QFileInfo(ToQt(path)).exists() ? EACCES : ENOENT);
}

QSettings SettingsOf(const std::string& application) {
  return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("TARNWICK"),
          ToQt(application)};
}

QString SettingName(const std::string& section, const std::string& key) {
  return ToQt(section) + "/" + ToQt(key);
}

bool PreviousInstance() {
  const QString program = QCoreApplication::applicationFilePath();
  static InstanceLock lock(FromQt(program));
  if (!lock.Holds()) {
    CallForward(program);
    return true;
  }
  AnswerCalls(program, [] { TheDesk().ComeForward(); });
  return false;
}

ProgramPlaces PlacesOfInstallation() {
  const std::string machine = STORE_MACHINE_OPTIONS;
  if (machine.empty()) return {};
  const std::string own =
      FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
  return {.OwnOptions = own + "/store-client/OPT.ini",
          .MachineOptions = machine,
          .WorkFolder = DataFolder()};
}

void OpenWindows() {
  Host.MsgBox = ShowMessage;
  Host.ShowModal = [](Form& form) { TheDesk().ShowModal(form); };
  Host.Show = [](Form& form) { TheDesk().Show(form); };
  Host.Hide = [](Form& form) { TheDesk().Hide(form); };
  Host.Minimize = [](Form& form) { TheDesk().Minimize(form); };
  Host.CloseWindow = [](Form& form) { TheDesk().CloseWindow(form); };
  Host.EndProgram = [] { TheDesk().EndProgram(); };
}

void OpenWorkstation() {
  Host.ScreenSize = ScreenSize;
  Host.SetPointer = SetPointer;
  Host.Beep = SoundRefused;
  Host.ScanTaken = SoundTaken;
  Host.DoEvents = [] { TheDesk().LetWindowsPaint(); };
  Host.ShowServer = [](ServerLink link, std::chrono::milliseconds lasted) {
    TheDesk().ShowServer(link, lasted);
  };
  Host.OfferStop = [](std::chrono::milliseconds lasted) {
    return TheDesk().Server().OfferStop(lasted);
  };
  Host.ShowProgress = [](const std::string& what, int done, int of) {
    TheDesk().ShowProgress(what, done, of);
  };
  Host.Print = PrintOnPrinter;
  Host.WritePdf = WritePdf;
  Host.Now = Now;
  Host.Sleep = [](int milliseconds) {
    QThread::msleep(static_cast<unsigned long>(std::max(0, milliseconds)));
  };
  Host.OpenAddress = OpenAddress;
  Host.StartProgram = StartProgram;
  Host.GetSetting = [](const std::string& application, const std::string& section,
                       const std::string& key) {
    return FromQt(SettingsOf(application).value(SettingName(section, key)).toString());
  };
  Host.SaveSetting = [](const std::string& application, const std::string& section,
                        const std::string& key, const std::string& value) {
    SettingsOf(application).setValue(SettingName(section, key), ToQt(value));
  };
  Host.ForgetSettings = [](const std::string& application, const std::string& section) {
    SettingsOf(application).remove(ToQt(section));
  };
  Host.MakeSerialPort = MakeSerialPort;
  Host.PreviousInstance = PreviousInstance;
}

}  // namespace

void OpenRealHost() {
  OpenWindows();
  OpenWorkstation();
  Host.ProgramFolder = FromQt(QCoreApplication::applicationDirPath());
  Host.DocumentsFolder =
      FromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  Places = PlacesOfInstallation();
  Host.ProgramTitle = "TARNWICK";
  Host.Version = {STORE_VERSION_MAJOR, STORE_VERSION_MINOR, STORE_VERSION_PATCH};
}

}  // namespace store
