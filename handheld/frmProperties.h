#pragma once

#include <array>

#include "forms/form.h"

namespace store {

class DT9RECEV;

/// The settings of the terminal's line ("핸디터미널 설정"). It works on the port of the one open
/// receive form; without such a form its lists stand without a choice and nothing can be applied.
class frmProperties : public Form {
 public:
  frmProperties();

  ComboBox cboPort;
  ComboBox cboSpeed;
  ComboBox cboDataBits;
  ComboBox cboParity;
  ComboBox cboStopBits;
  std::array<OptionButton, 4> optFlow;  ///< By the number of the flow control.
  std::array<Button, 2> Command1;       ///< 0 applies, 1 closes.
  Label LBL_MSG;
  Timer Timer1;  ///< Takes the message away.

  void Load() override;
  bool KeyDown(Key key) override;

  void Command1_Click(int index);
  void optFlow_Click(int index);
  void Timer1_Timer();

  /// Shows what is in force on the port.
  void LoadPropertySettings();
  /// Sets the port up as chosen, stores what is then in force and shows it on the receive form.
  /// What the platform refuses is told; a refused port number ends it with nothing changed.
  void ApplyPortSettings();

 private:
  void PublishControls();
  void ShowSpeed(const std::string& speed);
  std::string ChosenSettings() const;

  int flow_ = 0;  // the option that was chosen
};

}  // namespace store
