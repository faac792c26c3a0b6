#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <string>

#include "ui/form_window.h"

class QApplication;

namespace store {

/// Tells when a widget has been drawn.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& watched);
  /// Lets window events run until the widget has been drawn. One that never is ends the run.
  void WaitForPaint();
  /// Lets what is still to be drawn be drawn and forgets it, so that the next wait is for what
  /// comes then.
  void Settle();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool painted_ = false;
};

/// A person's hand at the window of a form, and the eye on one of its grids.
class DeskHand {
 public:
  /// Opens the form if it is not open yet, and waits until it has the keyboard.
  DeskHand(const std::string& formName, const QString& gridName);

  void Press(int key, const QString& text = {});
  /// The letters and then the enter key, as a scanner sends them.
  void Scan(const std::string& text);
  /// Waits until the grid shows what has changed.
  void Draw() { watch_.WaitForPaint(); }
  void Settle() { watch_.Settle(); }
  QWidget& GridArea() const { return area_; }

 private:
  FormWindow& window_;
  QWidget& area_;
  PaintWatch watch_;
};

/// Registers forms and windows and opens the door to this workstation; files and pages that the
/// program wants opened are passed over.
void PrepareDesk(QApplication& application);
/// Closes every window that a bench has opened.
void ClearDesk();

}  // namespace store
