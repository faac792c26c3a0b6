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
  const std::int64_t gone = stock.out - stock.in;
  const std::int64_t least = random.Between(0, 60);
  stock.opening = std::max(least, gone + random.Between(-4, 40));
}

}  // namespace

void AddStock(Franchise& franchise, const std::vector<std::vector<std::size_t>>& assortments) {
  Random random(kSeed);
  std::map<StockKey, Stock> rows;
  const auto row = [&rows](std::size_t store, std::size_t depot, std::size_t product) -> Stock& {
    Stock& stock = rows[{store, depot, product}];
    stock.store = store;
    stock.depot = depot;
    stock.product = product;
    return stock;
  };
  for (const Slip& slip : franchise.purchases) {
    for (const SlipLine& line : slip.lines) {
      row(slip.store, line.depot, line.product).in += line.quantity;
    }
  }
  for (const Slip& slip : franchise.sales) {
    for (const SlipLine& line : slip.lines) {
      row(slip.store, line.depot, line.product).out += line.quantity;
    }
  }
  // What no head office counted came to the store with a receipt.
  for (auto& [key, stock] : rows) stock.counted = false;
  for (std::size_t store = 0; store < assortments.size(); ++store) {
    for (const std::size_t product : assortments[store]) {
      row(store, 0, product).counted = true;
      if (random.Percent(25)) row(store, 1, product).counted = true;
    }
  }
  for (auto& [key, stock] : rows) {
    if (stock.counted) SetOpening(stock, random);
    franchise.stock.push_back(stock);
  }
}

void AddBalances(Franchise& franchise) {
  std::map<std::tuple<std::size_t, std::size_t, std::string>, Balance> rows;
  const auto row = [&rows](const Slip& slip) -> Balance& {
    const std::string month = MonthText(slip.day);
    Balance& balance = rows[{slip.store, slip.partner, month}];
    balance.store = slip.store;
    balance.partner = slip.partner;
    balance.month = month;
    return balance;
  };
  for (const Slip& slip : franchise.purchases) row(slip).bought += slip.Total();
  for (const Slip& slip : franchise.sales) row(slip).sold += slip.Total();
  for (const auto& [key, balance] : rows) franchise.balances.push_back(balance);
}

}  // namespace store::demo
