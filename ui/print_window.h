#pragma once

#include "ui/form_window.h"

class QLabel;
class QPrinter;
class QPrintPreviewWidget;

namespace store {

class frmPrint;

/// The window of `frmPrint`: the pages as they will be on paper, one at a time.
class PrintWindow : public FormWindow {
 public:
  explicit PrintWindow(frmPrint& form);
  ~PrintWindow() override;

 private:
  QWidget* Pages();
  QWidget* Foot();
  void WalkPages(int step);
  void TellPage();

  frmPrint& print_;
  std::unique_ptr<QPrinter> paper_;
  QPrintPreviewWidget* preview_ = nullptr;
  QLabel* page_ = nullptr;
};

}  // namespace store
