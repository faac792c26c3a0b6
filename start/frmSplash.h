#pragma once

#include "forms/form.h"

namespace store {

/// Shown while the start data is loaded; closes itself when that is done.
class frmSplash : public Form {
 public:
  frmSplash();

  Label lblVersion;
  Label lblProductName;
  Label lblStep;  ///< What is being loaded.
  Timer Timer1;

  void Load() override;
  void Activate() override;

  void Timer1_Timer();

 private:
  void ShowStep(const std::string& text);
  bool started_ = false;
};

}  // namespace store
