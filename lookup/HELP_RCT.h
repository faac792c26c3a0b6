#pragma once

#include <string>

#include "lookup/lookup_form.h"

namespace store {

/// Finds another store (table RCT) by a part of its name. Its tabs list partners.
class HELP_RCT : public LookupForm {
 public:
  HELP_RCT();

  std::string ResultCode;     ///< RCT_CODE
  std::string ResultName;     ///< RCT_NAME
  std::string ResultPhone;    ///< RCTI_CPHONE
  std::string ResultAddress;  ///< The two address parts.

  Button Command2{"새거래처"};  ///< Stands without an action.

 protected:
  std::string FindStatement() const override;
  std::string TabStatement(int tab) const override;
  void ClearResults() override;
  void TakeRow(int row) override;
};

}  // namespace store
