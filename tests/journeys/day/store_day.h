#pragma once

#include <gtest/gtest.h>

#include "board/frm_Start.h"
#include "order/order_form.h"

namespace store {

/// User u01 of the small store at the real windows: the board is on the screen, the item list is
/// loaded, and a message box is a failure.
class StoreDay : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  frm_Start& Board();
  OrderForm& Order();
};

}  // namespace store
