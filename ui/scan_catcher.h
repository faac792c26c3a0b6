#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "ui/scan_run.h"

class QKeyEvent;
class QLineEdit;
class QMessageBox;

namespace store {

/// Set on the fields into which a scanner writes.
inline constexpr const char* kScannedProperty = "scanned";

/// Looks at the keys of a box while it stands. A scanner does not see it: the code that it sends,
/// and the Enter behind it, answer nothing. Of a box that only says something the codes are kept
/// for the field behind it; a question's are lost, with a beep, since nobody knows where the answer
/// leads.
class ScanCatcher : public QObject {
 public:
  /// `field` is what had the keyboard before the box; it may be no field for a scanner, or nothing.
  ScanCatcher(QMessageBox& box, bool isQuestion, QWidget* field);
  ~ScanCatcher() override;
  ScanCatcher(const ScanCatcher&) = delete;
  ScanCatcher& operator=(const ScanCatcher&) = delete;

  /// The box is closed: what was kept is typed into the field after everything that runs now.
  void HandOver();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakesText(const QKeyEvent& event);
  bool TakesEnter(const QKeyEvent& event);

  QMessageBox& box_;
  const bool isQuestion_;
  const QPointer<QLineEdit> field_;
  ScanRun run_;
  QString kept_;  // codes, each with its Enter
};

}  // namespace store
