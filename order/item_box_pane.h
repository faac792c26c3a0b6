#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

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
inline constexpr int Least = 6;  ///< A blank on a line of the stored order, else empty.
inline constexpr int Last = Money.Sum;
inline constexpr int Unit = 11;  ///< SAFEIV.ORD_QTY, hidden, where orders go in units.
}  // namespace order_line

/// The one line through which an order is written: barcodes, searches, quantities. It adds to the
/// lines, at the prices of the supplier, or sends the person on to the pick list.
class ItemBoxPane : public LinesPane {
 public:
  ItemBoxPane(SlipForm& form, const SupplierPane& supplier, PickListPane& pickList,
              const OrderTypeChoices& choices);

  Button ItemLookup{"품목조회"};  ///< Opens the item lookup, from which an item is entered.
  Label Label6;                   ///< A line of warning that goes away by itself.
  Label LaRefused;                ///< The codes that this order has refused, the last one first.
  Timer Timer1;
  std::int16_t AddInProgress = 0;  ///< -1 while a routine and not a person feeds `inBox`.
  std::int16_t AddAccepted = 0;    ///< Set to 0 when an item was refused.
  bool PriceUnread = false;        ///< Set when that was because its price could not be read.

  void inBox_KeyPress(Key key);
  void FLEX1_KeyDown(Key key);
  void Timer1_Timer();
  void ItemLookup_Click();

  /// Moves what stands in the box into the quantity of a row. Where orders go in units a quantity
  /// off the unit is refused with the next one that fits, and 0 takes the row out.
  void ApplyQuantity(int row);
  /// The same without looking at the unit.
  void TakeQuantity(int row);
  /// Adds an item by its code, as if it had been entered in the box.
  void AddFromCode(const std::string& productCode);
  /// The same within a transfer that holds `AddInProgress` from its first item to its last.
  void EnterCode(const std::string& productCode);
  /// Writes a line of a draft on top: the item of today at the price of today, in that quantity.
  /// False for an item that has left the list or has no price, or whose price could not be read
  /// (`PriceUnread`); the line is then not there.
  bool AddDraftLine(const std::string& productCode, const std::string& quantity);
  const std::vector<std::string>& Refused() const { return refused_; }
  void SetRefused(std::vector<std::string> refused);
  /// Another order begins: no code was refused for it.
  void ForgetRefused();
  /// Adds a code to the refused ones, with what is the matter with it.
  void NoteRefused(const std::string& code, const std::string& reason);
  /// Takes every line of an item out.
  void TakeOut(const std::string& productCode);

 protected:
  ~ItemBoxPane() = default;

  /// The search narrows to the start of the names of one supplier's items: that supplier, or an
  /// empty text for all of them.
  std::function<std::string()> NameSearchSupplier;
  /// Several items meet the search, and this chain picks among them on the panel of tiles.
  std::function<void()> SeveralHits;

 private:
  void SetUpLines();
  std::string SearchCriteria(const std::string& text) const;
  std::string NameCriteria(const std::string& name) const;
  void SearchItems();
  void ListHits();
  bool AddItemLine();
  void InsertLine(double price);
  bool FitsUnit(double quantity, int row);
  std::optional<double> PriceOf(const std::string& code) const;
  void RefuseForWantOfItem();
  void RefuseUnread();
  void RefuseForPrice();
  void ShowRefused();
  void Warn(const std::string& text);
  void RemoveLinesOf(const std::string& productCode);

  SlipForm& form_;
  const SupplierPane& supplier_;
  PickListPane& pickList_;
  const OrderTypeChoices& choices_;
  std::vector<std::string> refused_;
};

}  // namespace store
