#pragma once

#include <string>
#include <vector>

#include "slips/slip.h"

namespace store {

/// Slips as the forms hand them to the posting. Texts of header and lines are written joined by
/// "|", every element and column with a text of its own so that a mix-up shows.

inline const std::string kOrderKey = "202405171001u01220077";
inline const std::string kReceiptKey = "202405171001u01230078";

std::vector<std::string> Split(const std::string& joined);

/// An order of C0001.
HeadArray OrderHead();
/// One line of it.
std::vector<std::string> OrderLine(const std::string& number, const std::string& product,
                                   const std::string& quantity);

/// The receipt of the order in state "2" of the small store.
HeadArray ReceiptHead();
/// One line of it, into depot 100101.
std::vector<std::string> ReceiptLine(const std::string& number, const std::string& product,
                                     const std::string& quantity);

/// A table with these rows from row 1 on.
StringTable LineTable(const std::vector<std::vector<std::string>>& rows);

}  // namespace store
