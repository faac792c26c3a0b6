#include "ui/scan_run.h"

#include <QKeyEvent>
#include <utility>

namespace store {
namespace {

constexpr quint64 kSlowestScanner = 100;  // milliseconds between two characters; nobody types so
constexpr int kShortestCode = 5;          // characters; what is shorter is no code

}  // namespace

bool ScanRun::IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool ScanRun::IsText(const QKeyEvent& key) {
  const bool plain = (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
  return plain && !key.text().isEmpty() && key.text().front().isPrint();
}

QString ScanRun::Take(const QKeyEvent& key) {
  if (!IsEnter(key) && !IsText(key)) return {};
  const bool goesOn = key.timestamp() - std::exchange(last_, key.timestamp()) <= kSlowestScanner;
  if (IsEnter(key)) {
    const QString code = std::exchange(coming_, {});
    return goesOn && code.size() >= kShortestCode ? code : QString();
  }
  // A key that is held down repeats as quickly as a scanner, and is none.
  if (!goesOn || key.isAutoRepeat()) coming_.clear();
  if (!key.isAutoRepeat()) coming_ += key.text();
  return {};
}

}  // namespace store
