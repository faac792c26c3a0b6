#pragma once

#include <string>

#include "forms/open_forms.h"
#include "order/order_form.h"
#include "slips/slip_form.h"
#include "tests/support/small_store_test.h"

namespace store {

/// A clerk of the small store before a new order: the item list is loaded, the board lists the
/// depots, prices follow the contracts ("3"), and the clock stands at the database's today.
class OrderDesk : public SmallStoreTest {
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

  MainWindow* Board = nullptr;
};

}  // namespace store
