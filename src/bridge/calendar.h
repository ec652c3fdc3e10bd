// The game's calendar: 1 JAN 2547 at hour 0, years of 8760 hours, no leap
// years.
#pragma once

#include <string_view>

namespace lf {

struct CalendarDate {
  double Year = 2547;
  int Month = 1;  // 1..12
  int Day = 1;
  int Hour = 0;
  int Minute = 0;
};

// The date of a GameHours value.
CalendarDate DateOf(double gameHours);
// "JAN" .. "DEC".
std::string_view MonthName(int month);

}  // namespace lf
