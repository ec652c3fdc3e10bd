// The date on the bridge's top bar, and what the passing days bring: the
// news changes daily, a virus spreads every other day, and on the first of
// a month after a 31st the loan is counted and the salaries are paid.
#include "bridge/calendar.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "bridge/bridge_procedures.h"
#include "bridge/crew.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/station_procedures.h"

namespace lf {

namespace {

struct MonthRow {
  const char* name;
  int firstHour;
};
// October has 30 days and November 31.
constexpr MonthRow kMonths[13] = {{"", 0},       {"JAN", 0},    {"FEB", 744},  {"MAR", 1416}, {"APR", 2160},
                                  {"MAY", 2880}, {"JUN", 3624}, {"JUL", 4344}, {"AUG", 5088}, {"SEP", 5832},
                                  {"OCT", 6552}, {"NOV", 7272}, {"DEC", 8016}};

bool AnyoneInfected() {
  for (int post = 1; post <= 6; ++post)
    if (G.CrewPost[post].Person != 0 && IsSet(G.CrewPost[post].Infected)) return true;
  return false;
}

void SpreadVirus(int day) {
  if (day % 2 != 0) {
    G.VirusSpreadArmed = AnyoneInfected() ? True : False;
    return;
  }
  if (G.VirusSpreadArmed != True) return;
  int post = 0;
  int draws = 0;
  do {
    post = RandomInt(6);
    ++draws;
  } while (!(G.CrewPost[post].Person != 0 && !IsSet(G.CrewPost[post].Infected)) && draws < 100);
  // The hundredth draw no longer counts: the flag stays and the next frame
  // of the day draws again.
  if (draws >= 100) return;
  PlaySoundFx(2, 2);
  G.CrewPost[post].Infected = True;
  SetMessage("DUE TO A VIRUS INFECTION AND SPREAD, " + PersonName(post),
             "HAS BEEN INFECTED. MAYBE A QUARANTINE SEPARATION", "WOULD BE IN ORDER, CAPTAIN!", 4);
  G.VirusSpreadArmed = False;
}

void EndOfMonth() {
  G.LoanMonthMarked = False;
  for (int post = 1; post <= 6; ++post) G.CrewPost[post].SalaryDue = True;
}

void CountLoan() {
  if (G.LoanMonthMarked != False || !IsSet(G.LoanActive)) return;
  Assign(G.LoanMonthsLeft, G.LoanMonthsLeft - 1.0);
  G.LoanMonthMarked = True;
}

void PaySalaries() {
  for (int post = 1; post <= 6; ++post) {
    CrewPostRecord& crew = G.CrewPost[post];
    if (!IsSet(crew.SalaryDue)) continue;
    double salary = 0;
    Skip([&] { salary = G.Character[crew.Person].Salary; });
    if (G.Cash >= salary) {
      G.Cash -= salary;
      Assign(crew.SalaryBalance, crew.SalaryBalance - 1.0);
      crew.SalaryDue = False;
      continue;
    }
    PlaySoundFx(2, 2);
    SetMessage("YOU ARE UNABLE TO PAY SALARIES TO ALL OF YOUR CREW",
               "MEMBERS. HOWEVER THEY ARE WILLING TO CONTINUE THEIR WORK",
               "ONE MORE MONTH PROVIDING THEY GET PAID AFTERWARDS.", 5);
    crew.SalaryDue = False;
    Assign(crew.SalaryBalance, crew.SalaryBalance + 1.0);
    return;  // the posts behind stay due until the next frame
  }
}

// The top bar's 8 by 11 digits and letters: " 1234567890ABCDEFGJLMNOPRSTUVY",
// a character's glyph at x 8 x (its place from 1, less 2).
void DrawLed(int x, std::string_view text) {
  static constexpr std::string_view kLedSet = " 1234567890ABCDEFGJLMNOPRSTUVY";
  int n = 0;
  for (const char c : text) {
    ++n;
    const std::size_t place = kLedSet.find(c);
    if (place == std::string_view::npos || place == 0) continue;
    const int glyph = static_cast<int>(place) - 1;
    SetSrc(8 * glyph, 0, 8 * glyph + 8, 11);
    BltFast(x + 8 * n, 6, GFX.FontLed, true);
  }
}

std::string TwoDigits(int v) {
  char text[16];
  std::snprintf(text, sizeof text, "%02d", v);
  return text;
}

}  // namespace

CalendarDate DateOf(double h) {
  CalendarDate d;
  if (!std::isfinite(h)) return d;
  d.Year = 2547 + Int(h / 8760);
  // Rounding at the year's edge, or hours too large for the precision, can
  // leave the hour of the year a hair outside 0..8760.
  const double y = std::clamp(h - (d.Year - 2547) * 8760, 0.0, 8759.999);
  // The hour of the day, h less whole days: (h / 24 - Int(h / 24)) x 24
  // without the rounding that would show 23:00 as 22:59.
  const double hour = h - 24 * Int(h / 24);
  d.Hour = static_cast<int>(Int(hour));
  d.Minute = static_cast<int>(Int(Frac(hour) * 60));
  for (int m = 12; m >= 1; --m) {
    if (y >= kMonths[m].firstHour) {
      d.Month = m;
      d.Day = static_cast<int>(Int((y - kMonths[m].firstHour) / 24)) + 1;
      break;
    }
  }
  return d;
}

std::string_view MonthName(int month) { return month >= 1 && month <= 12 ? kMonths[month].name : ""; }

void DrawTime() {
  const CalendarDate date = DateOf(G.GameHours);
  SpreadVirus(date.Day);
  if (date.Day == 31) EndOfMonth();
  if (date.Day != G.NewsDay) {
    a_ChangeNewsText();
    G.NewsDay = static_cast<std::int16_t>(date.Day);
  }
  if (date.Day == 1) {
    CountLoan();
    PaySalaries();
  }
  DrawLed(155, TwoDigits(date.Day));
  DrawLed(175, MonthName(date.Month));
  // The year one place further right than the month's end would put it: at
  // x 195 its first digit ran into the month's last letter.
  DrawLed(203, IntText(date.Year));
  DrawLed(258, TwoDigits(date.Hour));
  DrawLed(278, TwoDigits(date.Minute));
}

}  // namespace lf
