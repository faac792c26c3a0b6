#pragma once

#include <string>

#include "forms/form.h"

namespace store {

/// Asks who has checked the goods ("검품자 확인"). The caller shows it modally and reads
/// `InspectorCode`.
class FRM_NAMECHK : public Form {
 public:
  FRM_NAMECHK();

  Label Label1{"ID"};
  TextBox Text1;  ///< A user's code.

  std::string InspectorCode;  ///< Out: the code that was found; empty without one.

  void Load() override;
  void Activate() override;

  void Text1_KeyDown(Key key);
  /// ST_CODE of the last user of this store with that code; empty when there is none.
  static std::string FindInspector(const std::string& code);

 private:
  void Accept();
  void Cancel();
  bool activated_ = false;
};

}  // namespace store
