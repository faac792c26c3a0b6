#include "slips/line_money.h"

#include <cmath>

#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/round_text.h"

namespace store {

double TaxOnTop(double amount) {
  const double rate = ParseNumber(BaseSettings.VatPercent) / 100;
  if (BaseSettings.VatRounding == "0") return std::floor(rate * amount);
  if (amount >= 0) return std::floor(rate * amount + 0.5);
  return -std::floor(rate * -amount + 0.5);
}

LineMoney ComputeLineMoney(double quantity, double price, const std::string& taxKind) {
  const double amount =
      ParseGrouped(RoundText(NumberText(quantity * price), BaseSettings.AmountKind));
  if (taxKind == "1") return {amount, 0};
  if (taxKind == "2") {
    const double rate = ParseNumber(BaseSettings.VatPercent) / 100;
    const double tax = amount - ParseNumber(FormatNumber(amount / (1 + rate), "#"));
    return {amount - tax, tax};
  }
  return {amount, TaxOnTop(amount)};
}

}  // namespace store
