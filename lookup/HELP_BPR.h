#pragma once

#include <array>
#include <string>

#include "lookup/lookup_form.h"

namespace store {

/// Finds a product (table PR) by name, barcode or short code, or, behind a "/", by PR_STD.
class HELP_BPR : public LookupForm {
 public:
  HELP_BPR();

  /// Product code with its tax mark, name, standard, unit, short code, barcode and two blanks.
  std::array<std::string, 8> Results;

  /// Registers a new product, which is then searched for by its name.
  void Command2_Click();

 protected:
  void ClearResults() override;
  void TakeRow(int row) override;
};

}  // namespace store
