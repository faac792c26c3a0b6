#pragma once

#include <array>
#include <string>

#include "lookup/lookup_form.h"

namespace store {

/// Finds a product (table PR) by name, barcode or short code, or, behind a "/", by PR_STD.
class HELP_BPR : public LookupForm {
 public:
  HELP_BPR();

  Label Label2{"(@ 포함  * 면세)"};
  Button Command2{"새품목"};

  /// Product code with its tax mark, name, standard, unit, short code, barcode and two blanks.
  std::array<std::string, 8> Results;

  void Command2_Click();

 protected:
  std::string FindStatement() const override;
  std::string TabStatement(int tab) const override;
  void ClearResults() override;
  void TakeRow(int row) override;
};

}  // namespace store
