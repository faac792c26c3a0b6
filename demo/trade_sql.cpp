#include <string>
#include <vector>

#include "demo/franchise_sql.h"
#include "demo/sql_writer.h"

namespace store::demo {
namespace {

constexpr const char* kOrderColumns =
    "PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,"
    "PE_TOT,PE_TMAN,ST_CODE,PE_PRJ,PE_LINK,PE_COND,PE_CSDAY,PE_CSCT,PE_GRDAY,PE_TYPE,PE_MEMO1,"
    "PE_MEMO2,PE_MEMO3";
constexpr const char* kPostedColumns =
    "PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,"
    "PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,ST_CODE,PE_PRJ,PE_LINK,"
    "INPUT_PROGRAM";
constexpr const char* kLineColumns =
    "PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT,PS_SQTY,PS_EQTY,PS_COST,PS_UP,"
    "PS_AMT,PS_TAX,ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME";

void WriteLines(TableWriter& writer, const Franchise& franchise, const Slip& slip) {
  const std::string day = DateText(slip.day);
  std::size_t number = 0;
  for (const SlipLine& line : slip.lines) {
    const Product& product = franchise.products[line.product];
    const Depot& depot = franchise.stores[slip.store].depots[line.depot];
    writer.Row(slip.id, ++number, day, product.code, product.name, product.standard, product.tax,
               product.unit, line.quantity, line.other_quantity, 0, line.price, line.money.amount,
               line.money.tax, slip.user, '0', "", depot.code, depot.name);
  }
}

void WriteOrders(std::ostream& out, const Franchise& franchise) {
  static const std::vector<std::string> kNoConditions(8, " ");
  TableWriter headers(out, "PEM22", kOrderColumns);
  TableWriter lines(out, "PSM22", kLineColumns);
  for (const Slip& order : franchise.orders) {
    const Store& store = franchise.stores[order.store];
    const Partner& partner = franchise.partners[order.partner];
    headers.BeginRow();
    for (const std::string& text :
         {order.id, std::string(1, order.state), DateText(order.day), order.stored_at, store.code,
          store.name, partner.code, partner.name}) {
      headers.Add(text);
    }
    for (const Won sum : {order.Amount(), order.Tax(), order.Total()}) headers.Add(sum);
    // The order forms leave the person, the user and the project of the header blank.
    for (const char* blank : {" ", " ", " "}) headers.Add(blank);
    headers.Add(order.link);
    for (const std::string& text : order.conditions.empty() ? kNoConditions : order.conditions) {
      headers.Add(text);
    }
    headers.EndRow();
    WriteLines(lines, franchise, order);
  }
}

// A receipt has its order's link and the program's version; what the handheld wrote has neither,
// but a mark in place of a person, and its total as the amount unpaid.
void WritePosted(std::ostream& out, const Franchise& franchise, const std::vector<Slip>& slips,
                 const char* header_table, const char* line_table) {
  TableWriter headers(out, header_table, kPostedColumns);
  TableWriter lines(out, line_table, kLineColumns);
  for (const Slip& slip : slips) {
    const Store& store = franchise.stores[slip.store];
    const Partner& partner = franchise.partners[slip.partner];
    const bool receipt = !slip.link.empty();
    headers.Row(slip.id, slip.state, DateText(slip.day), slip.stored_at, store.code, store.name,
                partner.code, partner.name, slip.Amount(), slip.Tax(), slip.Total(),
                receipt ? 0 : slip.Total(), 0, 0, "E005", receipt ? " " : "",
                receipt ? " " : "핸디처리", "", slip.user, receipt ? " " : "", slip.link,
                receipt ? "101" : "");
    WriteLines(lines, franchise, slip);
  }
}

void WriteStock(std::ostream& out, const Franchise& franchise) {
  TableWriter writer(out, "IV",
                     "RCT_CODE,HCT_CODE,PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_BCODE,BSQTY,INQTY,OTQTY");
  for (const Stock& stock : franchise.stock) {
    const Store& store = franchise.stores[stock.store];
    const Product& product = franchise.products[stock.product];
    // A posting leaves the barcode empty and a blank behind the size text.
    writer.Row(store.code, store.depots[stock.depot].code, product.code, product.name,
               stock.counted ? product.standard : product.standard + " ", product.unit,
               stock.counted ? product.barcode : std::string(), stock.opening, stock.in, stock.out);
  }
}

void WriteBalances(std::ostream& out, const Franchise& franchise) {
  TableWriter writer(out, "CMM", "CM_FCTCODE,CM_TCTCODE,CM_MGU,CM_MM,CM_M13,CM_M23,CM_CK");
  for (const Balance& balance : franchise.balances) {
    writer.Row(franchise.stores[balance.store].code, franchise.partners[balance.partner].code, 'C',
               balance.month, balance.sold, balance.bought, '0');
  }
}

}  // namespace

void WriteTrade(std::ostream& out, const Franchise& franchise) {
  WriteOrders(out, franchise);
  WritePosted(out, franchise, franchise.purchases, "PEM23", "PSM23");
  WritePosted(out, franchise, franchise.sales, "PES13", "PSS13");
  WriteStock(out, franchise);
  WriteBalances(out, franchise);
}

}  // namespace store::demo
