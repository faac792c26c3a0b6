#include "basics/dates.h"

#include <charconv>
#include <chrono>

#include "basics/text.h"

namespace store {
namespace {

namespace chrono = std::chrono;

chrono::sys_days DaysOf(int year, int month, int day) {
  // The months carry into the year here, the days through the count of days.
  const chrono::year_month first =
      chrono::year_month(chrono::year(year), chrono::month(1)) + chrono::months(month - 1);
  return chrono::sys_days(first / chrono::day(1)) + chrono::days(day - 1);
}

CalendarDate FromDays(chrono::sys_days days) {
  const chrono::year_month_day date(days);
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string Padded(int number, size_t width) {
  std::string text = std::to_string(number);
  if (text.size() < width) text.insert(0, width - text.size(), '0');
  return text;
}

// Takes a number of at most `digits` digits off the front of `text`.
bool TakeNumber(std::string_view& text, size_t digits, int& number) {
  const std::string_view front = text.substr(0, digits);
  const auto read = std::from_chars(front.data(), front.data() + front.size(), number);
  if (read.ec != std::errc() || number < 0 || front[0] == '-') return false;
  text.remove_prefix(static_cast<size_t>(read.ptr - front.data()));
  return true;
}

bool TakeOneOf(std::string_view& text, std::string_view marks) {
  if (text.empty() || marks.find(text[0]) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

bool TakeDay(std::string_view& text, ClockTime& time) {
  const size_t before = text.size();
  if (!TakeNumber(text, 4, time.Year) || before - text.size() != 4) return false;
  if (!TakeOneOf(text, "-./") || !TakeNumber(text, 2, time.Month)) return false;
  if (!TakeOneOf(text, "-./") || !TakeNumber(text, 2, time.Day)) return false;
  return time.Year > 0 && CalendarDate{time.Year, time.Month, time.Day} ==
                              DateSerial(time.Year, time.Month, time.Day);
}

bool TakeHours(std::string_view& text, ClockTime& time) {
  if (!TakeNumber(text, 2, time.Hour) || !TakeOneOf(text, ":")) return false;
  if (!TakeNumber(text, 2, time.Minute)) return false;
  if (TakeOneOf(text, ":") && !TakeNumber(text, 2, time.Second)) return false;
  return time.Hour < 24 && time.Minute < 60 && time.Second < 60;
}

}  // namespace

CalendarDate DateSerial(int year, int month, int day) { return FromDays(DaysOf(year, month, day)); }

CalendarDate AddDays(const CalendarDate& date, int days) {
  return FromDays(DaysOf(date.Year, date.Month, date.Day) + chrono::days(days));
}

int DaysBetween(const CalendarDate& from, const CalendarDate& to) {
  const auto days = DaysOf(to.Year, to.Month, to.Day) - DaysOf(from.Year, from.Month, from.Day);
  return static_cast<int>(days.count());
}

std::string FormatDateValue(const CalendarDate& date, std::string_view mask) {
  return FormatDateValue(ClockTime{date.Year, date.Month, date.Day, 0, 0, 0}, mask);
}

std::string FormatDateValue(const ClockTime& time, std::string_view mask) {
  std::string text;
  bool afterHours = false;
  for (size_t i = 0; i < mask.size();) {
    const char letter = Lower(mask[i]);
    size_t run = 1;
    while (i + run < mask.size() && Lower(mask[i + run]) == letter) ++run;
    switch (letter) {
      case 'y':
        text += run > 2 ? Padded(time.Year, 4) : Padded(time.Year % 100, 2);
        break;
      case 'm':
        text += Padded(afterHours ? time.Minute : time.Month, run);
        break;
      case 'd':
        text += Padded(time.Day, run);
        break;
      case 'h':
        text += Padded(time.Hour, run);
        break;
      case 'n':
        text += Padded(time.Minute, run);
        break;
      case 's':
        text += Padded(time.Second, run);
        break;
      default:
        text += mask.substr(i, run);
    }
    if (letter >= 'a' && letter <= 'z') afterHours = letter == 'h';
    i += run;
  }
  return text;
}

bool ParseDateText(std::string_view text, ClockTime& time) {
  const std::string trimmed = Trim(text);
  std::string_view rest = trimmed;
  ClockTime read;
  if (!TakeDay(rest, read)) return false;
  if (!rest.empty() && (!TakeOneOf(rest, " ") || !TakeHours(rest, read))) return false;
  if (!rest.empty()) return false;
  time = read;
  return true;
}

std::string FormatDateText(std::string_view text, std::string_view mask) {
  ClockTime time;
  return ParseDateText(text, time) ? FormatDateValue(time, mask) : std::string(text);
}

}  // namespace store
