#include "lookup/NEW_PR.h"

#include <algorithm>
#include <memory>

#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "lookup/combo_fillers.h"
#include "lookup/partner_help.h"
#include "lookup/party_lookups.h"

namespace store {
namespace {

constexpr int kCode = 0;
constexpr int kName = 1;
constexpr int kBarcode = 4;
constexpr int kSupplier = 6;
constexpr int kCategory = 5;

constexpr int kFieldInHand = 0xFFC080;

/// The families of settings rows behind the first five lists.
constexpr std::array<const char*, 5> kFamilies = {"C3", "C1", "C4", "C6", "C7"};

}  // namespace

bool NEW_PR::CodesAreMade() { return BaseSettings.ProductCodeMode == "자동"; }

NEW_PR::NEW_PR() : Form("NEW_PR") {
  Caption = "품목등록";
  Command1 = {Button("저장[F9]"), Button("닫기[ESC]")};
  txBox[kCode].MaxLength = BaseSettings.ProductCodeLength;
  PublishControls();
}

void NEW_PR::PublishControls() {
  Publish("txBox", txBox);
  Publish("Combo1", Combo1);
  Publish("Command1", Command1);
  Publish("LaCodeinformation", LaCodeinformation);
  Publish("LBL_MSG", LBL_MSG);
  for (int i = 0; i < static_cast<int>(txBox.size()); ++i) PublishField(i);
  for (ComboBox& combo : Combo1) {
    combo.KeyDown = [this](Key key) {
      if (key == Key::Enter) FocusNext();
    };
    combo.OwnKeys = {Key::Enter};
  }
  for (int i = 0; i < static_cast<int>(Command1.size()); ++i) {
    Button& button = Command1[static_cast<size_t>(i)];
    button.Click = [this, i] { Command1_Click(i); };
    button.KeyDown = [this](Key key) { Walk(key); };
    button.OwnKeys = {Key::Up, Key::Down};
  }
  TabOrder = {&txBox[0],  &txBox[1],  &txBox[2],  &txBox[3],    &txBox[4],   &Combo1[5], &Combo1[0],
              &Combo1[1], &Combo1[2], &Combo1[3], &Combo1[4],   &txBox[5],   &txBox[6],  &txBox[7],
              &txBox[8],  &txBox[9],  &txBox[10], &Command1[0], &Command1[1]};
}

void NEW_PR::PublishField(int index) {
  TextBox& box = txBox[static_cast<size_t>(index)];
  box.GotFocus = [this, index] { txBox_GotFocus(index); };
  box.LostFocus = [this, index] { txBox_LostFocus(index); };
  box.KeyDown = [this, index](Key key) { txBox_KeyDown(index, key); };
  box.OwnKeys = {Key::Enter, Key::Up, Key::Down};
}

void NEW_PR::Load() { ShapeWindow(*this, placement::TopLeft, false); }

void NEW_PR::Activate() {
  if (activated_) return;
  activated_ = true;
  LaCodeinformation.Caption = "(" + std::to_string(BaseSettings.ProductCodeLength) + "자리 코드 " +
                              BaseSettings.ProductCodeMode + " 생성)";
  LBL_MSG.Caption.clear();
  FillChoices();
  BeginInput();
}

void NEW_PR::FillChoices() {
  const Hourglass waiting;
  for (size_t i = 0; i < kFamilies.size(); ++i) {
    FillBaseCodes(Combo1[i], kFamilies[i], false, " ORDER BY BAS_CODE ");
    Combo1[i].SetListIndex(0);
  }
  // The category is for the user to choose.
  FillItemKinds(Combo1[kCategory], "", 0, false);
}

void NEW_PR::BeginInput() {
  txBox[kName].SetText(SuggestedName);
  txBox[kBarcode].SetText(SuggestedBarcode);
  if (CodesAreMade()) {
    const int stars = std::max<int>(BaseSettings.ProductCodeLength, 0);
    txBox[kCode].SetText(std::string(static_cast<size_t>(stars), '*'));
    txBox[kCode].Enabled = false;
  }
  SetFocus(txBox[CodesAreMade() ? kName : kCode]);
}

// However it is closed, only a registered product gives its name back.
void NEW_PR::Unload() {
  if (!registered_) SuggestedName.clear();
}

bool NEW_PR::KeyDown(Key key) {
  if (key != Key::F9 && key != Key::Escape) return false;
  Command1_Click(key == Key::F9 ? 0 : 1);
  return true;
}

void NEW_PR::txBox_GotFocus(int index) {
  TextBox& box = txBox[static_cast<size_t>(index)];
  box.BackColor = kFieldInHand;
  box.SelectAll();
}

void NEW_PR::txBox_LostFocus(int index) { txBox[static_cast<size_t>(index)].BackColor = -1; }

void NEW_PR::txBox_KeyDown(int index, Key key) {
  Walk(key);
  if (key == Key::Enter) Enter(index);
  if (key == Key::F1 && index == kSupplier) OpenSupplierLookup();
}

void NEW_PR::Walk(Key key) {
  if (key == Key::Down) FocusNext();
  if (key == Key::Up) FocusPrevious();
}

void NEW_PR::Enter(int index) {
  if (index == kCode && !CheckCode()) return;
  if (index == kSupplier && !ResolveSupplier()) return;
  FocusNext();
}

// A supplier is no must, and one that is already found is not looked for again: its text, code and
// name together, would match nobody.
bool NEW_PR::ResolveSupplier() {
  TextBox& box = txBox[kSupplier];
  if (box.Text().empty() || box.Text() == box.Tag) return true;
  const bool found = PartnerHelp(box);
  box.Tag = box.Text();
  return found;
}

void NEW_PR::OpenSupplierLookup() {
  TextBox& box = txBox[kSupplier];
  SetFocus(box);
  HELP_CT lookup;
  Host.ShowModal(lookup);
  if (lookup.ResultCode.empty()) return;
  box.SetText(lookup.ResultCode + "  " + lookup.ResultName);
  box.Tag = box.Text();
}

void NEW_PR::Command1_Click(int index) {
  if (index == 0) Save();
  if (index == 1) Close();
}

void RegisterLookupForms() {
  RegisterForm("NEW_PR", [] { return std::make_unique<NEW_PR>(); });
}

}  // namespace store
