// The calendar: dates by the month table, salaries due after a 31st and paid
// on the first, the loan counted once a month, the virus spreading every
// other day, and shipboard incidents.
#include <cmath>
#include <limits>

#include "bridge/calendar.h"
#include "bridge_fixture.h"
#include "display/gfx.h"
#include "station/station_procedures.h"

namespace lf::test {
namespace {

class CalendarTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    const char* names[] = {"", "ANNA BELL", "BO KARR", "CY DEW", "DOC HALE", "EVE FOX", "FRED GRAY"};
    for (int post = 1; post <= 6; ++post) G.Character[10 + post].Name = names[post];
  }
  static void Man(int post, int salary) {
    Crew(post, 10 + post, 3);
    G.Character[10 + post].Salary = static_cast<std::int16_t>(salary);
  }
  static void At(double hours) {
    G.GameHours = hours;
    DrawTime();
  }
  static std::string Date(double hours) {
    const CalendarDate d = DateOf(hours);
    return std::to_string(d.Day) + " " + std::string(MonthName(d.Month)) + " " + IntText(d.Year) + " " +
           std::to_string(d.Hour) + ":" + std::to_string(d.Minute);
  }
};

TEST_F(CalendarTest, DatesFollowTheMonthTable) {
  EXPECT_EQ(Date(0), "1 JAN 2547 0:0");
  EXPECT_EQ(Date(25.5), "2 JAN 2547 1:30");
  EXPECT_EQ(Date(743.99), "31 JAN 2547 23:59");
  EXPECT_EQ(Date(2879), "30 APR 2547 23:0");
  EXPECT_EQ(Date(2880), "1 MAY 2547 0:0");
  EXPECT_EQ(Date(7271), "30 OCT 2547 23:0") << "October has 30 days";
  EXPECT_EQ(Date(8015), "31 NOV 2547 23:0") << "and November 31";
  EXPECT_EQ(Date(8760), "1 JAN 2548 0:0");
  EXPECT_EQ(Date(8760 * 3 + 5088 + 24 * 14 + 6.25), "15 AUG 2550 6:15");
}

TEST_F(CalendarTest, SalariesFallDueOnTheThirtyFirstAndArePaidOnTheFirstUntilCashRunsOut) {
  Man(1, 300);
  Man(2, 500);
  Man(3, 400);
  G.Cash = 700;
  At(0.5);
  EXPECT_EQ(G.Cash, 700) << "no salary is due on the first day of the game";
  At(720.5);  // 31 JAN
  for (int post = 1; post <= 6; ++post) EXPECT_EQ(G.CrewPost[post].SalaryDue, True);

  At(744.1);  // 1 FEB: the first is paid, the second cannot be
  EXPECT_EQ(G.Cash, 400);
  EXPECT_EQ(G.CrewPost[1].SalaryBalance, -1);
  EXPECT_EQ(G.CrewPost[2].SalaryBalance, 1);
  EXPECT_EQ(G.CrewPost[2].SalaryDue, False);
  EXPECT_EQ(G.CrewPost[3].SalaryDue, True) << "the payments stopped at the unpaid post";
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptLine[1], "YOU ARE UNABLE TO PAY SALARIES TO ALL OF YOUR CREW");
  EXPECT_EQ(G.PromptFace, 5);

  At(744.1);  // the next frame of the day
  EXPECT_EQ(G.Cash, 0) << "cash exactly equal to a salary pays it";
  EXPECT_EQ(G.CrewPost[3].SalaryBalance, -1);
  EXPECT_EQ(G.CrewPost[5].SalaryBalance, -1) << "an empty post is paid nothing";
  At(760);
  EXPECT_EQ(G.CrewPost[2].SalaryBalance, 1) << "one payment a month";

  // February has no 31st: 1 MAR is no pay day.
  G.Cash = 1000;
  At(1416.5);
  EXPECT_EQ(G.Cash, 1000);
}

TEST_F(CalendarTest, AThirdUnpaidMonthSendsTheOfficerAwayAtTheNextStation) {
  Man(2, 500);
  Man(3, 100);
  G.CrewPost[2].SalaryBalance = 2;
  G.CrewPost[3].SalaryBalance = 2;
  G.Cash = 100;
  At(8000);  // 31 NOV
  At(8017);  // 1 DEC: the communicator cannot be paid
  At(8017);  // the next frame: the tactician can
  EXPECT_EQ(G.CrewPost[2].SalaryBalance, 3);
  EXPECT_EQ(G.CrewPost[3].SalaryBalance, 1);
  a_SallaryCheck();
  EXPECT_EQ(G.CrewPost[2].Person, 0);
  EXPECT_EQ(G.CrewPost[3].Person, 13);
}

TEST_F(CalendarTest, TheLoanIsCountedOnceAMonth) {
  G.LoanActive = True;
  G.LoanMonthsLeft = 1;
  At(3600);  // 31 MAY
  At(3625);  // 1 JUN
  At(3626);
  EXPECT_EQ(G.LoanMonthsLeft, 0);
  At(4320);  // 31 JUN does not exist: 30 JUN, then 1 JUL
  At(4345);
  EXPECT_EQ(G.LoanMonthsLeft, 0);
  At(5087);  // 31 JUL
  At(5090);  // 1 AUG
  EXPECT_EQ(G.LoanMonthsLeft, -1) << "the count goes below 0";
}

TEST_F(CalendarTest, TheVirusSpreadsEveryOtherDayQuarantineOrNot) {
  for (int post = 1; post <= 3; ++post) Man(post, 0);
  G.CrewPost[1].Infected = True;
  G.CrewPost[1].Quarantined = True;
  At(30);  // 2 JAN: not armed yet
  EXPECT_EQ(G.CrewPost[2].Infected + G.CrewPost[3].Infected, 0);
  At(50);  // 3 JAN, odd: armed
  EXPECT_EQ(G.VirusSpreadArmed, True);
  At(80);  // 4 JAN
  EXPECT_EQ(G.CrewPost[2].Infected + G.CrewPost[3].Infected, -1);
  EXPECT_EQ(G.VirusSpreadArmed, False);
  EXPECT_EQ(G.PromptLine[2], "HAS BEEN INFECTED. MAYBE A QUARANTINE SEPARATION");
  EXPECT_EQ(G.MessagePending, True);
  At(81);
  EXPECT_EQ(G.CrewPost[2].Infected + G.CrewPost[3].Infected, -1) << "one a day";
  At(100);
  At(130);  // 6 JAN: the last one
  EXPECT_EQ(G.CrewPost[2].Infected + G.CrewPost[3].Infected, -2);

  // Nobody left to infect: no message, and the draws run every frame.
  G.MessagePending = False;
  At(150);
  At(170);
  EXPECT_EQ(G.MessagePending, False);
  EXPECT_EQ(G.VirusSpreadArmed, True);

  // Cured on an odd day: the even day passes without spread.
  for (int post = 1; post <= 3; ++post) G.CrewPost[post].Infected = False;
  At(200);
  EXPECT_EQ(G.VirusSpreadArmed, False);
}

TEST_F(CalendarTest, BadHoursKeepTheClockRunning) {
  for (double h : {-5.0, 1e15, -1e15, std::numeric_limits<double>::quiet_NaN(),
                   std::numeric_limits<double>::infinity(), 8760.0 * 2 - 1e-9}) {
    G.GameHours = h;
    EXPECT_NO_THROW(DrawTime());
    const CalendarDate d = DateOf(h);
    EXPECT_GE(d.Month, 1);
    EXPECT_LE(d.Month, 12);
    EXPECT_GE(d.Day, 1);
    EXPECT_LE(d.Day, 31);
  }
}

TEST_F(CalendarTest, TheDateStandsInTheTopBar) {
  At(8760 + 2880 + 24 * 8 + 13.5);  // 9 MAY 2548 13:30
  std::string drawn;
  const std::string set = " 1234567890ABCDEFGJLMNOPRSTUVY";
  for (const BlitRecord& b : BlitsOf(GFX.FontLed)) {
    EXPECT_EQ(b.y, 6);
    drawn += set[static_cast<std::size_t>(b.left / 8 + 1)];
  }
  EXPECT_EQ(drawn, "09MAY25481330");
}

TEST_F(CalendarTest, AnInjuryNeverStrikesTheMedicalOfficer) {
  Man(4, 0);
  G.StatusSlot[7].Active = True;
  HandleShipEvent7();
  EXPECT_EQ(G.CrewPost[4].Health, 100);
  EXPECT_EQ(G.StatusSlot[7].Active, False);
  Man(6, 0);
  G.StatusSlot[7].Active = True;
  HandleShipEvent7();
  EXPECT_GE(G.CrewPost[6].Health, 40);
  EXPECT_LT(G.CrewPost[6].Health, 60);
  EXPECT_EQ(G.PromptLine[1], "CAPTAIN! OUR ENGINEER FRED GRAY");
  EXPECT_EQ(G.MessagePending, True);
}

TEST_F(CalendarTest, AMalfunctionSparesGeneratorsAndWeakComponents) {
  for (int slot = 2; slot <= 5; ++slot) G.FittedHealth[slot] = 20;
  G.StatusSlot[8].Active = True;
  HandleShipEvent8();
  EXPECT_EQ(G.StatusSlot[8].Active, False);
  EXPECT_EQ(G.FittedHealth[1], 500);
  EXPECT_EQ(G.MessagePending, False);
  G.FittedHealth[5] = 120;
  G.StatusSlot[8].Active = True;
  HandleShipEvent8();
  EXPECT_GE(G.FittedHealth[5], 48);
  EXPECT_LT(G.FittedHealth[5], 72);
  EXPECT_EQ(G.PromptLine[1], "CAPTAIN! OUR HUMAN LASER CANNON");
  EXPECT_EQ(G.PromptLine[3], "WORKING ON LIMITED CAPACITY!");
}

}  // namespace
}  // namespace lf::test
