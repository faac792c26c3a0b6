#include "start/frmOptions.h"

#include "basics/deployment.h"
#include "forms/form.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "start/options.h"

namespace store {
namespace {

std::string CompanyStatement(const std::string& companyId) {
  return Splice(
      " SELECT DB_HostnameIP,DB_Database,DB_User FROM COMPANY WHERE COM_ID = '{company}' ",
      "company"_a = companyId);
}

/// Which box holds which option, in the order in which they are written.
constexpr std::array<std::pair<size_t, const char*>, 4> kTexts = {{{0, option::DataServer},
                                                                   {1, option::BusinessServer},
                                                                   {2, option::BusinessObject},
                                                                   {4, option::CompanyId}}};
constexpr std::array<std::pair<CheckBox frmOptions::*, const char*>, 4> kChecks = {
    {{&frmOptions::Check1, option::OrderZeroPrice},
     {&frmOptions::Check2, option::OrderInfoPartnersOnly},
     {&frmOptions::Check3, option::SkipZeroReceipt},
     {&frmOptions::Check4, option::ShowMidCategory}}};

void FillCheck(CheckBox& check, const std::string& key) {
  const std::int16_t stored = ReadNumberOption(kOptionSection, key);
  if (stored == 0 || stored == 1) check.Value = stored;
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
  for (const auto& [index, key] : kTexts) {
    Publish("Text1_" + std::to_string(index), Text1[index]);
    Text1[index].KeyDown = [this, at = static_cast<int>(index)](Key pressed) {
      Text1_KeyPress(at, pressed);
    };
    Text1[index].OwnKeys = {Key::Enter};
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
  for (const auto& [index, key] : kTexts) Text1[index].SetText(ReadOption(kOptionSection, key));
  Combo1.SetListIndex(ReadNumberOption(kOptionSection, option::BulkOrderPrice));
  for (const auto& [check, key] : kChecks) FillCheck(this->*check, key);
  SSOption1_Click(ReadNumberOption(kOptionSection, option::OrderType));
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
  return !AtEof(SlotA);
}

void frmOptions::WriteAll() {
  for (const auto& [index, key] : kTexts) WriteOption(kOptionSection, key, Text1[index].Text());
  WriteOption(kOptionSection, option::BulkOrderPrice, std::to_string(Combo1.ListIndex()));
  for (const auto& [check, key] : kChecks) {
    WriteOption(kOptionSection, key, std::to_string((this->*check).Value));
  }
  for (size_t i = 0; i < SSOption1.size(); ++i) {
    if (!SSOption1[i].Value) continue;
    WriteOption(kOptionSection, option::OrderType, std::to_string(i));
    return;
  }
}

}  // namespace store
