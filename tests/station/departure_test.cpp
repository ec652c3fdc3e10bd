// Leaving the station: the exit zone, the checks that refuse in turn, and
// the departure into orbit or beside a pirate station.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/guards.h"
#include "station/station_fixture.h"

namespace lf::test {
namespace {

class Departure : public StationTest {
 protected:
  void SetUp() override {
    StationTest::SetUp();
    a_Welcome();
  }
};

TEST_F(Departure, EachMissingPartIsRefusedInTurnAndTheOkWelcomesAgain) {
  G.CrewPost[1].Person = 0;
  G.HullRace = 0;
  G.FittedComp[1][1] = 0;
  G.FittedComp[6][1] = 3;  // beyond the four hardpoints
  const std::pair<int, const char*> expected[] = {{507, "SIR! YOU HAVE NO CREWMEMBERS"},
                                                  {508, "YOU NEED A VALID SHIP HULL"},
                                                  {509, "SIR! YOU APPEAR TO HAVE AN"},
                                                  {512, "CAPTAIN! YOU STILL HAVE"}};
  for (const auto& [prompt, first] : expected) {
    ClearMediaLog();
    EXPECT_FALSE(PressExit());
    EXPECT_EQ(G.TermPrompt, prompt);
    EXPECT_EQ(G.TermLine[1], first);
    EXPECT_EQ(G.MayDepart, False);
    EXPECT_TRUE(Sounded(4, 1));
    PressOk();
    EXPECT_EQ(G.TermPrompt, 0);
    EXPECT_EQ(G.TermLine[1], "WELCOME TO KALLISTO STATION!");
    // Mend what was refused.
    if (prompt == 507) G.CrewPost[1].Person = 11;
    if (prompt == 508) G.HullRace = 1;
    if (prompt == 509) G.FittedComp[1][1] = 4;
    if (prompt == 512) G.FittedComp[6][1] = 0;
  }
  EXPECT_TRUE(PressExit());
}

TEST_F(Departure, ALawfulStationLeavesTheShipInOrbitWithTheOrbitButtons) {
  G.PageOpen[1] = 1;
  for (int p = 1; p <= 5; ++p)
    for (int b = 1; b <= 9; ++b) ButtonState(p, b) = 1;
  G.BridgeButton[1][5].Present = True;
  G.BridgeButton[1][6].Present = False;
  G.Timer1Enabled = False;
  EXPECT_TRUE(PressExit());
  EXPECT_EQ(G.OrbitState, 3);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1 / 60);
  EXPECT_EQ(G.OrbitOfferOpen, True);
  for (const auto& [p, b] : {std::pair{3, 1}, {3, 2}, {1, 6}, {4, 2}, {5, 1}, {2, 4}})
    EXPECT_EQ(ButtonState(p, b), 0) << p << "," << b;
  for (const auto& [p, b] : {std::pair{1, 1}, {2, 1}, {1, 9}}) EXPECT_EQ(ButtonState(p, b), 2) << p << "," << b;
  EXPECT_EQ(ButtonState(1, 2), 1);  // untouched
  EXPECT_EQ(G.BridgeButton[1][5].Present, False);
  EXPECT_EQ(G.BridgeButton[1][6].Present, True);
  EXPECT_EQ(G.BridgeButton[1][5].Visible, True);
  EXPECT_EQ(G.BridgeButton[1][6].Visible, True);
  EXPECT_EQ(G.Planet[2].Known, True);
  EXPECT_EQ(G.Planet[1].Known, False);
  EXPECT_EQ(G.BridgeActive, True);
  EXPECT_EQ(G.StationActive, False);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
  EXPECT_EQ(G.Timer1Enabled, True);
  EXPECT_EQ(G.ProgressMode, 0);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Track, 4, 0, {}}));
}

TEST_F(Departure, APirateStationLeavesTheShipFloatingBesideIt) {
  DockAtPirates();
  ButtonState(1, 1) = 1;
  EXPECT_TRUE(PressExit());
  EXPECT_EQ(G.OrbitState, 1);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1);
  EXPECT_EQ(ButtonState(1, 1), 1);
  EXPECT_EQ(G.Planet[3].Known, True);
}

TEST_F(Departure, TheExitZoneDuringTheArrivalTextSkipsEveryArrivalCheck) {
  G.HasLander = False;
  G.Cargo[4] = 3;
  G.RaceRelation[1] = 0;
  ArrivalTyping();
  EXPECT_TRUE(PressExit());
  EXPECT_EQ(G.HasLander, False);
  EXPECT_EQ(G.Cargo[4], 3);
  EXPECT_EQ(G.Cash, 50000);
}

TEST_F(Departure, TheExitZoneEdgesDoNotAnswer) {
  for (const auto& [x, y] : {std::pair{39, 420}, {293, 420}, {150, 396}, {150, 440}}) {
    EXPECT_FALSE(Press(x, y)) << x << "," << y;
    EXPECT_EQ(G.StationActive, True);
  }
}

}  // namespace
}  // namespace lf::test
