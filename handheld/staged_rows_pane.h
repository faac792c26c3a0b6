#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/grid.h"
#include "gateway/gateway.h"

namespace store {

class HandheldForm;

/// Columns of the list of staged rows. The headings are the statement's own.
namespace staged {
inline constexpr int Tick = 0;  ///< "1" ticked, "0" not.
inline constexpr int PartnerCode = 1;
inline constexpr int PartnerName = 2;
inline constexpr int Unit = 3;
inline constexpr int Product = 4;  ///< The tax mark and the product code run together.
inline constexpr int ProductName = 5;
inline constexpr int Standard = 6;
inline constexpr int Quantity = 7;
inline constexpr int Price = 8;
inline constexpr int Supply = 9;
inline constexpr int Tax = 10;
inline constexpr int Sum = 11;
inline constexpr int Inspector = 12;
inline constexpr int RowId = 13;       ///< PE_ID
inline constexpr int OnFile = 14;      ///< A survey's: the stock on file.
inline constexpr int Adjustment = 15;  ///< A survey's: the count less the stock on file.
}  // namespace staged

/// A cell's number as a slip takes it: put through the quantity format, without grouping commas.
double QuantityFormatted(const std::string& cell);

/// The staged rows of one module, and which of them are ticked.
class StagedRowsPane {
 public:
  explicit StagedRowsPane(HandheldForm& form);

  ComboBox Combo1;               ///< The depot.
  std::array<TextBox, 2> Text1;  ///< 0 the memo, 1 the partner that the list is narrowed to.
  Grid FLEX;                     ///< The rows.
  std::array<Label, 3> Label2;   ///< Of the ticked rows: their count, supply amount and tax.
  std::array<OptionButton, 3> Option1 = {OptionButton("전체"), OptionButton("반전"),
                                         OptionButton("해제")};
  Label LBL_MSG;  ///< The status line.
  Timer Timer1;   ///< Clears it.

  /// Reads the rows of the form's module and return mark (table DT900), of the partner in
  /// `Text1[1]` where one stands there, every row ticked. A failed read leaves the list empty.
  void LoadStagedRows();
  /// Works out supply, tax and sum of a row from its quantity, price and tax mark.
  void RecalcRow(int row);
  /// Fills `TickedIds`. True when no row is ticked.
  bool CollectTickedIds();
  std::vector<std::string> TickedIds;  ///< PE_ID of each ticked row.

  void Option1_Click(int index);
  void FLEX_AfterEdit(int row, int col);
  /// Another depot: a survey's stock on file is read anew, the ticks stay.
  void Combo1_Click();
  void Timer1_Timer();

 protected:
  bool Ticked(int row) const;
  /// The product code of a row; empty for a blank one, which is a barcode that nobody knows.
  std::string ProductCode(int row) const;
  bool IsSurvey() const;
  /// The status line stands for five seconds more.
  void ClearStatusLater();
  void HideColumnsOfOtherModules();
  /// The display formats of the customer, at load.
  void SetFormats();

 private:
  void PublishControls();
  void SetUpGrid();
  void EmptyList();
  void ShowRows(const StringTable& rows, std::int32_t count);
  bool FetchStock(RecordsetSlot& stock);
  void ShowStock(const RecordsetSlot& stock, int row, std::string& onFile);
  void ShowTicked();

  HandheldForm& form_;
};

}  // namespace store
