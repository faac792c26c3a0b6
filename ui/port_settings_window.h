#pragma once

#include "ui/form_window.h"

namespace store {

class frmProperties;

/// The window of `frmProperties`.
class PortSettingsWindow : public FormWindow {
 public:
  explicit PortSettingsWindow(frmProperties& form);

 private:
  static QWidget* Fields();
  static QWidget* FlowControl(int count);
  static QWidget* Foot();
};

}  // namespace store
