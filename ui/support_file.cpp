#include "ui/support_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QProcessEnvironment>
#include <QScreen>
#include <QSettings>
#include <QStorageInfo>
#include <QSysInfo>
#include <algorithm>
#include <filesystem>

#include "basics/dates.h"
#include "basics/deployment.h"
#include "basics/formats.h"
#include "basics/records.h"
#include "basics/whole_file.h"
#include "forms/host.h"
#include "forms/program_places.h"
#include "gateway/masked_text.h"
#include "start/options.h"
#include "ui/about.h"
#include "ui/log_file.h"
#include "ui/qt_text.h"

namespace store {
namespace {

constexpr std::size_t kLargestLog = std::size_t{4} << 20;
constexpr const char* kVendor = "TARNWICK";

/// What of the environment the program and its toolkit look at.
bool IsOfInterest(const QString& variable) {
  static const QStringList kOthers = {
      "LANG",    "DISPLAY",          "WAYLAND_DISPLAY",    "ODBCSYSINI",
      "ODBCINI", "XDG_SESSION_TYPE", "XDG_CURRENT_DESKTOP"};
  return variable.startsWith("STORE_") || variable.startsWith("QT_") ||
         variable.startsWith("LC_") || kOthers.contains(variable);
}

std::string Line(const std::string& name, const std::string& value) {
  return name + ": " + MaskedWords(value, {}) + "\n";
}

std::string VersionsFile() {
  return FromQt(VersionsText()) + "\n" + Line("user", Session.UserCode) +
         Line("store", Session.StoreCode) + Line("database", Session.DatabaseName);
}

std::string ScreenLine(const QScreen& screen) {
  const QRect area = screen.geometry();
  return Line("screen", std::to_string(area.width()) + "x" + std::to_string(area.height()) + "+" +
                            std::to_string(area.x()) + "+" + std::to_string(area.y()) + ", " +
                            std::to_string(screen.logicalDotsPerInch()) + " dpi, scaled " +
                            std::to_string(screen.devicePixelRatio()));
}

std::string PlatformFile() {
  std::string text =
      Line("system", FromQt(QSysInfo::prettyProductName())) +
      Line("kernel", FromQt(QSysInfo::kernelType() + " " + QSysInfo::kernelVersion())) +
      Line("architecture", FromQt(QSysInfo::currentCpuArchitecture())) +
      Line("windows", FromQt(QGuiApplication::platformName())) +
      Line("locale", FromQt(QLocale::system().name())) +
      Line("program", WithoutHome(Host.ProgramFolder)) + Line("data", WithoutHome(DataFolder())) +
      Line("room", std::to_string(QStorageInfo(ToQt(DataFolder())).bytesAvailable()));
  for (const QScreen* screen : QGuiApplication::screens()) text += ScreenLine(*screen);
  const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  QStringList variables = environment.keys();
  variables.sort();
  for (const QString& variable : variables) {
    if (!IsOfInterest(variable)) continue;
    text += Line(FromQt(variable), WithoutHome(FromQt(environment.value(variable))));
  }
  return text;
}

/// The options that the program knows; whatever else the file holds is nobody's business.
std::string OptionsFile() {
  std::string text = Line("file", WithoutHome(OptionsFileInUse()));
  const std::string fault = OptionsFileFault();
  if (!fault.empty()) text += Line("fault", WithoutHome(fault));
  for (const Option& option : kOptions) {
    text += Line(option.Key, ReadOption(kOptionSection, option.Key));
  }
  return text;
}

/// Sizes, places and choices are words and numbers. A setting that is anything else may be a name.
std::string SettingsFile() {
  const QSettings settings(QSettings::IniFormat, QSettings::UserScope, kVendor,
                           ToQt(Host.ProgramTitle));
  std::string text;
  for (const QString& key : settings.allKeys()) {
    const QString value = settings.value(key).toString();
    const bool plain = std::all_of(value.begin(), value.end(), [](QChar letter) {
      return letter.unicode() < 0x80 &&
             (letter.isLetterOrNumber() || QString(",;:.+-_ ").contains(letter));
    });
    text += Line(FromQt(key), plain ? FromQt(value) : "?");
  }
  return text;
}

void AddLogs(std::vector<ArchivedFile>& files) {
  std::error_code failed;
  for (const auto& entry : std::filesystem::directory_iterator(LogFolder(), failed)) {
    std::string bytes;
    if (!ReadWholeFile(entry.path().string(), kLargestLog, bytes).empty()) continue;
    files.push_back({"log/" + entry.path().filename().string(), std::move(bytes)});
  }
}

}  // namespace

std::vector<ArchivedFile> SupportFiles() {
  std::vector<ArchivedFile> files = {{"versions.txt", VersionsFile()},
                                     {"platform.txt", PlatformFile()},
                                     {"options.txt", OptionsFile()},
                                     {"settings.txt", SettingsFile()}};
  AddLogs(files);
  return files;
}

void SaveSupportFile() {
  QDir().mkpath(ToQt(Host.DocumentsFolder));
  const std::string path = Host.DocumentsFolder + "/store-client-support-" +
                           FormatDateValue(Host.Now(), "YYYYMMDD-HHNNSS") + ".zip";
  const std::string refusal = WriteArchive(path, SupportFiles());
  if (refusal.empty()) {
    Host.MsgBox("지원용 정보를 다음 파일에 저장하였습니다.\r\r" + path, box::Information,
                kSaveSupportText);
  } else {
    Host.MsgBox("지원용 정보를 저장하지 못하였습니다.\r\r" + path + "\r" + refusal, box::Warning,
                kSaveSupportText);
  }
}

}  // namespace store
