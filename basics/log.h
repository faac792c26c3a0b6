#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace store {

/// The workstation's log: what happened to a run, for those who help from afar. It never holds a
/// password, nor of a person more than a code; whoever writes a record keeps to that, and what
/// comes from statements and from the server is masked first (gateway/masked_text.h).

enum class LogWeight {
  Note,     ///< As it should be.
  Warning,  ///< Something was in the way, and the program knew what to do.
  Failure,  ///< Something was not done.
};

/// Where records go; the program fills it with its file, a test with a list. Nothing happens
/// without one.
struct LogDoor {
  std::function<void(LogWeight weight, const std::string& record)> Write;
};

inline LogDoor Log;

/// Writes one record: what it is about in a word, and what there is to tell. It is one line of
/// UTF-8 whatever the text holds. Nothing that goes wrong here reaches the caller. From any thread.
void WriteLog(LogWeight weight, std::string_view about, std::string_view text);

/// The text as one line of UTF-8: a control letter is a blank, a byte that is no letter "?".
std::string AsOneLine(std::string_view text);

}  // namespace store
