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
  const std::string day = DateText(slip.Date);
  std::size_t number = 0;
  for (const SlipLine& line : slip.Lines) {
    const Product& product = franchise.Products[line.Product];
    const Depot& depot = franchise.Stores[slip.Store].Depots[line.Depot];
    writer.Row(slip.Id, ++number, day, product.Code, product.Name, product.Standard, product.Tax,
               product.Unit, line.Quantity, line.OtherQuantity, 0, line.Price, line.Money.Amount,
               line.Money.Tax, slip.User, '0', "", depot.Code, depot.Name);
  }
}

void WriteOrders(std::ostream& out, const Franchise& franchise) {
  static const std::vector<std::string> kNoConditions(8, " ");
  TableWriter headers(out, "PEM22", kOrderColumns);
  TableWriter lines(out, "PSM22", kLineColumns);
  for (const Slip& order : franchise.Orders) {
    const Store& store = franchise.Stores[order.Store];
    const Partner& partner = franchise.Partners[order.Partner];
    headers.BeginRow();
    for (const std::string& text :
         {order.Id, std::string(1, order.State), DateText(order.Date), order.StoredAt, store.Code,
          store.Name, partner.Code, partner.Name}) {
      headers.Add(text);
    }
    for (const Won sum : {order.Amount(), order.Tax(), order.Total()}) headers.Add(sum);
    // The order forms leave the person, the user and the project of the header blank.
    for (const char* blank : {" ", " ", " "}) headers.Add(blank);
    headers.Add(order.Link);
    for (const std::string& text : order.Conditions.empty() ? kNoConditions : order.Conditions) {
      headers.Add(text);
    }
    headers.EndRow();
    WriteLines(lines, franchise, order);
  }
}

// A receipt has its order's link and the program's version; what the handheld wrote has neither,
// but a mark in place of a person, and its total as the amount unpaid.
void WritePosted(std::ostream& out, const Franchise& franchise, const std::vector<Slip>& slips,
                 const char* headerTable, const char* lineTable) {
  TableWriter headers(out, headerTable, kPostedColumns);
  TableWriter lines(out, lineTable, kLineColumns);
  for (const Slip& slip : slips) {
    const Store& store = franchise.Stores[slip.Store];
    const Partner& partner = franchise.Partners[slip.Partner];
    const bool receipt = !slip.Link.empty();
    headers.Row(slip.Id, slip.State, DateText(slip.Date), slip.StoredAt, store.Code, store.Name,
                partner.Code, partner.Name, slip.Amount(), slip.Tax(), slip.Total(),
                receipt ? 0 : slip.Total(), 0, 0, "E005", receipt ? " " : "",
                receipt ? " " : "핸디처리", "", slip.User, receipt ? " " : "", slip.Link,
                receipt ? "101" : "");
    WriteLines(lines, franchise, slip);
  }
}

void WriteStock(std::ostream& out, const Franchise& franchise) {
  TableWriter writer(out, "IV",
                     "RCT_CODE,HCT_CODE,PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_BCODE,BSQTY,INQTY,OTQTY");
  for (const Stock& stock : franchise.StockRows) {
    const Store& store = franchise.Stores[stock.Store];
    const Product& product = franchise.Products[stock.Product];
    // A posting leaves the barcode empty and a blank behind the size text.
    writer.Row(store.Code, store.Depots[stock.Depot].Code, product.Code, product.Name,
               stock.Counted ? product.Standard : product.Standard + " ", product.Unit,
               stock.Counted ? product.Barcode : std::string(), stock.Opening, stock.In, stock.Out);
  }
}

void WriteBalances(std::ostream& out, const Franchise& franchise) {
  TableWriter writer(out, "CMM", "CM_FCTCODE,CM_TCTCODE,CM_MGU,CM_MM,CM_M13,CM_M23,CM_CK");
  for (const Balance& balance : franchise.Balances) {
    writer.Row(franchise.Stores[balance.Store].Code, franchise.Partners[balance.Partner].Code, 'C',
               balance.Month, balance.Sold, balance.Bought, '0');
  }
}

}  // namespace

void WriteTrade(std::ostream& out, const Franchise& franchise) {
  WriteOrders(out, franchise);
  WritePosted(out, franchise, franchise.Purchases, "PEM23", "PSM23");
  WritePosted(out, franchise, franchise.Sales, "PES13", "PSS13");
  WriteStock(out, franchise);
  WriteBalances(out, franchise);
}

}  // namespace store::demo
