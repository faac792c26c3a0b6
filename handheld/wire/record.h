#pragma once

#include <string>
#include <string_view>

namespace store {

/// The kinds of goods movement that the terminal knows, by the byte that names each. Two of them
/// look at products alone and name no partner.
enum class RecordLayout {
  None,     ///< A kind byte that names nothing.
  Trade,    ///< Partner, quantity and price.
  Survey,   ///< A quantity of what is there.
  Product,  ///< A price.
};

/// One record of a transfer. What its layout does not hold stays empty or 0.
struct HandheldRecord {
  RecordLayout Layout = RecordLayout::None;
  std::string Kind;  ///< "매    입", "재고조사" and so on; empty for an unknown kind byte.
  std::string Sequence;  ///< The terminal's number of it, as sent.
  std::string Partner;   ///< The partner's code, as the terminal registered it.
  std::string Barcode;
  std::string Name;  ///< The product's name as the terminal has it.
  double Quantity = 0;
  double Price = 0;
};

/// Reads the text of a record by the places of its fields. A text that is too short gives empty
/// fields.
HandheldRecord ParseRecord(std::string_view text);

/// A number as the terminal writes it: the leading numeric part of the text, blanks left out
/// wherever they stand. 0 when there is none.
double RecordNumber(std::string_view text);

}  // namespace store
