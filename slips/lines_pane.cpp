#include "slips/lines_pane.h"

#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/depot_choice.h"
#include "slips/item_list.h"

namespace store {

LinesPane::LinesPane(Form& form, const LineGridColumns& columns, BoxKeys keys)
    : form_(form), columns_(columns), keys_(keys) {
  form.Publish("inBox", inBox);
  form.Publish("FLEX1", FLEX1);
  form.Publish("LaAmt", LaAmt);
  form.Publish("LineUndo", LineUndo);
  form.Publish("LineRedo", LineRedo);
  inBox.Scanned = true;
  inBox.OwnKeys = {Key::Enter, Key::Up, Key::Down};
  FLEX1.KeyPress = [this](const std::string& character) { FLEX1_KeyPress(character); };
  FLEX1.RowColChange = [this] { history_.NoteRow(); };
  LineUndo.Click = [this] { LineUndo_Click(); };
  LineRedo.Click = [this] { LineRedo_Click(); };
  LineUndo.Enabled = LineRedo.Enabled = false;
  history_.Changed = [this] {
    LineUndo.Enabled = history_.CanUndo();
    LineRedo.Enabled = history_.CanRedo();
  };
}

void LinesPane::LineUndo_Click() {
  if (history_.Undo() && LinesChanged) LinesChanged();
}

void LinesPane::LineRedo_Click() {
  if (history_.Redo() && LinesChanged) LinesChanged();
}

void LinesPane::LinesHaveChanged() {
  history_.Note();
  if (LinesChanged) LinesChanged();
}

void LinesPane::WalkTo(int row) {
  if (keys_ == BoxKeys::LeadToLines) form_.SetFocus(FLEX1);
  if (row >= 1 && row < FLEX1.Rows()) FLEX1.SetRow(row);
}

void LinesPane::inBox_KeyDown(Key key) {
  if (key == Key::Up) WalkTo(FLEX1.RowBeside(FLEX1.Row(), -1));
  if (key == Key::Down) WalkTo(FLEX1.RowBeside(FLEX1.Row(), 1));
  if (key == Key::Delete) RemoveCurrentLine();
}

void LinesPane::FLEX1_KeyPress(const std::string& character) {
  // Typing on the lines is typing in the box: the scanner must never miss for a wrong focus.
  if (!inBox.Enabled) return;
  inBox.SetText(character);
  form_.SetFocus(inBox);
  inBox.CaretToEnd();
}

void LinesPane::RecalcLine(int row) {
  RecalcGridLine(FLEX1, row, columns_, LaAmt);
  LinesHaveChanged();
}

void LinesPane::RecalcTotals() {
  RecalcGridTotals(FLEX1, columns_, LaAmt);
  LinesHaveChanged();
}

void LinesPane::RemoveCurrentLine() {
  if (FLEX1.Row() == 0) return;
  FLEX1.RemoveItem(FLEX1.Row());
  RecalcTotals();
}

void LinesPane::ClearLines() {
  FLEX1.SetRows(1);
  RecalcTotals();
}

bool LinesPane::LoadLines(const std::string& statement, const std::function<void()>& header,
                          const std::function<void()>& line) {
  const Hourglass waiting;
  SqlText = statement;
  OpenRecordset(SlotA, SqlText);
  FLEX1.SetRows(1);
  const bool read = SlotA != nullptr;
  if (!AtEof(SlotA)) header();
  ForEachRow(SlotA, line);
  LaAmt[0].Caption = std::to_string(FLEX1.Rows() - 1);
  CloseRecordset(SlotA);
  return read;
}

void LinesPane::ShowTotals(const std::string& total, const std::string& supply,
                           const std::string& tax) {
  LaAmt[1].Caption = FormatText(total, FormatAmount);
  LaAmt[2].Caption = FormatText(supply, FormatAmount);
  LaAmt[3].Caption = FormatText(tax, FormatAmount);
}

bool LinesPane::IsLine(int row) const {
  return !MidChars(FLEX1.TextMatrix(row, columns_.Code), 2).empty();
}

void LinesPane::FillLine(StringTable& lineValues, int number, int row, const HeadArray& headValues,
                         const ComboBox& depots) const {
  const auto put = [&](int column, const std::string& text) {
    lineValues.Set(number, column, text);
  };
  const auto plain = [&](int column) { return PlainNumber(FLEX1.TextMatrix(row, column)); };
  put(line::Id, headValues[head::Id]);
  put(line::Number, std::to_string(number));
  put(line::Date, headValues[head::Date]);
  put(line::ProductCode, FLEX1.TextMatrix(row, columns_.Code));
  // The master data of this moment, not of the moment the line was written.
  put(line::ProductName, ItemText(item::Name));
  put(line::Standard, ItemText(item::Standard));
  put(line::TaxKind, ItemText(item::TaxKind));
  put(line::Unit, ItemText(item::Unit));
  put(line::Quantity, plain(columns_.Quantity));
  put(line::OtherQty, columns_.OtherQty == 0 ? "0" : plain(columns_.OtherQty));
  put(line::Cost, "0");
  put(line::Price, plain(columns_.Price));
  put(line::Supply, plain(columns_.Supply));
  put(line::Tax, plain(columns_.Tax));
  put(line::User, Session.UserCode);
  put(line::Type, "0");
  put(line::Memo, "");
  put(line::DepotCode, DepotCodeOf(depots));
  put(line::DepotName, DepotNameOf(depots));
}

}  // namespace store
