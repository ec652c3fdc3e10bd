#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "generation_util.h"
#include "shell/host.h"
#include "shell/state_json.h"
#include "universe/bridge_buttons.h"
#include "universe/catalogue.h"
#include "universe/characters.h"
#include "universe/new_game.h"
#include "universe/other_ships.h"
#include "universe/quadrant.h"

namespace lf {
namespace {

class NewGameSetup : public ::testing::Test {
 protected:
  void SetUp() override {
    SetHost(&host_);
    ResetGame();
    G.CurrentQuadrant = 1;
    SetBasePrices();
  }
  void TearDown() override { SetHost(nullptr); }
  ScriptedHost host_;
};

TEST_F(NewGameSetup, SetsTheConstantsFacesAndButtons) {
  host_.seed = 17;
  RandomGame();
  EXPECT_EQ(G.SectorSize, 5000);
  EXPECT_EQ(G.SensorRange, 120);
  EXPECT_EQ(G.BigDoorPos, 200);
  EXPECT_EQ(G.OrbitOfferOpen, True);
  EXPECT_EQ(G.ProgressMode, 3);
  EXPECT_EQ(G.FaceX[3], 24);
  EXPECT_EQ(G.FaceY[3], 289);
  EXPECT_EQ(G.FaceX[4], 538);
  EXPECT_EQ(G.FaceY[5], 155);
  EXPECT_EQ(G.FaceHeight[6], 100);
  EXPECT_EQ(G.Planet[0].Width, 64);
  EXPECT_EQ(G.PictureWidth[21], 45);
  EXPECT_EQ(PlanetPicturePath(5), "\\gfx\\planets\\gasgiant.bmp");
  EXPECT_EQ(PlanetPicturePath(27), "");
  EXPECT_EQ(G.OfficerLine[6][1], "CHIEF ENGINEER REPORTING!");
  EXPECT_EQ(G.OfficerLine[2][3], "CAPTAIN?");

  int present[7] = {};
  for (int p = 1; p <= 6; ++p)
    for (int b = 1; b <= 15; ++b) {
      const BridgeButtonRecord& r = G.BridgeButton[p][b];
      EXPECT_EQ(r.FrameStep, 0.25);
      EXPECT_EQ(r.Visible, False);
      EXPECT_EQ(r.State, (p == 3 && b == 8) ? 2 : 0);
      if (r.Present) {
        ++present[p];
        EXPECT_EQ(r.Width, 50);
        EXPECT_TRUE(r.X == 140 || r.X == 201 || r.X == 262 || r.X == 323);
        EXPECT_TRUE(r.Y == 287 || r.Y == 351);
        EXPECT_FALSE(ButtonSheetPath(p, b).empty());
      }
    }
  // Eight places a page; (1,4), (1,6), (2,2) wait for their partner's place.
  for (int p = 1; p <= 6; ++p) EXPECT_EQ(present[p], 8) << p;
  EXPECT_EQ(G.BridgeButton[1][6].Present, False);
  EXPECT_EQ(G.BridgeButton[1][6].X, G.BridgeButton[1][5].X);
  EXPECT_EQ(G.BridgeButton[5][6].X, 323);
  EXPECT_EQ(G.BridgeButton[5][6].Y, 351);
  EXPECT_EQ(G.BridgeButton[5][8].Label, "GIULD MEMBERSHIP");
  EXPECT_EQ(G.BridgeButton[2][9].FrameCount, 0);
  EXPECT_EQ(G.BridgeButton[2][7].FrameCount, 8);
  EXPECT_EQ(G.BridgeButton[4][6].Label, "");
  EXPECT_EQ(ButtonSheetPath(3, 8), "\\gfx\\tac\\06.bmp");
  EXPECT_EQ(ButtonSheetPath(6, 7), "\\gfx\\bb.bmp");
  EXPECT_EQ(ButtonSheetPath(5, 10), "");
  EXPECT_EQ(ButtonSheetPath(9, 1), "");
}

TEST_F(NewGameSetup, AsteroidFieldsLieOnTheGridAndStartAfreshEachGame) {
  int atEdge = 0;
  for (int seed = 1; seed <= 25; ++seed) {
    host_.seed = seed;
    G.AsteroidFieldCount = 200;  // what a game before left
    RandomGame();
    ASSERT_GT(G.AsteroidFieldCount, 0);
    ASSERT_LT(G.AsteroidFieldCount, 80);
    for (int i = 1; i <= G.AsteroidFieldCount; ++i) {
      const AsteroidFieldRecord& a = G.AsteroidField[i];
      EXPECT_EQ(static_cast<int>(a.X) % 250, 0);
      EXPECT_EQ(static_cast<int>(a.Y) % 250, 0);
      EXPECT_LE(a.X, 5000);
      EXPECT_LE(a.Y, 5000);
      if (a.X == 5000 || a.Y == 5000) ++atEdge;
    }
    EXPECT_EQ(G.AsteroidField[G.AsteroidFieldCount + 1].X, 0);
    EXPECT_GE(G.PlanetCount, 50);  // quadrant 1 laid too
  }
  EXPECT_GT(atEdge, 0);  // a field may hang over the edge of the map
}

TEST_F(NewGameSetup, OneSeedGivesOneGameAndTheDumpCarriesIt) {
  host_.seed = 99;
  RandomGame();
  RandomizeCharacters();
  DefineShipSpecs();
  const std::string first = DumpStateText(G);
  ResetGame();
  G.CurrentQuadrant = 1;
  SetBasePrices();
  RandomGame();
  RandomizeCharacters();
  DefineShipSpecs();
  EXPECT_EQ(DumpStateText(G), first);

  const auto dump = DumpState(G);
  EXPECT_EQ(dump["Hull"][3][4]["Name"], "GOLEM");
  EXPECT_EQ(dump["ComponentTable"][4][7][1], "W-X-AP");
  EXPECT_EQ(dump["ShipLoadout"][13][0][1], 4);
  EXPECT_EQ(dump["PlanetNames"][1], "ABBON");
  ResetGame();
  RestoreState(G, nlohmann::json::parse(first));
  EXPECT_EQ(DumpStateText(G), first);
}

// A restored record may hold anything; no procedure here may fall over it.
TEST_F(NewGameSetup, OutOfRangeRestoredValuesAreHarmless) {
  host_.seed = 5;
  RandomGame();
  RandomizeCharacters();
  DefineShipSpecs();
  RestoreState(G, nlohmann::json::parse(R"({
    "OtherShip": {"3": {"ShipClass": 40}},
    "Planet": {"1": {"Type": 0, "Race": 12, "Society": 77, "HasStation": 1, "Picture": 99},
               "2": {"Type": -4, "Race": -1, "HasStation": 1}},
    "FittedComp": {"1": [0, 11, 300]},
    "CurrentQuadrant": 9
  })"));
  EXPECT_EQ(ClassInfo(G.OtherShip[3].ShipClass).Race, 0);
  EXPECT_EQ(ClassHull(G.OtherShip[3].ShipClass).Name, "");
  EXPECT_EQ(ComponentWeight(G.FittedComp[1][1], G.FittedComp[1][2]), 0);
  Skip([] { HealthPercent(1); });
  StationStockSpecs();
  DetermineStationPeople();
  PlaceOtherShips();
  EXPECT_EQ(G.StationStock[1].Quantity[1], 0);

  for (int count : {-5, 0, 251, 32767}) {
    G.PlanetCount = static_cast<std::int16_t>(count);
    StationStockSpecs();
    DetermineStationPeople();
    PlaceOtherShips();
    EXPECT_LE(G.OtherShipCount, 500);
  }
  G.NebulaCount = -3;
  EXPECT_FALSE(InsideAnyNebula(100, 100));
  G.NebulaCount = 30000;
  DropNebulasOverBodies();

  // A quadrant number without races still ends, in quadrant 1 too.
  G.CurrentQuadrant = 9;
  RandomizeQuad(9);
  EXPECT_GE(G.PlanetCount, 50);
  G.CurrentQuadrant = 1;
  RandomizeQuad(7);
  EXPECT_GE(G.PlanetCount, 50);
}

}  // namespace
}  // namespace lf
