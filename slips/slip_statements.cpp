#include "slips/slip_statements.h"

#include "basics/numbers.h"

namespace store {

std::string BareNumber(const std::string& text) { return NumberText(ParseNumber(text)); }

HeadFields::HeadFields(const HeadArray& headValues, int firstNumber, int lastNumber)
    : texts_(headValues) {
  texts_.resize(kFields);
  for (int i = firstNumber; i <= lastNumber; ++i) {
    std::string& text = texts_[static_cast<std::size_t>(i)];
    text = BareNumber(text);
  }
}

LineFields::LineFields(const StringTable& lineValues, int row) {
  for (int column = 0; column <= line::PostedLast; ++column) {
    const bool number = column == line::Number || (column >= line::Quantity && column <= line::Tax);
    const std::string& text = lineValues.At(row, column);
    texts_.push_back(number ? BareNumber(text) : text);
  }
}

std::vector<LineFields> LinesOf(const StringTable& lineValues) {
  std::vector<LineFields> lines;
  ForEachLine(lineValues, [&](const LineFields& fields) { lines.push_back(fields); });
  return lines;
}

void ForEachLine(const StringTable& lineValues,
                 const std::function<void(const LineFields&)>& work) {
  for (int row = 1; row <= lineValues.LastRow(); ++row) {
    if (!lineValues.At(row, line::ProductCode).empty()) work(LineFields(lineValues, row));
  }
}

}  // namespace store
