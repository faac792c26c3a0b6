#pragma once

#include <string>
#include <string_view>

namespace store {

/// A product as the terminal keeps it. Texts are UTF-8; numbers are as the database gives them.
struct MasterProduct {
  std::string_view Barcode;
  std::string_view Name;
  std::string_view PurchasePrice = "0";
  std::string_view SalePrice = "0";
  std::string_view Stock = "0";
  std::string_view ProperStock = "0";
};

/// Bytes of a line without its end.
inline constexpr int kMasterLineBytes = 59;

/// The product's line in the terminal's master file, in code page 949, with CR and LF: barcode 15,
/// name 20, prices 7 each, stocks 5 each. A text that is too long is cut on a letter's border, the
/// name at ten letters; a number that is too long reads 0.
std::string MasterLine(const MasterProduct& product);

}  // namespace store
