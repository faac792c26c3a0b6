#pragma once

#include <string>
#include <vector>

#include "forms/grid.h"

namespace store {

/// The columns of the pick list that the form itself reads and writes.
struct PickColumns {
  int Code;
  int Barcode;
  int Name;
  int Standard;
  int Entry;  ///< Takes the quantity to order.
};

/// What differs between the order forms of the customer chains. The form itself is one; whatever a
/// chain wants otherwise is a field here, and nothing else asks which type it is.
struct OrderTypeChoices {
  const char* FormName;
  const char* Caption;
  const char* ConfirmedState;  ///< PE_CK that the confirm button stores.
  const char* FirstQuantity;   ///< Quantity of a line that was just added.
  /// Criteria on the item list for scanned text.
  std::string (*BarcodeCriteria)(const std::string& text);
  PickColumns Pick;
  std::vector<GridColumn> PickGrid;
};

/// The choices of order type 0.
const OrderTypeChoices& BasicOrderType();

}  // namespace store
