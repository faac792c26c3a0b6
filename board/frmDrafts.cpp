#include "board/frmDrafts.h"

#include "basics/dates.h"
#include "forms/host.h"
#include "slips/draft_texts.h"
#include "slips/drafts.h"

namespace store {
namespace {

std::string RowOf(const Draft& draft, int number) {
  std::string row = std::to_string(number);
  for (const std::string& cell :
       {FormatDateText(draft.ChangedAt, "YYYY.MM.DD hh:mm"), KindOf(draft), draft.PartnerName,
        FormatDateText(draft.Date, "YYYY.MM.DD"), std::to_string(draft.Lines.size()),
        draft.SlipId}) {
    row += "\t" + cell;
  }
  return row;
}

}  // namespace

frmDrafts::frmDrafts() : Form("frmDrafts") {
  Caption = "쓰던 전표";
  FLEX1.SetColumns({{.Header = "No.", .Width = 435, .Alignment = Align::Center},
                    {.Header = "쓰던 때", .Width = 1650, .Alignment = Align::Center},
                    {.Header = "종류", .Width = 1005, .Alignment = Align::Center},
                    {.Header = "거래처", .Width = 2400, .Alignment = Align::Left},
                    {.Header = "전표일자", .Width = 1200, .Alignment = Align::Center},
                    {.Header = "건수", .Width = 600, .Alignment = Align::Right},
                    {.Header = "전표번호", .Width = 2400, .Alignment = Align::Left}});
  FLEX2.SetColumns({{.Header = "No.", .Width = 435, .Alignment = Align::Center},
                    {.Header = "품목코드", .Width = 1200, .Alignment = Align::Left},
                    {.Header = "품명", .Width = 4200, .Alignment = Align::Left},
                    {.Header = "수량", .Width = 1005, .Alignment = Align::Right}});
  PublishControls();
}

void frmDrafts::PublishControls() {
  Publish("FLEX1", FLEX1);
  Publish("FLEX2", FLEX2);
  Publish("Command1", Command1);
  Publish("Command2", Command2);
  Publish("Command3", Command3);
  TabOrder = {&FLEX1, &FLEX2};
  FLEX1.RowColChange = [this] { FLEX1_RowColChange(); };
  FLEX1.DblClick = [this] { Command1_Click(); };
  FLEX1.KeyDown = [this](Key key) { FLEX1_KeyDown(key); };
  FLEX1.OwnKeys = {Key::Enter};
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Close(); };
}

void frmDrafts::Load() {
  ShapeWindow(*this, placement::Centered, false);
  List();
  SetFocus(FLEX1);
}

void frmDrafts::List() {
  drafts_ = KeptDrafts();
  FLEX1.SetRows(1);
  for (const Draft& draft : drafts_) FLEX1.AddItem(RowOf(draft, FLEX1.Rows()));
  FLEX1.SetRow(drafts_.empty() ? 0 : 1);
  FLEX1_RowColChange();
}

const Draft* frmDrafts::Current() const {
  const auto index = static_cast<size_t>(FLEX1.Row() - 1);
  return FLEX1.Row() < 1 || index >= drafts_.size() ? nullptr : &drafts_[index];
}

bool frmDrafts::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void frmDrafts::FLEX1_RowColChange() {
  FLEX2.SetRows(1);
  const Draft* draft = Current();
  Command1.Enabled = Command2.Enabled = draft != nullptr;
  if (draft == nullptr) return;
  for (auto line = draft->Lines.rbegin(); line != draft->Lines.rend(); ++line) {
    FLEX2.AddItem(std::to_string(draft->Lines.rend() - line) + "\t" + line->Code + "\t" +
                  line->Name + "\t" + line->Quantity);
  }
}

void frmDrafts::FLEX1_KeyDown(Key key) {
  if (key == Key::Enter) Command1_Click();
}

void frmDrafts::Command1_Click() {
  const Draft* draft = Current();
  if (draft == nullptr) return;
  Chosen = *draft;
  Close();
}

void frmDrafts::Command2_Click() {
  const Draft* draft = Current();
  if (draft == nullptr || !MayThrowAway(*draft)) return;
  // One that another run has taken meanwhile is not thrown away under its hands.
  if (TakeDraft(draft->Id)) RemoveDraft(draft->Id);
  List();
}

}  // namespace store
