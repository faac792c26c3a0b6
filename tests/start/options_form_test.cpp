#include "gateway/gateway.h"
#include "start/frmLogin.h"
#include "start/frmOptions.h"
#include "start/options.h"
#include "tests/start/small_chain.h"

namespace store {
namespace {

class OptionsForm : public SmallChain {
 protected:
  static std::string Stored(const std::string& key) { return ReadOption(kOptionSection, key); }
  static void Store(const std::string& key, const std::string& value) {
    WriteOption(kOptionSection, key, value);
  }
};

TEST_F(OptionsForm, ShowsWhatIsStoredNotWhatIsLoaded) {
  Store("업무서버", "service.example");
  Store("일괄발주단가", "4");
  Store("발주정보거래처", "1");
  Store("발주타입", "3");
  frmOptions form;
  Host.Show(form);
  EXPECT_EQ(form.Text1[0].Text(), TestServer().ServerOption());
  EXPECT_EQ(form.Text1[1].Text(), "service.example");
  EXPECT_EQ(form.Text1[2].Text(), "TWMGR.DEMON");
  EXPECT_EQ(form.Text1[4].Text(), "chain1");
  EXPECT_EQ(form.Combo1.Text(), "4. ASP단가정책 적용");
  EXPECT_EQ(form.Check1.Value, 0);
  EXPECT_EQ(form.Check2.Value, 1);
  EXPECT_TRUE(form.SSOption1[3].Value);
  EXPECT_FALSE(form.SSOption1[0].Value);
  form.SetFocus(form.Text1[2]);
  form.Text1_KeyPress(2, Key::Enter);
  EXPECT_EQ(form.ActiveControl, &form.Text1[4]);
}

TEST_F(OptionsForm, OfANeverSavedPolicyShowsTheFirst) {
  Store("발주타입", "7");
  frmOptions form;
  Host.Show(form);
  EXPECT_EQ(form.Combo1.ListIndex(), 0);
  for (const OptionButton& option : form.SSOption1) EXPECT_FALSE(option.Value);
}

TEST_F(OptionsForm, WritesAllOnceTheCompanyIsFoundAndLeavesTheRunAtTheDirectory) {
  frmOptions form;
  Host.Show(form);
  form.Text1[0].SetText("new.example");
  form.Combo1.SetListIndex(5);
  form.Check1.Value = form.Check3.Value = form.Check4.Value = 1;
  form.SSOption1_Click(1);
  form.cmdApply_Click();
  EXPECT_TRUE(form.IsClosed());
  const std::pair<const char*, const char*> written[] = {
      {"데이터서버", "new.example"}, {"업무서버", ""},
      {"업무개체", "TWMGR.DEMON"},   {"회사아이디", "chain1"},
      {"일괄발주단가", "5"},         {"단가[0]발주", "1"},
      {"발주정보거래처", "0"},       {"입고량0제외", "1"},
      {"타입A중분류표기", "1"},      {"발주타입", "1"}};
  for (const auto& [key, value] : written) EXPECT_EQ(Stored(key), value) << key;
  EXPECT_EQ(AppOptions.DataServer, TestServer().ServerOption());
  EXPECT_NE(ConnectString.find("DATABASE=master;UID=kt;"), std::string::npos);
  EXPECT_EQ(host.Pointers.back(), PointerNormal);

  // A row of the directory must not pass for a user, whether anybody answers or not.
  for (const char* service : {"nowhere.example", ""}) {
    AppOptions.BusinessServer = service;
    ReadUser("e01", "pw1");
    EXPECT_TRUE(AtEof(SlotA)) << service;
  }
}

TEST_F(OptionsForm, EachCheckBoxStandsForItsOwnKey) {
  const std::pair<CheckBox frmOptions::*, const char*> boxes[] = {
      {&frmOptions::Check1, "단가[0]발주"},
      {&frmOptions::Check2, "발주정보거래처"},
      {&frmOptions::Check3, "입고량0제외"},
      {&frmOptions::Check4, "타입A중분류표기"}};
  for (const auto& [ticked, tickedKey] : boxes) {
    frmOptions form;
    Host.Show(form);
    for (const auto& [box, key] : boxes) (form.*box).Value = box == ticked ? 1 : 0;
    form.cmdApply_Click();
    frmOptions again;
    Host.Show(again);
    for (const auto& [box, key] : boxes) {
      EXPECT_EQ(Stored(key), box == ticked ? "1" : "0") << tickedKey << ", " << key;
      EXPECT_EQ((again.*box).Value, box == ticked ? 1 : 0) << tickedKey << ", " << key;
    }
  }
}

TEST_F(OptionsForm, WithoutAnOrderFormLeavesTheStoredOne) {
  Store("발주타입", "2");
  frmOptions form;
  Host.Show(form);
  form.SSOption1_Click(-1);
  form.cmdApply_Click();
  EXPECT_EQ(Stored("발주타입"), "2");
}

TEST_F(OptionsForm, WritesNothingForACompanyItCannotFind) {
  struct Case {
    const char* company;
    const char* object;
    const char* service;
  };
  const Case cases[] = {{"chain2", "TWMGR.DEMON", ""},
                        {"", "TWMGR.DEMON", ""},
                        {"chain1'", "TWMGR.DEMON", ""},
                        {"chain1", "TWMGR.OTHER", ""},
                        {"chain1", "TWMGR.DEMON", "nowhere.example"}};
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
