#include "bench/desk_hand.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <cstdio>
#include <cstdlib>

#include "forms/host.h"
#include "forms/open_forms.h"
#include "ui/desk.h"
#include "ui/run_store.h"

namespace store {
namespace {

constexpr qint64 kPatience = 20000;  // milliseconds

template <class Holds>
void WaitUntil(const char* what, Holds holds) {
  QElapsedTimer clock;
  clock.start();
  while (!holds()) {
    QCoreApplication::processEvents();
    if (clock.elapsed() < kPatience) continue;
    std::fprintf(stderr, "store_bench: %s\n", what);
    std::exit(2);
  }
}

FormWindow& Opened(const std::string& formName) {
  Dispatch([&] { Host.Show(*TheForm(formName)); });
  WaitUntil("a window did not come", [&] {
    const FormWindow* window = TheDesk().WindowNamed(formName);
    return window != nullptr && window->isActiveWindow() && window->focusWidget() != nullptr;
  });
  return *TheDesk().WindowNamed(formName);
}

QWidget& AreaOf(FormWindow& window, const QString& gridName) {
  auto* grid = window.findChild<QAbstractScrollArea*>(gridName);
  if (grid == nullptr) {
    std::fprintf(stderr, "store_bench: no grid %s\n", qPrintable(gridName));
    std::exit(2);
  }
  return *grid->viewport();
}

}  // namespace

PaintWatch::PaintWatch(QWidget& watched) { watched.installEventFilter(this); }

bool PaintWatch::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::Paint) painted_ = true;
  return false;
}

void PaintWatch::WaitForPaint() {
  WaitUntil("nothing was drawn", [this] { return painted_; });
  painted_ = false;
}

void PaintWatch::Settle() {
  // Work that a drawing has put off comes after it.
  for (int round = 0; round < 10; ++round) QCoreApplication::processEvents();
  painted_ = false;
}

DeskHand::DeskHand(const std::string& formName, const QString& gridName)
    : window_(Opened(formName)), area_(AreaOf(window_, gridName)), watch_(area_) {
  // The work of the opening comes after the first drawing.
  for (int round = 0; round < 10; ++round) QCoreApplication::processEvents();
}

void DeskHand::Press(int key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(window_.focusWidget(), &press);
}

void DeskHand::Scan(const std::string& text) {
  for (const char letter : text) Press(0, QString(QLatin1Char(letter)));
  Press(Qt::Key_Return, "\r");
}

void PrepareDesk(QApplication& application) {
  PrepareStore(application);
  Host.OpenAddress = [](const std::string&) { return true; };
  Host.MsgBox = [](const std::string& text, int, const std::string&) {
    std::fprintf(stderr, "store_bench: %s\n", text.c_str());
    std::exit(2);
    return box::Ok;
  };
}

void ClearDesk() {
  TheDesk().Clear();
  DropAllForms();
}

}  // namespace store
