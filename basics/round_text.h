#pragma once

#include <string>
#include <string_view>

namespace store {

/// Rounds a number held as text on its decimal digits, so that 1.15 rounds as it reads. `kind` is
/// one of the three kind words of `BaseSettings` and decides digits, mode and format: quantities
/// and prices by the customer's settings, amounts to whole won, half up. Any other word takes the
/// settings of amounts and gives plain digits. The value must hold no thousands separators; the
/// result of a kind word does. An empty value counts as 0.
std::string RoundText(std::string_view value, std::string_view kind);

}  // namespace store
