// What the main store's terminal has sent and nobody has processed yet: deliveries of some
// partners, with a barcode that nobody knows, and a count of the shelves.
#include <string>

#include "demo/franchise_sql.h"
#include "demo/sql_writer.h"

namespace store::demo {
namespace {

constexpr const char* kColumns =
    "PE_ID,DT_ID,DT_NO,DT_DATE,PR_PTNO,PS_TAXGU,PR_CODE,PR_NAME,PR_STD,PR_UNT,PS_SQTY,PS_UP,"
    "ST_CODE,PS_rctCODE,PS_rctNAME,DT_CHECK,DT_GU";
constexpr std::size_t kDelivered = 36;
constexpr std::size_t kUnknownAt = 5;
constexpr std::size_t kCounted = 30;
constexpr const char* kNobody = "1000000000000000";  // stands for the partner of a count

char MarkOf(char tax) { return tax == '1' ? '*' : tax == '2' ? '@' : '-'; }

/// Rows of one transfer, numbered on.
class Transfer {
 public:
  Transfer(TableWriter& writer, Day day, const std::string& time, std::string inspector)
      : writer_(writer), day_(DateText(day)), inspector_(std::move(inspector)) {
    for (const char c : day_) key_ += c == '-' ? "" : std::string(1, c);
    key_ += time + inspector_;
  }
  void Row(const Product& product, char mark, std::int64_t quantity, Won price,
           const std::string& partner, const std::string& name, const std::string& module) {
    ++number_;
    const std::string id = key_ + std::to_string(number_);
    writer_.Row(id, id, number_, day_, product.PartNo, mark, product.Code, product.Name,
                product.Standard, product.Unit, quantity, price, "u01", partner, name, inspector_,
                module);
  }

 private:
  TableWriter& writer_;
  std::string day_;
  std::string inspector_;
  std::string key_;
  std::size_t number_ = 0;
};

void WriteDeliveries(Transfer transfer, const Franchise& franchise) {
  Product unknown;
  unknown.Code = unknown.Name = unknown.PartNo = unknown.Standard = unknown.Unit = " ";
  std::size_t written = 0;
  for (const Slip& bought : franchise.Purchases) {
    if (bought.Store != kMainStore) continue;
    const Partner& partner = franchise.Partners[bought.Partner];
    for (const SlipLine& line : bought.Lines) {
      if (written == kDelivered) return;
      const Product& product = franchise.Products[line.Product];
      if (++written == kUnknownAt) {
        transfer.Row(unknown, '-', 4, 1200, partner.Code, partner.Name, "23");
      }
      transfer.Row(product, MarkOf(product.Tax), line.Quantity, line.Price, partner.Code,
                   partner.Name, "23");
    }
  }
}

void WriteCount(Transfer transfer, const Franchise& franchise) {
  std::size_t written = 0;
  for (const Stock& stock : franchise.StockRows) {
    const std::int64_t onFile = stock.Opening + stock.In - stock.Out;
    if (stock.Store != kMainStore || stock.Depot != 0 || onFile < 3) continue;
    if (written++ == kCounted) return;
    const Product& product = franchise.Products[stock.Product];
    const auto missing = static_cast<std::int64_t>(written % 3);
    transfer.Row(product, MarkOf(product.Tax), onFile - missing, 0, kNobody, "재고조사", "82");
  }
}

}  // namespace

void WriteStaged(std::ostream& out, const Franchise& franchise) {
  if (franchise.Orders.empty()) return;
  const Day day = franchise.Orders.back().Date;
  TableWriter writer(out, "DT900", kColumns);
  WriteDeliveries(Transfer(writer, day, "101520", "김하나"), franchise);
  WriteCount(Transfer(writer, day, "163005", "이두리"), franchise);
}

}  // namespace store::demo
