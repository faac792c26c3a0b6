#pragma once

#include "ui/form_window.h"

class QVBoxLayout;

namespace store {

class frmOptions;

/// The window of `frmOptions`.
class OptionsWindow : public FormWindow {
 public:
  explicit OptionsWindow(frmOptions& form);

 private:
  static QWidget* ConnectionFields();
  static QWidget* Choices();
  static QWidget* OrderTypes(int count);
  static QWidget* Buttons();
};

}  // namespace store
