#include "demo/line_money.h"

namespace store::demo {

LineMoney MoneyOf(std::int64_t quantity, Won price, char tax_kind) {
  const Won paid = quantity * price;
  if (tax_kind == '1') return {paid, 0};
  if (tax_kind == '2') {
    // paid / 1.1, rounded half up, kept in whole numbers: (20 * paid + 11) / 22.
    const Won supply = (20 * paid + 11) / 22;
    return {supply, paid - supply};
  }
  return {paid, (paid + 5) / 10};
}

}  // namespace store::demo
