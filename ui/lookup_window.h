#pragma once

#include "ui/form_window.h"

class QHBoxLayout;

namespace store {

class Button;
class LookupForm;

/// The window of every lookup form: a search line, tabs by initial consonant where the form has
/// them, the matches, and the form's further buttons.
class LookupWindow : public FormWindow {
 public:
  explicit LookupWindow(LookupForm& form);

 private:
  QWidget* SearchLine();
  QWidget* Tabs();
  void WalkTabs(int step);
  QWidget* Matches();
  QWidget* Foot();
  void AddButtons(QHBoxLayout& row);
  void AddButton(QHBoxLayout& row, const QString& name, Button& button,
                 std::function<void()> click);

  LookupForm& lookup_;
};

}  // namespace store
