#pragma once

#include "ui/form_window.h"

namespace store {

class frmSplash;

/// The window of `frmSplash`: what the program is, and what it is reading.
class SplashWindow : public FormWindow {
 public:
  explicit SplashWindow(frmSplash& form);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const frmSplash& splash_;
};

}  // namespace store
