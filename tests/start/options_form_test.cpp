#include "gateway/gateway.h"
#include "start/frmLogin.h"
#include "start/frmOptions.h"
#include "tests/start/way_in_test.h"

namespace store {
namespace {

using OptionsForm = WayInTest;

TEST_F(OptionsForm, ShowsWhatIsStoredNotWhatIsLoaded) {
  Store("발주타입", "7");
  frmOptions fresh;
  Host.Show(fresh);
  EXPECT_EQ(fresh.Combo1.ListIndex(), 0);  // a policy was never saved
  for (const OptionButton& option : fresh.SSOption1) EXPECT_FALSE(option.Value);

  Store("업무서버", "service.example");
  Store("일괄발주단가", "4");
  Store("발주타입", "3");
  frmOptions form;
  Host.Show(form);
  EXPECT_EQ(form.Text1[0].Text(), TestServer().ServerOption());
  EXPECT_EQ(form.Text1[1].Text(), "service.example");
  EXPECT_EQ(form.Text1[2].Text(), "TWMGR.DEMON");
  EXPECT_EQ(form.Text1[4].Text(), "small");
  EXPECT_EQ(form.Combo1.Text(), "4. ASP단가정책 적용");
  EXPECT_TRUE(form.SSOption1[3].Value);
  EXPECT_FALSE(form.SSOption1[0].Value);
  form.SetFocus(form.Text1[2]);
  form.Text1_KeyPress(2, Key::Enter);
  EXPECT_EQ(form.ActiveControl, &form.Text1[4]);
}

TEST_F(OptionsForm, WritesAllOnceTheCompanyIsFoundAndLeavesTheRunAtTheDirectory) {
  frmOptions form;
  Host.Show(form);
  form.Text1[0].SetText("new.example");
  form.Combo1.SetListIndex(5);
  form.SSOption1_Click(1);
  form.cmdApply_Click();
  EXPECT_TRUE(form.IsClosed());
  const std::pair<const char*, const char*> written[] = {
      {"데이터서버", "new.example"}, {"업무서버", ""},      {"업무개체", "TWMGR.DEMON"},
      {"회사아이디", "small"},       {"일괄발주단가", "5"}, {"발주타입", "1"}};
  for (const auto& [key, value] : written) EXPECT_EQ(Stored(key), value) << key;
  EXPECT_EQ(AppOptions.DataServer, TestServer().ServerOption());
  EXPECT_NE(ConnectString.find("DATABASE=master;UID=kt;"), std::string::npos);
  EXPECT_EQ(host.Pointers.back(), PointerNormal);

  frmOptions none;
  Host.Show(none);
  none.SSOption1_Click(-1);
  none.cmdApply_Click();
  EXPECT_EQ(Stored("발주타입"), "1") << "without a choice the stored one stays";

  // A row of the directory must not pass for a user, whether anybody answers or not.
  for (const char* service : {"nowhere.example", ""}) {
    AppOptions.BusinessServer = service;
    ReadUser("u01", "1111");
    EXPECT_TRUE(AtEof(SlotA)) << service;
  }
}

TEST_F(OptionsForm, EachCheckBoxStandsForItsOwnKeyAndSetting) {
  const struct {
    const char* key;
    CheckBox frmOptions::*check;
    std::int16_t AppOptionsRecord::*setting;
  } options[] = {
      {"단가[0]발주", &frmOptions::Check1, &AppOptionsRecord::OrderZeroPrice},
      {"발주정보거래처", &frmOptions::Check2, &AppOptionsRecord::OrderInfoPartnersOnly},
      {"입고량0제외", &frmOptions::Check3, &AppOptionsRecord::SkipZeroReceipt},
      {"타입A중분류표기", &frmOptions::Check4, &AppOptionsRecord::ShowMidCategory},
  };
  for (const auto& one : options) {
    for (const auto& option : options) Store(option.key, &option == &one ? "1" : "0");
    StartAgain();
    frmOptions form;
    Host.Show(form);
    for (const auto& option : options) {
      SCOPED_TRACE(option.key);
      EXPECT_EQ((form.*option.check).Value, &option == &one);
      EXPECT_EQ(AppOptions.*option.setting, &option == &one);
      (form.*option.check).Value = &option != &one;
    }
    form.cmdApply_Click();
    for (const auto& option : options)
      EXPECT_EQ(Stored(option.key), &option == &one ? "0" : "1") << option.key;
  }
}

TEST_F(OptionsForm, WritesNothingForACompanyItCannotFind) {
  struct Case {
    const char* company;
    const char* object;
    const char* service;
  };
  const Case cases[] = {{"smaller", "TWMGR.DEMON", ""},
                        {"", "TWMGR.DEMON", ""},
                        {"small'", "TWMGR.DEMON", ""},
                        {"small", "TWMGR.OTHER", ""},
                        {"small", "TWMGR.DEMON", "nowhere.example"}};
  for (const Case& c : cases) {
    frmOptions form;
    Host.Show(form);
    form.Text1[0].SetText("new.example");
    form.Text1[1].SetText(c.service);
    form.Text1[2].SetText(c.object);
    form.Text1[4].SetText(c.company);
    host.ExpectBox("해당하는 회사ID가 없습니다");
    form.cmdApply_Click();
    EXPECT_FALSE(form.IsClosed()) << c.company;
    EXPECT_EQ(Stored("데이터서버"), TestServer().ServerOption()) << c.company;
    EXPECT_EQ(host.Boxes.back().Title, "회사ID 오류");
    EXPECT_FALSE(SlotA);
    form.cmdCancel_Click();
    EXPECT_TRUE(form.IsClosed());
  }
}

TEST_F(OptionsForm, TellsOfEveryKeyThatCouldNotBeWrittenAndCloses) {
  frmOptions form;
  Host.Show(form);
  std::filesystem::create_directory(host.Folder / "OPT.ini.new");
  for (int key = 0; key < 10; ++key) host.ExpectBox("옵션정보 기록실패");
  form.cmdApply_Click();
  EXPECT_TRUE(form.IsClosed());
}

}  // namespace
}  // namespace store
