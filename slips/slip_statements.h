#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "slips/slip.h"

namespace store {

/// A number as it stands bare in a statement: the leading numeric part of the text, in its shortest
/// form; 0 for an empty text.
std::string BareNumber(const std::string& text);

/// A header's elements as its statements name them, {H0} to {H22}: its numbers are made ready to
/// stand bare, its texts stand as they are.
class HeadFields {
 public:
  static constexpr char kLetter = 'H';
  static constexpr std::size_t kFields = head::OrderLast + 1;

  /// The elements from `firstNumber` to `lastNumber` are numbers.
  HeadFields(const HeadArray& headValues, int firstNumber, int lastNumber);
  const std::string& Field(std::size_t element) const { return texts_[element]; }

 private:
  std::vector<std::string> texts_;
};

/// A line's columns as its statements name them, {L0} to {L22}: PS_NO and the columns from quantity
/// to tax are numbers.
class LineFields {
 public:
  static constexpr char kLetter = 'L';
  static constexpr std::size_t kFields = line::PostedLast + 1;

  LineFields(const StringTable& lineValues, int row);
  const std::string& Field(std::size_t column) const { return texts_[column]; }

 private:
  std::vector<std::string> texts_;
};

/// The rows that are lines, from row 1 on.
std::vector<LineFields> LinesOf(const StringTable& lineValues);

/// Runs `work` for each row that is a line, from row 1 on.
void ForEachLine(const StringTable& lineValues, const std::function<void(const LineFields&)>& work);

}  // namespace store
