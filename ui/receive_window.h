#pragma once

#include "ui/form_window.h"

namespace store {

class DT9RECEV;

/// The window of `DT9RECEV`.
class ReceiveWindow : public FormWindow {
 public:
  explicit ReceiveWindow(DT9RECEV& form);

 private:
  static QWidget* Heading();
  static QWidget* State();
  static QWidget* PartnerChange();
  static QWidget* Buttons();
};

}  // namespace store
