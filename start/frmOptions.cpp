#include "start/frmOptions.h"

#include <optional>

#include "basics/deployment.h"
#include "forms/form.h"
#include "forms/host.h"
#include "gateway/call_log.h"
#include "gateway/gateway.h"

namespace store {
namespace {

std::string CompanyStatement(const std::string& companyId) {
  return Splice(
      " SELECT DB_HostnameIP,DB_Database,DB_User FROM COMPANY WHERE COM_ID = '{company}' ",
      "company"_a = companyId);
}

void Show(TextBox& box, const std::string& stored) { box.SetText(stored); }

void Show(ComboBox& policies, const std::string& stored) {
  policies.SetListIndex(OptionNumber(stored));
}

void Show(CheckBox& check, const std::string& stored) {
  const std::int16_t value = OptionNumber(stored);
  if (value == 0 || value == 1) check.Value = value;
}

void Show(OrderTypeChoice& choice, const std::string& stored) {
  for (size_t i = 0; i < choice.size(); ++i)
    choice[i].Value = static_cast<int>(i) == OptionNumber(stored);
}

std::optional<std::string> Entered(const TextBox& box) { return box.Text(); }

std::optional<std::string> Entered(const ComboBox& policies) {
  return std::to_string(policies.ListIndex());
}

std::optional<std::string> Entered(const CheckBox& check) { return std::to_string(check.Value); }

/// Nothing when no type is chosen: what is stored then stays.
std::optional<std::string> Entered(const OrderTypeChoice& choice) {
  for (size_t i = 0; i < choice.size(); ++i)
    if (choice[i].Value) return std::to_string(i);
  return std::nullopt;
}

}  // namespace

frmOptions::frmOptions() : Form("frmOptions") {
  Caption = "연결설정";
  Label1 = {Label("데이터서버"), Label("업무  서버"), Label("업무  개체"), Label("단가정책"),
            Label("회사아이디")};
  Label2 = {Label("* 설정시 의문사항은 반드시 (주)로베인또는 사용체인본부에"),
            Label("문의 바랍니다.")};
  SSOption1 = {OptionButton("새봄유통 타입"), OptionButton("은하수타입"),
               OptionButton("새봄유통 구버젼"), OptionButton("모두장터 타입")};
  for (const char* policy : {"0. 최근가", "1. 계약가", "2. 최근가->계약가", "3. 계약가->최근가",
                             "4. ASP단가정책 적용", "5. 가맹점관리-적정재고 발주단가적용"})
    Combo1.AddItem(policy);
  for (CheckBox* check : {&Check2, &Check3, &Check4})
    check->ToolTipText =
        "ASP관리자에서 가맹점의(적정재고)부분에서 셋팅된 발주처만 거래처에서HELP받을 수 있음.";
  PublishControls();
  TabOrder = {&Text1[0],     &Text1[1],     &Text1[2],     &Text1[4], &Combo1,
              &Check1,       &Check2,       &Check3,       &Check4,   &SSOption1[0],
              &SSOption1[1], &SSOption1[2], &SSOption1[3], &cmdApply, &cmdCancel};
}

void frmOptions::PublishControls() {
  for (const int index : {0, 1, 2, 4}) {
    TextBox& box = Text1[static_cast<size_t>(index)];
    Publish("Text1_" + std::to_string(index), box);
    box.KeyDown = [this, index](Key key) { Text1_KeyPress(index, key); };
    box.OwnKeys = {Key::Enter};
  }
  Publish("Combo1", Combo1);
  Publish("Label1", Label1);
  Publish("Label2", Label2);
  Publish("Check1", Check1);
  Publish("Check2", Check2);
  Publish("Check3", Check3);
  Publish("Check4", Check4);
  Publish("SSOption1", SSOption1);
  for (int i = 0; i < static_cast<int>(SSOption1.size()); ++i) {
    SSOption1[static_cast<size_t>(i)].Click = [this, i] { SSOption1_Click(i); };
  }
  Publish("cmdApply", cmdApply);
  Publish("cmdCancel", cmdCancel);
  cmdApply.Click = [this] { cmdApply_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmOptions::Load() {
  ShapeWindow(*this, placement::Centered, false);
  for (size_t i = 0; i < kOptions.size(); ++i) {
    const std::string stored = ReadOption(kOptionSection, kOptions[i].Key);
    std::visit([&](auto* control) { Show(*control, stored); }, fields_[i]);
  }
}

bool frmOptions::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  cmdCancel_Click();
  return true;
}

void frmOptions::Text1_KeyPress(int, Key key) {
  if (key == Key::Enter) FocusNext();
}

void frmOptions::SSOption1_Click(int index) {
  for (int i = 0; i < static_cast<int>(SSOption1.size()); ++i)
    SSOption1[static_cast<size_t>(i)].Value = i == index;
}

void frmOptions::cmdApply_Click() {
  Host.SetPointer(PointerHourglass);
  const bool known = CompanyIsKnown();
  // Whatever came back is done with; a row of the directory must not pass for a user's row when a
  // login in this run gets no answer.
  SlotA.reset();
  if (known) {
    WriteAll();
  } else {
    Host.MsgBox("해당하는 회사ID가 없습니다", box::Critical, "회사ID 오류");
  }
  Host.SetPointer(PointerNormal);
  if (known) Close();
}

void frmOptions::cmdCancel_Click() { Close(); }

// The one place where the object's name and address are those typed. The columns that come back are
// not taken over: data server and database are what the user typed.
bool frmOptions::CompanyIsKnown() {
  BuildConnectString(DirectoryServer(), "kt", "master");
  if (!DataSpace) DataSpace = std::make_unique<DataSpaceObject>();
  const std::shared_ptr<DataTier> server =
      DataSpace->CreateObject(Text1[2].Text(), "http://" + Text1[1].Text());
  SqlText = CompanyStatement(Text1[4].Text());
  LastErrorText.clear();
  if (server) SlotA = server->GETSQL(SqlText, LastErrorText, ConnectString);
  if (!SlotA) LogFailedRead(SqlText, LastErrorText);
  return !AtEof(SlotA);
}

void frmOptions::WriteAll() {
  for (size_t i = 0; i < kOptions.size(); ++i) {
    const auto value =
        std::visit([](const auto* control) { return Entered(*control); }, fields_[i]);
    if (value) WriteOption(kOptionSection, kOptions[i].Key, *value);
  }
}

}  // namespace store
