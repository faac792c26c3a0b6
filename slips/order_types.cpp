#include "slips/order_types.h"

#include <array>
#include <cstddef>

#include "basics/records.h"

namespace store {

const OrderTypeTraits& ChosenOrderType() {
  static constexpr std::array<OrderTypeTraits, 4> types = {{
      {.FormName = "frm_Order",
       .ReceivesMore = false,
       .ListsLinkedReceipts = false,
       .OrdersFromSeveral = false},
      {.FormName = "frm_Order02",
       .ReceivesMore = false,
       .ListsLinkedReceipts = true,
       .OrdersFromSeveral = true},
      {.FormName = "frm_Order01",
       .ReceivesMore = false,
       .ListsLinkedReceipts = true,
       .OrdersFromSeveral = false},
      {.FormName = "frm_Order03",
       .ReceivesMore = true,
       .ListsLinkedReceipts = true,
       .OrdersFromSeveral = false},
  }};
  static constexpr OrderTypeTraits none = {.FormName = "",
                                           .ReceivesMore = false,
                                           .ListsLinkedReceipts = true,
                                           .OrdersFromSeveral = false};
  const auto type = static_cast<std::size_t>(AppOptions.OrderType);
  return AppOptions.OrderType < 0 || type >= types.size() ? none : types[type];
}

}  // namespace store
