#include "board/frmDeleted.h"

#include "basics/dates.h"
#include "basics/formats.h"
#include "slips/deleted_slips.h"

namespace store {
namespace {

constexpr const char* kUnsure = "삭제 확인 안 됨";

std::string RowOf(const DeletedSlip& slip, int number) {
  std::string row = std::to_string(number);
  for (const std::string& cell :
       {FormatDateText(slip.DeletedAt, "hh:mm"),
        FormatDateText(slip.Header.Text(0, "PE_PDATE"), "YYYY.MM.DD"),
        slip.Header.Text(0, "PE_TCTNAME"), std::to_string(slip.Lines.Rows.size()),
        slip.Header.Text(0, "PE_TOT"), slip.Id(), std::string(slip.Sure ? "" : kUnsure)}) {
    row += "\t" + cell;
  }
  return row;
}

std::string LineRow(const KeptRows& lines, size_t line) {
  std::string row = std::to_string(line + 1);
  for (const char* column : {"PR_CODE", "PR_NAME", "PR_STD", "PS_SQTY", "PS_UP", "PS_AMT"}) {
    row += "\t" + lines.Text(line, column);
  }
  return row;
}

}  // namespace

frmDeleted::frmDeleted() : Form("frmDeleted") {
  Caption = "삭제한 전표";
  FLEX1.SetColumns(
      {{.Header = "No.", .Width = 435, .Alignment = Align::Center},
       {.Header = "삭제한 때", .Width = 900, .Alignment = Align::Center},
       {.Header = "발주일자", .Width = 1100, .Alignment = Align::Center},
       {.Header = "발주처", .Width = 2400, .Alignment = Align::Left},
       {.Header = "건수", .Width = 600, .Alignment = Align::Right, .Format = kMaskWhole},
       {.Header = "합계금액", .Width = 1100, .Alignment = Align::Right, .Format = kMaskWhole},
       {.Header = "전표번호", .Width = 2400, .Alignment = Align::Left},
       {.Header = "비고", .Width = 1200, .Alignment = Align::Left}});
  FLEX2.SetColumns(
      {{.Header = "No.", .Width = 435, .Alignment = Align::Center},
       {.Header = "품목코드", .Width = 1200, .Alignment = Align::Left},
       {.Header = "품명", .Width = 3600, .Alignment = Align::Left},
       {.Header = "규격", .Width = 1200, .Alignment = Align::Left},
       {.Header = "수량", .Width = 900, .Alignment = Align::Right},
       {.Header = "단가", .Width = 1005, .Alignment = Align::Right, .Format = kMaskWhole},
       {.Header = "공급가액", .Width = 1100, .Alignment = Align::Right, .Format = kMaskWhole}});
  PublishControls();
}

void frmDeleted::PublishControls() {
  Publish("FLEX1", FLEX1);
  Publish("FLEX2", FLEX2);
  Publish("Command1", Command1);
  Publish("Command3", Command3);
  TabOrder = {&FLEX1, &FLEX2};
  FLEX1.RowColChange = [this] { FLEX1_RowColChange(); };
  FLEX1.DblClick = [this] { Command1_Click(); };
  FLEX1.KeyDown = [this](Key key) {
    if (key == Key::Enter) Command1_Click();
  };
  FLEX1.OwnKeys = {Key::Enter};
  Command1.Click = [this] { Command1_Click(); };
  Command3.Click = [this] { Close(); };
}

void frmDeleted::Load() {
  ShapeWindow(*this, placement::Centered, false);
  slips_ = DeletedToday();
  for (const DeletedSlip& slip : slips_) FLEX1.AddItem(RowOf(slip, FLEX1.Rows()));
  FLEX1.SetRow(slips_.empty() ? 0 : 1);
  FLEX1_RowColChange();
  SetFocus(FLEX1);
}

const DeletedSlip* frmDeleted::Current() const {
  const auto index = static_cast<size_t>(FLEX1.Row() - 1);
  return FLEX1.Row() < 1 || index >= slips_.size() ? nullptr : &slips_[index];
}

bool frmDeleted::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void frmDeleted::FLEX1_RowColChange() {
  FLEX2.SetRows(1);
  const DeletedSlip* slip = Current();
  Command1.Enabled = slip != nullptr;
  if (slip == nullptr) return;
  for (size_t line = 0; line < slip->Lines.Rows.size(); ++line) {
    FLEX2.AddItem(LineRow(slip->Lines, line));
  }
}

void frmDeleted::Command1_Click() {
  const DeletedSlip* slip = Current();
  if (slip == nullptr) return;
  Chosen = *slip;
  Close();
}

}  // namespace store
