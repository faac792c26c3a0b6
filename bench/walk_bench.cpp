// The walk from the read sales and stock into the pick list, alone: neither a server nor a window
// has a share in it.
#include <algorithm>
#include <cstdio>
#include <numeric>
#include <random>

#include "bench/benches.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "order/frm_Order01.h"

namespace store {
namespace {

constexpr int kFewest = 2000;
constexpr int kMost = 200000;
constexpr int kItemsMeasured = 1000000;  // at each size, in as many rounds as that takes

std::string CodeOf(int item) { return std::to_string(1000000 + item); }

std::unique_ptr<Recordset> Sales(int items) {
  auto sales = std::make_unique<Recordset>(std::vector<std::string>{
      "PR_CODE", "C1", "C2", "PR_BCODE", "PR_NAME", "PR_STD", "SUM(B.PS_SQTY)/1", "IV"});
  for (int item = 0; item < items; ++item) {
    const std::string number = std::to_string(item);
    sales->Append(CodeOf(item));
    sales->Append(" ");
    sales->Append("음료 · 생수");
    sales->Append("88" + std::to_string(10000000000 + item));
    sales->Append("고운 신선한 사이다 " + number);
    sales->Append("1.5L*12");
    sales->Append(std::to_string(1 + item % 300));
    sales->Append(" ");
    sales->EndRow();
  }
  sales->Seal();
  return sales;
}

/// The stock of the same items, in an order that has nothing to do with theirs.
std::unique_ptr<Recordset> Stock(int items) {
  std::vector<int> order(static_cast<size_t>(items));
  std::iota(order.begin(), order.end(), 0);
  std::shuffle(order.begin(), order.end(), std::mt19937(1));
  auto stock =
      std::make_unique<Recordset>(std::vector<std::string>{"PR_CODE", "SUM(BSQTY+INQTY-OTQTY)"});
  for (const int item : order) {
    stock->Append(CodeOf(item));
    stock->Append(std::to_string(item % 170));
    stock->EndRow();
  }
  stock->Seal();
  return stock;
}

/// Answers a read with rows that were made before it.
class ReadyRows : public DataTier {
 public:
  explicit ReadyRows(int items) : sales_(Sales(items)), stock_(Stock(items)) {}
  std::unique_ptr<Recordset> GETSQL(const std::string& statement, std::string& /*errorText*/,
                                    const std::string& /*connectString*/) override {
    return std::move(statement.find(" FROM IV ") == std::string::npos ? sales_ : stock_);
  }
  bool PUTSQL(const std::vector<std::string>& /*statements*/, std::string& /*errorText*/,
              const std::string& /*connectString*/) override {
    return false;
  }

 private:
  std::unique_ptr<Recordset> sales_;
  std::unique_ptr<Recordset> stock_;
};

/// Hands out a tier of its own in place of the one that reaches the server.
class ReadyDataSpace : public DataSpaceObject {
 public:
  explicit ReadyDataSpace(int items) : rows_(std::make_shared<ReadyRows>(items)) {}
  std::shared_ptr<DataTier> CreateObject(const std::string& /*progId*/,
                                         const std::string& /*address*/) override {
    return rows_;
  }

 private:
  std::shared_ptr<DataTier> rows_;
};

/// Seconds that the walk takes for an item, at the best of several walks.
double TimeAnItem(frm_Order01& order, int items) {
  double shortest = 1e9;
  for (int round = 0; round < std::max(15, kItemsMeasured / items); ++round) {
    order.FLEX2.SetRows(1);
    DataSpace = std::make_unique<ReadyDataSpace>(items);
    shortest = std::min(shortest, TimeOf([&] { order.LaEP_Click(0); }));
  }
  std::printf("  %d items: %.3f us an item\n", order.FLEX2.Rows() - 1, shortest / items * 1e6);
  return shortest / items;
}

}  // namespace

void BenchWalk(RatioTable& table) {
  HostDoor door = std::exchange(Host, EmptyHost());
  std::unique_ptr<DataSpaceObject> server = std::move(DataSpace);
  frm_Order01 order;
  order.Text1.SetText(kSupplier);
  order.Text1.Tag = kSupplier;
  const double few = TimeAnItem(order, kFewest);
  TimeAnItem(order, 10 * kFewest);
  const double many = TimeAnItem(order, kMost);
  table.Add("the walk into the pick list for an item of 200,000, against 2,000", many * 1e6,
            few * 1e6, "us", 1.5);
  DataSpace = std::move(server);
  Host = std::move(door);
}

}  // namespace store
