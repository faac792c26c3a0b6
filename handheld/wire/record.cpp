#include "handheld/wire/record.h"

#include <algorithm>
#include <array>

#include "basics/numbers.h"
#include "basics/text.h"

namespace store {
namespace {

struct Kind {
  char byte;
  const char* text;
  RecordLayout layout;
};

constexpr std::array<Kind, 6> kKinds = {{
    {'0', "매    입", RecordLayout::Trade},
    {'1', "매출반품 (반품)", RecordLayout::Trade},
    {'2', "매    출", RecordLayout::Trade},
    {'3', "재고조사", RecordLayout::Survey},
    {'4', "상품관리", RecordLayout::Product},
    {'5', "매입반품 (반품)", RecordLayout::Trade},
}};

void TakeKind(std::string_view text, HandheldRecord& record) {
  const std::string byte = MidChars(text, 5, 1);
  const auto kind = std::find_if(kKinds.begin(), kKinds.end(), [&](const Kind& each) {
    return byte == std::string_view(&each.byte, 1);
  });
  if (kind == kKinds.end()) return;
  record.Kind = kind->text;
  record.Layout = kind->layout;
}

// Codes are counted in characters, what follows the name in bytes of the code page.
void TakeTrade(std::string_view text, HandheldRecord& record) {
  record.Partner = Trim(MidChars(text, 6, 12));
  record.Barcode = Trim(MidChars(text, 18, 15));
  record.Name = Trim(ByteMid(text, 33, 20));
  record.Quantity = RecordNumber(ByteMid(text, 53, 5));
  record.Price = RecordNumber(ByteMid(text, 58, 7));
}

// The name begins on the last byte of the barcode and is cut by characters; the terminal leaves
// that byte blank when the barcode is shorter.
void TakeProduct(std::string_view text, HandheldRecord& record) {
  record.Barcode = Trim(MidChars(text, 6, 15));
  record.Name = Trim(MidChars(text, 20, 15));
  if (record.Layout == RecordLayout::Survey) {
    record.Quantity = RecordNumber(ByteMid(text, 41, 5));
  } else {
    record.Price = RecordNumber(ByteMid(text, 41, 7));
  }
}

}  // namespace

HandheldRecord ParseRecord(std::string_view text) {
  HandheldRecord record;
  record.Sequence = Trim(LeftChars(text, 4));
  TakeKind(text, record);
  if (record.Layout == RecordLayout::Trade) {
    TakeTrade(text, record);
  } else if (record.Layout != RecordLayout::None) {
    TakeProduct(text, record);
  }
  return record;
}

double RecordNumber(std::string_view text) {
  std::string digits(text);
  std::erase(digits, ' ');
  return ParseNumber(digits);
}

}  // namespace store
