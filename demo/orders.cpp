#include <algorithm>
#include <array>
#include <string_view>

#include "demo/demo_slip_keys.h"
#include "demo/generators.h"
#include "demo/random.h"

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
  OrderMaker(Franchise& franchise, DemoSlipKeys& keys, Day today)
      : franchise_(franchise), keys_(keys), today_(today), random_(kSeed) {
    offers_.resize(franchise.Partners.size());
    for (std::size_t i = 0; i < franchise.Products.size(); ++i) {
      const Product& product = franchise.Products[i];
      if (!product.Ended) offers_[product.Partner].push_back(i);
    }
    for (std::size_t i = 0; i < offers_.size(); ++i) {
      if (franchise.Partners[i].Orderable() && !offers_[i].empty()) suppliers_.push_back(i);
    }
  }

  [[nodiscard]] bool HasSuppliers() const { return !suppliers_.empty(); }

  void Add(std::size_t n) {
    const bool first = n < kFirstStates.size();
    Slip order;
    order.State = first ? kFirstStates[n] : random_.Pick(kStates);
    order.Store = first ? kMainStore : PickStore();
    order.Partner = random_.Pick(suppliers_);
    const Day written = DayOfWriting(order.State, first);
    order.Date = written;
    // A store may ask for a later day than that of writing.
    if (!first && written < today_ && random_.Percent(15)) order.Date += std::chrono::days(1);
    Stamp(order, written, "22");
    order.Link.assign(1, ' ');
    if (order.State >= '2' && random_.Percent(40)) order.Conditions = Conditions(written);
    AddLines(order);
    if (order.State == '4') Receive(order);
    franchise_.Orders.push_back(std::move(order));
  }

 private:
  std::size_t PickStore() {
    if (random_.Percent(60)) return kMainStore;
    return kMainStore + 1 + random_.Index(franchise_.Stores.size() - kMainStore - 1);
  }

  // Open orders are of the last days, closed and dropped ones lie further back.
  Day DayOfWriting(char state, bool first) {
    if (state >= '4') return today_ - std::chrono::days(random_.Between(3, kHistoryDays));
    if (first) return today_;
    return today_ - std::chrono::days(random_.Between(0, 9));
  }

  void Stamp(Slip& slip, Day written, std::string_view kind) {
    const Store& store = franchise_.Stores[slip.Store];
    slip.User = random_.Pick(store.Users).Code;
    slip.Id = keys_.Next(written, store.Code, slip.User, kind);
    slip.StoredAt = MomentText(written, static_cast<int>(random_.Between(420, 1200)));
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
    const auto& goods = offers_[order.Partner];
    const std::size_t most = std::min<std::size_t>(30, goods.size());
    const std::size_t count = 1 + random_.Index(most);
    const std::size_t step = std::max<std::size_t>(1, goods.size() / count);
    const std::size_t start = random_.Index(goods.size());
    const std::size_t depot = random_.Percent(80) ? 0 : 1;
    for (std::size_t i = 0; i < count; ++i) {
      SlipLine line;
      line.Product = goods[(start + i * step) % goods.size()];
      line.Depot = depot;
      const Product& product = franchise_.Products[line.Product];
      line.Price = product.Buy > 0 ? product.Buy : product.Consumer;
      line.Quantity = QuantityAt(line.Price);
      if (order.State == '3' || order.State == '4') line.OtherQuantity = Shipped(line.Quantity);
      line.Money = MoneyOf(line.Quantity, line.Price, product.Tax);
      order.Lines.push_back(line);
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
    receipt.Store = order.Store;
    receipt.Partner = order.Partner;
    receipt.Date = std::min(order.Date + std::chrono::days(random_.Between(1, 3)), today_);
    for (const SlipLine& ordered : order.Lines) {
      if (ordered.OtherQuantity == 0) continue;
      SlipLine line = ordered;
      line.Quantity = ordered.OtherQuantity;
      line.OtherQuantity = ordered.Quantity;
      line.Money = MoneyOf(line.Quantity, line.Price, franchise_.Products[line.Product].Tax);
      receipt.Lines.push_back(line);
    }
    if (receipt.Lines.empty()) {
      order.Lines.front().OtherQuantity = order.Lines.front().Quantity;
      receipt.Lines.push_back(order.Lines.front());
    }
    Stamp(receipt, receipt.Date, "23");
    receipt.Link = order.Id;
    order.Link = receipt.Id;
    franchise_.Purchases.push_back(std::move(receipt));
  }

  Franchise& franchise_;
  DemoSlipKeys& keys_;
  Day today_;
  Random random_;
  // Products in use by supplier, and the suppliers that have any.
  std::vector<std::vector<std::size_t>> offers_;
  std::vector<std::size_t> suppliers_;
};

}  // namespace

void AddOrders(Franchise& franchise, DemoSlipKeys& keys, const Options& options) {
  OrderMaker maker(franchise, keys, options.Today);
  if (!maker.HasSuppliers()) return;
  for (std::size_t n = 0; n < options.Slips; ++n) maker.Add(n);
}

}  // namespace store::demo
