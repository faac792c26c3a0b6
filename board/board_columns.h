#pragma once

namespace store {

/// Columns of the board.
namespace board {
inline constexpr int Date = 1;
inline constexpr int State = 3;
inline constexpr int Lines = 4;
inline constexpr int Total = 7;
inline constexpr int SlipId = 8;  ///< Hidden.
inline constexpr int Confirm = 9;
inline constexpr int PartnerCode = 10;  ///< Hidden.
}  // namespace board

/// The customer whose goods-receipt list shows only what logistics has shipped.
inline constexpr const char* kShippedOnlyCustomer = "fairwind";

}  // namespace store
