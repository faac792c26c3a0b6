#pragma once

#include <cstdint>
#include <string>

#include "order/order_type.h"
#include "order/pick_list_pane.h"
#include "order/supplier_pane.h"
#include "slips/lines_pane.h"
#include "slips/slip_form.h"

namespace store {

/// Columns of an order's lines.
namespace order_line {
inline constexpr LineGridColumns Money{
    .Price = 5, .Quantity = 7, .TaxKind = 4, .Supply = 8, .Tax = 9, .Sum = 10};
inline constexpr int Code = Money.Code;
inline constexpr int Name = Money.Name;
inline constexpr int Last = Money.Sum;
}  // namespace order_line

/// The one line through which an order is written: barcodes, searches, quantities. It adds to the
/// lines, at the prices of the supplier, or sends the person on to the pick list.
class ItemBoxPane : public LinesPane {
 public:
  ItemBoxPane(SlipForm& form, const SupplierPane& supplier, PickListPane& pickList,
              const OrderTypeChoices& choices);

  Label Label6;  ///< A line of warning that goes away by itself.
  Timer Timer1;
  std::int16_t AddInProgress = 0;  ///< -1 while a routine and not a person feeds `inBox`.
  std::int16_t AddAccepted = 0;    ///< Set to 0 when an item was refused for want of a price.

  void inBox_KeyPress(Key key);
  void FLEX1_KeyDown(Key key);
  void Timer1_Timer();

  /// Moves what stands in the box into the quantity of a row.
  void ApplyQuantity(int row);
  /// Adds an item by its code, as if it had been entered in the box.
  void AddFromCode(const std::string& productCode);

 protected:
  ~ItemBoxPane() = default;

 private:
  void SetUpLines();
  std::string SearchCriteria(const std::string& text) const;
  void SearchItems();
  void AddItemLine();
  void RefuseForPrice();
  void RemoveLinesOf(const std::string& productCode);

  SlipForm& form_;
  const SupplierPane& supplier_;
  PickListPane& pickList_;
  const OrderTypeChoices& choices_;
};

}  // namespace store
