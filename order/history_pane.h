#pragma once

#include <string>

#include "forms/form.h"
#include "forms/grid.h"

namespace store {

/// Rows of the history chart. Column 0 is a stub, columns 1 to 31 are days back from today.
namespace history {
inline constexpr int Year = 0;
inline constexpr int Month = 1;
inline constexpr int Day = 2;
inline constexpr int DaysBack = 3;
inline constexpr int Quantity = 4;
inline constexpr int Offset = 5;  ///< Where a day's bar begins; never shown.
inline constexpr int Rows = 16;   ///< The bar takes the ten rows behind `Offset`.
inline constexpr int BarRows = 10;
inline constexpr int Days = 31;
}  // namespace history

/// What the store has sold of one item on each of the last 31 days. Nothing hides the chart again
/// before the form closes; narrow, it is out of the way.
class HistoryPane {
 public:
  explicit HistoryPane(Form& form);
  HistoryPane(const HistoryPane&) = delete;
  HistoryPane& operator=(const HistoryPane&) = delete;

  Grid PRGHP;
  double PRGHP_Width = 0;  ///< Width of the chart in the window's millimetre-like units.
  std::string HistoryOf;   ///< Name of the item that the chart is of.

  void ShowHistory(const std::string& productCode, const std::string& name);
  void NarrowHistory();
  void WidenHistory();

 protected:
  ~HistoryPane() = default;

 private:
  void FillDays(double& most);
  void PaintBars(double most);
  void SetWidths(int columnWidth, double gridWidth);
};

}  // namespace store
