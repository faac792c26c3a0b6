#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/grid.h"
#include "order/order_type.h"
#include "slips/line_grid.h"
#include "slips/slip.h"
#include "slips/slip_form.h"

namespace store {

/// The window in which an order is written: a supplier, lines of items with quantities, and the
/// save. The board sets `SlipId`, `SlipTable` and `NoPriceMode` and shows it beside itself.
class OrderForm : public SlipForm {
 public:
  explicit OrderForm(const OrderTypeChoices& choices);

  // The header.
  Label Label1{"발주처"};
  TextBox Text1;   ///< Supplier: the name shown, the code in its Tag.
  Label LaCTHELP;  ///< Opens the supplier lookup.
  DatePicker DTOrderDate;
  TextBox Text4;    ///< Mirror of the date, never shown.
  ComboBox Combo1;  ///< The depot that receives the goods.
  Label LaSatae{"매입확정"};
  // The lines and how they come in.
  TextBox inBox;
  Grid FLEX1;              ///< The order's lines, newest on top.
  Grid FLEX2;              ///< Items to pick from, with a quantity to type.
  Grid PRHELP;             ///< Item categories, three to a row.
  Grid PRGHP;              ///< Sales history of one item: 31 days and their bars.
  double PRGHP_Width = 0;  ///< Width of the chart in the window's millimetre-like units.
  TotalLabels LaAmt;       ///< 0 lines, 1 total, 2 supply amount, 3 VAT.
  // What can be done.
  std::array<Label, 3> LaBtn;   ///< 0 saves for editing, 1 confirms, 2 does nothing.
  std::array<Label, 2> Label5;  ///< 0 closes, 1 makes small.
  Label Label6;                 ///< A line of warning that goes away by itself.
  Timer Timer1;

  HeadArray HeadValues;
  StringTable LineValues;
  std::int16_t AddInProgress = 0;  ///< -1 while a routine and not a person feeds `inBox`.
  std::int16_t AddAccepted = 0;    ///< Set to 0 when an item was refused for want of a price.

  void Load() override;
  void Activate() override;
  void Unload() override;
  bool KeyDown(Key key) override;
  bool HoldsWork() const override;

  // Events, by control.
  void Text1_Change();
  void Text1_GotFocus();
  void Text1_KeyDown(Key key);
  void Text1_KeyPress(Key key);
  void LaCTHELP_Click();
  void DTOrderDate_Change();
  void inBox_KeyDown(Key key);
  void inBox_KeyPress(Key key);
  void FLEX1_KeyDown(Key key);
  void FLEX1_KeyPress(const std::string& character);
  bool FLEX2_BeforeEdit(int row, int col);  ///< True when the cell may be edited.
  void FLEX2_AfterEdit(int row, int col);
  void FLEX2_RowColChange();
  void FLEX2_KeyDown(Key key);
  void PRHELP_Click(int row, int col);
  void LaBtn_Click(int index);
  void Label5_Click(int index);
  void Timer1_Timer();

 private:
  // Opening, emptying, loading.
  void SetUpGrids();
  void ResetOrderForm();
  void LoadOrderSlip(const std::string& slipId);
  void LoadOrderHeader();
  void LoadOrderLine();
  void SetOrderEditable(std::int16_t editable);

  // Saving.
  void ValidateOrder(std::int16_t& valid);
  void BuildOrderLines(std::int16_t& count);
  void PrepareLineArray();
  void FillHeader();
  void FillLine(int number, int row);
  void SaveSucceeded();

  // Lines.
  void ApplyQuantity(int row);
  void RecalcLine(int row);
  void RecalcTotals();
  void RemoveCurrentLine();
  void RemoveLinesOf(const std::string& productCode);

  // The item box and the pick list.
  std::string SearchCriteria(const std::string& text) const;
  void SearchItems();
  void AddItemLine();
  void RefuseForPrice();
  void FillPickGrid();
  void AddFromCode(const std::string& productCode);

  // The supplier box and the item scope.
  void FindSupplier(TextBox& box, std::int16_t& found);
  void ChooseSupplier(TextBox& box, const std::string& lookupTable);
  void FollowSupplier();
  void FillKindGrid(Grid& grid, int level, const std::string& code);

  // The history chart.
  void ShowHistory(const std::string& productCode);
  void FillHistoryDays(double& most);
  void PaintHistoryBars(double most);
  void SetHistoryWidths(int columnWidth, double gridWidth);

  const OrderTypeChoices& choices_;
  bool activated_ = false;
  unsigned loadedLines_ = 0;  // revision of FLEX1 when the slip had been loaded
  std::string loadedDate_;
};

}  // namespace store
