#pragma once

#include <string>

#include "forms/open_forms.h"
#include "order/order_form.h"
#include "tests/support/slip_desk.h"

namespace store {

/// A clerk before a new order: the item list is loaded, and prices follow the contracts ("3").
class OrderDesk : public SlipDesk {
 protected:
  OrderDesk();

  /// Opens the order form; with a slip id, on that slip.
  OrderForm& Open(const std::string& slipId = "");
  OrderForm& Order() { return *dynamic_cast<OrderForm*>(OpenForm("frm_Order")); }
  /// Types a supplier and presses Enter.
  void Supplier(const std::string& text);
  /// Types into the item box and presses Enter.
  void Enter(const std::string& text);
  /// Lines as "code x quantity", top row first.
  std::string Lines();
};

}  // namespace store
