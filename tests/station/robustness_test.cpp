// Damaged or odd states restored into a docked game: the loop keeps
// running and no press anywhere crashes.
#include <gtest/gtest.h>

#include "display/gfx.h"
#include "station/station_fixture.h"

namespace lf::test {
namespace {

class StationRobustness : public StationTest {
 protected:
  // A pass of the loop's drawing and a grid of presses over the screen.
  void DrawAndPressEverywhere() {
    for (int y = 5; y < 480; y += 23)
      for (int x = 3; x < 640; x += 29) {
        if (!G.StationActive) return;
        Press(x, y);
        PointAt(x, y);
        Skip(a_DrawStationBack);
        Skip(a_DrawStationTitle);
        Skip(a_DrawStationComps);
        Skip(a_DrawLogonText);
        Skip(a_DrawCommodityNames);
        Skip(a_DrawStockStates);
        Skip(a_DrawStockPrices);
        Skip(a_DrawCashCargo);
        a_AddToLetterCount();
      }
  }
};

TEST_F(StationRobustness, EveryScreenNumberTakesPressesEverywhere) {
  G.HullRace = 0;  // the exit zone refuses, so every press stays docked
  for (const int page : {-3, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 32767}) {
    StationPage() = static_cast<std::int16_t>(page);
    a_Welcome();
    DrawAndPressEverywhere();
    EXPECT_EQ(G.StationActive, True) << page;
    EXPECT_GE(G.Cash, 0);
  }
}

TEST_F(StationRobustness, AScreenNumberOutsideTheEightReturnsToTheTerminalOnAPress) {
  StationPage() = 9;
  Press(10, 10);
  EXPECT_EQ(StationPage(), 1);
}

TEST_F(StationRobustness, AnyPromptValueIsSafe) {
  G.HullRace = 0;
  for (const int prompt : {-32768, -1, 1, 2, 3, 499, 500, 501, 510, 511, 513, 999, 32767}) {
    G.TermPrompt = static_cast<std::int16_t>(prompt);
    StationPage() = 1;
    DrawAndPressEverywhere();
    EXPECT_EQ(G.StationActive, True) << prompt;
  }
}

TEST_F(StationRobustness, TooManyTerminalLinesAreSafe) {
  for (const int count : {21, 50, 51, 32767, -5}) {
    G.TermLineCount = static_cast<std::int16_t>(count);
    for (int i = 1; i <= 50; ++i) G.TermLine[i] = "LINE OF TEXT";
    for (int i = 0; i < 3; ++i) a_AddToLetterCount();
    a_DrawLogonText();
  }
}

TEST_F(StationRobustness, AShipNearNoPlanetKeepsTheStationWorking) {
  G.ShipX = 3000;
  G.ShipY = 100;
  ASSERT_EQ(DockedPlanet(), 0);
  a_DetermineStationComps();
  EXPECT_EQ(G.StationService[7], "MERCENARY GUILD");
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermLine[1], "WELCOME TO  STATION!");
  StationPage() = 3;
  const double cash = G.Cash;
  Press(500, 125);  // the exchange has nothing to trade
  EXPECT_EQ(G.Cash, cash);
  StationPage() = 1;
  EXPECT_TRUE(PressExit());
  EXPECT_EQ(G.OrbitState, 3);
}

TEST_F(StationRobustness, APlanetCountBeyondTheTableIsSafe) {
  G.PlanetCount = 32000;
  G.ShipX = 9999;
  EXPECT_EQ(DockedPlanet(), 0);
  G.PlanetCount = -4;
  EXPECT_EQ(DockedPlanet(), 0);
}

TEST_F(StationRobustness, StocksAndHoldAtTheirLimitsAreSafe) {
  StationPage() = 3;
  for (int i = 1; i <= 14; ++i) {
    G.StationStock[2].Quantity[i] = i % 2 ? 32767 : -32768;
    G.StationStock[2].StationPrice[i] = i % 3 ? 1e300 : -5;
    G.Cargo[i] = i % 2 ? -32768 : 32767;
  }
  G.FreeCargo = 32767;
  G.Cash = -100;
  DrawAndPressEverywhere();
  SUCCEED();
}

}  // namespace
}  // namespace lf::test
