#pragma once

#include "order/item_sums.h"

namespace store {

/// The store's stock, an item's over all depots (IV: BSQTY + INQTY - OTQTY). Read through `SlotB`.
ItemSums ReadStock();

}  // namespace store
