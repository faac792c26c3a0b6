#pragma once

#include "order/order_form.h"
#include "order/selection_pane.h"

namespace store {

/// Fields of this chain's item list behind those that all lists have.
namespace item02 {
inline constexpr int Stock = 11;
inline constexpr int Supplier = 12;  ///< CT_CODE
inline constexpr int Unit = 14;      ///< ORD_QTY
}  // namespace item02

/// Order type 1: one order to several suppliers, from one list of everything that the store may
/// order. Who confirms needs the right for it.
class frm_Order02 : public OrderForm, public SelectionPane {
 public:
  frm_Order02();
};

}  // namespace store
