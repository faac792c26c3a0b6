#pragma once

#include <string>

#include "lookup/lookup_form.h"

namespace store {

/// Finds a partner (table CT) by a part of its name.
class HELP_CT : public LookupForm {
 public:
  HELP_CT();

  std::string SlipTable;  ///< Input: on a table ending in "23" only partners of kind '0' are found.

  std::string ResultCode;     ///< CT_CODE
  std::string ResultName;     ///< CT_NAME
  std::string ResultPhone;    ///< CT_PHONE
  std::string ResultAddress;  ///< The two address parts.

  // New and changed partners are entered on head office's side; these stand without an action.
  Button Command2{"새거래처"};
  Button Command3{"거래처 정보변경"};
  Button Command4{"거래처 신규등록"};

 protected:
  std::string FindStatement() const override;
  std::string TabStatement(int tab) const override;
  void ClearResults() override;
  void TakeRow(int row) override;
};

/// The statement of a partner tab (from 0): names that contain `text`, within the tab's range, of a
/// group when `groupCode` is not empty. The partner's level is not looked at.
std::string PartnerTabStatement(const std::string& text, int tab, const std::string& groupCode);

}  // namespace store
