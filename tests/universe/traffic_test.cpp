// The other ships at run time: their motion and courses over many frames,
// who turns on the player and when a fight starts, the trader's call, and
// what the sensors draw.
#include <gmock/gmock.h>

#include <cmath>

#include "bridge/bridge_fixture.h"
#include "display/gfx.h"
#include "shell/bridge_frame_steps.h"
#include "shell/screens.h"
#include "universe/catalogue.h"
#include "universe/other_ships.h"
#include "universe/quadrant.h"
#include "universe/universe_procedures.h"

namespace lf::test {
namespace {

class TrafficTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 50;
    for (int r = 1; r <= 7; ++r) G.TranslatorOwned[r] = True;
    G.OtherShipCount = 1;
  }

  // A ship of class c at (x, y), at home there, heading nowhere.
  static OtherShipRecord& Add(int c, double x, double y) {
    OtherShipRecord& s = G.OtherShip[G.OtherShipCount++];
    s = OtherShipRecord{};
    s.ShipClass = static_cast<std::int16_t>(c);
    s.X = x;
    s.Y = y;
    Assign(s.TargetX, x);
    Assign(s.TargetY, y);
    Assign(s.HomeX, x);
    Assign(s.HomeY, y);
    s.Free = True;
    return s;
  }

  static double Distance(const OtherShipRecord& s) { return std::hypot(s.X - G.ShipX, s.Y - G.ShipY); }

  // Frames of DrawOtherShips; true when one of them started a fight.
  static bool RunFrames(int n) {
    for (int k = 0; k < n; ++k) {
      try {
        DrawOtherShips();
      } catch (const ScreenChange&) {
        return true;
      }
    }
    return false;
  }
};

TEST_F(TrafficTest, AQuadrantsTrafficStaysInsideAndStepsByItsSpeedForThousandsOfFrames) {
  SeedRandom(G.Random, 77);
  FillPictureTables();
  G.CurrentQuadrant = 1;
  RandomizePlans(1);
  PlaceOtherShips();
  for (int i = 1; i < G.OtherShipCount; ++i) G.OtherShip[i].Free = True;
  G.ShipX = G.ShipY = -10000;  // far from all of them
  const int count = G.OtherShipCount;
  // Pirates may be placed beyond an edge: the first frame puts them on it.
  ASSERT_FALSE(RunFrames(1));
  for (int frame = 0; frame < 3000; ++frame) {
    double oldX[501], oldY[501];
    for (int i = 1; i < count; ++i) {
      oldX[i] = G.OtherShip[i].X;
      oldY[i] = G.OtherShip[i].Y;
    }
    ASSERT_FALSE(RunFrames(1));
    for (int i = 1; i < count; ++i) {
      const OtherShipRecord& s = G.OtherShip[i];
      ASSERT_GE(s.X, 0) << "ship " << i << " frame " << frame;
      ASSERT_LE(s.X, G.SectorSize) << "ship " << i << " frame " << frame;
      ASSERT_GE(s.Y, 0) << "ship " << i << " frame " << frame;
      ASSERT_LE(s.Y, G.SectorSize) << "ship " << i << " frame " << frame;
      // Never more than two steps of its kind's top speed on either axis.
      const double top = ClassInfo(s.ShipClass).Kind == ShipKind::Trader ? 1 / 2.2 : 1.0;
      ASSERT_LE(std::abs(s.X - oldX[i]), 2 * top + 1e-9) << "ship " << i;
      ASSERT_LE(std::abs(s.Y - oldY[i]), 2 * top + 1e-9) << "ship " << i;
    }
  }
  // They went somewhere: most ships left the place they were put.
  int moved = 0;
  for (int i = 1; i < count; ++i) moved += G.OtherShip[i].StepX != 0 || G.OtherShip[i].StepY != 0;
  EXPECT_GT(moved, (count - 1) * 9 / 10);
  EXPECT_EQ(G.OtherShip[count].ShipClass, 0);  // the empty row stays empty
}

TEST_F(TrafficTest, EachKindFliesTwiceItsStepOnItsMainAxis) {
  struct Case {
    int shipClass;
    double perFrame;
  };
  const Case cases[] = {{1, 2}, {5, 2}, {2, 2 / 2.2}, {3, 2 / 1.7}, {4, 2 / 1.9}, {18, 2 / 1.9}};
  for (const Case& c : cases) {
    G.OtherShipCount = 1;
    OtherShipRecord& s = Add(c.shipClass, 1000, 1000);
    // Just arrived: a military ship heads home, within 125 of (1000, 1000).
    s.TargetX = 1000;
    s.TargetY = 1000;
    s.HomeX = 1000;
    s.HomeY = 3000;
    ASSERT_FALSE(RunFrames(1));
    const double major = std::max(std::abs(s.StepX), std::abs(s.StepY));
    EXPECT_NEAR(2 * major, c.perFrame, 1e-9) << "class " << c.shipClass;
  }
}

TEST_F(TrafficTest, AShipAtTheEdgeStaysThereAndPicksANewCourse) {
  OtherShipRecord& s = Add(5, 1, 2000);  // a pirate
  s.HomeX = 0;
  s.HomeY = 2000;
  s.TargetX = -400;
  s.TargetY = 2600;
  s.StepX = -1;
  s.StepY = 0.5;
  ASSERT_FALSE(RunFrames(3));
  EXPECT_EQ(s.X, 0);
  // The edge made its place the target on that axis, so the course ends as
  // soon as the other axis is reached.
  EXPECT_EQ(s.TargetX, 0);
}

TEST_F(TrafficTest, AHostilePatrolClosesInAndStartsTheFightWithin50) {
  G.RaceRelation[1] = 34;
  OtherShipRecord& s = Add(3, G.ShipX + 75, G.ShipY - 10);
  s.HomeX = 4000;
  s.HomeY = 4000;
  double last = Distance(s);
  bool fight = false;
  for (int k = 0; k < 100 && !fight; ++k) {
    fight = RunFrames(1);
    if (!fight) {
      EXPECT_LT(Distance(s), last);
      last = Distance(s);
    }
  }
  ASSERT_TRUE(fight);
  EXPECT_EQ(G.FightShip, 1);
  EXPECT_LT(Distance(s), 50);
  EXPECT_EQ(G.MouseLook, False);
}

TEST_F(TrafficTest, At35APatrolGoesHomeAndInOrbitNoFightStarts) {
  G.RaceRelation[1] = 35;
  OtherShipRecord& s = Add(4, G.ShipX + 60, G.ShipY);
  s.HomeX = 4500;
  s.HomeY = 2500;
  ASSERT_FALSE(RunFrames(200));
  EXPECT_GT(Distance(s), 200);

  // At 34 but in orbit: it stands (orbit holds every ship) and no fight starts.
  G.RaceRelation[1] = 34;
  G.OrbitState = 3;
  OtherShipRecord& near = Add(3, G.ShipX + 10, G.ShipY);
  EXPECT_FALSE(RunFrames(10));
  EXPECT_EQ(near.X, G.ShipX + 10);
}

TEST_F(TrafficTest, ScoutsAndTradersNeverAttackAndMissionShipsAlwaysDo) {
  for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 0;
  Add(1, G.ShipX + 10, G.ShipY);
  Add(2, G.ShipX - 10, G.ShipY);
  Add(14, G.ShipX, G.ShipY + 10);
  EXPECT_FALSE(RunFrames(20));

  for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 100;
  G.OtherShipCount = 1;
  OtherShipRecord& hunter = Add(5, G.ShipX + 90, G.ShipY);  // beyond range - 20
  hunter.Free = False;
  ASSERT_FALSE(RunFrames(1));
  // Within sensor range it already heads for the player.
  EXPECT_EQ(hunter.TargetX, CInt(G.ShipX + 10));
  EXPECT_EQ(hunter.TargetY, CInt(G.ShipY + 6));
  EXPECT_TRUE(RunFrames(40));
  EXPECT_EQ(G.FightShip, 1);
}

TEST_F(TrafficTest, ANebulaHidesThePlayerFromShipsAndShipsFromTheSensors) {
  G.InNebula = True;
  G.SensorLevel = 100;
  G.RaceRelation[7] = 0;
  G.RaceRelation[1] = 100;
  Add(5, G.ShipX + 30, G.ShipY);
  OtherShipRecord& trader = Add(2, G.ShipX - 30, G.ShipY);
  trader.WantsTrade = True;
  BlitRecording rec;
  EXPECT_FALSE(RunFrames(5));
  EXPECT_EQ(G.HailedShip, 0);
  EXPECT_TRUE(BlitsOf(GFX.ShipPicture[0]).empty());
}

TEST_F(TrafficTest, ShipsStandStillDuringHailsPromptsCombatModeAndOrbit) {
  const auto still = [this](auto hold) {
    ResetGame();
    SetUp();
    OtherShipRecord& s = Add(1, 1000, 1000);
    s.StepX = 1;
    s.TargetX = 3000;
    hold();
    RunFrames(5);
    return s.X == 1000;
  };
  EXPECT_FALSE(still([] {}));
  EXPECT_TRUE(still([] { G.OrbitState = 6; }));
  EXPECT_TRUE(still([] { G.OrbitState = 3; }));
  EXPECT_TRUE(still([] { ButtonState(2, 1) = 1; }));
  EXPECT_TRUE(still([] { ButtonState(3, 4) = 1; }));
  EXPECT_TRUE(still([] { G.MessagePending = True; }));
  EXPECT_TRUE(still([] { G.QuestionPending = True; }));
}

TEST_F(TrafficTest, AFriendlyHumanTraderCallsOnceAndOnlyWithATranslator) {
  // Only the Human trader calls: not a Lagew one, however friendly.
  G.RaceRelation[3] = 100;
  Add(10, G.ShipX - 40, G.ShipY).WantsTrade = True;
  ASSERT_FALSE(RunFrames(1));
  EXPECT_EQ(G.HailedShip, 0);

  G.RaceRelation[1] = 65;
  OtherShipRecord& s = Add(2, G.ShipX + 40, G.ShipY);
  s.WantsTrade = True;
  G.TranslatorOwned[1] = False;
  ASSERT_FALSE(RunFrames(1));
  EXPECT_EQ(G.HailedShip, 0);
  EXPECT_EQ(s.WantsTrade, True);  // it may call later

  G.TranslatorOwned[1] = True;
  G.RaceRelation[1] = 64;
  ASSERT_FALSE(RunFrames(1));
  EXPECT_EQ(G.HailedShip, 0);

  G.RaceRelation[1] = 65;
  ButtonState(2, 3) = 1;  // ignoring communications
  ASSERT_FALSE(RunFrames(1));
  EXPECT_EQ(G.HailedShip, 0);

  ButtonState(2, 3) = 0;
  ASSERT_FALSE(RunFrames(1));
  EXPECT_EQ(G.HailedShip, 2);
  EXPECT_EQ(G.OrbitState, 5);
  EXPECT_EQ(ButtonState(2, 8), 1);
  EXPECT_EQ(G.PageOpen[2], 1);
  EXPECT_EQ(G.PageOpen[1], 0);
  EXPECT_EQ(s.WantsTrade, False);
  EXPECT_EQ(G.PromptLine[1], "HELLO, FRIENDLY TRAVELLER!");
  EXPECT_EQ(G.PromptLine[2], "WE WERE WONDERING IF YOU WERE INTERESTING IN A");
  EXPECT_EQ(G.PromptLine[3], "COMMODITY EXCHANGE?");
  EXPECT_EQ(G.MessagePending, False);
  EXPECT_THAT(MediaLog(), ::testing::Contains(Sound(1, 3)));
}

TEST_F(TrafficTest, SensorsDrawUnknownAndIdentifiedShipsButNoIdentifiedClass19) {
  G.SensorLevel = 100;
  Add(3, G.ShipX + 30, G.ShipY + 20);
  OtherShipRecord& known = Add(6, G.ShipX - 30, G.ShipY);
  known.Identified = True;
  OtherShipRecord& pirate = Add(19, G.ShipX, G.ShipY - 30);
  pirate.Identified = True;
  Add(1, G.ShipX + 150, G.ShipY);  // beyond the sensors
  G.MessagePending = True;  // holds them where they stand
  BlitRecording rec;
  ASSERT_FALSE(RunFrames(1));
  const auto unknown = BlitsOf(GFX.ShipPicture[0]);
  ASSERT_EQ(unknown.size(), 1u);
  // Top-left at (300 + x - Int(ViewX) - 15, 125 + y - ViewY - 10).
  EXPECT_EQ(unknown[0].x, 300 + 30 - 15);
  EXPECT_EQ(unknown[0].y, 125 + 20 - 10);
  EXPECT_EQ(unknown[0].right - unknown[0].left, 30);
  EXPECT_EQ(BlitsOf(GFX.ShipPicture[6]).size(), 1u);
  EXPECT_EQ(RecordedBlits().size(), 2u);

  G.SensorLevel = 99;
  RecordedBlits().clear();
  ASSERT_FALSE(RunFrames(1));
  EXPECT_TRUE(RecordedBlits().empty());
}

TEST_F(TrafficTest, TheNavigatorFollowsAShipPickedInTheViewAsItFlies) {
  G.SensorLevel = 100;
  FullPropulsion();
  G.PageOpen[1] = 1;
  ButtonState(1, 1) = 1;
  OtherShipRecord& s = Add(1, G.ShipX + 40, G.ShipY + 20);
  s.TargetX = 4000;
  s.StepX = 1;
  // The ship's middle on the screen: (300 + 40 - 14 + 12, 125 + 20 - 8 + 7).
  Press(338, 144);
  ASSERT_EQ(G.FollowMode, 1);
  ASSERT_EQ(G.FollowShip, 1);
  ASSERT_FALSE(RunFrames(30));
  FollowOtherShip();
  EXPECT_EQ(G.DestX, s.X);
  EXPECT_EQ(G.DestY, s.Y);
  EXPECT_GT(s.X, G.ShipX + 90);
  EXPECT_GT(G.ShipStepX, 0);  // the course was set towards it

  // A followed row restored beyond the table is left alone.
  G.FollowShip = 800;
  Skip(FollowOtherShip);
  EXPECT_EQ(G.DestX, s.X);
}

TEST_F(TrafficTest, RestoredRowsBeyondTheTablesKeepTheFrameRunning) {
  G.OtherShipCount = 900;
  G.OtherShip[1].ShipClass = 44;
  G.OtherShip[1].X = G.ShipX + 5;
  G.OtherShip[1].Y = G.ShipY;
  G.OtherShip[2].ShipClass = -3;
  G.OtherShip[2].X = G.ShipX;
  G.OtherShip[2].Y = G.ShipY + 5;
  G.OtherShip[3].ShipClass = 2;
  G.OtherShip[3].X = 1e12;  // a target that cannot be held in 16 bits
  G.PlanetCount = 0;
  G.SensorLevel = 100;
  EXPECT_FALSE(RunFrames(50));
}

}  // namespace
}  // namespace lf::test
