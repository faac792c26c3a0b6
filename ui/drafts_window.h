#pragma once

#include "ui/form_window.h"

namespace store {

class frmDrafts;

/// The window of `frmDrafts`: the drafts on top, the lines of the current one below.
class DraftsWindow : public FormWindow {
 public:
  explicit DraftsWindow(frmDrafts& form);

 private:
  QWidget* Foot();
};

}  // namespace store
