#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "slips/lines_pane.h"
#include "slips/received_order.h"
#include "slips/slip.h"
#include "slips/slip_draft.h"
#include "slips/slip_form.h"
#include "slips/stored_once.h"

namespace store {

/// Columns of the receipt form's grid.
namespace receipt {
inline constexpr int Ordered = 6;
inline constexpr int Shipped = 7;
inline constexpr int Received = 8;
inline constexpr int Barcode = 12;

inline constexpr LineGridColumns Money{.Price = 5,
                                       .Quantity = Received,
                                       .TaxKind = 4,
                                       .Supply = 9,
                                       .Tax = 10,
                                       .Sum = 11,
                                       .OtherQty = Ordered};
inline constexpr int Code = Money.Code;
inline constexpr int Name = Money.Name;  ///< Barcode, carriage return, name.
}  // namespace receipt

/// The window in which a store confirms the goods of one order: what was ordered and shipped stands
/// in the rows, what really came is typed, and the confirmation turns it into stock. The board sets
/// `SlipId` (the order) and `SlipTable` ("PEM23", the slip to write) and shows it modally.
class frm_PE_UNIT : public SlipForm, public LinesPane {
 public:
  frm_PE_UNIT();

  TextBox Text1;  ///< Partner: the name, the code in its Tag.
  DatePicker DTOrderDate;
  DatePicker DTPicker1;            ///< Date of receipt.
  TextBox Text4;                   ///< Copy of the receipt date, never shown.
  ComboBox Combo1;                 ///< The depot that takes all lines of the slip.
  std::array<Button, 2> Command1;  ///< 1 confirms; 0 has no action.
  Label Label4;                    ///< Closes the form.
  Label LaSheet;                   ///< Where the exported sheet is.

  HeadArray HeadValues;
  StringTable LineValues;

  void Load() override;
  void Activate() override;
  void Unload() override;
  bool KeyDown(Key key) override;

  void DTPicker1_Change();
  void FLEX1_KeyDown(Key key);
  void inBox_KeyPress(Key key);
  /// A scanner has sent the barcode or the code of a product: the keyboard goes to its line. One
  /// that is not on the slip is told.
  void inBox_Scan(const std::string& code);
  void Command1_Click(int index);
  void Label4_Click();
  /// Prints the order as it is stored, or what has been received on it.
  void PrintStored();

 private:
  void SetUpGrid();
  void PublishControls();
  void GiveTodaysDate();
  void LoadReceiptSlip(const std::string& orderId);
  void LoadReceiptHeader();
  void LoadReceiptLine();
  void AcceptReceivedQty(int row);
  bool GoToLineOf(const std::string& code);
  int NextLineOf(const std::string& code) const;
  void TellNotOnSlip(const std::string& code) const;
  bool TakesCode(const std::string& entry);

  void ValidateReceipt(std::int16_t& valid);
  void FillHeader();
  void PrepareReceiptLines();
  void BuildReceiptLines(std::int16_t& count);
  bool RowIsReceived(int row) const;
  bool AddReceiptLine(int number, int row);

  Fate Post();
  void TellFate(Fate fate);
  std::string WhatIsEntered() const;

  void StartDraft();
  Draft DraftNow() const;
  void NoteDraft();
  void BringBack(const Draft& draft);
  void BringRowsBack(const Draft& draft);

  bool activated_ = false;
  std::string givenDate_;  // the date of receipt that the form itself put in
  OrderAsRead order_;      // as it stood when its lines were read
  SlipDraft draft_;
};

/// Makes the receipt form known by its name.
void RegisterReceiptForms();

}  // namespace store
