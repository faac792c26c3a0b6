// The peer of a start: a Qt main window with nothing in it, gone when it has been painted.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

namespace {

class EmptyWindow : public QMainWindow {
 protected:
  void paintEvent(QPaintEvent*) override {
    QTimer::singleShot(0, qApp, [] { QApplication::quit(); });
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  EmptyWindow window;
  window.resize(1024, 768);
  window.show();
  return QApplication::exec();
}
