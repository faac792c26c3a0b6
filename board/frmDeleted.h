#pragma once

#include <optional>
#include <vector>

#include "forms/form.h"
#include "forms/grid.h"
#include "slips/deleted_slip.h"

namespace store {

/// The list of the slips that were deleted today, with the lines of the one that is pointed at. The
/// caller shows it modally and reads `Chosen`.
class frmDeleted : public Form {
 public:
  frmDeleted();

  Grid FLEX1;  ///< The slips, the one deleted last on top.
  Grid FLEX2;  ///< Lines of the current one.
  Button Command1{"되살리기"};
  Button Command3{"닫기"};

  std::optional<DeletedSlip> Chosen;  ///< What is to be taken back; empty when nothing was chosen.

  void Load() override;
  bool KeyDown(Key key) override;

  void FLEX1_RowColChange();
  void Command1_Click();

 private:
  void PublishControls();
  const DeletedSlip* Current() const;

  std::vector<DeletedSlip> slips_;
};

}  // namespace store
