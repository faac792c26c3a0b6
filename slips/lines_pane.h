#pragma once

#include <functional>
#include <string>

#include "forms/form.h"
#include "forms/grid.h"
#include "gateway/string_table.h"
#include "slips/line_grid.h"
#include "slips/line_history.h"
#include "slips/slip.h"

namespace store {

/// The lines of a slip on the screen, the box through which they are written, and their totals.
/// Order and receipt forms are made of it; what Enter in the box means is theirs to say.
class LinesPane {
 public:
  /// What the up and down keys of the box do besides walking in the lines.
  enum class BoxKeys { StayInBox, LeadToLines };

  LinesPane(Form& form, const LineGridColumns& columns, BoxKeys keys);
  LinesPane(const LinesPane&) = delete;
  LinesPane& operator=(const LinesPane&) = delete;

  TextBox inBox;
  Grid FLEX1;
  TotalLabels LaAmt;
  Button LineUndo{"되돌리기"};  ///< Takes the last change of the lines back.
  Button LineRedo{"다시하기"};  ///< Does it again.

  void LineUndo_Click();
  void LineRedo_Click();
  void inBox_KeyDown(Key key);
  void FLEX1_KeyPress(const std::string& character);

  /// Works out the money of a row, and the totals.
  void RecalcLine(int row);
  void RecalcTotals();
  /// Takes the current row out, where there is one.
  void RemoveCurrentLine();
  /// Throws all lines away.
  void ClearLines();

  /// Fills the pane from a slip's statement, read through `SlotA`: `header` runs once at the first
  /// row, `line` for each. A slip that cannot be read leaves no lines, and gives
  /// false.
  bool LoadLines(const std::string& statement, const std::function<void()>& header,
                 const std::function<void()>& line);
  /// The stored totals, as the database gives them.
  void ShowTotals(const std::string& total, const std::string& supply, const std::string& tax);

  /// Whether a row is a line of the slip: its code has two characters or more.
  bool IsLine(int row) const;
  /// Fills line `number` of `lineValues` from a row, the current item of the item list, the header
  /// and the chosen depot. A number behind the table's last line is passed over.
  void FillLine(StringTable& lineValues, int number, int row, const HeadArray& headValues,
                const ComboBox& depots) const;

 protected:
  ~LinesPane() = default;

  /// A line came, went or has other figures.
  std::function<void()> LinesChanged;
  /// What a person does to the lines. It begins when the form is ready for a person.
  LineHistory history_{FLEX1, LaAmt};

 private:
  void WalkTo(int row);
  void LinesHaveChanged();

  Form& form_;
  const LineGridColumns& columns_;
  BoxKeys keys_;
};

}  // namespace store
