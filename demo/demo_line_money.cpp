#include "demo/demo_line_money.h"

namespace store::demo {

DemoLineMoney MoneyOf(std::int64_t quantity, Won price, char taxKind) {
  const Won paid = quantity * price;
  if (taxKind == '1') return {paid, 0};
  if (taxKind == '2') {
    // paid / 1.1, rounded half up, kept in whole numbers: (20 * paid + 11) / 22.
    const Won supply = (20 * paid + 11) / 22;
    return {supply, paid - supply};
  }
  return {paid, (paid + 5) / 10};
}

}  // namespace store::demo
