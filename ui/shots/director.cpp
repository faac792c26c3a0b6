#include "ui/shots/director.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QTableView>
#include <QTextStream>
#include <QTimer>

#include "ui/desk.h"

namespace store {
namespace {

constexpr int kRounds = 5;
constexpr int kPoll = 20;             // milliseconds
constexpr int kPatience = 20 * 1000;  // for one step

}  // namespace

Director::Director(const QDir& folder, QSize size) : folder_(folder), size_(size) { PollLater(); }

void Director::WhenShown(const std::string& form, std::function<void(FormWindow&)> act) {
  When(
      [form] {
        FormWindow* window = TheDesk().WindowNamed(form);
        return window != nullptr && window->isActiveWindow() && window->HasBegun();
      },
      [form, act = std::move(act)] { act(*TheDesk().WindowNamed(form)); });
}

void Director::Save(QWidget& window, const QString& name) {
  Settle();
  Keep(window.grab(), name);
}

void Director::Keep(const QPixmap& picture, const QString& name) {
  if (!picture.save(folder_.filePath(name + ".png"))) Fail("cannot write " + name);
  QTextStream(stdout) << name << Qt::endl;
}

void Director::SaveWithMenu(QWidget& window, const QString& name) {
  Settle();
  QWidget& menu = *QApplication::activePopupWidget();
  QPixmap both = window.grab();
  QPainter(&both).drawPixmap(window.mapFromGlobal(menu.pos()), menu.grab());
  Keep(both, name);
  menu.close();
}

void Director::Fit(FormWindow& window) {
  window.move(0, 0);
  window.resize(size_);
  Settle();
}

void Director::Fail(const QString& why) {
  QTextStream(stderr) << "store_shots: " << why << Qt::endl;
  std::_Exit(1);
}

// A timer does not fire again while its step is still in a modal window, so each poll has its own.
void Director::PollLater() {
  QTimer::singleShot(kPoll, this, [this] { Poll(); });
}

void Director::Settle() {
  settling_ = true;
  // What one layout asks of the one around it is an event of its own.
  for (int round = 0; round < kRounds; ++round) QCoreApplication::processEvents();
  settling_ = false;
}

void Director::Poll() {
  if (steps_.empty()) return;
  PollLater();
  if (settling_ || TheDesk().InsideCall()) return;
  waited_ += kPoll;
  if (waited_ > kPatience) Fail(QString("%1 steps were not reached").arg(steps_.size()));
  if (!steps_.front().ready()) return;
  waited_ = 0;
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  step.act();
}

void Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers) {
  QWidget* at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  QKeyEvent event(QEvent::KeyPress, key, modifiers);
  QCoreApplication::sendEvent(at, &event);
}

void Type(QWidget& window, const QString& text) {
  for (const QChar letter : text) {
    QWidget* at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QKeyEvent event(QEvent::KeyPress, 0, {}, letter);
    QCoreApplication::sendEvent(at, &event);
  }
}

void ClickOn(FormWindow& window, const QString& button) {
  Find<QAbstractButton>(window, button).click();
}

void GoTo(FormWindow& window, const QString& grid, int row, int column) {
  auto& view = Find<QTableView>(window, grid);
  view.setFocus();
  view.setCurrentIndex(view.model()->index(row, column));
}

}  // namespace store
