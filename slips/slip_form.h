#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "forms/form.h"
#include "slips/draft.h"
#include "slips/past_order.h"

namespace store {

/// A form that works on one slip. The board sets these fields before it shows the form.
class SlipForm : public Form {
 public:
  using Form::Form;

  std::string SlipId;            ///< PE_ID of the slip; empty on a new order.
  std::string SlipTable;         ///< Header table: "PEM22" for an order, "PEM23" for a receipt.
  std::int16_t NoPriceMode = 0;  ///< 1 leaves out the price lookup when a line is added.
  /// A draft of this run (`TakeDraft`) that the form goes on with when it opens.
  std::optional<Draft> WrittenEarlier;
  /// A former order whose items a new one begins with.
  std::optional<PastOrder> OrderedBefore;

  /// Whether the form holds something that a person has entered and that is not stored. The board
  /// never puts another slip in its place.
  virtual bool HoldsWork() const { return false; }
};

/// The form of that name for another slip, made anew. Nothing when there is no such form, and
/// nothing when it is open with work that is not stored yet: it is then brought to the front.
SlipForm* FreeSlipForm(const std::string& name);

/// The board as the other forms know it. It lives as long as the program.
class MainWindow : public Form {
 public:
  using Form::Form;
  /// The depots of the store: name, 30 blanks, code. Order and receipt forms copy the list.
  ComboBox Combo1;
};

/// The main window, or nothing before it is made.
MainWindow* TheMainWindow();

}  // namespace store
