#pragma once

#include <array>
#include <string>

#include "forms/form.h"
#include "order/pick_list_pane.h"

namespace store {

/// Columns of a pick list that shows each item's stock.
namespace stock_view {
inline constexpr int Sales = 5;  ///< Sales of the period, or the item's standard.
inline constexpr int Safety = 6;
inline constexpr int Stock = 7;
inline constexpr int Shortage = 8;  ///< Empty where there is none.
inline constexpr int Unit = 9;
inline constexpr int Entry = 10;
}  // namespace stock_view

/// Puts beside each item of the pick list what the store has of it, what is missing to its safety
/// stock, and, when asked for, what was sold in a period.
class StockViewPane {
 public:
  StockViewPane(Form& form, PickListPane& pickList);
  StockViewPane(const StockViewPane&) = delete;
  StockViewPane& operator=(const StockViewPane&) = delete;

  CheckBox Check1{"판매량 보기"};  ///< Shows the sales in place of the standard.
  Label Label4{"판매기간"};
  std::array<DatePicker, 2> DTPicker1;

  /// Reads stock and sales for the items that are about to be listed.
  PickRowCompletion StockBeside();

 protected:
  ~StockViewPane() = default;

 private:
  std::string SalesOfPeriod() const;

  Grid& picks_;
};

}  // namespace store
