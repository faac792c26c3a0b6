#pragma once

#include <cstddef>
#include <string>

namespace store {

/// Reads a whole file. A file that is not there has no bytes. Empty when that went well, else what
/// is wrong with it: the platform does not let it be read, it is no regular file (reading a pipe
/// would wait for its other end), or it has more than `most` bytes.
std::string ReadWholeFile(const std::string& path, std::size_t most, std::string& bytes);

/// Puts `bytes` in a file's place in one step: they are written beside it and renamed, so that a
/// crash leaves either the old file or the new one; what an earlier crash left there goes. Empty
/// when that was done, else what the platform says; the old file then stands.
std::string ReplaceFile(const std::string& path, const std::string& bytes);

}  // namespace store
