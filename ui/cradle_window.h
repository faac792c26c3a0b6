#pragma once

#include "ui/form_window.h"

namespace store {

class FRM_CRDIMP;

/// The window that writes the terminal's master file.
class CradleWindow : public FormWindow {
 public:
  explicit CradleWindow(FRM_CRDIMP& form);

 private:
  static QWidget* Choices();
  static QWidget* Progress();
  static QWidget* Buttons();
};

}  // namespace store
