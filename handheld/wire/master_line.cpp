#include "handheld/wire/master_line.h"

#include "basics/text.h"

namespace store {
namespace {

constexpr int kBarcode = 15;
constexpr int kName = 20;
constexpr int kNameLetters = 10;
constexpr int kPrice = 7;
constexpr int kStock = 5;

/// The first letters of a text that fit into a field, with blanks behind them.
std::string TextField(std::string_view text, int letters, size_t width) {
  std::string bytes = ToCodePage949(LeftChars(text, letters));
  while (bytes.size() > width) bytes = ToCodePage949(LeftChars(text, --letters));
  bytes.resize(width, ' ');
  return bytes;
}

std::string NumberField(std::string_view number, size_t width) {
  const std::string_view shown = number.size() > width ? "0" : number;
  return std::string(width - shown.size(), ' ').append(shown);
}

}  // namespace

std::string MasterLine(const MasterProduct& product) {
  std::string line = TextField(product.Barcode, kBarcode, kBarcode);
  line += TextField(product.Name, kNameLetters, kName);
  line += NumberField(product.PurchasePrice, kPrice);
  line += NumberField(product.SalePrice, kPrice);
  line += NumberField(product.Stock, kStock);
  line += NumberField(product.ProperStock, kStock);
  return line += "\r\n";
}

}  // namespace store
