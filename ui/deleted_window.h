#pragma once

#include "ui/form_window.h"

namespace store {

class frmDeleted;

/// The window of `frmDeleted`: the deleted slips on top, the lines of the current one below.
class DeletedWindow : public FormWindow {
 public:
  explicit DeletedWindow(frmDeleted& form);

 private:
  QWidget* Foot();
};

}  // namespace store
