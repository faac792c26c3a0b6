#pragma once

#include <vector>

#include "forms/grid.h"

namespace store {

/// What differs between the order forms of the customer chains. The form itself is one; whatever a
/// chain wants otherwise is a field here.
struct OrderTypeChoices {
  const char* FormName;
  const char* Caption;
  const char* ConfirmedState;  ///< PE_CK that the confirm button stores.
  const char* BarcodeFilter;   ///< Criteria for scanned text {0}.
  const char* FirstQuantity;   ///< Quantity of a line that was just added.
  int PickEntryColumn;         ///< The column of the pick list that takes a quantity.
  std::vector<GridColumn> PickColumns;
};

/// The choices of order type 0.
const OrderTypeChoices& BasicOrderType();

}  // namespace store
