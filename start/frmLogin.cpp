#include "start/frmLogin.h"

#include "basics/log.h"
#include "basics/records.h"
#include "forms/form.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"

namespace store {

namespace {

std::string LoginStatement(const std::string& user, const std::string& password) {
  return Splice(
      "SELECT ST_CODE,ST_PWD,ST_NAME,RCT_CODE,ST_ASPLVL FROM ST WHERE  ST_CODE = '{user}' "
      "AND ST_PWD = '{password}'",
      "user"_a = user, "password"_a = password);
}

constexpr int kLongestInput = 8;
constexpr int kRefusedAttempt = 3;

}  // namespace

void ReadUser(const std::string& user, const std::string& password) {
  SqlText = LoginStatement(user, password);
  OpenRecordset(SlotA, SqlText);
}

void TakeUser() {
  Session.UserCode = FieldText(SlotA, 0);
  Session.UserPassword = FieldText(SlotA, 1);
  Session.UserName = FieldText(SlotA, 2);
  Session.UserStoreCode = FieldText(SlotA, 3);
  Session.UserLevel = FieldText(SlotA, 4);
  WriteLog(LogWeight::Note, "login",
           "user " + Session.UserCode + " of store " + Session.UserStoreCode);
}

void TellUnknownUser() {
  // What was typed may be a password in the wrong box, so the record has none of it.
  WriteLog(LogWeight::Warning, "login", "refused");
  Host.Beep();
  Host.MsgBox(
      "사용자정보 오류입니다.                    \r\r"
      "시스템관리자에게 문의바랍니다. ",
      box::Critical, "에러");
}

frmLogin::frmLogin() : Form("frmLogin") {
  Caption = "로그인";
  txtUserName.MaxLength = txtPassword.MaxLength = kLongestInput;
  txtPassword.Masked = true;
  Publish("txtUserName", txtUserName);
  Publish("txtPassword", txtPassword);
  Publish("cmdOK", cmdOK);
  Publish("cmdCancel", cmdCancel);
  TabOrder = {&txtUserName, &txtPassword, &cmdOK, &cmdCancel};
  txtUserName.KeyDown = [this](Key key) { txtUserName_KeyPress(key); };
  txtPassword.KeyDown = [this](Key key) { txtPassword_KeyPress(key); };
  txtUserName.OwnKeys = txtPassword.OwnKeys = {Key::Enter};
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmLogin::Load() {
  // The start has tested this already; here only an instance that came up since is met.
  if (Host.PreviousInstance()) {
    Host.MsgBox("현재 프로그램이 실행중입니다.      ", box::Critical, "에러");
    EndProgram();
    Close();
    return;
  }
  ShapeWindow(*this, placement::Centered, true);
}

void frmLogin::Activate() {
  SetFocus(txtUserName);
  txtUserName.SelectAll();
}

void frmLogin::Unload() {
  if (cancelled_) EndProgram();
}

bool frmLogin::KeyDown(Key key) {
  switch (key) {
    case Key::F10:
      Host.ShowModal(*TheForm("frmOptions"));
      return true;
    case Key::Escape:
      cmdCancel_Click();
      return true;
    default:
      return false;
  }
}

void frmLogin::txtUserName_KeyPress(Key key) {
  if (key == Key::Enter) FocusNext();
}

void frmLogin::txtPassword_KeyPress(Key key) {
  if (key == Key::Enter) cmdOK_Click();
}

void frmLogin::cmdOK_Click() {
  ++attempts_;
  if (attempts_ >= kRefusedAttempt) {
    Host.Beep();
    Host.MsgBox("권한이 없습니다.                        ", box::Critical, "QUINTA");
    EndProgram();
    Close();
    return;
  }
  ReadUser(txtUserName.Text(), txtPassword.Text());
  if (AtEof(SlotA)) {
    TellUnknownUser();
    SetFocus(txtUserName);
    // Or what is typed next would be added to the wrong name.
    txtUserName.SelectAll();
    txtPassword.SelectAll();
    return;
  }
  TakeUser();
  CloseRecordset(SlotA);
  Close();
}

void frmLogin::cmdCancel_Click() {
  cancelled_ = true;
  Close();
}

}  // namespace store
