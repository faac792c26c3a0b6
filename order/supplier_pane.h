#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "order/order_type.h"
#include "order/recent_suppliers.h"
#include "slips/slip_form.h"

namespace store {

/// Choosing the supplier of an order, which decides prices and, with the option on, which items
/// there are. `Text1` shows the name and keeps the code in its Tag.
class SupplierPane {
 public:
  explicit SupplierPane(SlipForm& form);
  SupplierPane(const SupplierPane&) = delete;
  SupplierPane& operator=(const SupplierPane&) = delete;

  Label Label1{"발주처"};
  TextBox Text1;
  Label LaCTHELP;       ///< Opens the supplier lookup.
  Menu Recent{"최근"};  ///< The suppliers chosen last; the arrow down in the box opens it, too.

  void Text1_GotFocus();
  void Text1_KeyDown(Key key);
  void Text1_KeyPress(Key key);
  void LaCTHELP_Click();
  /// Chooses an entry of the list as the lookup would. One to whom no order can go any more leaves
  /// the list, and the lookup opens on its name.
  void Recent_Click(int entry);
  /// The list as the workstation remembers it. It can be opened where the supplier can be changed.
  void ShowRecent();

  /// Whether both name and code are there.
  bool HasSupplier() const;
  /// The box that asks for one.
  void TellNoSupplier() const;

 protected:
  ~SupplierPane() = default;

  /// Another supplier, or another text in the box: prices and lines of the former one are void.
  std::function<void()> SupplierChanged;
  /// A choice was made, or tried: what depends on the supplier is read anew.
  std::function<void(ItemListMoment moment)> FollowSupplier;
  /// Where the keyboard goes after the lookup.
  Control* AfterLookup = nullptr;
  /// A person has chosen: the list begins with that supplier from now on.
  void NoteRecent();

 private:
  void FindSupplier(TextBox& box, std::int16_t& found);
  void ChooseSupplier(TextBox& box, const std::string& search, const std::string& lookupTable);
  void TakeSupplier(TextBox& box, const std::string& code, const std::string& name);

  void LookupClosed();

  SlipForm& form_;
  std::vector<RecentSupplier> recent_;
};

}  // namespace store
