#include <algorithm>

#include "demo/generators.h"
#include "demo/random.h"
#include "demo/slip_keys.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kAssortmentSeed = 0xA5508;
constexpr std::uint64_t kTradeSeed = 0x78ADE;
constexpr int kDays = 90;
constexpr std::int64_t kMostCarried = 3'000;
constexpr std::size_t kBestSellers = 50;

class TradeMaker {
 public:
  TradeMaker(Franchise& franchise, SlipKeys& keys,
             const std::vector<std::vector<std::size_t>>& assortments)
      : franchise_(franchise), keys_(keys), assortments_(assortments), random_(kTradeSeed) {
    for (std::size_t i = 0; i < franchise.partners.size(); ++i) {
      if (franchise.partners[i].kind == '1') customers_.push_back(i);
    }
  }

  void SellOn(Day day, std::size_t store) {
    if (assortments_[store].empty()) return;
    Slip slip = Start(day, store, random_.Pick(customers_), "13");
    const auto count = random_.Between(6, store == kMainStore ? 24 : 14);
    for (std::int64_t i = 0; i < count; ++i) {
      const std::size_t product = PickSeller(assortments_[store]);
      AddLine(slip, product, random_.Between(1, 6), franchise_.products[product].sell);
    }
    franchise_.sales.push_back(std::move(slip));
  }

  void BuyOn(Day day, std::size_t store) {
    if (assortments_[store].empty()) return;
    // A good that ran out decides whom the store buys from; what else it takes is the same
    // partner's.
    const std::size_t wanted = random_.Pick(assortments_[store]);
    const std::size_t partner = franchise_.products[wanted].partner;
    Slip slip = Start(day, store, partner, "23");
    const auto most = static_cast<std::size_t>(random_.Between(3, 18));
    for (const std::size_t product : assortments_[store]) {
      if (slip.lines.size() == most) break;
      if (product != wanted &&
          (franchise_.products[product].partner != partner || !random_.Percent(45))) {
        continue;
      }
      // Prices paid drift by a few percent around the list price.
      const Won price = franchise_.products[product].buy * random_.Between(96, 102) / 1000 * 10;
      AddLine(slip, product, random_.Between(1, 8) * 6, price);
    }
    if (!slip.lines.empty()) franchise_.purchases.push_back(std::move(slip));
  }

  bool Percent(int chance) { return random_.Percent(chance); }

 private:
  Slip Start(Day day, std::size_t store, std::size_t partner, std::string_view kind) {
    Slip slip;
    slip.store = store;
    slip.partner = partner;
    slip.day = day;
    slip.user = random_.Pick(franchise_.stores[store].staff).code;
    slip.id = keys_.Next(day, franchise_.stores[store].code, slip.user, kind);
    // The handheld stores the day without a time.
    slip.stored_at = MomentText(day, 0);
    return slip;
  }

  void AddLine(Slip& slip, std::size_t product, std::int64_t quantity, Won price) const {
    SlipLine line;
    line.product = product;
    line.quantity = quantity;
    line.price = price;
    line.money = MoneyOf(quantity, price, franchise_.products[product].tax);
    slip.lines.push_back(line);
  }

  // Half of what goes over the counter is a few goods, sold nearly every other day.
  std::size_t PickSeller(const std::vector<std::size_t>& assortment) {
    const std::size_t among =
        random_.Percent(50) ? std::min(kBestSellers, assortment.size()) : assortment.size();
    return assortment[random_.Index(among)];
  }

  Franchise& franchise_;
  SlipKeys& keys_;
  const std::vector<std::vector<std::size_t>>& assortments_;
  Random random_;
  std::vector<std::size_t> customers_;
};

}  // namespace

std::vector<std::vector<std::size_t>> Assortments(const Franchise& franchise) {
  Random random(kAssortmentSeed);
  std::vector<std::vector<std::size_t>> assortments(franchise.stores.size());
  const auto all = static_cast<std::int64_t>(franchise.products.size());
  for (auto& assortment : assortments) {
    for (std::size_t i = 0; i < franchise.products.size(); ++i) {
      const bool carried = random.OneOf(std::min(all * 6 / 10 + 1, kMostCarried), all);
      if (carried && !franchise.products[i].ended) assortment.push_back(i);
    }
  }
  return assortments;
}

void AddTrade(Franchise& franchise, SlipKeys& keys,
              const std::vector<std::vector<std::size_t>>& assortments, Day today) {
  TradeMaker maker(franchise, keys, assortments);
  for (int back = kDays; back >= 1; --back) {
    const Day day = today - std::chrono::days(back);
    for (std::size_t store = kMainStore; store < franchise.stores.size(); ++store) {
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
