#pragma once

#include <string>

namespace store {

/// A new and empty file among the user's documents: `name`, as far as a file can bear it, and
/// `ending` (".pdf"), with a number between them where that is taken. It is made in one step, so
/// that no file is ever written over. Empty where none can be made.
std::string NewDocument(const std::string& name, const std::string& ending);

}  // namespace store
