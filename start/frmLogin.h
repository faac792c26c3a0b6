#pragma once

#include <string>

#include "forms/form.h"

namespace store {

/// Looks a user up in table ST with what was typed; the answer lands in `SlotA`. The password is
/// compared by the database as stored; a quote in either text breaks the statement, which looks
/// like an unknown user.
void ReadUser(const std::string& user, const std::string& password);

/// Fills the user fields of `Session` from the row that `ReadUser` brought.
void TakeUser();

/// A beep and the box that tells of an unknown user.
void TellUnknownUser();

/// The way in for a person: user and password, checked against the customer database. Two attempts
/// are checked; the third press of the button ends the program without looking at what was typed.
class frmLogin : public Form {
 public:
  frmLogin();

  TextBox txtUserName;
  TextBox txtPassword;
  Button cmdOK{"확인"};
  Button cmdCancel{"취소"};

  void Load() override;
  void Activate() override;
  void Unload() override;
  bool KeyDown(Key key) override;

  void txtUserName_KeyPress(Key key);
  void txtPassword_KeyPress(Key key);
  void cmdOK_Click();
  void cmdCancel_Click();

 private:
  int attempts_ = 0;
  bool cancelled_ = false;
};

}  // namespace store
