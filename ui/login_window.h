#pragma once

#include "ui/form_window.h"

namespace store {

class frmLogin;

/// The window of `frmLogin`: user and password under the product's band.
class LoginWindow : public FormWindow {
 public:
  explicit LoginWindow(frmLogin& form);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void LayOut();
};

}  // namespace store
