#include "ui/about.h"

#include <sqlite3.h>
#include <xlsxwriter.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSysInfo>

#include "gateway/database_software.h"
#include "ui/barcode.h"
#include "ui/layout_pieces.h"
#include "ui/log_file.h"
#include "ui/program_icon.h"
#include "ui/qt_text.h"
#include "ui/scan_sounds.h"
#include "ui/style.h"
#include "ui/support_archive.h"

namespace store {
namespace {

constexpr const char* kProgramName = "Tarnwick발주시스템";
constexpr int kIconSize = 64;
constexpr const char* kNotConnected = "아직 연결하지 않음";

QString Told(const std::string& text) { return text.empty() ? kNotConnected : ToQt(text); }

QLabel* Icon() {
  auto* icon = new QLabel;
  icon->setPixmap(ProgramIcon().pixmap(kIconSize));
  icon->setAlignment(Qt::AlignTop);
  return icon;
}

QPlainTextEdit* VersionsBox() {
  auto* box = new QPlainTextEdit(VersionsText());
  box->setReadOnly(true);
  box->setTabChangesFocus(true);
  box->setLineWrapMode(QPlainTextEdit::NoWrap);
  box->setAccessibleName("판과 라이브러리");
  const QFontMetrics metrics(box->font());
  box->setMinimumSize(metrics.averageCharWidth() * 64,
                      metrics.lineSpacing() * (box->blockCount() + 2));
  return box;
}

QHBoxLayout* Buttons(QDialog& dialog) {
  auto* copy = new QPushButton("복사(&C)");
  auto* close = new QPushButton("닫기");
  close->setDefault(true);
  QObject::connect(copy, &QPushButton::clicked, &dialog,
                   [] { QGuiApplication::clipboard()->setText(VersionsText()); });
  QObject::connect(close, &QPushButton::clicked, &dialog, &QDialog::accept);
  QHBoxLayout* buttons = Row();
  buttons->addStretch();
  buttons->addWidget(copy);
  buttons->addWidget(close);
  return buttons;
}

}  // namespace

std::vector<std::pair<QString, QString>> ProgramVersions() {
  const DatabaseSoftware database = KnownDatabaseSoftware();
  return {{"프로그램", QCoreApplication::applicationVersion()},
          {"빌드", qApp->property(kBuildProperty).toString()},
          {"운영체제", QSysInfo::prettyProductName() + " " + QSysInfo::currentCpuArchitecture()},
          {"Qt", QString(qVersion()) + " (" + QGuiApplication::platformName() + ")"},
          {"데이터베이스 서버", Told(database.Server)},
          {"ODBC 드라이버", Told(database.Driver)},
          {"ODBC 드라이버 관리자", Told(database.DriverManager)},
          {"SQLite", sqlite3_libversion()},
          {"libxlsxwriter", lxw_version()},
          {"libzint", ToQt(BarcodeLibraryVersion())},
          {"libcanberra", SoundLibraryVersion()},
          {"spdlog", ToQt(LogLibraryVersion())},
          {"libarchive", ToQt(ArchiveLibraryVersion())}};
}

QString VersionsText() {
  QString text;
  for (const auto& [name, version] : ProgramVersions()) {
    if (!version.isEmpty()) text += name + ": " + version + "\n";
  }
  return text.trimmed();
}

void ShowAbout(QWidget* window) {
  QDialog dialog(window);
  dialog.setWindowTitle("프로그램 정보");
  auto* name = new QLabel(kProgramName);
  name->setFont(TotalFont());
  QHBoxLayout* head = Row();
  head->addWidget(Icon());
  head->addWidget(name, 1);
  auto* content = Column();
  content->addLayout(head);
  content->addWidget(VersionsBox());
  content->addLayout(Buttons(dialog));
  FillWindow(dialog, content);
  dialog.exec();
}

}  // namespace store
