#pragma once

#include <string>

namespace store {

/// The store's stock, an item's over all depots (IV: BSQTY + INQTY - OTQTY), read once into
/// `SlotB` and matched item by item.
void OpenStock();

/// Whether the store has a stock row of the item; `StockFound` is then its sum.
bool FindStock(const std::string& productCode);
std::string StockFound();

void CloseStock();

}  // namespace store
