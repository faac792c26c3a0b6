#pragma once

#include <string>

namespace store {

/// How numbers and dates are shown, the same in every window. Empty until `FormatSetup`. In the
/// number masks "#" is a digit if there is one, "0" a digit always; in the date masks "NN" are
/// minutes.
extern std::string FormatInteger;  ///< "###,##0"
extern std::string FormatPlain;    ///< "######.####": a number as it goes into a statement.
extern std::string FormatQty;      ///< From `BaseSettings.QtyDecimals`.
extern std::string FormatPrice;    ///< From `BaseSettings.PriceDecimals`.
extern std::string FormatAmount;   ///< From `BaseSettings.AmountDecimals`.
extern std::string FormatRate;     ///< From `BaseSettings.RateDecimals`.
extern std::string FormatMonth;    ///< "YYYY-MM"
extern std::string FormatDate;     ///< "YYYY-MM-DD"
extern std::string FormatMinute;   ///< "YYYY-MM-DD HH:NN"
extern std::string FormatSecond;   ///< "YYYY-MM-DD HH:NN:SS"
extern std::string FormatStamp;    ///< "YYYYMMDDHHNNSS"

/// Masks of columns that show numbers the same way for every customer.
inline constexpr const char* kMaskWhole = "#,###";         ///< Nothing for zero.
inline constexpr const char* kMaskUpToCents = "#,###.##";  ///< At most two decimals.

/// Fills the formats from `BaseSettings`. Called once at start, after the base codes are loaded.
void FormatSetup();

/// The mask of a number with so many decimals: the last place is always printed, the places before
/// it only when needed.
std::string BuildNumberFormat(int decimals);

/// All formats empty, as at the start of a run.
void ResetFormats();

}  // namespace store
