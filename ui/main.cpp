#include <QApplication>

#include "ui/qt_text.h"
#include "ui/run_store.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments().mid(1);
  return store::RunStore(application, store::FromQt(arguments.join(' ')));
}
