#pragma once

#include <string>

#include "forms/open_forms.h"
#include "receipt/frm_PE_UNIT.h"
#include "tests/support/slip_desk.h"

namespace store {

/// A clerk before the receipt of an order; the item list is loaded.
class ReceiptDesk : public SlipDesk {
 protected:
  ReceiptDesk();
  /// The store as at the start of the test, and the clerk logged in anew.
  void StartDay();
  frm_PE_UNIT& Open(const std::string& orderId);
  frm_PE_UNIT& Receipt() { return *dynamic_cast<frm_PE_UNIT*>(OpenForm("frm_PE_UNIT")); }
  /// Makes a row current and enters a quantity.
  void Receive(int row, const std::string& quantity);
};

/// The approved order of the small store: 20 of P0001 of which 18 were shipped, 30 of P0003.
inline constexpr const char* kApproved = "202405161001u01220003";

}  // namespace store
