#pragma once

#include "order/kind_pane.h"
#include "order/order_form.h"

namespace store {

/// Order type 0: one supplier, items by category.
class frm_Order : public OrderForm, public KindPane {
 public:
  frm_Order();
};

}  // namespace store
