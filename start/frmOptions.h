#pragma once

#include <array>
#include <variant>

#include "forms/form.h"
#include "start/options.h"

namespace store {

/// Which order form is used; the index is the stored value.
using OrderTypeChoice = std::array<OptionButton, 4>;

/// The workstation's options, opened from the login window. Nothing is written until the company id
/// has been found in the directory database. What was saved holds from the next program start; in
/// this run the connection goes on pointing to the directory.
class frmOptions : public Form {
 public:
  frmOptions();

  std::array<TextBox, 5> Text1;  ///< 0 data server, 1 business server, 2 object, 4 company; no 3.
  ComboBox Combo1;               ///< Price policy; the list index is the stored value.
  std::array<Label, 5> Label1;   ///< Beside `Text1`; 3 stands beside `Combo1`.
  std::array<Label, 2> Label2;   ///< Whom to ask.
  CheckBox Check1{"단가 [0] 인 품목 발주"};
  CheckBox Check2{"발주정보 거래처만  보기"};
  CheckBox Check3{"입고처리시 입고량 0은 제외"};
  CheckBox Check4{"[타입A]에서 중분류 표기"};
  OrderTypeChoice SSOption1;
  Button cmdApply{"적용"};
  Button cmdCancel{"취소"};

  void Load() override;
  bool KeyDown(Key key) override;

  void Text1_KeyPress(int index, Key key);
  void SSOption1_Click(int index);
  void cmdApply_Click();
  void cmdCancel_Click();

 private:
  void PublishControls();
  bool CompanyIsKnown();
  void WriteAll();

  /// Beside each of `kOptions`, in its order, the control that shows it.
  using Field = std::variant<TextBox*, ComboBox*, CheckBox*, OrderTypeChoice*>;
  const std::array<Field, kOptions.size()> fields_ = {&Text1[0], &Text1[1], &Text1[2], &Text1[4],
                                                      &Combo1,   &Check1,   &Check2,   &Check3,
                                                      &Check4,   &SSOption1};
};

}  // namespace store
