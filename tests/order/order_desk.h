#pragma once

#include <string>

#include "basics/records.h"
#include "forms/open_forms.h"
#include "order/order_form.h"
#include "slips/order_types.h"
#include "tests/support/slip_desk.h"

namespace store {

/// A clerk before a new order: the item list is loaded, and prices follow the contracts ("3").
class OrderDesk : public SlipDesk {
 protected:
  OrderDesk();

  /// Opens the order form of the workstation's type; with a slip id, on that slip.
  OrderForm& Open(const std::string& slipId = "");
  /// The same for a type and its form.
  template <class TypeForm>
  TypeForm& Open(std::int16_t type, const std::string& slipId = "") {
    AppOptions.OrderType = type;
    return dynamic_cast<TypeForm&>(Open(slipId));
  }
  OrderForm& Order() { return *dynamic_cast<OrderForm*>(OpenForm(ChosenOrderType().FormName)); }
  /// Types a supplier and presses Enter.
  void Supplier(const std::string& text);
  /// Types into the item box and presses Enter.
  void Enter(const std::string& text);
  /// Lines as "code x quantity", top row first.
  std::string Lines();
  /// The store has sold of an item, so many days before today.
  void Sale(int daysBack, const std::string& product, const std::string& quantity);

 private:
  int sales_ = 0;
};

}  // namespace store
