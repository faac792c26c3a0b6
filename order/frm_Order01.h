#pragma once

#include "order/order_form.h"
#include "order/proposal_pane.h"

namespace store {

/// Order type 2: the program proposes what to order, from sales or from the safety stock, and
/// several hits of a search are picked on the panel of tiles.
class frm_Order01 : public OrderForm, public ProposalPane {
 public:
  frm_Order01();
};

}  // namespace store
