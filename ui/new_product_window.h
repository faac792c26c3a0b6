#pragma once

#include "ui/form_window.h"

class QGridLayout;
class QHBoxLayout;

namespace store {

class NEW_PR;

/// The window of `NEW_PR`.
class NewProductWindow : public FormWindow {
 public:
  explicit NewProductWindow(NEW_PR& form);

 private:
  static QWidget* Article();
  QWidget* Trade();
  QHBoxLayout* Supplier();
  static QWidget* Message();
  static QWidget* Buttons();

  NEW_PR& product_;
};

}  // namespace store
