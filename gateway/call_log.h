#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace store {

/// What the log keeps of the calls to the data tier.

/// A read that failed, with what was said about it.
void LogFailedRead(const std::string& statement, std::string_view words);

/// A batch that failed, and whether it is in doubt.
void LogFailedBatch(const std::vector<std::string>& statements, std::string_view words,
                    bool inDoubt);

/// How the last call stood to the server, and what serves it; a record is made only when that has
/// changed.
void LogLink(bool reached);
/// As at the start of a run: the server has not been asked for.
void ResetLinkLog();

}  // namespace store
