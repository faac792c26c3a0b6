#pragma once

#include "ui/form_window.h"

class QLabel;

namespace store {

class frm_OrderPLU;

/// The window of the quick-pick panel: the three lists of categories side by side, each leading to
/// the next, and below them the wall of tiles with its page buttons.
class QuickPickWindow : public FormWindow {
 public:
  explicit QuickPickWindow(frm_OrderPLU& form);

 private:
  QWidget* Categories();
  QWidget* CategoryList(int level);
  QWidget* Tiles();
  QWidget* Foot();
  QLabel* Heading(const QString& title, int index);

  frm_OrderPLU& panel_;
};

}  // namespace store
