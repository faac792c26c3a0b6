#include "slips/slip_statements.h"

#include "basics/numbers.h"

namespace store {

std::string BareNumber(const std::string& text) { return NumberText(ParseNumber(text)); }

std::vector<std::string> HeadFields(const HeadArray& headValues, int firstNumber, int lastNumber) {
  std::vector<std::string> fields = headValues;
  fields.resize(size_t{head::OrderLast} + 1);
  for (int i = firstNumber; i <= lastNumber; ++i) {
    std::string& field = fields[static_cast<size_t>(i)];
    field = BareNumber(field);
  }
  return fields;
}

std::vector<std::string> LineFields(const StringTable& lineValues, int row) {
  std::vector<std::string> fields;
  for (int column = 0; column <= line::PostedLast; ++column) {
    const bool number = column == line::Number || (column >= line::Quantity && column <= line::Tax);
    const std::string& text = lineValues.At(row, column);
    fields.push_back(number ? BareNumber(text) : text);
  }
  return fields;
}

void ForEachLine(const StringTable& lineValues,
                 const std::function<void(const std::vector<std::string>&)>& work) {
  for (int row = 1; row <= lineValues.LastRow(); ++row) {
    if (!lineValues.At(row, line::ProductCode).empty()) work(LineFields(lineValues, row));
  }
}

}  // namespace store
