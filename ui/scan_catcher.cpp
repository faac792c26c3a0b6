#include "ui/scan_catcher.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>

#include "forms/host.h"
#include "ui/desk.h"

namespace store {
namespace {

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
  if (ScanRun::IsEnter(key)) return TakesEnter(key);
  return ScanRun::IsText(key) && TakesText(key);
}

/// A person's letter may answer a question, and a blank presses the button.
bool ScanCatcher::TakesText(const QKeyEvent& event) {
  run_.Take(event);
  const bool first = run_.Coming() == event.text();
  return !first || event.text().front().isDigit();
}

bool ScanCatcher::TakesEnter(const QKeyEvent& event) {
  const QString code = run_.Take(event);
  if (code.isEmpty()) return false;
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
  if (!kept_.isEmpty()) kept_ += run_.Coming();
  if (!kept_.isEmpty()) TheDesk().TypeLater(*field_, kept_);
}

}  // namespace store
