#pragma once

#include "ui/form_window.h"

namespace store {

class FRM_DT900_01;
class GridView;

/// The window of `FRM_DT900_01`: what the slips get in common on top, the staged rows with their
/// ticks, and at the bottom what the ticked ones come to and what is done with them.
class BatchWindow : public FormWindow {
 public:
  explicit BatchWindow(FRM_DT900_01& form);

 private:
  static QWidget* Header();
  static QWidget* Choice();
  QWidget* Rows();
  ContextActions RowActions();
  static QWidget* Foot();

  FRM_DT900_01& batch_;
  GridView* rows_ = nullptr;
};

}  // namespace store
