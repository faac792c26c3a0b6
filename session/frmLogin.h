#pragma once

#include "forms/form.h"

namespace store {

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
