#pragma once

#include "order/kind_pane.h"
#include "order/order_form.h"
#include "order/stock_view_pane.h"

namespace store {

/// Fields of this chain's item list behind those that all lists have.
namespace item03 {
inline constexpr int Safety = 11;  ///< SAFE_QTY
inline constexpr int Unit = 12;    ///< ORD_QTY
}  // namespace item03

/// Order type 3: quantities in units, items by category with their safety stock, stock and sales.
class frm_Order03 : public OrderForm, public KindPane, public StockViewPane {
 public:
  frm_Order03();
};

}  // namespace store
