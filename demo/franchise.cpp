#include "demo/franchise.h"

#include <algorithm>

#include "demo/demo_slip_keys.h"
#include "demo/generators.h"

namespace store::demo {
namespace {

// Rows that come in key order fill the pages of the table one after another.
void SortByKey(std::vector<Slip>& slips) {
  std::sort(slips.begin(), slips.end(),
            [](const Slip& left, const Slip& right) { return left.Id < right.Id; });
}

}  // namespace

Won Slip::Amount() const {
  Won sum = 0;
  for (const SlipLine& line : Lines) sum += line.Money.Amount;
  return sum;
}

Won Slip::Tax() const {
  Won sum = 0;
  for (const SlipLine& line : Lines) sum += line.Money.Tax;
  return sum;
}

Franchise MakeFranchise(const Options& options) {
  Franchise franchise;
  franchise.Stores = MakeStores();
  franchise.Partners = MakePartners();
  franchise.BaseCodes = MakeBaseCodes();
  franchise.Notices = MakeNotices(franchise.Stores, options.Today);
  AddProducts(franchise, options);
  AddPrices(franchise, options.Today);
  AddOrderSettings(franchise);

  const auto assortments = Assortments(franchise);
  DemoSlipKeys keys;
  AddTrade(franchise, keys, assortments, options.Today);
  AddOrders(franchise, keys, options);
  AddStock(franchise, assortments);
  AddBalances(franchise);
  SortByKey(franchise.Orders);
  SortByKey(franchise.Purchases);
  SortByKey(franchise.Sales);
  return franchise;
}

}  // namespace store::demo
