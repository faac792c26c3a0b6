#pragma once

#include "ui/form_window.h"

namespace store {

class FRM_NAMECHK;

/// The window of `FRM_NAMECHK`.
class InspectorWindow : public FormWindow {
 public:
  explicit InspectorWindow(FRM_NAMECHK& form);

 private:
  QWidget* Buttons();

  FRM_NAMECHK& check_;
};

}  // namespace store
