#pragma once

#include <string>

#include "basics/text.h"

namespace store {

/// The terminal's side of the line, as its messages look.
inline const std::string kOpening = "\x05";
inline const std::string kClosing = "\x04";

/// A field of the terminal: blanks behind the text up to its width in bytes of code page 949.
inline std::string Field(const std::string& text, int width) {
  return text + std::string(static_cast<size_t>(width - ByteLen(text)), ' ');
}

/// STX, the record, the two bytes that nobody looks at, ETX.
inline std::string FrameOf(const std::string& record) { return "\x02" + record + "ZZ\x03"; }

inline std::string TradeRecord(char kind, const std::string& sequence, const std::string& partner,
                               const std::string& barcode, const std::string& name,
                               const std::string& quantity, const std::string& price) {
  return Field(sequence, 4) + kind + Field(partner, 12) + Field(barcode, 15) + Field(name, 20) +
         Field(quantity, 5) + Field(price, 7);
}

/// `number` is the quantity of a survey or the price of a product, from byte 41 on.
inline std::string ProductRecord(char kind, const std::string& sequence, const std::string& barcode,
                                 const std::string& name, const std::string& number) {
  return Field(sequence, 4) + kind + Field(Field(barcode, 15) + name, 35) + number;
}

/// What the program answers.
inline std::string AckText(const std::string& counter) { return "\x02\x06" + counter + "\x03"; }
inline std::string NakText(const std::string& counter) { return "\x02\x15" + counter + "\x03"; }

}  // namespace store
