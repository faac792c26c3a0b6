#pragma once

#include <string>

namespace store {

/// Fields of the item list in `SlotC`, which order and receipt forms search by filters.
namespace item {
inline constexpr int Code = 0;       ///< PR_CODE
inline constexpr int Name = 1;       ///< PR_NAME
inline constexpr int Standard = 2;   ///< PR_STD
inline constexpr int Unit = 3;       ///< PR_UNT
inline constexpr int TaxKind = 4;    ///< PR_TAX2
inline constexpr int ShortCode = 5;  ///< PR_PTNO
inline constexpr int Barcode = 8;    ///< PR_BCODE
inline constexpr int KindId = 10;    ///< KD_ID
}  // namespace item

/// The statement of the whole list: every item that is sold, by name.
std::string ItemListStatement();
/// Reads it into `SlotC`.
void OpenItemList();
/// Reads it into `SlotC` again, for an item that has come into it. False when it could not be read:
/// what `SlotC` held before then stands.
bool RefreshItemList();

/// Reads into `SlotC` the items that the store's order settings (SAFEIV) name for a supplier, in
/// the order that the clause `order` asks for.
void OpenScopedItemList(const std::string& supplier, const std::string& order = " ");
/// The same for a receipt, whose statement begins with a blank; of an order to several suppliers,
/// the items of all of them.
void OpenReceiptItemList(const std::string& supplier);

/// Sets the filter of `SlotC` to one product. False when the item is not in the list.
bool FindItem(const std::string& productCode);

/// A field of the current item.
std::string ItemText(int field);

}  // namespace store
