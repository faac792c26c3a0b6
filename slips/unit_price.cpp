#include "slips/unit_price.h"

#include <algorithm>
#include <array>

#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"

namespace store {
namespace {

constexpr const char* kPartnerDecides = "4";
constexpr const char* kLevelOfParty = "NONE";
constexpr int kPriceLevels = 20;  // DP1 to DP20

/// Which party a price is for: it decides whose default level counts and which rows of UP.
enum class Side { Partner, Store };

std::string PartnerPolicyStatement(const std::string& partner) {
  return Splice(" SELECT CT_DANCK FROM CT WHERE CT_CODE = '{partner}'  ", "partner"_a = partner);
}

std::string LastTradeStatement(const std::string& partner, const std::string& product,
                               const std::string& source, const std::string& lines) {
  return Splice(
      " SELECT PS_TAXGU,PS_UP  FROM   {source} INNER JOIN {lines} ON {source}.PE_ID = "
      "{lines}.PE_ID   Where  "
      "PE_TCTCODE = '{partner}' AND PR_CODE = '{product}' ORDER BY PE_PDATE DESC limit 1 ",
      "source"_a = source, "lines"_a = lines, "partner"_a = partner, "product"_a = product);
}

std::string PartnerContractStatement(const std::string& partner, const std::string& product,
                                     const std::string& date) {
  // Under the partner's own policy a contract of any store counts, otherwise only head office's.
  const std::string clause =
      AppOptions.BulkOrderPrice == kPartnerDecides ? "" : " and rct_code = '1000'";
  return Splice(
      " SELECT  CTP_GU,CTP_UP  FROM   CTP   Where  CT_CODE    = '{partner}' AND         PR_CODE = "
      "'{product}' "
      "AND         ((CTP_FDATE <= '{date}'   AND  CTP_TDATE >= '{date}' ) OR (CTP_FDATE = "
      "'0000-00-00' "
      "AND CTP_TDATE = '0000-00-00')) {clause}",
      "partner"_a = partner, "product"_a = product, "date"_a = date, "clause"_a = clause);
}

std::string StoreContractStatement(const std::string& storeCode, const std::string& product,
                                   const std::string& date) {
  return Splice(
      " SELECT  CTP_GU,CTP_UP  FROM   RCTP   Where  RCT_CODE    = '{store}' AND         PR_CODE = "
      "'{product}' AND         ((CTP_FDATE <= '{date}'   AND  CTP_TDATE >= '{date}' ) OR "
      "(CTP_FDATE = "
      "'0000-00-00' AND CTP_TDATE = '0000-00-00')) ",
      "store"_a = storeCode, "product"_a = product, "date"_a = date);
}

std::string PartnerLevelStatement(const std::string& partner) {
  return Splice(" SELECT CT_DANLV FROM CT WHERE CT_CODE = '{partner}'  ", "partner"_a = partner);
}

std::string StoreLevelStatement(const std::string& storeCode) {
  return Splice(" SELECT RCT_DANLV FROM RCT WHERE RCT_CODE = '{store}'  ", "store"_a = storeCode);
}

std::string ThirdPriceStatement(const std::string& product) {
  return Splice(" SELECT PR_OP2 AS COL0  FROM   PR   Where  PR_CODE = '{product}'  ",
                "product"_a = product);
}

std::string SalePriceStatement(const std::string& product) {
  return Splice(" SELECT PR_OP1 AS COL0   FROM   PR   Where  PR_CODE = '{product}'  ",
                "product"_a = product);
}

std::string LevelPriceStatement(const std::string& product, int column, const std::string& kind) {
  return Splice(
      " SELECT DP{column}  AS COL0  FROM   UP   Where  DP_GUBUN = '{kind}' AND PR_CODE = "
      "'{product}'  ",
      "column"_a = std::to_string(column), "kind"_a = kind, "product"_a = product);
}

std::string OrderSettingStatement(const std::string& partner, const std::string& product) {
  if (partner.empty()) {
    return Splice(
        " SELECT ORD_UP FROM SAFEIV WHERE RCT_CODE = '{store}' AND PR_CODE = '{product}'  ",
        "store"_a = Session.StoreCode, "product"_a = product);
  }
  return Splice(
      " SELECT ORD_UP FROM SAFEIV WHERE RCT_CODE = '{store}' AND PR_CODE = '{product}' AND CT_CODE "
      "= '{partner}'  ",
      "store"_a = Session.StoreCode, "product"_a = product, "partner"_a = partner);
}

/// The reads that a price is made of. A failed one counts as one without a row, and is remembered.
class PriceReads {
 public:
  bool Failed = false;

  /// How many rows the statement gives.
  std::int32_t Rows(const std::string& statement, StringTable& found) {
    SqlText = statement;
    std::int32_t rows = 0;
    std::int32_t highestColumn = 0;
    CloseRecordset(SlotA);
    QueryRows(SqlText, found, rows, highestColumn);
    if (rows == 0 && !SlotA) Failed = true;
    return rows;
  }
  std::string Text(const std::string& statement) {
    StringTable found;
    return Rows(statement, found) > 0 ? found.At(1, 0) : "0";
  }
};

double LastTradePrice(PriceReads& reads, const std::string& partner, const std::string& product,
                      const std::string& source) {
  const std::string lines = source == "PES13" ? "PSS13" : "PSM23";
  StringTable found;
  const std::int32_t rows = reads.Rows(LastTradeStatement(partner, product, source, lines), found);
  return rows > 0 ? ParseNumber(found.At(1, 1)) : 0;
}

double PriceFromLevel(PriceReads& reads, Side side, const std::string& party,
                      const std::string& product, std::string level) {
  if (level == kLevelOfParty) {
    level = RightChars(reads.Text(side == Side::Partner ? PartnerLevelStatement(party)
                                                        : StoreLevelStatement(party)),
                       2);
  }
  std::int16_t n = 0;
  ToInt16(ParseNumber(level) - 2, n);
  if (n == -1) return ParseNumber(reads.Text(ThirdPriceStatement(product)));
  if (n == 0) return ParseNumber(reads.Text(SalePriceStatement(product)));
  const std::string statement = LevelPriceStatement(product, n, side == Side::Partner ? "C" : "R");
  if (n >= 1 && n <= kPriceLevels) return ParseNumber(reads.Text(statement));
  // A level that means nothing names a column that does not exist; the refusal reads as 0.
  return ParseNumber(PriceReads().Text(statement));
}

/// The price of a contract row, or of the level that the row names in its place; without a row, of
/// the party's own level.
double PriceOfContract(PriceReads& reads, Side side, const std::string& party,
                       const std::string& product, const std::string& statement) {
  StringTable found;
  if (reads.Rows(statement, found) == 0) {
    return PriceFromLevel(reads, side, party, product, kLevelOfParty);
  }
  const double price = ParseNumber(found.At(1, 1));
  return price != 0 ? price : PriceFromLevel(reads, side, party, product, found.At(1, 0));
}

double ContractPrice(PriceReads& reads, const std::string& partner, const std::string& product,
                     const std::string& date) {
  return PriceOfContract(reads, Side::Partner, partner, product,
                         PartnerContractStatement(partner, product, date));
}

double OrderSettingPrice(PriceReads& reads, const std::string& partner,
                         const std::string& product) {
  return ParseNumber(reads.Text(OrderSettingStatement(partner, product)));
}

/// The header table that holds the trades of a slip kind's side; empty for a kind of neither.
std::string TradeTable(const std::string& slipKind) {
  static constexpr std::array<const char*, 3> sale = {"11", "12", "13"};
  static constexpr std::array<const char*, 3> purchase = {"21", "22", "23"};
  const std::string kind = RightChars(slipKind, 2);
  if (std::find(sale.begin(), sale.end(), kind) != sale.end()) return "PES13";
  if (std::find(purchase.begin(), purchase.end(), kind) != purchase.end()) return "PEM23";
  return "";
}

double UnitPrice(PriceReads& reads, const std::string& partner, const std::string& product,
                 const std::string& date, const std::string& kindOverride,
                 const std::string& slipKind) {
  std::string policy = AppOptions.BulkOrderPrice;
  if (policy == kPartnerDecides) {
    policy = kindOverride.empty() ? reads.Text(PartnerPolicyStatement(partner)) : kindOverride;
  }
  // Options that were never saved leave no digit; an order then has no price.
  if (!IsNumeric(policy)) return 0;
  if (ParseNumber(policy) == 5) return OrderSettingPrice(reads, partner, product);
  const std::string source = TradeTable(slipKind);
  if (source.empty()) return 0;
  if (policy == "0") return LastTradePrice(reads, partner, product, source);
  if (policy == "1") return ContractPrice(reads, partner, product, date);
  if (policy == "2") {
    const double price = LastTradePrice(reads, partner, product, source);
    return price != 0 ? price : ContractPrice(reads, partner, product, date);
  }
  if (policy == "3") {
    const double price = ContractPrice(reads, partner, product, date);
    return price != 0 ? price : LastTradePrice(reads, partner, product, source);
  }
  return 0;
}

std::optional<double> Read(const PriceReads& reads, double price) {
  return reads.Failed ? std::nullopt : std::optional<double>(price);
}

}  // namespace

std::optional<double> ResolveUnitPrice(const std::string& partner, const std::string& product,
                                       const std::string& date, const std::string& kindOverride,
                                       const std::string& slipKind, const std::string& /*unused*/) {
  PriceReads reads;
  return Read(reads, UnitPrice(reads, partner, product, date, kindOverride, slipKind));
}

std::optional<double> ResolveStorePrice(const std::string& storeCode, const std::string& product,
                                        const std::string& date) {
  PriceReads reads;
  return Read(reads, PriceOfContract(reads, Side::Store, storeCode, product,
                                     StoreContractStatement(storeCode, product, date)));
}

}  // namespace store
