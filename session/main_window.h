#pragma once

#include "forms/form.h"

namespace store {

/// The board as the other forms know it. It lives as long as the program.
class MainWindow : public Form {
 public:
  using Form::Form;
  /// The depots of the store: name, 30 blanks, code. Order and receipt forms copy the list.
  ComboBox Combo1;
};

/// The main window, or nothing before it is made.
MainWindow* TheMainWindow();

}  // namespace store
