#pragma once

#include <string>

namespace store {

/// The money of one line, in won.
struct LineMoney {
  double Supply = 0;
  double Tax = 0;
  double Sum() const { return Supply + Tax; }
};

/// VAT on top of an amount, a whole number: cut towards minus infinity when `VatRounding` is "0",
/// else rounded, a negative amount mirrored. Rate and rounding come from `BaseSettings`.
double TaxOnTop(double amount);

/// Amount and VAT of a line. `taxKind` is PR_TAX2 or PS_TAXGU: "1" tax free, "2" VAT within the
/// price, anything else VAT on top. The rate and the rounding of the tax come from `BaseSettings`.
/// Tax is rounded here, line by line, and never on the slip.
LineMoney ComputeLineMoney(double quantity, double price, const std::string& taxKind);

}  // namespace store
