#pragma once

#include "slips/line_grid.h"

namespace store {

/// Columns of the receipt form's grid.
namespace receipt {
inline constexpr int Code = 1;
inline constexpr int Name = 2;  ///< Barcode, carriage return, name.
inline constexpr int Price = 5;
inline constexpr int Ordered = 6;
inline constexpr int Shipped = 7;
inline constexpr int Received = 8;
inline constexpr int Supply = 9;
inline constexpr int Tax = 10;
inline constexpr int Barcode = 12;

inline constexpr LineGridColumns Money{
    .Price = Price, .Quantity = Received, .TaxKind = 4, .Supply = Supply, .Tax = Tax, .Sum = 11};
}  // namespace receipt

}  // namespace store
