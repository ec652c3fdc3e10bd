// The fleet office as a captain uses it: translators by quadrant, loans at
// their reputation limits and their reckoning at docking, fines at the
// relation limit, star charts, the star lane, and putting an officer ashore.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "media/media.h"
#include "station/data/office_data.h"
#include "station/fleet_office.h"
#include "screens_fixture.h"

namespace lf::test {
namespace {

class FleetOfficeTest : public StationScreenTest {
 protected:
  void SetUp() override {
    StationScreenTest::SetUp();
    StationPage() = 5;
    for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 50;
  }
  void Press(int x, int y) {
    PointAt(x, y);
    a_CheckMouseDown5();
  }
  void Menu(int line) { Press(300, 70 + 14 * (line - 1) + 4); }
  void Choice(int row) { Press(500, 270 + 15 * row + 4); }
  void Confirm() { Press(580, 377); }
  bool Heard(int s, int c) const {
    const auto& log = MediaLog();
    return std::find(log.begin(), log.end(), Sound(s, c)) != log.end();
  }
};

TEST_F(FleetOfficeTest, TranslatorsFollowTheQuadrantsRacesAndCostTenThousand) {
  DockAt(1, 2);  // quadrant 2: Human, Hagel, Lagew
  Menu(1);
  EXPECT_EQ(G.ServicePage, 1);
  Choice(4);  // no fourth race here: the row does not answer
  EXPECT_EQ(G.ServicePage, 1);
  Choice(3);
  EXPECT_EQ(G.ServicePage, 53);
  G.Cash = 9999;
  Confirm();
  EXPECT_TRUE(Heard(13, 5));
  EXPECT_EQ(G.TranslatorOwned[3], 0);
  G.Cash = 10000;  // exactly the price
  Confirm();
  EXPECT_EQ(G.TranslatorOwned[3], True);
  EXPECT_EQ(G.Cash, 0);
  EXPECT_EQ(G.ServicePage, 1);

  // In quadrant 3 line 2 is the Jaytees; an owned translator is not sold twice.
  DockAt(1, 3);
  G.TranslatorOwned[4] = True;
  G.Cash = 50000;
  Choice(2);
  EXPECT_EQ(G.ServicePage, 52);
  Confirm();
  EXPECT_EQ(G.Cash, 50000);
}

TEST_F(FleetOfficeTest, LoansOpenByReputationAndAreRepaidWholeOrNotAtAll) {
  Menu(2);
  G.Reputation = 1500;  // loan 3 is drawn bright but cannot be chosen
  Choice(3);
  EXPECT_EQ(G.ServicePage, 2);
  G.Reputation = 2000;  // still not: it takes more than 2000
  Choice(3);
  EXPECT_EQ(G.ServicePage, 2);
  G.Reputation = 4000;
  Choice(4);  // the fourth needs more than 4000
  EXPECT_EQ(G.ServicePage, 2);
  Choice(3);
  EXPECT_EQ(G.ServicePage, 103);
  Choice(1);
  EXPECT_EQ(G.ServicePage, 101);
  Confirm();
  EXPECT_EQ(G.LoanActive, True);
  EXPECT_EQ(G.LoanMonthsLeft, 3);
  EXPECT_EQ(G.LoanDue, 6000);
  EXPECT_EQ(G.Cash, 55000);

  // Only one loan: the page now offers the repayment.
  Choice(2);
  EXPECT_EQ(G.ServicePage, 2);
  G.Cash = 5999;
  Confirm();
  EXPECT_TRUE(Heard(13, 5));
  EXPECT_EQ(G.LoanActive, True);
  EXPECT_EQ(G.Cash, 5999);
  G.Cash = 6000;  // exactly the due sum repays it
  Confirm();
  EXPECT_EQ(G.LoanActive, 0);
  EXPECT_EQ(G.LoanDue, 0);
  EXPECT_EQ(G.Cash, 0);

  // A restored negative debt never pays the captain.
  G.LoanActive = True;
  G.LoanDue = -5000;
  G.Cash = 10;
  Confirm();
  EXPECT_EQ(G.Cash, 10);
  EXPECT_EQ(G.LoanActive, 0);
}

TEST_F(FleetOfficeTest, AFineAtTheLimitCostsNothingAndTheWorstCostsThreeHundredFifty) {
  DockAt(1, 1);  // Human, Hagel
  Menu(3);
  G.RaceRelation[2] = 35;
  Choice(2);
  EXPECT_EQ(G.ServicePage, 122);
  G.Cash = 1000;
  Confirm();
  EXPECT_EQ(G.RaceRelation[2], 36);
  EXPECT_EQ(G.Cash, 1000);
  Confirm();  // 36 is above the limit: nothing more
  EXPECT_EQ(G.RaceRelation[2], 36);

  G.RaceRelation[1] = 0;
  Choice(1);
  G.Cash = 100;  // a purse too small is emptied
  Confirm();
  EXPECT_EQ(G.RaceRelation[1], 36);
  EXPECT_EQ(G.Cash, 0);
  G.RaceRelation[1] = 0;
  G.Cash = 1000;
  Confirm();
  EXPECT_EQ(G.Cash, 650);
}

TEST_F(FleetOfficeTest, StarChartsRevealWhatTheyOffer) {
  G.PlanetCount = 30;
  for (int p = 4; p <= 30; ++p) {
    Body(p, 100.0 * p, 500, p % 3 == 0 ? 7 : 2, p % 2 == 0 ? 1 : 0);
    G.Planet[p].Type = static_cast<std::int16_t>(p % 5 == 0 ? 1 : 3);
  }
  Menu(4);
  G.ChartKind = 4;
  G.Cash = 19999;
  Confirm();
  EXPECT_TRUE(Heard(13, 5));
  EXPECT_EQ(G.ChartBought, 0);
  G.Cash = 20000;
  Confirm();
  EXPECT_EQ(G.ChartBought, True);
  EXPECT_EQ(G.Cash, 0);
  for (int p = 1; p <= 30; ++p) {
    const bool lawful = G.Planet[p].HasStation != 0 && G.Planet[p].Race != 7;
    EXPECT_EQ(G.Planet[p].Known != 0, lawful) << p;
  }

  // Barren planets: ten draws, never another type.
  for (int p = 1; p <= 30; ++p) G.Planet[p].Known = False;
  G.ChartKind = 1;
  G.Cash = 4999;
  Confirm();
  EXPECT_TRUE(Heard(13, 6));
  G.Cash = 5000;
  Confirm();
  int known = 0;
  for (int p = 1; p <= 30; ++p) {
    if (G.Planet[p].Known == 0) continue;
    ++known;
    EXPECT_EQ(G.Planet[p].Type, 1) << p;
  }
  EXPECT_GE(known, 1);
  EXPECT_LE(known, 10);

  // A chart of a class the quadrant lacks ends at once.
  G.ChartKind = 3;  // tundra, type 2: none here
  G.Cash = 5000;
  Confirm();
  EXPECT_EQ(G.Cash, 0);
}

TEST_F(FleetOfficeTest, TheStarLaneIsPlacedNearAPlanetInsideTheSector) {
  G.SectorSize = 4000;
  Menu(5);
  G.Cash = 49999;
  Confirm();
  EXPECT_EQ(G.StarLaneKnown, 0);
  for (int round = 0; round < 20; ++round) {
    G.Cash = 50000;
    G.StarLaneKnown = False;
    Confirm();
    ASSERT_EQ(G.StarLaneKnown, True);
    EXPECT_EQ(G.Cash, 0);
    EXPECT_GT(G.StarLaneX, 100);
    EXPECT_LT(G.StarLaneX, 3000);
    EXPECT_GT(G.StarLaneY, 100);
    EXPECT_LT(G.StarLaneY, 3000);
    bool near = false;
    for (int p = 1; p <= G.PlanetCount; ++p)
      near = near || std::hypot(G.Planet[p].X - G.StarLaneX, G.Planet[p].Y - G.StarLaneY) < 200;
    EXPECT_TRUE(near);
  }
  // A sector too small to hold the point still ends.
  G.SectorSize = 50;
  G.Cash = 50000;
  Confirm();
  EXPECT_EQ(G.StarLaneKnown, True);
}

TEST_F(FleetOfficeTest, AnOfficerPutAshoreWaitsInThisStationsLounge) {
  G.CrewPost[3].Person = 9;
  G.StationPeople[1] = {};
  G.StationPeople[1][1] = 40;
  Press(500, 70 + 24 * 2 + 4);
  EXPECT_EQ(G.ServicePage, 23);
  Press(440, 70 + 24 * 2 + 4);
  EXPECT_EQ(G.CrewPost[3].Person, 0);
  EXPECT_EQ(G.StationPeople[1][2], 9);
  EXPECT_EQ(G.ServicePage, 0);
  Press(440, 70 + 24 * 2 + 4);  // an empty post has nobody to put ashore
  EXPECT_EQ(G.StationPeople[1][3], 0);
}

TEST_F(FleetOfficeTest, TheExitLeavesForTheTerminalWithoutTheWelcome) {
  Menu(3);
  Press(550, 440);
  EXPECT_EQ(StationPage(), 1);
  EXPECT_EQ(G.ServicePage, 0);
  EXPECT_TRUE(Heard(2, 1));
}

class LoanReckoningTest : public StationScreenTest {};

TEST_F(LoanReckoningTest, RemindersAndTheSeizureComeByChanceAtTheirMonth) {
  int reminded = 0, welcomed = 0;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    host.seed = seed;
    G.LoanActive = True;
    G.LoanMonthsLeft = 1;
    G.TermPrompt = 0;
    a_CheckLoanRepay();
    if (G.TermPrompt == 511) {
      ++reminded;
      EXPECT_EQ(G.TermLine[5], "CAPTAIN, YOU STILL HAVE TWO");
      EXPECT_EQ(G.TermLineCount, 9);
    } else {
      ++welcomed;
      EXPECT_EQ(G.ServiceMenuOpen, True);
    }
  }
  EXPECT_GT(reminded, 25);  // about 70 in 100
  EXPECT_GT(welcomed, 5);

  // Without a loan the chain always goes on to the welcome.
  G.LoanActive = False;
  G.LoanMonthsLeft = -1;
  G.TermPrompt = 0;
  a_CheckLoanRepay();
  EXPECT_EQ(G.TermPrompt, 0);
}

TEST_F(LoanReckoningTest, TheSeizureTakesCashFirstThenComponentsByTheRemainder) {
  OwnHull(1, 1);
  G.HardpointCount = 6;
  G.FreeMass = 5000;
  G.LoanActive = True;
  G.LoanMonthsLeft = -1;
  G.LoanDue = 6000;
  G.Cash = 7000;
  SeizeForLoan();
  EXPECT_EQ(G.Cash, 1000);
  EXPECT_EQ(G.LoanActive, 0);

  // 4000 short: one component, from the lowest filled hardpoint.
  Fit(2, 4, 1);
  Fit(3, 5, 1);
  Fit(4, 6, 1);
  const int massBefore = G.FreeMass;
  G.LoanActive = True;
  G.LoanDue = 6000;
  G.Cash = 2000;
  SeizeForLoan();
  EXPECT_EQ(G.Cash, 0);
  EXPECT_EQ(G.FittedComp[2][1], 0);
  EXPECT_EQ(G.FittedComp[3][1], 5);
  EXPECT_EQ(G.FreeMass, massBefore + static_cast<int>(ComponentWeight(4, 1)));

  // 95000 short takes ten: all there are.
  G.LoanDue = 95000;
  G.Cash = 0;
  SeizeForLoan();
  for (int slot = 1; slot <= 20; ++slot) EXPECT_EQ(G.FittedComp[slot][1], 0) << slot;
}

}  // namespace
}  // namespace lf::test
