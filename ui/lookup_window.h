#pragma once

#include "ui/form_window.h"

namespace store {

class LookupForm;

/// The window of every lookup form: a search line, tabs by initial consonant where the form has
/// them, the matches, and the form's further buttons.
class LookupWindow : public FormWindow {
 public:
  explicit LookupWindow(LookupForm& form);

 private:
  ContextActions MatchActions();
  static QWidget* SearchLine();
  QWidget* Tabs();
  QWidget* Foot();

  LookupForm& lookup_;
};

}  // namespace store
