#include "basics/dates.h"

#include <gtest/gtest.h>

namespace store {
namespace {

TEST(Dates, CarryWhatIsTooLargeOrTooSmall) {
  struct Case {
    int year, month, day;
    CalendarDate date;
  };
  const Case cases[] = {
      {2024, 2, 29, {2024, 2, 29}}, {2023, 2, 29, {2023, 3, 1}},   {2023, 13, 1, {2024, 1, 1}},
      {2024, 1, 0, {2023, 12, 31}}, {2024, 0, 15, {2023, 12, 15}}, {2024, -11, 1, {2023, 1, 1}},
      {2024, 4, 31, {2024, 5, 1}},  {2023, 12, 32, {2024, 1, 1}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(DateSerial(c.year, c.month, c.day), c.date)
        << c.year << " " << c.month << " " << c.day;
  EXPECT_EQ(AddDays({2024, 3, 1}, -1), (CalendarDate{2024, 2, 29}));
  EXPECT_EQ(AddDays({2023, 12, 31}, 366), (CalendarDate{2024, 12, 31}));
  EXPECT_EQ(DaysBetween({2024, 2, 1}, {2024, 3, 1}), 29);
  EXPECT_EQ(DaysBetween({2024, 3, 1}, {2024, 2, 29}), -1);
}

TEST(Dates, PrintByMask) {
  const ClockTime time{2024, 3, 5, 9, 7, 2};
  const std::pair<const char*, const char*> cases[] = {
      {"YYYY-MM-DD", "2024-03-05"},
      {"yyyy-mm-dd", "2024-03-05"},
      {"yyyy-mm-01", "2024-03-01"},
      {"YYYYMM", "202403"},
      {"YYYYMMDD", "20240305"},
      {"YYYY.MM.DD", "2024.03.05"},
      {"yyyy.mm.dd hh:mm", "2024.03.05 09:07"},
      {"yyyy-mm-dd HH:MM:SS", "2024-03-05 09:07:02"},
      {"YYYYMMDDHHMMSS", "20240305090702"},
      {"YYYYMMDDHHNNSS", "20240305090702"},
      {"YYYY-MM-DD HH:NN", "2024-03-05 09:07"},
      {"YYYY", "2024"},
      {"MM", "03"},
      {"DD", "05"},
      {"yy/m/d", "24/3/5"},
      {"YYYY년 MM월", "2024년 03월"},
  };
  for (const auto& [mask, text] : cases) EXPECT_EQ(FormatDateValue(time, mask), text) << mask;
}

TEST(Dates, AsTextAreReadOrLeftAlone) {
  const std::pair<const char*, const char*> cases[] = {
      {"2024-03-05", "20240305 0000"},
      {"2024.3.5", "20240305 0000"},
      {"2024/03/05 21:40", "20240305 2140"},
      {" 2024-03-05 21:40:59 ", "20240305 2140"},
      {"0000-00-00", "0000-00-00"},
      {"2023-02-29", "2023-02-29"},
      {"2024-03", "2024-03"},
      {"20240305", "20240305"},
      {"2024-03-05x", "2024-03-05x"},
      {"2024-03-05 24:00", "2024-03-05 24:00"},
      {"2024-03-05 1", "2024-03-05 1"},
      {"", ""},
      {"24-03-05", "24-03-05"},
      {"2024--3-05", "2024--3-05"},
  };
  for (const auto& [text, printed] : cases)
    EXPECT_EQ(FormatDateText(text, "YYYYMMDD HHNN"), printed) << text;
}

}  // namespace
}  // namespace store
