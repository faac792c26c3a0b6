#include <algorithm>
#include <array>
#include <string_view>

#include "demo/generators.h"
#include "demo/random.h"
#include "demo/slip_keys.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kSeed = 0x08DE85;
constexpr int kHistoryDays = 85;

// The first seven orders stand in the seven different states, so that even a handful shows all;
// after that most orders have been received, and one in twenty was dropped by head office.
constexpr std::string_view kFirstStates = "0123489";
constexpr std::string_view kStates = "4444444444444444333333332222222111100089";

constexpr std::array<std::int64_t, 9> kQuantities = {1, 2, 3, 5, 6, 10, 12, 20, 24};
// No store puts more than this into one good.
constexpr Won kMostPerLine = 300'000;

class OrderMaker {
 public:
  OrderMaker(Franchise& franchise, SlipKeys& keys, Day today)
      : franchise_(franchise), keys_(keys), today_(today), random_(kSeed) {
    offers_.resize(franchise.partners.size());
    for (std::size_t i = 0; i < franchise.products.size(); ++i) {
      const Product& product = franchise.products[i];
      if (!product.ended) offers_[product.partner].push_back(i);
    }
    for (std::size_t i = 0; i < offers_.size(); ++i) {
      if (franchise.partners[i].Orderable() && !offers_[i].empty()) suppliers_.push_back(i);
    }
  }

  [[nodiscard]] bool HasSuppliers() const { return !suppliers_.empty(); }

  void Add(std::size_t n) {
    const bool first = n < kFirstStates.size();
    Slip order;
    order.state = first ? kFirstStates[n] : random_.Pick(kStates);
    order.store = first ? kMainStore : PickStore();
    order.partner = random_.Pick(suppliers_);
    const Day written = DayOfWriting(order.state, first);
    order.day = written;
    // A store may ask for a later day than that of writing.
    if (!first && written < today_ && random_.Percent(15)) order.day += std::chrono::days(1);
    Stamp(order, written, "22");
    order.link.assign(1, ' ');
    if (order.state >= '2' && random_.Percent(40)) order.conditions = Conditions(written);
    AddLines(order);
    if (order.state == '4') Receive(order);
    franchise_.orders.push_back(std::move(order));
  }

 private:
  std::size_t PickStore() {
    if (random_.Percent(60)) return kMainStore;
    return kMainStore + 1 + random_.Index(franchise_.stores.size() - kMainStore - 1);
  }

  // Open orders are of the last days, closed and dropped ones lie further back.
  Day DayOfWriting(char state, bool first) {
    if (state >= '4') return today_ - std::chrono::days(random_.Between(3, kHistoryDays));
    if (first) return today_;
    return today_ - std::chrono::days(random_.Between(0, 9));
  }

  void Stamp(Slip& slip, Day written, std::string_view kind) {
    const Store& store = franchise_.stores[slip.store];
    slip.user = random_.Pick(store.staff).code;
    slip.id = keys_.Next(written, store.code, slip.user, kind);
    slip.stored_at = MomentText(written, static_cast<int>(random_.Between(420, 1200)));
  }

  std::vector<std::string> Conditions(Day written) {
    static constexpr std::array kTerms = {"월말 마감 익월 10일 결제", "납품 후 현금 결제",
                                          "15일 여신"};
    static constexpr std::array kPlaces = {"매장 후문 하역장", "외부창고", "매장 정문"};
    return {random_.Pick(kTerms),
            DateText(written + std::chrono::days(random_.Between(1, 4))),
            DateText(written + std::chrono::days(30)),
            random_.Pick(kPlaces),
            random_.Percent(50) ? "일괄 납품" : "분할 납품",
            "오전 10시 이전 도착",
            random_.Percent(50) ? "냉장차 배송" : "",
            ""};
  }

  // A run through the supplier's goods at equal steps: no product twice.
  void AddLines(Slip& order) {
    const auto& goods = offers_[order.partner];
    const std::size_t most = std::min<std::size_t>(30, goods.size());
    const std::size_t count = 1 + random_.Index(most);
    const std::size_t step = std::max<std::size_t>(1, goods.size() / count);
    const std::size_t start = random_.Index(goods.size());
    const std::size_t depot = random_.Percent(80) ? 0 : 1;
    for (std::size_t i = 0; i < count; ++i) {
      SlipLine line;
      line.product = goods[(start + i * step) % goods.size()];
      line.depot = depot;
      const Product& product = franchise_.products[line.product];
      line.price = product.buy > 0 ? product.buy : product.consumer;
      line.quantity = QuantityAt(line.price);
      if (order.state == '3' || order.state == '4') line.other_quantity = Shipped(line.quantity);
      line.money = MoneyOf(line.quantity, line.price, product.tax);
      order.lines.push_back(line);
    }
  }

  std::int64_t QuantityAt(Won price) {
    const std::int64_t wanted = random_.Pick(kQuantities);
    if (price * wanted <= kMostPerLine) return wanted;
    return std::max<std::int64_t>(1, kMostPerLine / price);
  }

  // Logistics does not always have all that was asked for.
  std::int64_t Shipped(std::int64_t ordered) {
    if (random_.Percent(85)) return ordered;
    return random_.Between(0, ordered);
  }

  // The receipt posts what was shipped and leaves out what did not come at all; the two documents
  // name each other.
  void Receive(Slip& order) {
    Slip receipt;
    receipt.store = order.store;
    receipt.partner = order.partner;
    receipt.day = std::min(order.day + std::chrono::days(random_.Between(1, 3)), today_);
    for (const SlipLine& ordered : order.lines) {
      if (ordered.other_quantity == 0) continue;
      SlipLine line = ordered;
      line.quantity = ordered.other_quantity;
      line.other_quantity = ordered.quantity;
      line.money = MoneyOf(line.quantity, line.price, franchise_.products[line.product].tax);
      receipt.lines.push_back(line);
    }
    if (receipt.lines.empty()) {
      order.lines.front().other_quantity = order.lines.front().quantity;
      receipt.lines.push_back(order.lines.front());
    }
    Stamp(receipt, receipt.day, "23");
    receipt.link = order.id;
    order.link = receipt.id;
    franchise_.purchases.push_back(std::move(receipt));
  }

  Franchise& franchise_;
  SlipKeys& keys_;
  Day today_;
  Random random_;
  // Products in use by supplier, and the suppliers that have any.
  std::vector<std::vector<std::size_t>> offers_;
  std::vector<std::size_t> suppliers_;
};

}  // namespace

void AddOrders(Franchise& franchise, SlipKeys& keys, const Options& options) {
  OrderMaker maker(franchise, keys, options.today);
  if (!maker.HasSuppliers()) return;
  for (std::size_t n = 0; n < options.slips; ++n) maker.Add(n);
}

}  // namespace store::demo
