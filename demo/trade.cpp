#include <algorithm>

#include "demo/demo_slip_keys.h"
#include "demo/generators.h"
#include "demo/random.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kAssortmentSeed = 0xA5508;
constexpr std::uint64_t kTradeSeed = 0x78ADE;
constexpr int kDays = 90;
constexpr std::int64_t kMostCarried = 3'000;
constexpr std::size_t kBestSellers = 50;

class TradeMaker {
 public:
  TradeMaker(Franchise& franchise, DemoSlipKeys& keys,
             const std::vector<std::vector<std::size_t>>& assortments)
      : franchise_(franchise), keys_(keys), assortments_(assortments), random_(kTradeSeed) {
    for (std::size_t i = 0; i < franchise.Partners.size(); ++i) {
      if (franchise.Partners[i].Kind == '1') customers_.push_back(i);
    }
  }

  void SellOn(Day day, std::size_t store) {
    if (assortments_[store].empty()) return;
    Slip slip = Start(day, store, random_.Pick(customers_), "13");
    const auto count = random_.Between(6, store == kMainStore ? 24 : 14);
    for (std::int64_t i = 0; i < count; ++i) {
      const std::size_t product = PickSeller(assortments_[store]);
      AddLine(slip, product, random_.Between(1, 6), franchise_.Products[product].Sell);
    }
    franchise_.Sales.push_back(std::move(slip));
  }

  void BuyOn(Day day, std::size_t store) {
    if (assortments_[store].empty()) return;
    // A good that ran out decides whom the store buys from; what else it takes is the same
    // partner's.
    const std::size_t wanted = random_.Pick(assortments_[store]);
    const std::size_t partner = franchise_.Products[wanted].Partner;
    Slip slip = Start(day, store, partner, "23");
    const auto most = static_cast<std::size_t>(random_.Between(3, 18));
    for (const std::size_t product : assortments_[store]) {
      if (slip.Lines.size() == most) break;
      if (product != wanted &&
          (franchise_.Products[product].Partner != partner || !random_.Percent(45))) {
        continue;
      }
      // Prices paid drift by a few percent around the list price.
      const Won price = franchise_.Products[product].Buy * random_.Between(96, 102) / 1000 * 10;
      AddLine(slip, product, random_.Between(1, 8) * 6, price);
    }
    if (!slip.Lines.empty()) franchise_.Purchases.push_back(std::move(slip));
  }

  bool Percent(int chance) { return random_.Percent(chance); }

 private:
  Slip Start(Day day, std::size_t store, std::size_t partner, std::string_view kind) {
    Slip slip;
    slip.Store = store;
    slip.Partner = partner;
    slip.Date = day;
    slip.User = random_.Pick(franchise_.Stores[store].Users).Code;
    slip.Id = keys_.Next(day, franchise_.Stores[store].Code, slip.User, kind);
    // The handheld stores the day without a time.
    slip.StoredAt = MomentText(day, 0);
    return slip;
  }

  void AddLine(Slip& slip, std::size_t product, std::int64_t quantity, Won price) const {
    SlipLine line;
    line.Product = product;
    line.Quantity = quantity;
    line.Price = price;
    line.Money = MoneyOf(quantity, price, franchise_.Products[product].Tax);
    slip.Lines.push_back(line);
  }

  // Half of what goes over the counter is a few goods, sold nearly every other day.
  std::size_t PickSeller(const std::vector<std::size_t>& assortment) {
    const std::size_t among =
        random_.Percent(50) ? std::min(kBestSellers, assortment.size()) : assortment.size();
    return assortment[random_.Index(among)];
  }

  Franchise& franchise_;
  DemoSlipKeys& keys_;
  const std::vector<std::vector<std::size_t>>& assortments_;
  Random random_;
  std::vector<std::size_t> customers_;
};

}  // namespace

std::vector<std::vector<std::size_t>> Assortments(const Franchise& franchise) {
  Random random(kAssortmentSeed);
  std::vector<std::vector<std::size_t>> assortments(franchise.Stores.size());
  const auto all = static_cast<std::int64_t>(franchise.Products.size());
  for (auto& assortment : assortments) {
    for (std::size_t i = 0; i < franchise.Products.size(); ++i) {
      const bool carried = random.OneOf(std::min(all * 6 / 10 + 1, kMostCarried), all);
      if (carried && !franchise.Products[i].Ended) assortment.push_back(i);
    }
  }
  return assortments;
}

void AddTrade(Franchise& franchise, DemoSlipKeys& keys,
              const std::vector<std::vector<std::size_t>>& assortments, Day today) {
  TradeMaker maker(franchise, keys, assortments);
  for (int back = kDays; back >= 1; --back) {
    const Day day = today - std::chrono::days(back);
    for (std::size_t store = kMainStore; store < franchise.Stores.size(); ++store) {
      maker.SellOn(day, store);
      if (store == kMainStore) {
        maker.SellOn(day, store);
        maker.SellOn(day, store);
      }
      if (maker.Percent(store == kMainStore ? 80 : 40)) maker.BuyOn(day, store);
    }
  }
}

}  // namespace store::demo
