#pragma once

#include <string>

namespace store {

/// Reads a whole file. A file that is not there has no bytes; false is one that is there and cannot
/// be read.
bool ReadWholeFile(const std::string& path, std::string& bytes);

/// Puts `bytes` in a file's place in one step: they are written beside it and renamed, so that a
/// crash leaves either the old file or the new one. Empty when that was done, else what the
/// platform says; the old file then stands.
std::string ReplaceFile(const std::string& path, const std::string& bytes);

}  // namespace store
