#pragma once

#include <string>

#include "lookup/lookup_form.h"

namespace store {

/// Finds a member of the second person list (table CTM). It asks for equality, so percent signs
/// around the text are part of the name that it finds.
class HELP_CTM : public LookupForm {
 public:
  HELP_CTM();

  std::string ResultCode;  ///< ST_CODE
  std::string ResultName;  ///< ST_NAME

 protected:
  std::string FindStatement() const override;
  void ClearResults() override;
  void TakeRow(int row) override;
};

}  // namespace store
