#include "session/frmLogin.h"

#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "session/login.h"
#include "session/run_state.h"
#include "session/window_shell.h"

namespace store {
namespace {

constexpr int kLongestInput = 8;
constexpr int kRefusedAttempt = 3;

}  // namespace

frmLogin::frmLogin() : Form("frmLogin") {
  Caption = "로그인";
  txtUserName.MaxLength = txtPassword.MaxLength = kLongestInput;
  txtPassword.Masked = true;
  TabOrder = {&txtUserName, &txtPassword, &cmdOK, &cmdCancel};
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
