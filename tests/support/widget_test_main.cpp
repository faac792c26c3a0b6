#include <gtest/gtest.h>

#include <QApplication>

#include "ui/style.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  store::ApplyStyle(application);
  return RUN_ALL_TESTS();
}
