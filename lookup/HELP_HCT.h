#pragma once

#include <string>

#include "lookup/lookup_form.h"

namespace store {

/// Lists the depots (table HCT) of one store. There is nothing to search by; the list comes with
/// the window.
class HELP_HCT : public LookupForm {
 public:
  HELP_HCT();

  std::string StoreCode;  ///< Input: whose depots.

  std::string ResultCode;  ///< HCT_CODE
  std::string ResultName;  ///< HCT_NAME

  void Load() override;

 protected:
  std::string FindStatement() const override;
  void ClearResults() override;
  void TakeRow(int row) override;
};

}  // namespace store
