#pragma once

#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/grid.h"

namespace store {

/// What the lookup windows have in common: a search text, a find button, the matches in a grid,
/// and, in some, tabs by initial consonant. The caller sets the inputs, shows the window modally
/// and reads the result fields; when the first of them is empty nothing was chosen.
class LookupForm : public Form {
 public:
  LookupForm(std::string name, std::string caption, std::string searchLabel,
             std::vector<GridColumn> columns);

  Label Label1;   ///< What the search text is.
  TextBox Text1;  ///< The search text.
  Button Command1{"찾기"};
  Grid FLEX1;
  TabStrip TabOne1;  ///< Hidden in windows without tabs.

  std::string GroupCode;  ///< Input: only partners of this group, found at once when not empty.

  void Load() override;
  void Activate() override;
  bool KeyDown(Key key) override;

  void Command1_Click();
  void Text1_KeyDown(Key key);
  void FLEX1_DblClick();
  void FLEX1_KeyDown(Key key);
  void TabOne1_Click(int tab);

 protected:
  void ShowTabs();
  /// The statement of the find button.
  virtual std::string FindStatement() const = 0;
  /// The statement of a tab; empty in windows without tabs.
  virtual std::string TabStatement(int tab) const;
  /// Empties the result fields.
  virtual void ClearResults() = 0;
  /// Puts the columns of a data row into the result fields.
  virtual void TakeRow(int row) = 0;

 private:
  void Fill(const std::string& statement);
  void Choose();
};

/// Columns of a list of partners or stores.
std::vector<GridColumn> PartyColumns();

}  // namespace store
