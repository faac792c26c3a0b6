#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/grid.h"
#include "gateway/recordset.h"

namespace store {

/// When the item list of a new supplier is wanted.
enum class ItemListMoment { FormOpens, SupplierTyped, LookupClosed };

/// What a quantity that was typed into the pick list leads to.
enum class EntryVerdict { Nothing, Order, TakeOut };

/// The columns of the pick list that every order form reads. They stand in the same places on all
/// of them; the one for the quantity does not.
namespace pick {
inline constexpr int Code = 0;  ///< PR_CODE
inline constexpr int Mark = 1;  ///< "-1" when the row is marked for the transfer.
inline constexpr int Barcode = 3;
inline constexpr int Name = 4;
inline constexpr int Standard = 5;
}  // namespace pick

/// Behind the cells into which a person types.
inline constexpr int kEntryYellow = 0xFFFF00;

/// No such field in the item list of this chain.
inline constexpr int kNoField = -1;

/// What differs between the order forms of the customer chains and is no pane of its own. The
/// order form asks these, and nothing else asks which type it is.
struct OrderTypeChoices {
  const char* FormName;
  const char* Caption;
  /// PE_CK that a save button (0 or 1) stores.
  std::string (*StateOf)(int button);
  bool ConfirmNeedsRights = false;  ///< Only staff of level 3 or higher (a lower number) confirms.
  bool CombinesSuppliers = false;   ///< An order may go without a supplier, to several of them.
  bool CountsKeysAnew = false;      ///< Every save reads the next key from the database.
  bool SavesGoneItems = false;      ///< A line whose item has left the list is stored without it.
  /// Field of the item list with the order unit (SAFEIV.ORD_QTY), which is a line's first quantity;
  /// without one that is 1.
  int UnitField = kNoField;
  bool OrdersInUnits = false;  ///< A typed quantity must be a multiple of the unit; 0 takes out.
  bool HitsOpenQuickPick = false;  ///< Several hits go to the panel of tiles, not to the pick list.
  /// Reads the item list of the moment into `SlotC`, where this moment asks for one. With the
  /// option "발주정보거래처" only.
  void (*ReadItems)(ItemListMoment moment, const std::string& supplier);
  /// Criteria on the item list for scanned text.
  std::string (*BarcodeCriteria)(const std::string& text);
  /// Columns of the lines behind those that all forms have.
  std::vector<GridColumn> MoreLineColumns = {};

  std::vector<GridColumn> PickGrid;
  int PickEntry;  ///< Column of the pick list that takes a quantity.
  /// The pick list's cells of the item in a row of the item list, from the left.
  std::vector<std::string> (*PickRow)(const Recordset& items, std::uint32_t row);
  /// What follows an edit in a row of the pick list; it tells the person what it refuses.
  EntryVerdict (*JudgeEntry)(Grid& picks, int row);
};

/// Choices that several types share.

/// The button's number: 0 for editing, 1 confirmed.
std::string StateByButton(int button);
/// 0 for editing, 2, the state of an approved order, for the confirm button.
std::string StatePastConfirmation(int button);

/// Scanned text is the beginning of a barcode.
std::string BarcodeBeginsWith(const std::string& text);

/// Code, barcode, name and standard of an item, in the columns of `pick`.
std::vector<std::string> PickRowOfItem(const Recordset& items, std::uint32_t row);

/// Columns of pick lists: code, mark and category, out of view; a count; the quantity to order.
std::vector<GridColumn> HiddenPickColumns();
GridColumn CountColumn(const char* header, int width, int backColor = -1);
GridColumn EntryColumn(const char* header, int width);

/// Whether a person typed a quantity; what is no number and what is nothing is none.
EntryVerdict OrderUnlessZero(const Grid& picks, int row, int column);

/// Refuses, and empties, a quantity of seven characters or more in the entry column.
bool RefuseLongEntry(Grid& picks, int row, int column);

}  // namespace store
