#include "start/Main_Start.h"

#include "basics/formats.h"
#include "basics/records.h"
#include "gateway/gateway.h"
#include "start/frmLogin.h"
#include "start/frmSplash.h"
#include "tests/start/way_in_test.h"

namespace store {
namespace {

using Names = std::vector<std::string>;

class MainStart : public WayInTest {
 protected:
  void ExpectSplash() {
    host.OnModal("frmSplash", [](Form& form) {
      auto& splash = dynamic_cast<frmSplash&>(form);
      EXPECT_EQ(splash.Timer1.Interval, 100);
      EXPECT_TRUE(splash.Timer1.Enabled);
      splash.Timer1_Timer();
      EXPECT_EQ(splash.Timer1.Interval, 0);
      EXPECT_TRUE(splash.IsClosed());
    });
  }
};

TEST_F(MainStart, GoesThroughLoginAndSplashToTheMainWindow) {
  Sql("UPDATE BAS SET BAS_OP3='2' WHERE BAS_CODE='Z402'");
  host.OnModal("frmLogin", [](Form& form) {
    auto& login = dynamic_cast<frmLogin&>(form);
    login.txtUserName.SetText("u01");
    login.txtPassword.SetText("1111");
    login.cmdOK_Click();
  });
  ExpectSplash();
  EXPECT_TRUE(Main_Start(""));
  EXPECT_EQ(host.FormsShown, (Names{"frmLogin", "frmSplash", "frm_Start"}));
  EXPECT_EQ(Session.StoreName, "성수역점");
  EXPECT_EQ(FormatPrice, "###,###.#0");
  EXPECT_EQ(BaseSettings.VatPercent, "10");
  EXPECT_EQ(BaseSettings.VatRounding, "0");
  ASSERT_TRUE(SlotC);
  EXPECT_EQ(SlotC->RecordCount(), 9);  // not the item that has ended
  EXPECT_EQ(FieldText(SlotC, 0), "P0009");
  EXPECT_EQ(SlotC->FieldName(8), "PR_BCODE");
}

TEST_F(MainStart, FetchesNoItemListForRestrictedPartners) {
  Store("발주정보거래처", "1");
  ExpectSplash();
  EXPECT_TRUE(Main_Start("u01,1111"));
  EXPECT_FALSE(SlotC);
}

TEST_F(MainStart, TakesUserAndPasswordFromTheCommandLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"u01,1111", "u01"}, {"u01,1111,more,and more", "u01"}, {"u03", "u03"}, {"u03,", "u03"}};
  for (const auto& [commandLine, user] : cases) {
    StartAgain();
    ExpectSplash();
    EXPECT_TRUE(Main_Start(commandLine)) << commandLine;
    EXPECT_EQ(Session.UserCode, user);
    EXPECT_EQ(host.FormsShown, (Names{"frmSplash", "frm_Start"}));
  }
  for (const char* commandLine : {"u01", "u01,", "u01,wrong", "u01 ,1111x", ","}) {
    StartAgain();
    host.ExpectBox("사용자정보 오류입니다.");
    EXPECT_FALSE(Main_Start(commandLine)) << commandLine;
    EXPECT_EQ(host.FormsShown, Names{});
  }
}

TEST_F(MainStart, TellsOnTheCommandLineThatNoServerAnswers) {
  Store("데이터서버", "127.0.0.1;PORT=1");
  host.ExpectBox("서버에접근할 수 없습니다.           ");
  EXPECT_FALSE(Main_Start("u01,1111"));
  EXPECT_EQ(host.Boxes.back().Title, "접근오류");
  EXPECT_EQ(host.Boxes.back().Style, box::Critical);
  EXPECT_TRUE(host.Ended);
  EXPECT_EQ(host.FormsShown, Names{});
}

TEST_F(MainStart, OfASecondInstanceEndsSilently) {
  host.OtherInstance = true;
  EXPECT_FALSE(Main_Start("u01,1111"));
  EXPECT_TRUE(host.Ended);
  EXPECT_EQ(Session.UserCode, "");
}

TEST_F(MainStart, DoesNotGoOnBehindACancelledLoginButDoesBehindAClosedOne) {
  host.OnModal("frmLogin", [](Form& form) { dynamic_cast<frmLogin&>(form).cmdCancel_Click(); });
  EXPECT_FALSE(Main_Start(""));
  EXPECT_EQ(host.FormsShown, Names{"frmLogin"});

  StartAgain();
  host.OnModal("frmLogin", [](Form& form) { form.Close(); });
  host.ExpectBox("기본사용자를 등록하세요.");
  ExpectSplash();
  EXPECT_TRUE(Main_Start(""));
  EXPECT_EQ(Session.UserCode, "");
}

TEST_F(MainStart, TheSplashStartsItsTimerOnceAndNamesTheVersion) {
  frmSplash splash;
  Host.Show(splash);
  EXPECT_EQ(splash.lblVersion.Caption, "Version 1.2.35");
  EXPECT_EQ(splash.lblProductName.Caption, Host.ProgramTitle);
  EXPECT_TRUE(splash.Place.Rounded);
  splash.Timer1.Interval = 0;
  splash.Activate();
  EXPECT_EQ(splash.Timer1.Interval, 0);
}

}  // namespace
}  // namespace store
