// Which of the staged rows are ticked, and what they come to.
#include "basics/formats.h"
#include "basics/numbers.h"
#include "handheld/staged_rows_pane.h"

namespace store {
namespace {

constexpr const char* kOn = "1";
constexpr const char* kOff = "0";

}  // namespace

bool StagedRowsPane::Ticked(int row) const {
  return ParseNumber(FLEX.TextMatrix(row, staged::Tick)) != 0;
}

bool StagedRowsPane::CollectTickedIds() {
  TickedIds.clear();
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (Ticked(row)) TickedIds.push_back(FLEX.TextMatrix(row, staged::RowId));
  }
  return TickedIds.empty();
}

void StagedRowsPane::Option1_Click(int index) {
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    const bool ticked = index == 0 || (index == 1 && !Ticked(row));
    FLEX.SetTextMatrix(row, staged::Tick, ticked ? kOn : kOff);
  }
  Option1[static_cast<std::size_t>(index)].Value = false;
  ShowTicked();
}

void StagedRowsPane::FLEX_AfterEdit(int row, int col) {
  if (col != staged::Tick) return;
  FLEX.SetTextMatrix(row, col, Ticked(row) ? kOn : kOff);
  ShowTicked();
}

void StagedRowsPane::ShowTicked() {
  int count = 0;
  double supply = 0;
  double tax = 0;
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (!Ticked(row)) continue;
    ++count;
    supply += ParseGrouped(FLEX.TextMatrix(row, staged::Supply));
    tax += ParseGrouped(FLEX.TextMatrix(row, staged::Tax));
  }
  Label2[0].Caption = "선택 " + std::to_string(count) + "건";
  if (IsSurvey()) return;
  Label2[1].Caption = "공급가액 " + FormatNumber(supply, FormatAmount);
  Label2[2].Caption = "부가세 " + FormatNumber(tax, FormatAmount);
}

}  // namespace store
