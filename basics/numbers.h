#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace store {

/// Numbers live as texts in grids, settings and slips. These routines are the only way between the
/// two, so that a figure reads the same wherever it comes from.

/// The leading numeric part of a text: blanks, a sign, digits and one point. It ends at the first
/// other character, a grouping comma and an exponent letter among them. 0 when there is none.
double ParseNumber(std::string_view text);

/// As `ParseNumber`, but grouping commas are skipped: "1,234.5" is 1234.5.
double ParseGrouped(std::string_view text);

/// True when the whole text is one number; grouping commas and blanks around it are allowed.
bool IsNumeric(std::string_view text);

/// The shortest text of at most 15 significant digits, never with an exponent: 28.5 for
/// 0.285 * 100. What is not finite reads "0".
std::string NumberText(double value);

/// Rounds half to even into 16 bits. False, and `target` as it was, when the value does not fit.
bool ToInt16(double value, std::int16_t& target);

/// A number by a mask: "#" a digit if there is one, "0" a digit always, "," groups thousands, "."
/// the point. Rounds half away from zero on the digits of `NumberText`. A point is printed only
/// when a decimal follows, so "#,###" and "######.####" print nothing for zero. An empty mask
/// gives `NumberText`.
std::string FormatNumber(double value, std::string_view mask);

/// A text by a number mask. Numeric text, grouped or not, is formatted; any other text comes back
/// as it is.
std::string FormatText(std::string_view text, std::string_view mask);

/// The form in which a displayed number goes into a slip: no grouping, at most four decimals, empty
/// for zero. Text that is no number comes back as it is.
std::string PlainNumber(std::string_view text);

}  // namespace store
