#include "demo/franchise.h"

#include <algorithm>

#include "demo/generators.h"
#include "demo/slip_keys.h"

namespace store::demo {
namespace {

// Rows that come in key order fill the pages of the table one after another.
void SortByKey(std::vector<Slip>& slips) {
  std::sort(slips.begin(), slips.end(),
            [](const Slip& left, const Slip& right) { return left.id < right.id; });
}

}  // namespace

Won Slip::Amount() const {
  Won sum = 0;
  for (const SlipLine& line : lines) sum += line.money.amount;
  return sum;
}

Won Slip::Tax() const {
  Won sum = 0;
  for (const SlipLine& line : lines) sum += line.money.tax;
  return sum;
}

Franchise MakeFranchise(const Options& options) {
  Franchise franchise;
  franchise.stores = MakeStores();
  franchise.partners = MakePartners();
  franchise.base_codes = MakeBaseCodes();
  franchise.notices = MakeNotices(franchise.stores, options.today);
  AddProducts(franchise, options);
  AddPrices(franchise, options.today);
  AddOrderSettings(franchise);

  const auto assortments = Assortments(franchise);
  SlipKeys keys;
  AddTrade(franchise, keys, assortments, options.today);
  AddOrders(franchise, keys, options);
  AddStock(franchise, assortments);
  AddBalances(franchise);
  SortByKey(franchise.orders);
  SortByKey(franchise.purchases);
  SortByKey(franchise.sales);
  return franchise;
}

}  // namespace store::demo
