// What the store sold of one item on each of the last 31 days.
#include <cmath>

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "gateway/gateway.h"
#include "forms/host.h"
#include "order/order_form.h"

namespace store {
namespace {

constexpr int kDays = 31;
constexpr int kWhite = 0xFFFFFF;
constexpr int kQuantityRow = 4;
constexpr int kOffsetRow = 5;  // holds where a day's bar begins; never shown
constexpr int kChartRows = 16;
constexpr int kBarHeight = 10;

std::string HistoryStatement(const std::string& productCode) {
  return Splice(
      "SELECT SUBSTRING(A.PE_ID,1,8) AS FindKEY ,SUM(B.PS_SQTY)   FROM PES13 A LEFT JOIN PSS13 B "
      "ON A.PE_ID = B.PE_ID  WHERE A.PE_FCTCODE = '{0}' AND B.PR_CODE = '{1}'   AND "
      "SUBSTRING(A.PE_ID,1,8) BETWEEN '{2}'  AND '{3}'  GROUP BY SUBSTRING(A.PE_ID,1,8)  ORDER BY "
      "SUBSTRING(A.PE_ID,1,8) ",
      {Session.StoreCode, productCode, FormatDateValue(AddDays(Today(), -kDays), "YYYYMMDD"),
       FormatDateValue(AddDays(Today(), -1), "YYYYMMDD")});
}

/// Rows of white above a day's bar; the bar takes the rest of the ten.
int OffsetOf(double quantity, double most) {
  if (quantity < 0) return kBarHeight;
  const double percent = std::nearbyint(quantity / most * 100);
  return kBarHeight - static_cast<int>(std::nearbyint(percent / kBarHeight));
}

}  // namespace

void OrderForm::ShowHistory(const std::string& productCode) {
  PRGHP.Visible = true;
  SqlText = HistoryStatement(productCode);
  OpenRecordset(SlotA, SqlText);
  PRGHP.SetRows(kQuantityRow + 1);
  PRGHP.SetRows(kChartRows);
  double most = 0;
  FillHistoryDays(most);
  PaintHistoryBars(most);
  PRGHP.SetRowHidden(kOffsetRow, true);
  CloseRecordset(SlotA);
}

void OrderForm::FillHistoryDays(double& most) {
  for (int back = kDays; back >= 1; --back) {
    const CalendarDate day = AddDays(Today(), -back);
    PRGHP.SetTextMatrix(0, back, FormatDateValue(day, "YYYY"));
    PRGHP.SetTextMatrix(1, back, FormatDateValue(day, "MM"));
    PRGHP.SetTextMatrix(2, back, FormatDateValue(day, "DD"));
    PRGHP.SetTextMatrix(3, back, std::to_string(back));
    SetFilter(SlotA, Splice(" FindKEY = '{0}'", {FormatDateValue(day, "YYYYMMDD")}));
    const std::string sold = AtEof(SlotA) ? "0" : FieldText(SlotA, 1);
    PRGHP.SetTextMatrix(kQuantityRow, back, sold);
    if (ParseNumber(sold) > most) most = std::nearbyint(ParseNumber(sold));
  }
}

void OrderForm::PaintHistoryBars(double most) {
  for (int day = 1; day <= kDays; ++day) {
    const double sold = ParseNumber(PRGHP.TextMatrix(kQuantityRow, day));
    const int offset = most == 0 ? 0 : OffsetOf(sold, most);
    PRGHP.SetTextMatrix(kOffsetRow, day, std::to_string(offset));
    const int lastWhite = most == 0 ? kChartRows - 1 : kOffsetRow + offset;
    for (int row = kOffsetRow; row <= lastWhite; ++row) PRGHP.SetBackColor(row, day, kWhite);
  }
}

void OrderForm::SetHistoryWidths(int columnWidth, double gridWidth) {
  for (int day = 1; day <= kDays; ++day) PRGHP.Column(day).Width = columnWidth;
  PRGHP_Width = gridWidth;
}

}  // namespace store
