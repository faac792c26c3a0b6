#include <algorithm>
#include <array>

#include "demo/generators.h"
#include "demo/random.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kLevelSeed = 0x1E7E1;
constexpr std::uint64_t kContractSeed = 0xC0174AC7;
constexpr std::uint64_t kStoreContractSeed = 0x5C0174AC;
constexpr std::uint64_t kSettingSeed = 0x5AFE;

// Head office keeps prices and settings for its main goods, not for a whole catalogue. With a small
// catalogue that is the given share of it, with a large one about that many rows.
constexpr std::int64_t kMostPriced = 20'000;
constexpr std::int64_t kMostSettings = 4'000;
const char* const kAlways = "0000-00-00";

bool IsMainGood(Random& random, std::size_t products, std::int64_t percent, std::int64_t most) {
  const auto all = static_cast<std::int64_t>(products);
  return random.OneOf(std::min(all * percent / 100, most), all);
}

LevelPrice MakeLevels(std::size_t store, std::size_t index, const Product& product, char side,
                      Random& random) {
  LevelPrice row{store, index, side, {}};
  // Each level a percent or two above the last; a few levels are left open.
  Won percent = side == 'C' ? 100 : 108;
  for (Won& price : row.Prices) {
    percent += random.Between(1, 2);
    price = random.Percent(4) ? 0 : product.Buy * percent / 1000 * 10;
  }
  return row;
}

void AddLevelPrices(Franchise& franchise) {
  Random random(kLevelSeed);
  const auto& products = franchise.Products;
  for (std::size_t i = 0; i < products.size(); ++i) {
    if (!IsMainGood(random, products.size(), 70, kMostPriced)) continue;
    // Mostly one row a product and side, by head office or by the one store with lists of its own.
    const auto roll = random.Between(1, 100);
    for (const char side : {'C', 'R'}) {
      if (roll <= 65) {
        franchise.LevelPrices.push_back(MakeLevels(kHeadOffice, i, products[i], side, random));
      }
      if (roll > 60) {
        franchise.LevelPrices.push_back(MakeLevels(kMainStore, i, products[i], side, random));
      }
    }
  }
}

// What stands in a contract row: prices in force now, for ever, no more, not yet, a level in place
// of a price, and rows without a last day, which are in force on no date.
ContractTerm MakeTerm(Day today, Won price, Random& random) {
  const auto before = [&](int least, int most) {
    return DateText(today - std::chrono::days(random.Between(least, most)));
  };
  const auto after = [&](int least, int most) {
    return DateText(today + std::chrono::days(random.Between(least, most)));
  };
  const auto roll = random.Between(1, 100);
  if (roll <= 50) return {"", price, before(0, 90), after(0, 180)};
  if (roll <= 65) return {"", price, kAlways, kAlways};
  if (roll <= 78) return {"", price, before(100, 200), before(1, 60)};
  if (roll <= 84) return {"", price, after(1, 30), after(60, 120)};
  if (roll <= 87) return {"", price, before(5, 50), kAlways};
  static constexpr std::array kLevels = {"1", "2", "3", "4", "05", "12"};
  const char* level = random.Pick(kLevels);
  if (roll <= 94) return {level, 0, before(0, 90), after(0, 180)};
  return {level, 0, kAlways, kAlways};
}

Won ContractPriceOf(const Product& product, Random& random) {
  return std::max<Won>(product.Buy * random.Between(88, 97) / 1000 * 10, 10);
}

void AddPartnerContracts(Franchise& franchise, Day today) {
  Random random(kContractSeed);
  const auto& products = franchise.Products;
  for (std::size_t i = 0; i < products.size(); ++i) {
    const Product& product = products[i];
    if (!IsMainGood(random, products.size(), 35, kMostPriced)) continue;
    // Most contracts are head office's; some stores bargain for themselves.
    const std::size_t store =
        random.Percent(85) ? kHeadOffice : random.Index(franchise.Stores.size());
    franchise.Contracts.push_back(
        {product.Partner, store, i, MakeTerm(today, ContractPriceOf(product, random), random)});
  }
}

void AddStoreContracts(Franchise& franchise, Day today) {
  Random random(kStoreContractSeed);
  const auto& products = franchise.Products;
  for (std::size_t store = kMainStore; store < franchise.Stores.size(); ++store) {
    for (std::size_t i = 0; i < products.size(); ++i) {
      if (!IsMainGood(random, products.size(), 8, kMostSettings)) continue;
      const Won price = std::max<Won>(products[i].Sell * random.Between(90, 98) / 1000 * 10, 10);
      franchise.StoreContracts.push_back({store, i, MakeTerm(today, price, random)});
    }
  }
}

}  // namespace

void AddPrices(Franchise& franchise, Day today) {
  AddLevelPrices(franchise);
  AddPartnerContracts(franchise, today);
  AddStoreContracts(franchise, today);
}

void AddOrderSettings(Franchise& franchise) {
  Random random(kSettingSeed);
  const auto& products = franchise.Products;
  static constexpr std::array<std::int64_t, 6> kUnits = {1, 1, 6, 10, 12, 24};
  for (std::size_t store = kMainStore; store < franchise.Stores.size(); ++store) {
    for (std::size_t i = 0; i < products.size(); ++i) {
      const Product& product = products[i];
      // A store works with two suppliers in three; every store leaves out others.
      const bool worksWith = (product.Partner + store) % 3 != 2;
      if (!worksWith || !franchise.Partners[product.Partner].Orderable()) continue;
      if (!IsMainGood(random, products.size(), 80, kMostSettings)) continue;
      OrderSetting setting{store, i, true, random.Between(0, 12) * 5, random.Pick(kUnits), 0};
      setting.WithPartner = !random.Percent(3);
      if (!random.Percent(6)) setting.Price = product.Buy;
      franchise.Settings.push_back(setting);
    }
  }
}

}  // namespace store::demo
