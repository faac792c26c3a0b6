#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "slips/slip_form.h"
#include "tests/support/small_store_test.h"

namespace store {

/// Slips of the small store's board, by state.
inline const std::string kEditing = "202405171001u01220001";
inline const std::string kConfirmed = "202405171001u01220002";
inline const std::string kApproved = "202405161001u01220003";
inline const std::string kShipped = "202405151001u02220004";
inline const std::string kReceived = "202405101001u01220005";

/// Stands where an order or receipt form would, and shows what the board has given it.
class StandInForm : public SlipForm {
 public:
  using SlipForm::SlipForm;
  bool Work = false;
  bool HoldsWork() const override { return Work; }
};

/// The board of the small store, made and not yet shown. The forms that it opens are stand-ins.
class BoardTest : public SmallStoreTest {
 protected:
  void ShowBoard() { Host.Show(board); }
  /// Shows all open slips of May: those in editing, confirmed, approved and shipped.
  void ShowMay() {
    ShowBoard();
    board.DTOrderDate[0].SetValue("2024-05-01");
    board.DTOrderDate[1].SetValue("2024-05-31");
    board.Option1_Click(0);
  }
  /// Keys of the slips on the board, from the top.
  std::vector<std::string> Slips() const {
    std::vector<std::string> slips;
    for (int row = 1; row < board.FLEX1.Rows(); ++row)
      slips.push_back(board.FLEX1.TextMatrix(row, board::SlipId));
    return slips;
  }
  /// Puts the cursor on a slip's row, as a click does before its event.
  void PointAt(const std::string& slipId, int column = 1) {
    const auto slips = Slips();
    const auto found = std::find(slips.begin(), slips.end(), slipId);
    if (found == slips.end()) ADD_FAILURE() << slipId << " is not on the board";
    board.FLEX1.Select(static_cast<int>(found - slips.begin()) + 1, column);
  }
  void Click(const std::string& slipId, int column = 1) {
    PointAt(slipId, column);
    board.FLEX1_Click();
  }
  /// The open form of that name; without one the test fails.
  static StandInForm& Opened(const std::string& name) {
    EXPECT_NE(OpenForm(name), nullptr) << name;
    return dynamic_cast<StandInForm&>(*TheForm(name));
  }
  static std::string StateOf(const std::string& slipId) {
    const auto rows = Rows("SELECT PE_CK FROM PEM22 WHERE PE_ID='" + slipId + "'");
    return rows.empty() ? "gone" : rows[0][0];
  }

  frm_Start& board = FreshBoard();

 private:
  static frm_Start& FreshBoard() {
    RegisterBoardForms();
    for (const char* name :
         {"frm_Order", "frm_Order01", "frm_Order02", "frm_Order03", "frm_PE_UNIT"})
      RegisterForm(name, [name] { return std::make_unique<StandInForm>(name); });
    return dynamic_cast<frm_Start&>(*TheForm("frm_Start"));
  }
};

}  // namespace store
