#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "gateway/gateway.h"
#include "slips/handheld_runs.h"

namespace store {

/// Writes the store's products into the file that the terminal's cradle takes over, has the
/// terminal made ready and starts the transfer tool. The transfer itself is that tool's work.
class FRM_CRDIMP : public HandheldForm {
 public:
  FRM_CRDIMP();

  Label Label1{"크래들에 IMPORT 할 "};
  Label Label3{"MASTER DATABASE를 생성합니다."};
  std::array<OptionButton, 3>
      Option1;                     ///< Sale price: the product's, a level's to partners, to stores.
  std::array<ComboBox, 2> Combo1;  ///< The level, for the second and the third of them.
  CheckBox ChkMaster{"품목정보"};
  ProgressBar PBar1;
  Label LBLMsg;
  std::array<Label, 4> Label2;  ///< 0 "State :", 1 the count, 2 its unit, 3 what is being done.
  std::array<Button, 2> Command1 = {Button("확인"), Button("닫기")};

  void Load() override;
  bool KeyDown(Key key) override;

  void Option1_Click(int index);
  void Command1_Click(int index);

 private:
  void PublishControls();
  void OnConfirm();
  void BuildMasterFile(std::int16_t& written);
  /// True when the file stands. `refusal` is what the platform says against it.
  bool WriteProducts(std::string& refusal);
  std::string MasterStatement() const;
  RecordsetSlot FetchProducts() const;
  std::string MasterText(const RecordsetSlot& products);
};

}  // namespace store
