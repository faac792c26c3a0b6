#include <algorithm>
#include <map>
#include <tuple>

#include "demo/generators.h"
#include "demo/random.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kSeed = 0x570C;

using StockKey = std::tuple<std::size_t, std::size_t, std::size_t>;

// Head office takes stock before the ninety days begin; what it counted is chosen here so that most
// goods are still there today, and a few have sold out or below.
void SetOpening(Stock& stock, Random& random) {
  const std::int64_t gone = stock.Out - stock.In;
  const std::int64_t least = random.Between(0, 60);
  stock.Opening = std::max(least, gone + random.Between(-4, 40));
}

}  // namespace

void AddStock(Franchise& franchise, const std::vector<std::vector<std::size_t>>& assortments) {
  Random random(kSeed);
  std::map<StockKey, Stock> rows;
  const auto row = [&rows](std::size_t store, std::size_t depot, std::size_t product) -> Stock& {
    Stock& stock = rows[{store, depot, product}];
    stock.Store = store;
    stock.Depot = depot;
    stock.Product = product;
    return stock;
  };
  for (const Slip& slip : franchise.Purchases) {
    for (const SlipLine& line : slip.Lines) {
      row(slip.Store, line.Depot, line.Product).In += line.Quantity;
    }
  }
  for (const Slip& slip : franchise.Sales) {
    for (const SlipLine& line : slip.Lines) {
      row(slip.Store, line.Depot, line.Product).Out += line.Quantity;
    }
  }
  // What no head office counted came to the store with a receipt.
  for (auto& [key, stock] : rows) stock.Counted = false;
  for (std::size_t store = 0; store < assortments.size(); ++store) {
    for (const std::size_t product : assortments[store]) {
      row(store, 0, product).Counted = true;
      if (random.Percent(25)) row(store, 1, product).Counted = true;
    }
  }
  for (auto& [key, stock] : rows) {
    if (stock.Counted) SetOpening(stock, random);
    franchise.StockRows.push_back(stock);
  }
}

void AddBalances(Franchise& franchise) {
  std::map<std::tuple<std::size_t, std::size_t, std::string>, Balance> rows;
  const auto row = [&rows](const Slip& slip) -> Balance& {
    const std::string month = MonthText(slip.Date);
    Balance& balance = rows[{slip.Store, slip.Partner, month}];
    balance.Store = slip.Store;
    balance.Partner = slip.Partner;
    balance.Month = month;
    return balance;
  };
  for (const Slip& slip : franchise.Purchases) row(slip).Bought += slip.Total();
  for (const Slip& slip : franchise.Sales) row(slip).Sold += slip.Total();
  for (const auto& [key, balance] : rows) franchise.Balances.push_back(balance);
}

}  // namespace store::demo
