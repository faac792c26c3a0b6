#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace store::demo {

using Day = std::chrono::sys_days;

/// "YYYY-MM-DD", the form of document and contract dates.
std::string DateText(Day day);

/// "YYYYMMDD", the form inside a document key.
std::string KeyDate(Day day);

/// "YYYYMM", the form of a balance month.
std::string MonthText(Day day);

/// "YYYY-MM-DD HH:MM:SS" for so many minutes after midnight.
std::string MomentText(Day day, int minutes);

/// Reads "YYYY-MM-DD"; nothing if it is not a day of the calendar.
std::optional<Day> ParseDate(std::string_view text);

/// The machine's own date.
Day SystemToday();

}  // namespace store::demo
