#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

#include "demo/generators.h"
#include "demo/random.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kSeed = 0x570C;

using StockKey = std::tuple<std::size_t, std::size_t, std::size_t>;
using StockRows = std::map<StockKey, Stock>;

// What went over the counter beyond what came in.
std::int64_t Gone(const Stock& stock) { return stock.Out - stock.In; }

// Head office takes stock before the ninety days begin; what it counted is chosen here so that most
// goods are still there today, and a few have sold out or below.
void SetOpening(Stock& stock, Random& random) {
  const std::int64_t least = random.Between(0, 60);
  stock.Opening = std::max(least, Gone(stock) + random.Between(-4, 40));
}

bool LiesInOtherDepots(const Franchise& franchise, const StockRows& rows, const Stock& stock) {
  for (std::size_t depot = 1; depot < franchise.Stores[stock.Store].Depots.size(); ++depot) {
    if (rows.contains({stock.Store, depot, stock.Product})) return true;
  }
  return false;
}

// What sells best runs out first: of each partner's goods the main store has none, one and two left
// of the three that sold most.
void RunLowOnBestSellers(const Franchise& franchise, StockRows& rows) {
  std::map<std::size_t, std::vector<Stock*>> sellers;
  for (auto& [key, stock] : rows) {
    const bool sells = stock.Store == kMainStore && stock.Depot == 0 && stock.Counted &&
                       Gone(stock) > 0 && !LiesInOtherDepots(franchise, rows, stock);
    if (sells) sellers[franchise.Products[stock.Product].Partner].push_back(&stock);
  }
  for (auto& [partner, goods] : sellers) {
    std::stable_sort(goods.begin(), goods.end(), [](const Stock* left, const Stock* right) {
      return Gone(*left) > Gone(*right);
    });
    const auto low = static_cast<std::int64_t>(std::min<std::size_t>(3, goods.size()));
    for (std::int64_t left = 0; left < low; ++left) {
      Stock& stock = *goods[static_cast<std::size_t>(left)];
      stock.Opening = Gone(stock) + left;
    }
  }
}

}  // namespace

void AddStock(Franchise& franchise, const std::vector<std::vector<std::size_t>>& assortments) {
  Random random(kSeed);
  StockRows rows;
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
  }
  RunLowOnBestSellers(franchise, rows);
  for (const auto& [key, stock] : rows) franchise.StockRows.push_back(stock);
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
