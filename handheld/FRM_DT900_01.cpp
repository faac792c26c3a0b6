#include "handheld/FRM_DT900_01.h"

#include <cstddef>

#include "basics/dates.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "lookup/combo_fillers.h"
#include "lookup/partner_help.h"
#include "lookup/party_lookups.h"

namespace store {
namespace {

/// What the menu calls the run of a form.
std::string RunName(const HandheldForm& form) {
  for (const HandheldRun& run : HandheldRuns()) {
    if (form.Name == run.FormName && form.ModuleCode == run.ModuleCode &&
        form.ReturnMark == run.ReturnMark) {
      return run.MenuText;
    }
  }
  return {};
}

}  // namespace

FRM_DT900_01::FRM_DT900_01()
    : HandheldForm("FRM_DT900_01"), StagedRowsPane(static_cast<HandheldForm&>(*this)) {
  Caption = "핸디터미널을 이용한 자료처리";
  PublishControls();
  TabOrder = {&Combo1, &DTPicker1, &Text1[1], &Text1[0], &FLEX};
}

void FRM_DT900_01::PublishControls() {
  Publish("LaRun", LaRun);
  Publish("DTPicker1", DTPicker1);
  Publish("Command2", Command2);
  for (const int index : {0, 1, 3, 4}) {
    Button& button = Command1[static_cast<std::size_t>(index)];
    Publish("Command1_" + std::to_string(index), button);
    button.Click = [this, index] { Command1_Click(index); };
  }
  Command2.Click = [this] { Command2_Click(); };
  Text1[1].KeyDown = [this](Key key) { Text1_KeyDown(key); };
  Text1[0].KeyDown = [this](Key key) {
    if (key == Key::Enter) FocusNext();
  };
}

void FRM_DT900_01::Load() {
  ShapeWindow(*this, placement::Maximized, false);
  SetFormats();
  LaRun.Caption = RunName(*this);
  FillDepots(Session.StoreCode, Combo1, false);
  Combo1.SetListIndex(0);
  DTPicker1.SetValue(FormatDateValue(Today(), "YYYY-MM-DD"));
}

void FRM_DT900_01::Activate() {
  if (activated_) return;
  activated_ = true;
  const Hourglass waiting;
  HideColumnsOfOtherModules();
  LoadStagedRows();
  SetFocus(FLEX);
}

bool FRM_DT900_01::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void FRM_DT900_01::Command1_Click(int index) {
  switch (index) {
    case 0:
      LoadStagedRows();
      break;
    case 1:
      Close();
      break;
    case 3:
      MakeSlips();
      break;
    case 4:
      DeleteTicked();
      break;
    default:
      break;
  }
}

void FRM_DT900_01::Command2_Click() {
  HELP_CT lookup;
  Host.ShowModal(lookup);
  Text1[1].SetText(Trim(lookup.ResultCode + " " + lookup.ResultName));
}

void FRM_DT900_01::Text1_KeyDown(Key key) {
  if (key != Key::Enter) return;
  if (!Text1[1].Text().empty()) PartnerHelp(Text1[1]);
  FocusNext();
}

}  // namespace store
