#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "start/frmLogin.h"
#include "tests/start/way_in_test.h"

namespace store {
namespace {

class Login : public WayInTest {
 protected:
  Login() { Host.Show(form); }

  void Type(const std::string& user, const std::string& password) {
    form.txtUserName.SetText(user);
    form.txtPassword.SetText(password);
  }
  void Press(const std::string& user, const std::string& password) {
    Type(user, password);
    form.cmdOK_Click();
  }

  frmLogin form;
};

TEST_F(Login, FillsTheSessionAndCloses) {
  EXPECT_TRUE(form.Place.Rounded);
  EXPECT_EQ(form.ActiveControl, &form.txtUserName);
  EXPECT_EQ(form.txtUserName.WantedSelection(), TextBox::Selection::All);
  Type("u01", "1111");
  form.txtUserName_KeyPress(Key::Enter);
  EXPECT_EQ(form.ActiveControl, &form.txtPassword);
  form.txtPassword_KeyPress(Key::Enter);
  EXPECT_TRUE(form.IsClosed());
  EXPECT_EQ(Session.UserCode, "u01");
  EXPECT_EQ(Session.UserPassword, "1111");
  EXPECT_EQ(Session.UserName, "김하나");
  EXPECT_EQ(Session.UserStoreCode, "1001");
  EXPECT_EQ(Session.UserLevel, "1");
  EXPECT_FALSE(SlotA);
  EXPECT_FALSE(host.Ended);
  EXPECT_EQ(host.Records.back(), "login: user u01 of store 1001");
}

TEST_F(Login, ChecksTwoAttemptsAndEndsAtTheThird) {
  // A quote breaks the statement, which looks the same as a wrong password.
  for (const char* password : {"wrong", "1111'"}) {
    form.SetFocus(form.cmdOK);
    host.ExpectBox("사용자정보 오류입니다.                    \r\r시스템관리자에게 문의바랍니다. ");
    Press("u01", password);
    EXPECT_FALSE(form.IsClosed());
    EXPECT_EQ(form.ActiveControl, &form.txtUserName);
    EXPECT_EQ(form.txtUserName.WantedSelection(), TextBox::Selection::All);
    EXPECT_EQ(host.Boxes.back().Title, "에러");
  }
  EXPECT_FALSE(host.Ended);
  host.ExpectBox("권한이 없습니다.");
  Press("u01", "1111");
  EXPECT_TRUE(host.Ended);
  EXPECT_EQ(host.Boxes.back().Title, "QUINTA");
  EXPECT_EQ(host.Boxes.back().Style, box::Critical);
  EXPECT_EQ(host.Beeps, 3);
  EXPECT_EQ(Session.UserCode, "");
  for (const std::string& record : host.Records) {
    EXPECT_EQ(record.find("1111"), std::string::npos) << record;
    EXPECT_EQ(record.find("wrong"), std::string::npos) << record;
  }
}

TEST_F(Login, OnlyACancelledWindowEndsTheProgram) {
  form.Close();
  EXPECT_FALSE(host.Ended);
  frmLogin second;
  Host.Show(second);
  second.cmdCancel_Click();
  EXPECT_TRUE(second.IsClosed());
  EXPECT_TRUE(host.Ended);
  EXPECT_TRUE(ProgramEnding());
}

TEST_F(Login, OfAnInstanceThatCameUpMeanwhileEndsTheLaterOne) {
  host.OtherInstance = true;
  host.ExpectBox("현재 프로그램이 실행중입니다.      ");
  frmLogin late;
  Host.ShowModal(late);
  EXPECT_TRUE(host.Ended);
  EXPECT_TRUE(late.IsClosed());
}

TEST_F(Login, OnAServiceThatIsNotThereLooksLikeAnUnknownUser) {
  AppOptions.BusinessServer = "nowhere.example";
  host.ExpectBox("사용자정보 오류입니다.");
  Press("u01", "1111");
  EXPECT_EQ(LastErrorText, "");
}

}  // namespace
}  // namespace store
