#pragma once

#include <gtest/gtest.h>

#include <string>

#include "board/frm_Start.h"
#include "order/order_form.h"
#include "ui/form_window.h"

namespace store {

/// User u01 of the small store at the real windows: the board is on the screen, the item list is
/// loaded, and a message box is a failure.
class StoreDay : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Runs window events until `holds`. False when it does not within half a minute.
  static bool Wait(const std::function<bool()>& holds);
  /// The window of the form with that name, once it is on the screen; nothing if it never comes.
  static FormWindow* Window(const std::string& formName);
  static void LoadItems();

  frm_Start& Board();
  OrderForm& Order();
};

}  // namespace store
