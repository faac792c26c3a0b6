#include "lookup/lookup_form.h"

#include "forms/form.h"
#include "gateway/gateway.h"
#include "lookup/consonant_tabs.h"
#include "lookup/export_grid.h"
#include "lookup/lookup_grid.h"

namespace store {

LookupForm::LookupForm(std::string name, std::string caption, std::string searchLabel,
                       std::vector<GridColumn> columns)
    : Form(std::move(name)), Label1(std::move(searchLabel)) {
  Caption = std::move(caption);
  FLEX1.SetColumns(std::move(columns));
  TabOne1.Visible = false;
  TabOrder = {&Text1, &Command1, &FLEX1};
}

void LookupForm::ShowTabs() {
  TabOne1.Captions = ConsonantTabCaptions();
  TabOne1.Visible = true;
}

void LookupForm::Load() {
  ShapeWindow(*this, 3, false);
  ClearResults();
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

std::string LookupForm::TabStatement(int) const { return {}; }

void LookupForm::Command1_Click() { Fill(FindStatement()); }

void LookupForm::TabOne1_Click(int tab) {
  TabOne1.CurrTab = tab;
  Fill(TabStatement(tab));
}

void LookupForm::Fill(const std::string& statement) {
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
  if (key == Key::F12) ExportGrid(FLEX1);
}

void LookupForm::Choose() {
  if (FLEX1.Row() < FLEX1.FixedRows()) return;
  ClearResults();
  TakeRow(FLEX1.Row());
  Close();
}

std::vector<GridColumn> PartyColumns() {
  return {{.Header = "코드", .Width = 900, .Alignment = Align::Center},
          {.Header = "상호", .Width = 1995, .Alignment = Align::Left},
          {.Header = "대표", .Width = 1155, .Alignment = Align::Center},
          {.Header = "전화", .Width = 1440, .Alignment = Align::Center},
          {.Header = "주소", .Width = 900, .Alignment = Align::Left}};
}

}  // namespace store
