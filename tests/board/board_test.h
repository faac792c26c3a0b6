#pragma once

#include <string>
#include <vector>

#include "board/frm_Start.h"
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
  BoardTest();

  void ShowBoard();
  /// Shows all open slips of May: those in editing, confirmed, approved and shipped.
  void ShowMay();
  /// Keys of the slips on the board, from the top.
  std::vector<std::string> Slips();
  /// Puts the cursor on a slip's row, as a click does before its event.
  void PointAt(const std::string& slipId, int column = 1);
  void Click(const std::string& slipId, int column = 1);
  bool IsOpen(const std::string& name);
  /// The open form of that name; without one the test fails.
  StandInForm& Opened(const std::string& name);
  std::string StateOf(const std::string& slipId);

  frm_Start& board;
};

}  // namespace store
