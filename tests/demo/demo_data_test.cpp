#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "demo/barcode.h"
#include "demo/franchise_sql.h"
#include "demo/sql_writer.h"
#include "tests/demo/insert_reader.h"

namespace store::demo {
namespace {

using Tables = std::map<std::string, std::vector<Row>>;

std::string Sql(std::size_t items, std::size_t slips, const std::string& today) {
  std::ostringstream out;
  WriteFranchise(out, MakeFranchise({items, slips, *ParseDate(today)}), "demo");
  return out.str();
}

// All the tests below look at what a server would be given.
const Tables& Demo() {
  static const Tables tables = ReadInserts(Sql(3000, 200, "2026-03-01"));
  return tables;
}

Won Number(const Row& row, const std::string& column) { return std::stoll(row.at(column)); }

std::string KeyOf(const Row& row, const std::vector<std::string>& columns) {
  std::string key;
  for (const std::string& column : columns) key += row.at(column) + "|";
  return key;
}

struct Document {
  std::string header, lines, kind;
};
const std::vector<Document> kDocuments = {
    {"PEM22", "PSM22", "22"}, {"PEM23", "PSM23", "23"}, {"PES13", "PSS13", "13"}};

TEST(Barcode, HasTheCheckDigitOfItsTwelveDigits) {
  EXPECT_EQ(CheckDigit("978030640615"), '7');
  EXPECT_EQ(CheckDigit("400638133393"), '1');
  EXPECT_EQ(CheckDigit("880000000000"), '8');
  for (const Row& product : Demo().at("PR")) {
    const std::string& code = product.at("PR_BCODE");
    ASSERT_EQ(code.size(), 13U);
    EXPECT_EQ(code.substr(0, 3), "880");
    EXPECT_EQ(CheckDigit(code.substr(0, 12)), code.back()) << code;
  }
}

TEST(LineMoney, IsRoundedPerLineByTaxKind) {
  struct Case {
    std::int64_t quantity;
    Won price;
    char kind;
    Won amount, tax;
  };
  for (const Case& c :
       {Case{1, 1100, '2', 1000, 100}, Case{1, 10, '2', 9, 1}, Case{3, 335, '2', 914, 91},
        Case{1, 14, '0', 14, 1}, Case{1, 15, '0', 15, 2}, Case{7, 1234, '1', 8638, 0},
        Case{0, 500, '0', 0, 0}, Case{0, 500, '2', 0, 0}}) {
    const LineMoney money = MoneyOf(c.quantity, c.price, c.kind);
    EXPECT_EQ(money.amount, c.amount) << c.quantity << " x " << c.price << " kind " << c.kind;
    EXPECT_EQ(money.tax, c.tax) << c.quantity << " x " << c.price << " kind " << c.kind;
  }
}

TEST(SqlWriter, KeepsQuotesBackslashesAndLineEnds) {
  const std::string text = "\\'따옴표\\' \"그대로\"\n끝 \\";
  std::ostringstream out;
  TableWriter(out, "T", "A,B").Row(text, 7);
  const Tables tables = ReadInserts(out.str());
  EXPECT_EQ(tables.at("T").at(0).at("A"), text);
  EXPECT_EQ(tables.at("T").at(0).at("B"), "7");
}

TEST(SqlWriter, StartsANewStatementAfterManyRowsAndLosesNone) {
  std::ostringstream out;
  {
    TableWriter writer(out, "T", "A");
    for (int i = 0; i < 1001; ++i) writer.Row(i);
  }
  const auto rows = ReadInserts(out.str()).at("T");
  ASSERT_EQ(rows.size(), 1001U);
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].at("A"), std::to_string(i));
}

TEST(Demo, IsTheSameTextForTheSameArgumentsOnly) {
  const std::string text = Sql(120, 30, "2026-03-01");
  EXPECT_EQ(text, Sql(120, 30, "2026-03-01"));
  EXPECT_NE(text, Sql(120, 30, "2026-03-02"));
  EXPECT_NE(text, Sql(121, 30, "2026-03-01"));
  EXPECT_NE(text, Sql(120, 31, "2026-03-01"));
}

TEST(Demo, HoldsOnTinyAndEmptyArguments) {
  for (const std::size_t items : {1U, 2U, 7U}) {
    for (const std::size_t slips : {0U, 1U, 9U}) {
      const Tables tables = ReadInserts(Sql(items, slips, "2024-02-29"));
      EXPECT_EQ(tables.at("PR").size(), items);
      EXPECT_LE(tables.count("PEM22") == 0 ? 0 : tables.at("PEM22").size(), slips);
    }
  }
}

TEST(Demo, HasUniqueKeys) {
  const std::vector<std::pair<std::string, std::vector<std::string>>> keys = {
      {"PR", {"PR_CODE"}},
      {"PR", {"PR_BCODE"}},
      {"PR", {"PR_PTNO"}},
      {"KIND", {"KD_ID"}},
      {"CT", {"CT_CODE"}},
      {"CTCOM", {"CT_CODE"}},
      {"ST", {"ST_CODE"}},
      {"HCT", {"HCT_CODE"}},
      {"BAS", {"BAS_CODE"}},
      {"UP", {"PR_CODE", "DP_GUBUN", "RCT_CODE"}},
      {"SAFEIV", {"RCT_CODE", "PR_CODE", "CT_CODE"}},
      {"IV", {"RCT_CODE", "HCT_CODE", "PR_CODE"}},
      {"CMM", {"CM_FCTCODE", "CM_TCTCODE", "CM_MGU", "CM_MM"}},
      {"PEM22", {"PE_ID"}},
      {"PEM23", {"PE_ID"}},
      {"PES13", {"PE_ID"}},
      {"PSM22", {"PE_ID", "PS_NO"}},
      {"PSM23", {"PE_ID", "PS_NO"}},
      {"PSS13", {"PE_ID", "PS_NO"}},
  };
  for (const auto& [table, columns] : keys) {
    std::set<std::string> seen;
    for (const Row& row : Demo().at(table)) {
      EXPECT_TRUE(seen.insert(KeyOf(row, columns)).second) << table << " " << KeyOf(row, columns);
    }
  }
}

TEST(Demo, ComposesDocumentKeysOfDateStoreUserKindAndNumber) {
  std::map<std::string, std::string> home;
  for (const Row& user : Demo().at("ST")) home[user.at("ST_CODE")] = user.at("RCT_CODE");
  for (const Document& document : kDocuments) {
    for (const Row& slip : Demo().at(document.header)) {
      const std::string& id = slip.at("PE_ID");
      const std::string& store = slip.at("PE_FCTCODE");
      const std::string user = id.substr(12, id.size() - 18);
      EXPECT_EQ(id.substr(8, 4), store) << id;
      EXPECT_EQ(home[user], store) << id;
      EXPECT_EQ(id.substr(id.size() - 6, 2), document.kind) << id;
      std::string written = slip.at("PE_SDATE").substr(0, 10);
      std::erase(written, '-');
      EXPECT_EQ(id.substr(0, 8), written) << id;
    }
  }
}

TEST(Demo, HasHeaderTotalsThatAreTheSumsOfTheirLines) {
  for (const Document& document : kDocuments) {
    std::map<std::string, std::pair<Won, Won>> sums;
    for (const Row& line : Demo().at(document.lines)) {
      auto& [amount, tax] = sums[line.at("PE_ID")];
      amount += Number(line, "PS_AMT");
      tax += Number(line, "PS_TAX");
    }
    EXPECT_EQ(sums.size(), Demo().at(document.header).size());
    for (const Row& slip : Demo().at(document.header)) {
      const auto& [amount, tax] = sums[slip.at("PE_ID")];
      EXPECT_EQ(Number(slip, "PE_AMT"), amount) << slip.at("PE_ID");
      EXPECT_EQ(Number(slip, "PE_TAX"), tax) << slip.at("PE_ID");
      EXPECT_EQ(Number(slip, "PE_TOT"), amount + tax) << slip.at("PE_ID");
    }
  }
}

TEST(Demo, HasOrdersInEveryStateFromTheSeventhOn) {
  const Tables tables = ReadInserts(Sql(500, 7, "2026-03-01"));
  std::set<std::string> states;
  for (const Row& order : tables.at("PEM22")) {
    states.insert(order.at("PE_CK"));
    EXPECT_EQ(order.at("PE_FCTCODE"), "1001");
  }
  EXPECT_EQ(states, (std::set<std::string>{"0", "1", "2", "3", "4", "8", "9"}));
}

TEST(Demo, LinksReceivedOrdersBothWaysAndNoOthers) {
  std::map<std::string, const Row*> purchases;
  std::size_t receipts = 0;
  for (const Row& slip : Demo().at("PEM23")) {
    purchases[slip.at("PE_ID")] = &slip;
    if (!slip.at("PE_LINK").empty()) ++receipts;
  }
  std::size_t received = 0;
  for (const Row& order : Demo().at("PEM22")) {
    if (order.at("PE_CK") != "4") {
      EXPECT_EQ(order.at("PE_LINK"), " ");
      continue;
    }
    ++received;
    const auto receipt = purchases.find(order.at("PE_LINK"));
    ASSERT_NE(receipt, purchases.end()) << order.at("PE_ID");
    EXPECT_EQ(receipt->second->at("PE_LINK"), order.at("PE_ID"));
    EXPECT_EQ(receipt->second->at("PE_TCTCODE"), order.at("PE_TCTCODE"));
  }
  EXPECT_EQ(received, receipts);
}

TEST(Demo, OrdersOnlyFromPartnersThatTheLookupsOffer) {
  std::set<std::string> offered;
  std::set<std::string> kinds_zero;
  for (const Row& partner : Demo().at("CT")) {
    if (partner.at("CT_GUBUN") == "0") kinds_zero.insert(partner.at("CT_CODE"));
  }
  for (const Row& detail : Demo().at("CTCOM")) {
    const bool level = detail.at("CT_LEVEL2") == "0" || detail.at("CT_LEVEL2") == "1";
    if (level && kinds_zero.count(detail.at("CT_CODE")) > 0) offered.insert(detail.at("CT_CODE"));
  }
  for (const Row& order : Demo().at("PEM22")) {
    EXPECT_EQ(offered.count(order.at("PE_TCTCODE")), 1U) << order.at("PE_TCTNAME");
  }
}

// Sums per key of what the slips say, compared with what the running tables hold.
using Sums = std::map<std::string, Won>;

Sums SumsOfTable(const std::string& table, const std::vector<std::string>& key,
                 const std::string& column) {
  Sums sums;
  for (const Row& row : Demo().at(table)) {
    if (Number(row, column) != 0) sums[KeyOf(row, key)] += Number(row, column);
  }
  return sums;
}

Sums Moved(const Document& document) {
  std::map<std::string, std::string> store;
  for (const Row& slip : Demo().at(document.header))
    store[slip.at("PE_ID")] = slip.at("PE_FCTCODE");
  Sums sums;
  for (const Row& line : Demo().at(document.lines)) {
    const std::string key =
        store.at(line.at("PE_ID")) + "|" + line.at("PS_HCTCODE") + "|" + line.at("PR_CODE") + "|";
    sums[key] += Number(line, "PS_SQTY");
  }
  return sums;
}

Sums Booked(const Document& document) {
  Sums sums;
  for (const Row& slip : Demo().at(document.header)) {
    std::string month = slip.at("PE_PDATE").substr(0, 7);
    std::erase(month, '-');
    const Won total = Number(slip, "PE_TOT");
    if (total != 0) sums[KeyOf(slip, {"PE_FCTCODE", "PE_TCTCODE"}) + month + "|"] += total;
  }
  return sums;
}

TEST(Demo, HasStockAndBalancesThatAgreeWithThePostedSlips) {
  const std::vector<std::string> stock = {"RCT_CODE", "HCT_CODE", "PR_CODE"};
  EXPECT_EQ(SumsOfTable("IV", stock, "INQTY"), Moved(kDocuments[1]));
  EXPECT_EQ(SumsOfTable("IV", stock, "OTQTY"), Moved(kDocuments[2]));
  const std::vector<std::string> balance = {"CM_FCTCODE", "CM_TCTCODE", "CM_MM"};
  EXPECT_EQ(SumsOfTable("CMM", balance, "CM_M23"), Booked(kDocuments[1]));
  EXPECT_EQ(SumsOfTable("CMM", balance, "CM_M13"), Booked(kDocuments[2]));
}

TEST(Demo, HasCodesOfTheLengthsThatTheFormsCutBy) {
  std::map<std::string, int> defaults;
  for (const Row& depot : Demo().at("HCT")) {
    EXPECT_EQ(depot.at("HCT_CODE").size(), 6U);
    defaults[depot.at("RCT_CODE")] += depot.at("HCT_BAS") == "1" ? 1 : 0;
  }
  EXPECT_EQ(defaults.size(), Demo().at("RCT").size());
  for (const auto& [store, count] : defaults) EXPECT_EQ(count, 1) << store;
  std::set<std::string> kinds;
  for (const Row& kind : Demo().at("KIND")) {
    EXPECT_EQ(kind.at("KD_ID").size(), 15U);
    kinds.insert(kind.at("KD_ID"));
  }
  for (const Row& product : Demo().at("PR")) EXPECT_EQ(kinds.count(product.at("KD_ID")), 1U);
  for (const Row& user : Demo().at("ST")) {
    EXPECT_LE(user.at("ST_CODE").size(), 8U);
    EXPECT_LE(user.at("ST_PWD").size(), 8U);
  }
}

// A name with an apostrophe could never be posted, and every tab of the lookups should show
// something.
TEST(Demo, HasPartnersUnderEveryTab) {
  const std::vector<std::string> letters = {"가", "나", "다", "라", "마", "바", "사", "아",
                                            "자", "차", "카", "타", "파", "하", "희"};
  for (std::size_t i = 0; i + 1 < letters.size(); ++i) {
    const auto in_tab = [&](const Row& partner) {
      return partner.at("CT_NAME") >= letters[i] && partner.at("CT_NAME") < letters[i + 1];
    };
    EXPECT_TRUE(std::any_of(Demo().at("CT").begin(), Demo().at("CT").end(), in_tab)) << letters[i];
  }
  for (const Row& partner : Demo().at("CT")) {
    EXPECT_EQ(partner.at("CT_NAME").find('\''), std::string::npos);
  }
  for (const Row& product : Demo().at("PR")) {
    EXPECT_EQ(product.at("PR_NAME").find('\''), std::string::npos);
  }
}

}  // namespace
}  // namespace store::demo
