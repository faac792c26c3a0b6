#pragma once

#include <string>

namespace store {

/// A private profile: lines of "key=value" under "[section]" lines, in code page 949. Sections and
/// keys compare without case and without the blanks around them; a line that begins with ";" is a
/// remark. Where a name stands twice, the first one counts.

/// Why a file is as good as absent though it is there: it cannot be read, is no regular file or has
/// more than 1 MiB. Empty when nothing is wrong.
std::string ProfileFault(const std::string& path);

/// The value of a key as UTF-8, without the blanks and the pair of quotes around it. Empty when the
/// file, the section or the key is missing or cannot be read. A value ends before its first NUL and
/// is cut at 254 bytes of the code page.
std::string ReadProfileValue(const std::string& path, const std::string& section,
                             const std::string& key);

/// Puts one key into the file and leaves every other line as it is, in its place. A new key goes
/// to the end of its section, a new section to the end of the file; new lines end in CR LF. The
/// value ends before its first NUL or line end. The file is replaced in one step, so that a crash
/// leaves either the old or the new one. False when it could not be read or written; it is then the
/// old one.
bool WriteProfileValue(const std::string& path, const std::string& section, const std::string& key,
                       const std::string& value);

}  // namespace store
