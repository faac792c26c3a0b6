#include "ui/scan_catcher.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <utility>

#include "forms/host.h"
#include "ui/desk.h"

namespace store {
namespace {

constexpr quint64 kSlowestScanner = 100;  // milliseconds between two characters; nobody types so
constexpr int kShortestCode = 5;          // characters; what is shorter is no code

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool IsText(const QKeyEvent& event) {
  const bool plain = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
  return plain && !event.text().isEmpty() && event.text().front().isPrint();
}

QLineEdit* ScannedField(QWidget* field) {
  auto* edit = qobject_cast<QLineEdit*>(field);
  return edit != nullptr && edit->property(kScannedProperty).toBool() ? edit : nullptr;
}

}  // namespace

ScanCatcher::ScanCatcher(QMessageBox& box, bool isQuestion, QWidget* field)
    : box_(box), isQuestion_(isQuestion), field_(ScannedField(field)) {
  qApp->installEventFilter(this);
}

ScanCatcher::~ScanCatcher() { qApp->removeEventFilter(this); }

bool ScanCatcher::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  // A key is offered to the button that has the keyboard first and then to what is around it.
  const QWidget* first = box_.focusWidget() != nullptr ? box_.focusWidget() : &box_;
  if (watched != first) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (IsEnter(key)) return TakesEnter(key);
  return IsText(key) && TakesText(key);
}

bool ScanCatcher::GoesOn(const QKeyEvent& event) {
  const quint64 before = std::exchange(last_, event.timestamp());
  return event.timestamp() - before <= kSlowestScanner;
}

/// A person's letter may answer a question, and a blank presses the button.
bool ScanCatcher::TakesText(const QKeyEvent& event) {
  if (!GoesOn(event)) coming_.clear();
  const bool first = coming_.isEmpty();
  coming_ += event.text();
  return !first || event.text().front().isDigit();
}

bool ScanCatcher::TakesEnter(const QKeyEvent& event) {
  const bool goesOn = GoesOn(event);
  const QString code = std::exchange(coming_, {});
  if (!goesOn || code.size() < kShortestCode) return false;
  if (isQuestion_ || field_ == nullptr) {
    Host.Beep();
  } else {
    kept_ += code + '\r';
  }
  return true;
}

void ScanCatcher::HandOver() {
  if (field_ == nullptr || isQuestion_) return;
  // The rest of a code that is on its way comes into the field by itself.
  if (!coming_.isEmpty() && !kept_.isEmpty()) kept_ += coming_;
  if (!kept_.isEmpty()) TheDesk().TypeLater(*field_, kept_);
}

}  // namespace store
