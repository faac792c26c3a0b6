#include "demo/calendar.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <ctime>

namespace store::demo {
namespace {

std::string Print(const char* format, Day day, int hours = 0, int minutes = 0) {
  const std::chrono::year_month_day date(day);
  std::array<char, 32> text{};
  const int length = std::snprintf(text.data(), text.size(), format, static_cast<int>(date.year()),
                                   static_cast<unsigned>(date.month()),
                                   static_cast<unsigned>(date.day()), hours, minutes);
  return {text.data(), static_cast<std::size_t>(length)};
}

std::optional<int> Digits(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < 0) return std::nullopt;
  return value;
}

}  // namespace

std::string DateText(Day day) { return Print("%04d-%02u-%02u", day); }

std::string KeyDate(Day day) { return Print("%04d%02u%02u", day); }

std::string MonthText(Day day) { return KeyDate(day).substr(0, 6); }

std::string MomentText(Day day, int minutes) {
  return Print("%04d-%02u-%02u %02d:%02d:00", day, minutes / 60, minutes % 60);
}

std::optional<Day> ParseDate(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = Digits(text.substr(0, 4));
  const auto month = Digits(text.substr(5, 2));
  const auto day = Digits(text.substr(8, 2));
  if (!year || !month || !day) return std::nullopt;
  const std::chrono::year_month_day date(std::chrono::year(*year),
                                         std::chrono::month(static_cast<unsigned>(*month)),
                                         std::chrono::day(static_cast<unsigned>(*day)));
  if (!date.ok()) return std::nullopt;
  return Day(date);
}

Day SystemToday() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return Day(std::chrono::year(local.tm_year + 1900) /
             std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)) /
             std::chrono::day(static_cast<unsigned>(local.tm_mday)));
}

}  // namespace store::demo
