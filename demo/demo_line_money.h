#pragma once

#include <cstdint>

namespace store::demo {

/// Whole won; the demo chain keeps no decimals.
using Won = std::int64_t;

/// Tax kinds of a line: '1' tax free, '2' the price holds the tax, anything else it comes on top.
struct DemoLineMoney {
  Won Amount = 0;
  Won Tax = 0;
};

/// Supply amount and tax of a line at the VAT rate of 10 percent, rounded half up per line, as the
/// chain's settings ask for. Quantity and price are not negative.
DemoLineMoney MoneyOf(std::int64_t quantity, Won price, char taxKind);

}  // namespace store::demo
