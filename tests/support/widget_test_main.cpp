#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "ui/korean.h"
#include "ui/style.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QTemporaryDir settings;  // the user's own, such as where a window stands, stay out of it
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  store::SpeakKorean(application);
  store::ApplyStyle(application);
  return RUN_ALL_TESTS();
}
