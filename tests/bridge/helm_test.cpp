// Flying the ship as a player does: the navigator's page, NAVIGATE MODE, a
// click on the map, the motion, the stop, orbit offers and asteroid fields.
#include <cmath>

#include "bridge/ship_pick.h"
#include "bridge_fixture.h"
#include "shell/host.h"
#include "shell/prompts.h"
#include "shell/screens.h"

namespace lf::test {
namespace {

class HelmTest : public BridgeTest {
 protected:
  void SetCourse(int x, int y) {
    PressFace(1);
    ASSERT_EQ(G.PageOpen[1], 1);
    PressButton(1, 1);
    ASSERT_EQ(ButtonState(1, 1), 1);
    Press(x, y);
  }
};

TEST_F(HelmTest, ClickOnTheMapSetsTheCourseAndTheShipArrivesAtFullSpeed) {
  FullPropulsion();
  SetCourse(400, 125);  // 80 to the right of the centre, plus the 18 offset
  EXPECT_DOUBLE_EQ(G.DestX, 2500 + 80 + 18);
  EXPECT_DOUBLE_EQ(G.DestY, 2500 - 8);
  EXPECT_EQ(G.PromptLine[2], "DESTINATION COORDINATES SET. FULL AHEAD.");
  // Speed (200 - 100) / 100 x 2 x 0.5 = 1 on the longer axis, added twice.
  EXPECT_NEAR(std::abs(G.ShipStepX), 1.0, 1e-12);
  EXPECT_NEAR(G.ShipStepY / G.ShipStepX, -8.0 / 98, 1e-12);
  const double x0 = G.ShipX;
  Frame();
  EXPECT_NEAR(G.ShipX - x0, 2.0, 1e-9);
  int frames = 1;
  while ((G.ShipStepX != 0 || G.ShipStepY != 0) && frames < 1000) {
    Frame();
    ++frames;
  }
  EXPECT_LT(std::hypot(G.ShipX - G.DestX, G.ShipY - G.DestY), 5);
  EXPECT_GT(frames, 40);
  EXPECT_LT(frames, 52);
  Frame();
  EXPECT_EQ(ButtonState(1, 9), 2) << "ALL STOP has nothing to stop";
}

TEST_F(HelmTest, PropulsionBelowOneHundredHoldsTheShipUntilThePowerRises) {
  G.PropulsionSetting = 200;
  G.PropulsionLevel = 50;
  SetCourse(400, 125);
  EXPECT_EQ(G.ShipStepX, 0);
  const double x0 = G.ShipX;
  int frames = 0;
  while (G.ShipX == x0 && frames < 200) {
    Frame();
    ++frames;
  }
  EXPECT_GE(G.PropulsionLevel, 120) << "the heading is recomputed once the level reaches 120";
  EXPECT_GT(G.ShipX, x0);
}

TEST_F(HelmTest, TheEdgeOfTheQuadrantPinsTheShip) {
  FullPropulsion();
  G.ShipX = 1;
  G.DestX = -400;  // beyond the edge: the heading points out of the map
  G.DestY = G.ShipY;
  CheckDirection();
  for (int i = 0; i < 5; ++i) Frame();
  EXPECT_GE(G.ShipX, -2);
  EXPECT_LE(G.ShipX, 0.0 + 1e-9);
  EXPECT_EQ(G.DestX, 0) << "the frame pulls the destination back onto the map";
}

TEST_F(HelmTest, ApproachingABodyRaisesTheOrbitOfferOnce) {
  G.PlanetCount = 1;
  G.Planet[1].X = 2600;
  G.Planet[1].Y = 2500;
  G.Planet[1].Width = 50;
  G.Planet[1].Race = 1;
  CheckDistance();
  EXPECT_EQ(G.OrbitState, 0);
  EXPECT_EQ(G.OrbitOfferOpen, True);
  EXPECT_EQ(ButtonState(1, 5), 2);
  G.ShipX = 2560;  // 40 away: inside Width - 5
  CheckDistance();
  EXPECT_EQ(G.OrbitState, 1);
  EXPECT_EQ(ButtonState(1, 5), 0);
  EXPECT_EQ(G.OrbitOfferOpen, True) << "the frame asks the question now";

  G.Planet[1].Race = 7;  // a pirate station: no orbit button, no offer
  CheckDistance();
  EXPECT_EQ(ButtonState(1, 5), 2);
  EXPECT_EQ(ButtonState(1, 3), 0);
  EXPECT_EQ(G.OrbitOfferOpen, False);
}

TEST_F(HelmTest, AnAsteroidFieldCostsAPoorNavigatorThreePointsAFrameAndWarnsOnce) {
  Crew(1, 10, 2);
  G.AsteroidFieldCount = 1;
  G.AsteroidField[1].X = 2400;
  G.AsteroidField[1].Y = 2400;
  DrawNebulas();
  EXPECT_EQ(G.HullPoints, 497);
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptLine[2], "WE ARE IN AN ASTEROID FIELD!");
  // With the warning up no hull is lost.
  DrawNebulas();
  EXPECT_EQ(G.HullPoints, 497);
  G.MessagePending = False;
  DrawNebulas();
  DrawNebulas();
  EXPECT_EQ(G.HullPoints, 491);
  EXPECT_EQ(G.MessagePending, False) << "one warning a stay";
  G.ShipX = 100;
  DrawNebulas();
  EXPECT_EQ(G.InAsteroids, False);
}

TEST_F(HelmTest, AGoodNavigatorManoeuvresThroughAndALostHullEndsTheGame) {
  Crew(1, 10, 4);
  G.AsteroidFieldCount = 1;
  G.AsteroidField[1].X = 2400;
  G.AsteroidField[1].Y = 2400;
  DrawNebulas();
  EXPECT_EQ(G.HullPoints, 500);
  EXPECT_EQ(G.PromptLine[2], "WE ARE MANOUVERING THROUGH THE ASTEROID FIELD!");
  G.MessagePending = False;
  G.Character[10].Skill = 1;
  G.HullPoints = 2;
  // Death shows its picture until a click, then opens the menu.
  ScriptedHost host;
  host.yieldBudget = 100;
  host.Click(320, 240);
  SetHost(&host);
  EXPECT_THROW(DrawNebulas(), ScreenChange);
  SetHost(nullptr);
  EXPECT_EQ(G.HullPoints, 0);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, True);
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(G.NoGameRunning, True);
}

TEST_F(HelmTest, ANebulaDropsTheShieldsAndHidesBodies) {
  G.NebulaCount = 1;
  G.Nebula[1] = {2300, 2400, 1};
  G.ShieldLevel = 150;
  DrawNebulas();
  EXPECT_EQ(G.InNebula, True);
  EXPECT_EQ(G.ShieldLevel, 0);
  G.PageOpen[3] = 1;
  G.ShieldLevel = 150;
  PressButton(3, 2);
  EXPECT_EQ(ButtonState(3, 2), 0);
  EXPECT_EQ(G.PromptLine[2], "WE CANNOT RAISE THE SHIELDS WHILE IN NEBULA!");
}

TEST_F(HelmTest, NavigateModeFollowsAShipInReachAndSetsACoursePastOneOutOfReach) {
  FullPropulsion();
  G.SensorLevel = 100;
  G.OtherShipCount = 1;
  G.OtherShip[1].X = 2550;
  G.OtherShip[1].Y = 2500;
  SetCourse(static_cast<int>(ShipScreenX(1)) + 12, static_cast<int>(ShipScreenY(1)) + 7);
  EXPECT_EQ(G.FollowShip, 1);
  EXPECT_EQ(G.FollowMode, 1);
  G.OtherShip[1].X = 2700;  // beyond SensorRange
  G.ViewX = 2650;
  Press(300 + 2700 - 2650 - 14 + 12, 125 + 0 - 8 + 7);
  EXPECT_EQ(G.FollowShip, 0);
  EXPECT_EQ(G.PromptLine[2], "DESTINATION COORDINATES SET. FULL AHEAD.");
}

TEST_F(HelmTest, AllStopResetsTheDestination) {
  FullPropulsion();
  SetCourse(400, 125);
  Frame();
  PressButton(1, 9);
  EXPECT_EQ(G.DestX, G.ShipX);
  EXPECT_EQ(G.PromptLine[2], "ENGINES STOPPED AND DESTINATION COORDINATES RESET, SIR!");
  Frame();
  EXPECT_EQ(G.ShipStepX, 0);
}

}  // namespace
}  // namespace lf::test
