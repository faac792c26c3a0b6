#include "lookup/lookup_form.h"

#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "lookup/consonant_tabs.h"
#include "lookup/export_grid.h"

namespace store {

LookupForm::LookupForm(const LookupKind& kind)
    : Form(kind.Name), Label1(kind.SearchLabel), kind_(kind) {
  Caption = kind.Caption;
  FLEX1.SetColumns(kind.Columns);
  const bool searches = !Label1.Caption.empty();
  Label1.Visible = Text1.Visible = Command1.Visible = searches;
  Label2.Visible = false;
  TabOne1.Visible = kind.TabStatement != nullptr;
  if (TabOne1.Visible) TabOne1.Captions = ConsonantTabCaptions();
  size_t further = 0;
  for (Button* button : {&Command2, &Command3, &Command4}) {
    button->Visible = further < kind.Buttons.size();
    if (button->Visible) button->Caption = kind.Buttons[further++];
  }
  PublishControls();
}

void LookupForm::PublishControls() {
  Publish("Label1", Label1);
  Publish("Text1", Text1);
  Publish("Command1", Command1);
  Publish("FLEX1", FLEX1);
  Publish("TabOne1", TabOne1);
  Publish("Label2", Label2);
  Publish("Command2", Command2);
  Publish("Command3", Command3);
  Publish("Command4", Command4);
  Publish("LaSheet", LaSheet);
  TabOrder = {&Text1, &Command1, &FLEX1};
  Text1.KeyDown = [this](Key key) { Text1_KeyDown(key); };
  Text1.OwnKeys = {Key::Enter, Key::Down};
  Command1.Click = [this] { Command1_Click(); };
  FLEX1.DblClick = [this] { FLEX1_DblClick(); };
  FLEX1.KeyDown = [this](Key key) { FLEX1_KeyDown(key); };
  FLEX1.OwnKeys = {Key::Enter, Key::F12};
  TabOne1.Click = [this](int tab) { TabOne1_Click(tab); };
}

void LookupForm::Load() {
  ShapeWindow(*this, placement::Centered, false);
  ClearResults();
  if (!Text1.Visible) Command1_Click();
}

void LookupForm::Activate() {
  if (!GroupCode.empty()) Command1_Click();
  if (FLEX1.Rows() > FLEX1.FixedRows()) {
    SetFocus(FLEX1);
    FLEX1.SetRow(1);
  }
}

bool LookupForm::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void LookupForm::Command1_Click() { Fill(kind_.FindStatement(*this)); }

void LookupForm::TabOne1_Click(int tab) {
  TabOne1.CurrTab = tab;
  Fill(kind_.TabStatement(*this, tab));
}

void LookupForm::WalkTabs(int step) {
  if (!TabOne1.Visible) return;
  const int count = static_cast<int>(TabOne1.Captions.size());
  // Before any tab was pressed the first step leads to either end of the row.
  const int from = TabOne1.CurrTab < 0 && step < 0 ? 0 : TabOne1.CurrTab;
  TabOne1_Click((from + step + count) % count);
}

void LookupForm::Fill(const std::string& statement) {
  const StoppableReads mayBeStopped;
  SqlText = statement;
  FillLookupGrid(SqlText, FLEX1);
  if (FLEX1.Rows() <= FLEX1.FixedRows()) return;
  FLEX1.Select(1, 1);
  SetFocus(FLEX1);
}

void LookupForm::Text1_KeyDown(Key key) {
  if (key == Key::Enter) Command1_Click();
  if (key == Key::Down) SetFocus(FLEX1);
}

void LookupForm::FLEX1_DblClick() { Choose(); }

void LookupForm::FLEX1_KeyDown(Key key) {
  if (key == Key::Enter) Choose();
  if (key == Key::F12) ExportGrid(FLEX1, Caption, LaSheet);
}

void LookupForm::Choose() {
  if (FLEX1.Row() < FLEX1.FixedRows()) return;
  ClearResults();
  TakeRow(FLEX1.Row());
  Close();
}

void LookupForm::ClearResults() {
  for (std::string* result : {&ResultCode, &ResultName, &ResultPhone, &ResultAddress}) {
    result->clear();
  }
}

void LookupForm::TakeRow(int row) {
  for (const auto& [result, column] : kind_.Results) this->*result = FLEX1.TextMatrix(row, column);
}

void FillLookupGrid(const std::string& statement, Grid& grid) {
  const Hourglass waiting;
  grid.SetRows(grid.FixedRows());
  OpenRecordset(SlotA, statement);
  if (!LastErrorText.empty() || AtEof(SlotA)) return;
  std::string row;
  ForEachRow(SlotA, [&] {
    row.clear();
    for (int field = 0; field < SlotA->FieldCount(); ++field) {
      if (field > 0) row += '\t';
      row += SlotA->Text(field);
    }
    grid.AddItem(row);
  });
  CloseRecordset(SlotA);
}

}  // namespace store
