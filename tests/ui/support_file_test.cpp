#include "ui/support_file.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <algorithm>

#include "basics/records.h"
#include "forms/options_file.h"
#include "gateway/call_log.h"
#include "tests/support/scripted_host.h"
#include "ui/about.h"
#include "ui/log_file.h"

namespace store {
namespace {

class SupportFile : public testing::Test {
 protected:
  SupportFile() {
    Session.UserCode = "u01";
    Session.UserName = "김하나";
    Session.UserPassword = "geheim1";
    Session.StoreCode = "1001";
    Session.StoreName = "서울점";
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QString::fromStdString(host.Folder.string()));
    OpenLogFile();
  }
  ~SupportFile() override {
    CloseLogFile();
    ResetRecords();
  }

  /// What the usual tool says about the archive.
  static QString Unzip(const QString& path, const QString& how) {
    QProcess tool;
    tool.start("unzip", {how, path});
    tool.waitForFinished();
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
    return QString::fromUtf8(tool.readAllStandardOutput());
  }

  ScriptedHost host;
};

TEST_F(SupportFile, HoldsLogVersionsAndSettingsAndNothingOfAPerson) {
  LogFailedRead("SELECT 1 FROM ST WHERE ST_NAME = '김하나' AND ST_PWD = 'geheim1'",
                "near ''김하나' AND ST_PWD = 'geheim1'' at line 1");
  WriteOption("TARNWICK", "데이터서버", "db.example;PORT=33061;PWD=geheim1");
  WriteOption("TARNWICK", "메모", "김하나 010-1234-5678");
  QSettings settings(QSettings::IniFormat, QSettings::UserScope, "TARNWICK", "STORE");
  settings.setValue("windows/u01/board", "10,20 1024x700");
  settings.setValue("recent", "행복상회");
  settings.sync();
  setenv("STORE_WEB_HOST", "http://web.example/", 1);
  host.ExpectBox("store-client-support-20240517-102030.zip");
  SaveSupportFile();
  unsetenv("STORE_WEB_HOST");

  const QString path =
      QString::fromStdString(Host.DocumentsFolder) + "/store-client-support-20240517-102030.zip";
  EXPECT_TRUE(Unzip(path, "-t").contains("No errors detected"));
  const QString all = Unzip(path, "-p");
  for (const char* there :
       {"SQLite: 3.", "user: u01", "store: 1001", "데이터서버: db.example;PORT=33061;PWD=?",
        "windows/u01/board: 10,20 1024x700", "recent: ?", "STORE_WEB_HOST: http://web.example/",
        "read failed: near '?' at line 1"}) {
    EXPECT_TRUE(all.contains(there)) << there << "\n" << all.toStdString();
  }
  for (const char* absent :
       {"geheim1", "qz4471", "김하나", "서울점", "행복상회", "010-1234", "메모"}) {
    EXPECT_FALSE(all.contains(absent)) << absent << "\n" << all.toStdString();
  }
}

TEST_F(SupportFile, IsToldWhereItCannotBe) {
  Host.DocumentsFolder = "/proc/nowhere";
  host.ExpectBox("저장하지 못하였습니다");
  SaveSupportFile();
  EXPECT_EQ(host.Boxes.back().Style, box::Warning);
}

TEST(About, ShowsTheVersionsAndCopiesThem) {
  QGuiApplication::clipboard()->clear();
  QString shown;
  QTimer::singleShot(0, qApp, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    shown = dialog->findChild<QPlainTextEdit*>()->toPlainText();
    dialog->findChildren<QPushButton*>().constFirst()->click();
    dialog->close();
  });
  ShowAbout(nullptr);
  EXPECT_TRUE(shown.contains(QString("Qt: ") + qVersion())) << shown.toStdString();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), shown);
}

}  // namespace
}  // namespace store
