#include "order/stock_view_pane.h"

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "order/stock_list.h"

namespace store {
namespace {

// A sale's key begins with its date; "99" closes the range over whatever follows.
std::string SalesStatement(const std::string& from, const std::string& to) {
  return Splice(
      "SELECT B.PR_CODE AS PKEY,SUM(B.PS_SQTY)  FROM PES13 A LEFT JOIN PSS13 B ON A.PE_ID = "
      "B.PE_ID  WHERE A.PE_FCTCODE = '{store}'   AND A.PE_ID BETWEEN '{from}' AND '{to}99'  AND "
      "A.PE_CK > '0'  GROUP BY PKEY ",
      "store"_a = Session.StoreCode, "from"_a = from, "to"_a = to);
}

void PutStock(std::vector<std::string>& cells, const ItemSums& stockOfItems) {
  const std::optional<std::string> stock = stockOfItems.Of(cells[pick::Code]);
  if (!stock) return;
  const double shortage = ParseNumber(cells[stock_view::Safety]) - ParseNumber(*stock);
  cells[stock_view::Stock] = *stock;
  cells[stock_view::Shortage] = shortage < 0 ? "" : NumberText(shortage);
}

}  // namespace

StockViewPane::StockViewPane(Form& form, PickListPane& pickList) : picks_(pickList.FLEX2) {
  form.Publish("Check1", Check1);
  form.Publish("Label4", Label4);
  form.Publish("DTPicker1", DTPicker1);
  DTPicker1[0].SetValue(FormatDateValue(Today(), "yyyy-mm-01"));
  DTPicker1[1].SetValue(FormatDateValue(Today(), "yyyy-mm-dd"));
}

std::string StockViewPane::SalesOfPeriod() const {
  return SalesStatement(FormatDateText(DTPicker1[0].Value(), "YYYYMMDD"),
                        FormatDateText(DTPicker1[1].Value(), "YYYYMMDD"));
}

PickRowCompletion StockViewPane::StockBeside() {
  const Hourglass waiting;
  const bool withSales = Check1.Value != 0;
  picks_.SetTextMatrix(0, stock_view::Sales, withSales ? "판매" : "규격");
  const ItemSums stock = ReadStock();
  if (!withSales) return [stock](std::vector<std::string>& cells) { PutStock(cells, stock); };
  const ItemSums sales(SlotA, SalesOfPeriod());
  return [stock, sales](std::vector<std::string>& cells) {
    PutStock(cells, stock);
    cells[stock_view::Sales] = sales.Of(cells[pick::Code]).value_or("0");
  };
}

}  // namespace store
