// Restored states the screens were never meant to see, and presses all over
// them: the dealer and the lounge keep running, and no purchase takes the
// cash below what it was or below zero.
#include <gtest/gtest.h>

#include <algorithm>

#include "screens_fixture.h"
#include "shell/state_json.h"

namespace lf::test {
namespace {

class ScreensRobustnessTest : public StationScreenTest {
 protected:
  // Presses down the screen every 7 pixels (no band of the screens is
  // thinner than 8), in columns that cross every control of both screens,
  // the screen drawn after each; the cash may only fall while it stays at
  // zero or above.
  void Sweep(void (*press)(), void (*draw)()) {
    static constexpr int kColumns[] = {5, 30, 100, 245, 262, 288, 300, 360, 424, 440, 460, 500, 550, 564, 580, 590, 620};
    for (int y = 2; y < 480; y += 7) {
      for (int x : kColumns) {
        const double before = G.Cash;
        PointAt(x, y);
        ASSERT_NO_THROW(press()) << x << "," << y;
        ASSERT_NO_THROW(draw()) << x << "," << y;
        if (G.Cash < before) ASSERT_GE(G.Cash, 0) << x << "," << y;
      }
    }
  }
  static void DrawDealer() {
    a_DrawCompAnim();
    a_DrawHardPList();
    a_DrawCompInfo();
    a_DrawGroupSelection();
    a_DrawStationEquip();
    a_DrawDealerButts();
    a_DrawCashCarry();
  }
  static void DrawLounge() {
    a_DrawStationCrew();
    a_DrawCrewInfo();
    a_DrawSpecialEquip(5);
    a_DrawCrewMembers();
    a_DrawStationNews();
    a_DrawBarSelection();
    a_DrawCash();
  }
  static void Restore(const char* json) { RestoreState(G, nlohmann::json::parse(json)); }
};

TEST_F(ScreensRobustnessTest, TheDealerTakesPressesOverDamagedStates) {
  const char* states[] = {
      // A model beyond the catalogue, fitted, unfitted and on sale.
      R"({"HullRace": 1, "HullClass": 1, "HardpointCount": 8, "FreeMass": 1000, "HullPointsMax": 500,
          "FittedComp": {"1": [0, 1, 12], "2": [0, 7, 12]}, "FittedHealth": {"1": 50},
          "UnfittedComp": {"1": [0, 4, 12]}, "StationEquip": {"1": [0, 12, 0], "10": [0, 5, 0]}})",
      // A hardpoint count above 20, a hull cell that holds no hull, groups
      // and selections of no meaning.
      R"({"HullRace": 9, "HullClass": 7, "HardpointCount": 25, "FreeMass": 3000, "HullPointsMax": 0,
          "DealerGroup": 8, "DealerSelection": 57})",
      R"({"HardpointCount": -4, "DealerGroup": -1, "DealerSelection": -3, "CompAnimFrame": -7})",
      R"({"DealerSelection": 21, "DealerGroup": 4, "CompAnimFrame": 1e300, "Cash": 1e300})",
      // No money at all, or less than none.
      R"({"Cash": 0, "HullRace": 1, "HullClass": 1, "HardpointCount": 8, "FreeMass": 1000,
          "HullPointsMax": 500, "HullPoints": 10, "FittedComp": {"1": [0, 4, 1]}})",
      R"({"Cash": -500, "HullRace": 1, "HullClass": 1, "HardpointCount": 8, "FreeMass": 1000,
          "HullPointsMax": 500, "HullPoints": 10, "FittedComp": {"1": [0, 4, 1]}})",
  };
  for (const char* state : states) {
    ResetGame();
    StationScreenTest::SetUp();
    a_DetermineStationEquip();
    Restore(state);
    const double start = G.Cash;
    Sweep(a_CheckMouseDown4, DrawDealer);
    if (start < 0) EXPECT_GE(G.Cash, start) << state;
  }
}

TEST_F(ScreensRobustnessTest, TheLoungeTakesPressesOverDamagedStates) {
  const char* states[] = {
      // People and officers beyond the character table.
      R"({"StationPeople": {"1": [0, 300, 5, -2, 0]}, "CrewPost": {"1": {"Person": 500}, "4": {"Person": -9}}})",
      R"({"LoungeSelection": 99, "ServicePage": 150, "NewsIndex": 12})",
      R"({"LoungeSelection": -5, "NewsIndex": -3, "Planet": {"1": {"Race": 7}}})",
      R"({"LoungeSelection": 42, "Planet": {"1": {"Race": 7}}, "StationPeople": {"1": [0, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14]}})",
      R"({"Cash": -500, "StationPeople": {"1": [0, 5, 13, 21]}, "Planet": {"1": {"Race": 7}}})",
      // The ship at no station at all.
      R"({"ShipX": 9000, "ShipY": 9000, "LoungeSelection": 1})",
  };
  for (const char* state : states) {
    ResetGame();
    StationScreenTest::SetUp();
    a_ChangeNewsText();
    Restore(state);
    const double start = G.Cash;
    Sweep(a_CheckMouseDown2, DrawLounge);
    if (start < 0) EXPECT_EQ(G.Cash, start) << state;
  }
}

TEST_F(ScreensRobustnessTest, EveryVariableOfTheScreensComesBackFromADump) {
  a_DetermineStationEquip();
  a_ChangeNewsText();
  G.CompAnimFrame = 12.5;
  G.ShrikeMissile = True;
  G.UpgradeJob[4].Progress = 33;
  G.DealerGroup = 9;
  G.LoungeSelection = 43;
  const std::string dump = DumpStateText(G);
  ResetGame();
  RestoreState(G, nlohmann::json::parse(dump));
  EXPECT_EQ(G.StationEquip[10][4], 4);
  EXPECT_EQ(G.StationEquip[3][2], 3);
  EXPECT_EQ(G.CompAnimFrame, 12.5);
  EXPECT_EQ(G.NewsIndex, 1);
  EXPECT_EQ(G.PirateNews[6], "TO KNOW.");
  EXPECT_EQ(G.ShrikeMissile, True);
  EXPECT_EQ(G.UpgradeJob[4].Progress, 33);
  EXPECT_EQ(DumpStateText(G), dump);
}

}  // namespace
}  // namespace lf::test
