#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/grid.h"
#include "slips/draft.h"

namespace store {

/// The list of drafts, with the lines of the one that is pointed at. The caller shows it modally
/// and reads `Chosen`.
class frmDrafts : public Form {
 public:
  frmDrafts();

  Grid FLEX1;  ///< The drafts, the newest on top.
  Grid FLEX2;  ///< Lines of the current one, in the order of the form that they were written in.
  Button Command1{"이어쓰기"};
  Button Command2{"버리기"};
  Button Command3{"닫기"};

  std::optional<Draft> Chosen;  ///< What is to be gone on with; empty when nothing was chosen.

  void Load() override;
  bool KeyDown(Key key) override;

  void FLEX1_RowColChange();
  void FLEX1_KeyDown(Key key);
  void Command1_Click();
  void Command2_Click();

 private:
  void PublishControls();
  void List();
  const Draft* Current() const;

  std::vector<Draft> drafts_;
};

}  // namespace store
