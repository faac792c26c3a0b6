#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/grid.h"

namespace store {

class LookupForm;

/// What one lookup window has of its own.
struct LookupKind {
  const char* Name;         ///< Of the form.
  const char* Caption;      ///< Of the window.
  const char* SearchLabel;  ///< What the search text is; empty for a list that comes by itself.
  std::vector<GridColumn> Columns;
  /// The statement of the find button, from what the form holds.
  std::string (*FindStatement)(const LookupForm& form);
  /// The statement of a tab (from 0); nothing in windows without tabs.
  std::string (*TabStatement)(const LookupForm& form, int tab);
  /// Which result field is filled from which column of the chosen row.
  std::vector<std::pair<std::string LookupForm::*, int>> Results;
  /// Captions of `Command2` and on. What is entered on head office's side stands without an action.
  std::vector<const char*> Buttons;
};

/// A lookup window: a search text, a find button, the matches in a grid, and, in some, tabs by
/// initial consonant. The caller sets the inputs, shows the window modally and reads the result
/// fields; when `ResultCode` is empty nothing was chosen.
class LookupForm : public Form {
 public:
  explicit LookupForm(const LookupKind& kind);

  Label Label1;   ///< What the search text is.
  TextBox Text1;  ///< The search text.
  Button Command1{"찾기"};
  Grid FLEX1;
  TabStrip TabOne1;  ///< Hidden in windows without tabs.
  Label Label2;      ///< A remark beside the search text.
  Button Command2;
  Button Command3;
  Button Command4;
  Label LaSheet;  ///< Where the exported sheet is.

  // Inputs.
  std::string GroupCode;  ///< Only partners of this group, found at once when not empty.
  std::string SlipTable;  ///< On a table ending in "23" only partners of kind '0' are found.
  std::string StoreCode;  ///< Whose depots.

  // Results.
  std::string ResultCode;
  std::string ResultName;
  std::string ResultPhone;
  std::string ResultAddress;

  void Load() override;
  void Activate() override;
  bool KeyDown(Key key) override;

  void Command1_Click();
  void Text1_KeyDown(Key key);
  void FLEX1_DblClick();
  void FLEX1_KeyDown(Key key);
  void TabOne1_Click(int tab);  ///< In windows with tabs.
  /// The tab to the left or right of the current one, round the ends. Nothing without tabs.
  void WalkTabs(int step);

 protected:
  /// Empties the result fields.
  virtual void ClearResults();
  /// Puts the columns of a data row into the result fields.
  virtual void TakeRow(int row);

 private:
  void PublishControls();
  void Fill(const std::string& statement);
  void Choose();
  const LookupKind& kind_;
};

/// Empties the grid to its header and fills it with the rows of a SELECT, NULL as the empty text.
/// A failed read leaves it empty.
void FillLookupGrid(const std::string& statement, Grid& grid);

}  // namespace store
