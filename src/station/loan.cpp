// The loan office's step in the arrival chain: reminders as the deadline
// nears, and the seizure once it has passed.
#include <algorithm>
#include <string>

#include "shell/game_state.h"
#include "shell/host.h"
#include "station/data/office_data.h"
#include "station/fleet_office.h"
#include "station/station_procedures.h"
#include "station/terminal_notice.h"
#include "universe/catalogue.h"

namespace lf {

namespace {

// The office's notice, whose OK leads on to the welcome.
template <std::size_t N>
void Notice(const std::array<std::string_view, N>& lines) {
  ShowNotice(511, {});
  G.TermLineCount = static_cast<std::int16_t>(N);
  for (std::size_t i = 0; i < N; ++i) G.TermLine[static_cast<int>(i + 1)] = std::string(lines[i]);
}

// How many components a remainder costs.
int ComponentsFor(double remainder) {
  if (remainder < 5000) return 1;
  if (remainder < 10000) return 2;
  if (remainder < 30000) return 3;
  if (remainder < 50000) return 4;
  if (remainder < 70000) return 5;
  if (remainder < 90000) return 6;
  return 10;
}

}  // namespace

void SeizeForLoan() {
  const double due = std::max<double>(G.LoanDue, 0);
  if (G.Cash >= due) {
    G.Cash -= due;
  } else {
    const double remainder = due - G.Cash;
    G.Cash = 0;
    const int last = std::clamp<int>(G.HardpointCount, 0, 20);
    for (int taken = ComponentsFor(remainder); taken > 0; --taken) {
      int slot = 1;
      while (slot <= last && G.FittedComp[slot][1] == 0) ++slot;
      if (slot > last) break;
      const int group = G.FittedComp[slot][1], model = G.FittedComp[slot][2];
      G.FittedComp[slot][1] = 0;
      Assign(G.FreeMass, G.FreeMass + ComponentWeight(group, model));
    }
  }
  // The office has taken its due: the debt is settled.
  G.LoanActive = False;
  G.LoanMonthsLeft = 0;
  G.LoanDue = 0;
}

void a_CheckLoanRepay() {
  SeedRandom(G.Random, CurrentHost().ClockSeed());
  const bool active = IsSet(G.LoanActive);
  // Each test draws its own number, whether or not the loan matches.
  if (Rnd() > 0.3 && active && G.LoanMonthsLeft == 1) {
    Notice(data::kLoanReminderTwoMonths);
    return;
  }
  if (Rnd() > 0.6 && active && G.LoanMonthsLeft == 0) {
    Notice(data::kLoanReminderLastMonth);
    return;
  }
  if (Rnd() > 0.6 && active && G.LoanMonthsLeft == -1) {
    Notice(data::kLoanSeizure);
    SeizeForLoan();
    return;
  }
  a_Welcome();
}

}  // namespace lf
