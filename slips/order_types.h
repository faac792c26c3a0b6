#pragma once

namespace store {

/// What the folders beside the order form ask of the workstation's order type
/// (`AppOptions.OrderType`). What differs within the order form itself stands in
/// order/order_type.h.
struct OrderTypeTraits {
  const char* FormName;      ///< Of the order form.
  bool ReceivesMore;         ///< A receipt may take in more than was ordered.
  bool ListsLinkedReceipts;  ///< The board's list of expected goods keeps orders with a link.
  bool OrdersFromSeveral;    ///< An order may go to several suppliers and have none of its own.
};

/// The traits of the workstation's type; of a value that is none, those without a form.
const OrderTypeTraits& ChosenOrderType();

}  // namespace store
