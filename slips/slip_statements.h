#pragma once

#include <functional>
#include <string>
#include <vector>

#include "slips/slip.h"

namespace store {

/// A number as it stands bare in a statement: the leading numeric part of the text, in its shortest
/// form; 0 for an empty text.
std::string BareNumber(const std::string& text);

/// The header's texts with its numbers, the given elements, made ready to stand bare.
std::vector<std::string> HeadFields(const HeadArray& headValues, int firstNumber, int lastNumber);

/// Row `row` of the lines with its numbers (PS_NO and 8 to 13) made ready to stand bare.
std::vector<std::string> LineFields(const StringTable& lineValues, int row);

/// Runs `work` for each row that is a line, from row 1 on, with the fields of `LineFields`.
void ForEachLine(const StringTable& lineValues,
                 const std::function<void(const std::vector<std::string>&)>& work);

}  // namespace store
