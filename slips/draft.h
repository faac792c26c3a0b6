#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace store {

/// A line of a slip that is being written.
struct DraftLine {
  std::string Code;       ///< PR_CODE
  std::string Name;       ///< For the eye; what is stored is taken from the item list.
  std::string Quantity;   ///< As it stands on the screen.
  bool FromSlip = false;  ///< It stood on the stored order, and has that order's price.
  bool operator==(const DraftLine&) const = default;
};

/// What a person has entered into an order or a receipt and not saved. Prices and stock are no part
/// of it: they come from the database when the draft is brought back.
struct Draft {
  std::string Id = {};        ///< Its name among the drafts of all runs; empty before it is kept.
  std::string FormName = {};  ///< The form it is written in, which is the type of the order.
  std::string SlipId = {};  ///< The stored order that is changed or received; empty on a new order.
  std::string SlipTable = {};
  std::int16_t NoPriceMode = 0;
  std::string Stamp = {};    ///< How that order stood when it was loaded (slips/received_order.h).
  std::string TriedId = {};  ///< The key under which a save was last tried; nobody saw it succeed.
  std::string PartnerCode = {};
  std::string PartnerName = {};
  std::string Date = {};              ///< Of the document.
  std::string Depot = {};             ///< The entry of the depot list.
  std::string ChangedAt = {};         ///< "YYYY-MM-DD HH:MM:SS" of the workstation's clock.
  std::vector<DraftLine> Lines = {};  ///< The one that was written first comes first.
};

/// Whether two drafts hold the same of what a person enters, wherever and whenever it was kept.
bool SameEntries(const Draft& one, const Draft& other);

/// What the name cell of a line shows behind its barcode.
std::string NameInCell(const std::string& cell);

}  // namespace store
