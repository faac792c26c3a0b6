#include "tests/slips/slip_samples.h"

#include <sstream>

namespace store {

std::vector<std::string> Split(const std::string& joined) {
  std::vector<std::string> parts;
  std::istringstream stream(joined + "|");
  for (std::string part; std::getline(stream, part, '|');) parts.push_back(part);
  return parts;
}

HeadArray OrderHead() {
  return Split(
      kOrderKey +
      "|1|2024-05-16|not stored|1001|성수역점|C0001|한빛상사|12345.5|1234.50|13580|담당|u01|"
      "과제| |조건|유효일|납기일|장소|형태|참조1|참조2|참조3");
}

std::vector<std::string> OrderLine(const std::string& number, const std::string& product,
                                   const std::string& quantity) {
  return Split(kOrderKey + "|" + number + "|2024-05-16|" + product + "|품명 " + product +
               "|규격|2|박스|" + quantity + "|3.25|11|700.5|8406|840.6|u01|0|비고|100102|창고||||");
}

HeadArray ReceiptHead() {
  return Split(kReceiptKey +
               "|1|2024-05-16|not stored|1001|성수역점|C0001|한빛상사|23000|1400|24400|1.5|2.5|3.5|"
               "E005|A|담당|메모|u01|과제|202405161001u01220003|unused");
}

std::vector<std::string> ReceiptLine(const std::string& number, const std::string& product,
                                     const std::string& quantity) {
  return Split(kReceiptKey + "|" + number + "|2024-05-16|" + product + "|품명 " + product +
               "|규격|0|박스|" + quantity +
               "|20|11|700|12600|1260|u01|0|비고|100101|매장|I|unused|T1|unused");
}

StringTable LineTable(const std::vector<std::vector<std::string>>& rows) {
  StringTable table;
  table.Redim(static_cast<int>(rows.size()), line::PostedLast);
  for (size_t row = 0; row < rows.size(); ++row)
    for (size_t column = 0; column < rows[row].size(); ++column)
      table.Set(static_cast<int>(row) + 1, static_cast<int>(column), rows[row][column]);
  return table;
}

}  // namespace store
