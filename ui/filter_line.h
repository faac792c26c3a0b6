#pragma once

#include <QWidget>
#include <functional>

#include "ui/scan_run.h"

class QLabel;
class QLineEdit;

namespace store {

/// The line in a grid's header into which the words are typed that its rows must have.
class FilterLine : public QWidget {
 public:
  explicit FilterLine(QWidget* parent);

  std::function<void(const QString& text)> Typed;
  /// On to the rows (Enter, an arrow), with the filter as it is.
  std::function<void()> GoneOn;
  /// A scanner has typed this code and Enter. True when it has been handed to where scans go.
  std::function<bool(const QString& code)> Scanned;
  /// Escape, or the cross.
  std::function<void()> Closed;

  QString Text() const;
  void Clear();  ///< Without `Typed`.
  void TakeKeyboard();
  bool HasKeyboard() const;
  /// How many rows are shown of how many, and what else a person must know of those left out.
  void Tell(int shown, int rows, const QString& remark);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* edit_;
  QLabel* count_;
  ScanRun scan_;
};

}  // namespace store
