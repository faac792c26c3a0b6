#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace store {

/// What a clerk writes down: a line before each press of a button with what is meant, and one after
/// it with what the box said. A line is there for good once `Line` has returned, also when the
/// clerk's process is killed in the next instant. Fields stand between tabs; the first says what
/// the line is.
namespace entry {
inline constexpr const char* NewOrder = "new";   ///< press, group, token, state, content
inline constexpr const char* Change = "change";  ///< press, group, token, state, content, key, from
inline constexpr const char* Delete = "delete";  ///< press, group, key
inline constexpr const char* Revert = "revert";  ///< press, group, key
inline constexpr const char* Receipt = "receipt";  ///< press, group, token, order, loaded, lines
inline constexpr const char* Pass = "pass";  ///< press, group, memo, module, "partner=id,id;..."
inline constexpr const char* Staged = "staged";  ///< group, module, "id,id": told stored
inline constexpr const char* Told = "told";      ///< press, group, verdict, key, box
inline constexpr const char* Closed = "closed";  ///< group: the clerk does not come back to it
inline constexpr const char* Fault = "fault";    ///< its name
inline constexpr const char* Begin =
    "begin";  ///< a process begins; what it had open is open no more
}  // namespace entry

/// What a box told of a press.
namespace verdict {
inline constexpr const char* Stored = "stored";
inline constexpr const char* Failed = "failed";
inline constexpr const char* Unknown = "unknown";
}  // namespace verdict

class DayLog {
 public:
  explicit DayLog(const std::string& path);
  ~DayLog();
  DayLog(const DayLog&) = delete;
  DayLog& operator=(const DayLog&) = delete;

  /// Tabs and line ends within a field become blanks.
  void Line(std::initializer_list<std::string_view> fields) const;

 private:
  int file_ = -1;
};

/// Follows a growing log.
class DayLogReader {
 public:
  explicit DayLogReader(std::string path) : path_(std::move(path)) {}
  /// The fields of each line that has come since the last call.
  std::vector<std::vector<std::string>> News();

 private:
  std::string path_;
  std::uint64_t read_ = 0;
};

inline constexpr int kProducts = 12;

/// The numbers that a clerk's next process goes on with, in a file that is mapped into memory: it
/// outlives the process that is killed.
struct ClerkNumbers {
  std::uint32_t Press;
  std::uint32_t Group;
  std::uint32_t Process;
  std::array<std::uint32_t, kProducts> Quantity;  ///< Of each product, how many were given away.
};

/// Maps the file, which is made when it is not there. Nothing when that cannot be done.
ClerkNumbers* MapClerkNumbers(const std::string& path);

}  // namespace store
