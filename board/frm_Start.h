#pragma once

#include <array>
#include <string>

#include "forms/control.h"
#include "forms/grid.h"
#include "slips/deleted_slip.h"
#include "slips/slip_form.h"

namespace store {

/// Columns of the board.
namespace board {
inline constexpr int Date = 1;
inline constexpr int State = 3;
inline constexpr int Lines = 4;
inline constexpr int Total = 7;
inline constexpr int SlipId = 8;  ///< Hidden.
inline constexpr int Confirm = 9;
inline constexpr int PartnerCode = 10;  ///< Hidden.
}  // namespace board

/// The customer whose goods-receipt list shows only what logistics has shipped.
inline constexpr const char* kShippedOnlyCustomer = "fairwind";

/// The main window: head office's notices, the board of the store's order slips, and the details of
/// the selected slip. It changes only on its own events, never by a timer; when it closes, the
/// program ends.
class frm_Start : public MainWindow {
 public:
  frm_Start();

  // Notices.
  Grid FLEX0;
  Panel Frame1;                  ///< Pop-up pane of one notice.
  std::array<TextBox, 2> Text1;  ///< Subject and body in the pane.
  Label Label2;                  ///< Date in the pane.
  // Search and board.
  std::array<OptionButton, 4> Option1;
  std::array<DatePicker, 2> DTOrderDate;  ///< From and to.
  Label Label7{"입고전표 찾기"};
  TextBox Text2;  ///< A slip number to receive.
  Grid FLEX1;
  std::array<Label, 2> Label6;  ///< Count of slips and lines; sum of totals.
  Label LaRead;                 ///< When the board was last read, or that it could not be.
  Label LaCaption;              ///< The store.
  // Buttons: 0 and 1 new order, 3 refresh, 4 delete or revert; 2 has no picture.
  std::array<Label, 5> Image1;
  Label Image3;                     ///< Closes the notice pane.
  Label Label4;                     ///< The web page.
  std::array<Label, 2> Label5;      ///< 0 closes the window, 1 makes it small.
  Menu HandheldMenu{"핸디터미널"};  ///< The runs of the handheld terminal's path.
  Label LaDraft;                    ///< Drafts that can be brought back; hidden when there is none.
  Label LaAgain{"지난 발주 다시"};  ///< Writes the selected slip's order once more.
  Label LaDeleted;                  ///< Slips deleted today that can be taken back; likewise.
  Label Image5;                     ///< "[F4]": Details of the selected slip.
  // Details.
  std::array<Label, 11> LaCT;  ///< The partner.
  std::array<Label, 8> LaPM;   ///< The order's conditions.

  std::string SelectedSlipId;     ///< Slip of the highlighted row; after a find by number, the one
                                  ///< found, until the next refresh.
  std::string SelectedSlipState;  ///< Its state word.

  void Load() override;
  void Activate() override;
  bool QueryUnload() override;
  void Unload() override;
  bool KeyDown(Key key) override;

  void Option1_Click(int index);
  void Image1_Click(int index);
  void Image3_Click();
  void Image5_Click();
  void Label4_Click();
  void Label5_Click(int index);
  void HandheldMenu_Click(int entry);
  void LaDraft_Click();
  void LaDeleted_Click();
  /// A new order of what the selected slip orders, at the prices of today. The slip stays as it is,
  /// and nothing is stored before the new order is.
  void LaAgain_Click();
  /// Prints the selected slip, or what has been received on it.
  void PrintSelected();
  /// Prints what was received on the order that was opened for receipt last.
  void PrintLastReceipt();
  void FLEX0_RowColChange();
  void FLEX0_DblClick();
  void FLEX1_Click();
  void FLEX1_RowColChange();
  void FLEX1_DblClick();
  void FLEX1_KeyDown(Key key);
  void Text2_KeyPress(Key key);

 private:
  void PublishControls();
  void ConnectEvents();
  void SetUpGrids();
  void RefreshBoard();
  /// False when the person has stopped it.
  bool LoadNoticesAndSlips();
  void LoadNotices();
  std::string SearchCondition() const;
  void LoadSlips();
  void NotePlace();
  int RowOf(const std::string& slipId) const;
  void GoToPlace(bool sameSearch);
  void AddSlipRow(int number);
  void SelectSlip();
  void OpenSlip(const std::string& slipId, const std::string& stateWord);
  void OpenReceipt(const std::string& slipId);
  void ShowReceipt(SlipForm& receipt);
  void NewOrder(int buttonIndex);
  void DeleteOrRevert();
  void FindSlip();
  void CountDrafts();
  void CountDeleted();
  void Restore(const DeletedSlip& slip);
  void TellFileNotices();
  void GoOnWith(Draft draft);
  void Open(SlipForm& form, Draft draft);
  void ShowPartner(const std::string& partnerCode);
  void ShowConditions(const std::string& value);

  /// Where the person is on the board, to be found again when it has been read anew.
  struct Place {
    std::string SlipId;
    std::string NextSlipId;  // seen next to it
    int Row = 0;
    int Column = 0;
    int TopRow = 0;
    std::string Condition;  // of the search
  };

  Place place_;
  bool activated_ = false;
  std::string lastForReceipt_;  // the order
};

/// Makes the board known by its name.
void RegisterBoardForms();

}  // namespace store
