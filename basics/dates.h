#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace store {

/// A day of the calendar.
struct CalendarDate {
  int Year = 0;
  int Month = 0;
  int Day = 0;
  auto operator<=>(const CalendarDate&) const = default;
};

/// A day and a time of it, as the workstation's clock tells it.
struct ClockTime {
  int Year = 0;
  int Month = 0;
  int Day = 0;
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
};

/// The day of that year, month and day, where what is too large or too small carries over: month 13
/// is January of the next year, day 0 the last of the month before, day 31 of a month of 30 the
/// first of the next.
CalendarDate DateSerial(int year, int month, int day);

/// `days` days later, or earlier for a negative count.
CalendarDate AddDays(const CalendarDate& date, int days);
/// Days from the first date to the second; negative when that is the earlier one.
int DaysBetween(const CalendarDate& from, const CalendarDate& to);

/// A date or time by a mask: runs of Y, M, D, H, N (minutes) and S, in either case; M behind hours
/// means minutes too. A run of one letter prints without a leading zero. Everything else stands for
/// itself.
std::string FormatDateValue(const CalendarDate& date, std::string_view mask);
std::string FormatDateValue(const ClockTime& time, std::string_view mask);

/// Reads "YYYY-MM-DD", with "." or "/" in place of "-", and "HH:MM" or "HH:MM:SS" behind a blank.
/// False, and `time` as it was, for a text that names no day of the calendar.
bool ParseDateText(std::string_view text, ClockTime& time);

/// A date held as text by a mask; a text that is no date ("0000-00-00") comes back as it is.
std::string FormatDateText(std::string_view text, std::string_view mask);

}  // namespace store
