#include "order/history_pane.h"

#include <cmath>

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"

namespace store {
namespace {

constexpr int kWhite = 0xFFFFFF;
constexpr int kWideColumn = 495;
constexpr int kNarrowColumn = 100;

std::string HistoryStatement(const std::string& productCode) {
  return Splice(
      "SELECT SUBSTRING(A.PE_ID,1,8) AS FindKEY ,SUM(B.PS_SQTY)   FROM PES13 A LEFT JOIN PSS13 B "
      "ON A.PE_ID = B.PE_ID  WHERE A.PE_FCTCODE = '{store}' AND B.PR_CODE = '{item}'   AND "
      "SUBSTRING(A.PE_ID,1,8) BETWEEN '{from}'  AND '{to}'  GROUP BY SUBSTRING(A.PE_ID,1,8)  ORDER "
      "BY SUBSTRING(A.PE_ID,1,8) ",
      "store"_a = Session.StoreCode, "item"_a = productCode,
      "from"_a = FormatDateValue(AddDays(Today(), -history::Days), "YYYYMMDD"),
      "to"_a = FormatDateValue(AddDays(Today(), -1), "YYYYMMDD"));
}

/// Rows of white above a day's bar; the bar takes the rest of the ten.
int OffsetOf(double quantity, double most) {
  if (quantity < 0) return history::BarRows;
  const double percent = std::nearbyint(quantity / most * 100);
  return history::BarRows - static_cast<int>(std::nearbyint(percent / history::BarRows));
}

}  // namespace

HistoryPane::HistoryPane(Form& form) {
  form.Publish("PRGHP", PRGHP);
  PRGHP.Visible = false;
  std::vector<GridColumn> days(history::Days + 1,
                               {.Width = kWideColumn, .Alignment = Align::Center});
  for (size_t day = 1; day < days.size(); ++day) days[day].Header = std::to_string(day);
  PRGHP.SetColumns(std::move(days));
}

void HistoryPane::ShowHistory(const std::string& productCode, const std::string& name) {
  PRGHP.Visible = true;
  HistoryOf = name;
  SqlText = HistoryStatement(productCode);
  const StoppableReads mayBeStopped;
  OpenRecordset(SlotA, SqlText);
  PRGHP.SetRows(history::Quantity + 1);
  PRGHP.SetRows(history::Rows);
  double most = 0;
  FillDays(most);
  PaintBars(most);
  PRGHP.SetRowHidden(history::Offset, true);
  CloseRecordset(SlotA);
}

void HistoryPane::FillDays(double& most) {
  for (int back = history::Days; back >= 1; --back) {
    const CalendarDate day = AddDays(Today(), -back);
    PRGHP.SetTextMatrix(history::Year, back, FormatDateValue(day, "YYYY"));
    PRGHP.SetTextMatrix(history::Month, back, FormatDateValue(day, "MM"));
    PRGHP.SetTextMatrix(history::Day, back, FormatDateValue(day, "DD"));
    PRGHP.SetTextMatrix(history::DaysBack, back, std::to_string(back));
    SetFilter(SlotA, Splice(" FindKEY = '{day}'", "day"_a = FormatDateValue(day, "YYYYMMDD")));
    const std::string sold = AtEof(SlotA) ? "0" : FieldText(SlotA, 1);
    PRGHP.SetTextMatrix(history::Quantity, back, sold);
    if (ParseNumber(sold) > most) most = std::nearbyint(ParseNumber(sold));
  }
}

void HistoryPane::PaintBars(double most) {
  for (int day = 1; day <= history::Days; ++day) {
    const double sold = ParseNumber(PRGHP.TextMatrix(history::Quantity, day));
    const int offset = most == 0 ? 0 : OffsetOf(sold, most);
    PRGHP.SetTextMatrix(history::Offset, day, std::to_string(offset));
    const int lastWhite = most == 0 ? history::Rows - 1 : history::Offset + offset;
    for (int row = history::Offset; row <= lastWhite; ++row) PRGHP.SetBackColor(row, day, kWhite);
  }
}

void HistoryPane::NarrowHistory() { SetWidths(kNarrowColumn, 212.223); }

void HistoryPane::WidenHistory() { SetWidths(kWideColumn, 975.464); }

void HistoryPane::SetWidths(int columnWidth, double gridWidth) {
  for (int day = 1; day <= history::Days; ++day) PRGHP.Column(day).Width = columnWidth;
  PRGHP_Width = gridWidth;
}

}  // namespace store
