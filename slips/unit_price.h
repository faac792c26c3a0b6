#pragma once

#include <optional>
#include <string>

namespace store {

/// What an item costs when it is bought from `partner` (CT_CODE), by the workstation's price policy
/// (`AppOptions.BulkOrderPrice`): last trade price, contract price, one after the other, the
/// partner's own policy, or the store's order settings. `date` ("YYYY-MM-DD") decides which
/// contracts are in force; `kindOverride` replaces the partner's digit under policy "4"; the last
/// two characters of `slipKind` say which side of trade the price is for; `unused` is read by
/// nothing. 0 means that there is no price; nothing, that one of the reads it is made of failed:
/// the next source would then give a price that is not the item's.
std::optional<double> ResolveUnitPrice(const std::string& partner, const std::string& product,
                                       const std::string& date, const std::string& kindOverride,
                                       const std::string& slipKind, const std::string& unused);

/// The contract price towards a store (RCT_CODE), or its price level's; no policy applies. 0 means
/// no price; nothing, that it could not be read.
std::optional<double> ResolveStorePrice(const std::string& storeCode, const std::string& product,
                                        const std::string& date);

}  // namespace store
