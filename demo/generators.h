#pragma once

#include <vector>

#include "demo/franchise.h"

/// The steps of MakeFranchise, in the order in which they build on each other. Each draws from a
/// generator of its own, so that a change to one leaves the data of the others as it was.
namespace store::demo {

std::vector<Store> MakeStores();
std::vector<Partner> MakePartners();
std::vector<BaseCode> MakeBaseCodes();
std::vector<Notice> MakeNotices(const std::vector<Store>& stores, Day today);

/// Categories and the products in them.
void AddProducts(Franchise& franchise, const Options& options);

/// Level prices and contract prices.
void AddPrices(Franchise& franchise, Day today);

/// What each store keeps in safety stock and where it orders it.
void AddOrderSettings(Franchise& franchise);

/// Which products each store carries, by store. A store does not list a whole catalogue.
std::vector<std::vector<std::size_t>> Assortments(const Franchise& franchise);

class DemoSlipKeys;

/// Orders in every state, and the receipts of those that were received.
void AddOrders(Franchise& franchise, DemoSlipKeys& keys, const Options& options);

/// Ninety days of sales and of purchases that no order asked for.
void AddTrade(Franchise& franchise, DemoSlipKeys& keys,
              const std::vector<std::vector<std::size_t>>& assortments, Day today);

/// Stock and balances that agree with the posted slips.
void AddStock(Franchise& franchise, const std::vector<std::vector<std::size_t>>& assortments);
void AddBalances(Franchise& franchise);

}  // namespace store::demo
