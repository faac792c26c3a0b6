#pragma once

#include <string>

#include "lookup/lookup_form.h"

namespace store {

/// Finds a member of staff (table ST) by a part of the name.
class HELP_ST : public LookupForm {
 public:
  HELP_ST();

  std::string ResultCode;   ///< ST_CODE
  std::string ResultName;   ///< ST_NAME
  std::string ResultPhone;  ///< ST_CP

 protected:
  std::string FindStatement() const override;
  void ClearResults() override;
  void TakeRow(int row) override;
};

/// Columns of a list of staff.
std::vector<GridColumn> StaffColumns();

}  // namespace store
