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
  QWidget* ConnectionFields();
  QWidget* Choices();
  QWidget* OrderTypes();
  QWidget* Buttons();

  frmOptions& options_;
};

}  // namespace store
