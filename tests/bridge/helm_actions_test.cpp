// The navigator's actions beyond a course: the autopilot list, docking
// clearance, the lander, the tractor beam and the star lane.
#include <cmath>
#include <set>

#include "bridge/bridge_helpers.h"
#include "bridge/later_procedures.h"
#include "bridge_fixture.h"
#include "display/gfx.h"
#include "shell/program.h"
#include "shell/screens.h"
#include "shell/prompts.h"
#include "universe/catalogue.h"
#include "universe/quadrant.h"
#include "universe/stocks.h"

namespace lf::test {
namespace {

class HelmActionsTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    SeedRandom(G.Random, 77);
    G.FreeCargo = 100;
    G.FreeMass = 1000;
    for (int race = 1; race <= 7; ++race) G.RaceRelation[race] = 50;
    // Debris and pods far from the ship unless a test brings them close.
    for (int i = 1; i <= 50; ++i) {
      G.Debris[i] = {100, 100, False, False};
      G.CargoPod[i] = {4900, 4900, False};
    }
  }

  // Body n at (x, y), Width 60, of race `race`, with or without a station.
  static PlanetRecord& Body(int n, double x, double y, int race = 1, bool station = false) {
    if (G.PlanetCount < n) G.PlanetCount = static_cast<std::int16_t>(n);
    PlanetRecord& p = G.Planet[n];
    p.X = x;
    p.Y = y;
    p.Width = p.Height = 60;
    p.Race = static_cast<std::int16_t>(race);
    p.Type = 4;
    p.HasStation = station ? 1 : 0;
    p.Name = "BODY " + std::to_string(n);
    return p;
  }

  static void OpenNavigator() {
    G.PageOpen = {};
    G.PageOpen[1] = 1;
  }

  static std::string Line(int n) { return G.PromptLine[n]; }
};

// --- The autopilot list -------------------------------------------------

TEST_F(HelmActionsTest, TheListHoldsChartedBodiesOnlyAndNeedsASensor) {
  for (int n = 1; n <= 5; ++n) Body(n, 1000 + 100 * n, 1000).Known = n % 2 == 1 ? True : False;
  MakeAutopilotList();
  EXPECT_EQ(G.AutopilotCount, 3);
  EXPECT_EQ(G.AutopilotList[1], 1);
  EXPECT_EQ(G.AutopilotList[2], 3);
  EXPECT_EQ(G.AutopilotList[3], 5);

  G.FittedComp[3] = {};  // no sensor: the list stays as it was
  G.Planet[2].Known = True;
  MakeAutopilotList();
  EXPECT_EQ(G.AutopilotCount, 3);
}

TEST_F(HelmActionsTest, ARowClickEngagesTheAutopilotAndAnArrowMovesElevenRows) {
  for (int n = 1; n <= 30; ++n) Body(n, 100 * n, 700).Known = True;
  FullPropulsion();
  OpenNavigator();
  PressButton(1, 2);
  ASSERT_EQ(ButtonState(1, 2), 1);
  EXPECT_EQ(G.AutopilotTop, 1);
  EXPECT_EQ(G.AutopilotCount, 30);

  Press(450, 292 + 3 * 10 + 2);  // the fourth row
  EXPECT_EQ(G.DestX, 400);
  EXPECT_EQ(G.DestY, 700);
  EXPECT_EQ(Line(2), "AUTOPILOT ENGAGED! DESTINATION COORDINATES SET!");
  EXPECT_EQ(G.PromptAge, 0);
  EXPECT_EQ(G.MessagePending, False);
  EXPECT_NE(G.ShipStepX, 0) << "the heading follows at once";

  Press(500, 390);  // down arrow: eleven rows at one click
  EXPECT_EQ(G.AutopilotTop, 12);
  Press(500, 390);
  Press(500, 390);
  EXPECT_EQ(G.AutopilotTop, 34) << "no stop at the end of the list";
  Press(450, 294);  // nothing is listed there
  EXPECT_EQ(G.DestX, 400);
  Press(500, 290);  // up arrow, from 34 down to 23
  EXPECT_EQ(G.AutopilotTop, 23);
  Press(450, 294);  // row 23
  EXPECT_EQ(G.DestX, 2300);
  Press(500, 290);
  Press(500, 290);
  EXPECT_EQ(G.AutopilotTop, 1) << "not below the first row";
}

TEST_F(HelmActionsTest, TheListDrawsElevenRowsWithIconsAndAPirateBaseInItsBand) {
  for (int n = 1; n <= 14; ++n) Body(n, 100 * n, 700).Known = True;
  Body(2, 200, 700, 7);
  G.Planet[3].HasStation = 1;
  G.Planet[2].Known = G.Planet[3].Known = True;
  MakeAutopilotList();
  G.AutopilotTop = 1;
  PointAt(0, 0);
  DrawAutopilotList();
  const auto rows = BlitsOf(GFX.FontVsml);
  std::set<int> ys;
  for (const BlitRecord& b : rows) ys.insert(b.y);
  EXPECT_EQ(ys.size(), 11u);
  EXPECT_EQ(*ys.begin(), 292);
  EXPECT_EQ(*ys.rbegin(), 392);
  for (const BlitRecord& b : rows) EXPECT_EQ(b.top, b.y == 302 ? 12 : 24) << "row at y " << b.y;
  EXPECT_EQ(BlitsOf(GFX.PlanetIcon[11]).size(), 2u) << "the pirate base and the station";
  EXPECT_EQ(BlitsOf(GFX.PlanetIcon[11])[1].x, 385);
  EXPECT_EQ(BlitsOf(GFX.ScrollDown).size(), 1u);

  // A list scrolled past its end draws nothing but the panel and arrows.
  RecordedBlits().clear();
  G.AutopilotTop = 400;
  EXPECT_NO_THROW(DrawAutopilotList());
  EXPECT_TRUE(BlitsOf(GFX.FontVsml).empty());
}

// --- Docking ------------------------------------------------------------

TEST_F(HelmActionsTest, AStationInOrbitGrantsClearanceAndThePirateBaseOnlyToOutlaws) {
  Body(1, 2530, 2500, 1, true);
  G.OrbitState = 3;
  Butt_1_3();
  EXPECT_EQ(Line(2), "REQUESTING DOCKING CLEARANCE...");
  EXPECT_EQ(Line(4), "_FROM STATION:");
  EXPECT_EQ(Line(5), " DOCKING CLEARANCE GRANTED!");
  EXPECT_EQ(Line(6), " YOU ARE CLEAR TO DOCK!");
  EXPECT_EQ(G.PromptFace, 2);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True);

  // A station with an epidemic keeps its doors shut.
  G.StatusSlot[DockedSlot].Active = False;
  G.Planet[1].Epidemic = True;
  Butt_1_3();
  EXPECT_EQ(Line(3), " YOU ARE (FOR NOW) FORBIDDEN FROM DOCKING!");
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);

  // The pirate base, straight from space.
  G.StatusSlot[DockedSlot].Active = False;
  Body(1, 2530, 2500, 7, true);
  G.OrbitState = 1;
  G.RaceRelation[7] = 0;  // the pirates' own standing does not count
  Butt_1_3();
  EXPECT_EQ(Line(5), " YOU DO-GOODIES MAKE ME SICK!");
  EXPECT_EQ(Line(6), " YOU CANNOT ENTER YET!");
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
  G.RaceRelation[6] = 35;
  Butt_1_3();
  EXPECT_EQ(Line(5), " ARGHH!! ENTER, FRIEND!");
  EXPECT_EQ(Line(6), " YOU ARE PERMISSION TO DOCK!");
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True);
}

TEST_F(HelmActionsTest, EveryOtherDockingIsRefusedWithItsReason) {
  struct Case {
    int orbit;
    bool station, debris, pod, hail;
    const char* line1;
    const char* line2;
  };
  const Case cases[] = {
      {3, false, false, false, false, "", "CAPTAIN! THERE IS NO STATION TO DOCK WITH HERE!"},
      {0, false, true, true, false, "NO REASON FOR DOCKING WITH THE DEBRIS", "WHEN WE CAN EASILY TRACTOR IT ABOARS!"},
      {1, false, false, true, false, "NO REASON FOR DOCKING WITH THE CARGO", "WHEN WE CAN EASILY TRACTOR IT ABOARD!"},
      {6, false, false, false, true, "CAPTAIN! WE DO NOT HAVE PERMISSION TO DOCK WITH", "THE OTHER SHIP!"},
      {0, false, false, false, false, "THERE IS NOTHING TO DOCK ON IN", "THE OUTER SPACE!"},
      {1, true, false, false, false, "", "WE MUST ENTER ORBIT FIRST."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.line2);
    G.PlanetCount = 0;
    if (c.orbit == 1 || c.orbit == 3) Body(1, 2530, 2500, 1, c.station);
    G.OrbitState = static_cast<std::int16_t>(c.orbit);
    // One slot each way: the slots are tried in turn, debris before pod.
    G.Debris[9].X = c.debris ? 2510 : 100;
    G.CargoPod[9].X = c.pod ? 2490 : 4900;
    G.CargoPod[4].X = c.pod && !c.debris ? 2490 : 4900;
    G.Debris[9].Y = G.CargoPod[9].Y = G.CargoPod[4].Y = 2500;
    G.HailedShip = c.hail ? 1 : 0;
    ClearMediaLog();
    Butt_1_3();
    EXPECT_EQ(Line(1), c.line1);
    EXPECT_EQ(Line(2), c.line2);
    EXPECT_EQ(G.MessagePending, True);
    EXPECT_EQ(G.PromptFace, 1);
    EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
    ASSERT_FALSE(MediaLog().empty());
    EXPECT_EQ(MediaLog().back().number, 8);
  }
}

// --- The lander ---------------------------------------------------------

TEST_F(HelmActionsTest, LanderLoadsFallFromFiftyToNothingByTheNinthVisit) {
  PlanetRecord& p = Body(1, 2530, 2500);
  p.Ore = 300;
  for (int round = 0; round < 40; ++round) {
    p.LanderVisits = 0;
    G.FreeCargo = 1000;
    int loads[10] = {};
    for (int visit = 1; visit <= 9; ++visit) {
      LanderDeployed();
      loads[visit] = G.LanderLoad;
    }
    EXPECT_EQ(loads[1], 50);
    EXPECT_GE(loads[2], 38);
    EXPECT_LE(loads[2], 43);
    EXPECT_GE(loads[3], 25);
    EXPECT_LE(loads[3], 36);
    EXPECT_EQ(loads[9], 0);
    EXPECT_EQ(p.LanderVisits, 9);
  }
}

TEST_F(HelmActionsTest, TheLanderFillsOnlyTheFreeHoldAndLetsTheOreGoNegative) {
  PlanetRecord& p = Body(1, 2530, 2500);
  p.Ore = 10;
  G.FreeCargo = 30;
  G.Cargo[3] = 5;
  ButtonState(1, 7) = 1;
  LanderDeployed();
  EXPECT_EQ(G.LanderLoad, 30);
  EXPECT_EQ(G.Cargo[3], 35);
  EXPECT_EQ(G.FreeCargo, 0);
  EXPECT_EQ(p.Ore, -20);
  EXPECT_EQ(ButtonState(1, 7), 0);
}

TEST_F(HelmActionsTest, TheLanderRaisesTheLandingStoryInOrbitAndIsRefusedElsewhere) {
  Body(1, 2530, 2500);
  OpenNavigator();
  G.OrbitState = 3;
  ButtonState(1, 7) = 0;
  PressButton(1, 7);
  EXPECT_EQ(G.StatusSlot[EventSlot].Active, True);
  EXPECT_EQ(G.StatusSlot[EventSlot].Value, 13);
  EXPECT_EQ(ButtonState(1, 7), 0);

  G.StatusSlot[EventSlot] = {};
  G.OrbitState = 1;
  Butt_1_7();
  EXPECT_EQ(Line(1), "WE SHOULD ENTER ORBIT FIRST IN");
  G.OrbitState = 0;
  Butt_1_7();
  EXPECT_EQ(Line(2), "THERE IS NO VALID LANDING ZONE.");
  G.HailedShip = 3;
  G.OrbitState = 6;
  Butt_1_7();
  EXPECT_EQ(Line(2), "ON THE OTHER SHIP!");
  EXPECT_EQ(G.StatusSlot[EventSlot].Active, False);
}

// --- The tractor beam ---------------------------------------------------

TEST_F(HelmActionsTest, TwoDebrisInReachAreBothTakenWithOneHaul) {
  G.Debris[3] = {2510, 2500, False, False};
  G.Debris[7] = {2490, 2505, False, False};
  Butt_1_8();
  EXPECT_NE(G.UnfittedComp[1][1], 0);
  EXPECT_NE(G.UnfittedComp[2][1], 0);
  EXPECT_EQ(G.UnfittedComp[3][1], 0);
  EXPECT_GT(std::hypot(G.Debris[3].X - 2500, G.Debris[3].Y - 2500), 0) << "the debris floats elsewhere";
  EXPECT_NE(G.Debris[3].X, 2510);
  EXPECT_EQ(Line(2), "DEBRIS HAS BEEN SUCCESSFULY TRACTORED ABOARD.");
  int hauled = 0;
  for (int c = 1; c <= 14; ++c) hauled += G.Cargo[c];
  EXPECT_EQ(G.FreeCargo, 100 - hauled);
  EXPECT_LE(hauled, 19);
}

TEST_F(HelmActionsTest, AVirusInTheFirstDebrisStopsTheBeamAndBringsNoHaul) {
  Crew(2, 20, 3);
  Crew(4, 40, 3);
  G.Character[20].Name = "ALICE";
  G.Character[40].Name = "ALICE";
  G.Debris[3] = {2510, 2500, False, True};
  G.Debris[7] = {2490, 2505, False, False};
  Butt_1_8();
  EXPECT_EQ(G.Debris[7].X, 2490) << "the second debris waits";
  EXPECT_EQ(G.Debris[3].Virus, True) << "the debris keeps its virus";
  EXPECT_NE(G.UnfittedComp[1][1], 0);
  EXPECT_EQ(G.UnfittedComp[2][1], 0);
  EXPECT_EQ(G.FreeCargo, 100);
  EXPECT_TRUE(G.CrewPost[2].Infected == True || G.CrewPost[4].Infected == True);
  EXPECT_EQ(Line(2), "DEBRIS HAS BEEN SUCCESSFULY TRACTORED ABOARD.");
  EXPECT_EQ(Line(4), "_ALICE HAS BEEN INFECTED");
  EXPECT_EQ(G.PromptFace, 1);

  // An unskilled medic only finds it weird; with nobody left to infect the
  // beam goes on as if the debris were clean.
  G.Character[40].Skill = 1;
  G.CrewPost[2].Infected = G.CrewPost[4].Infected = False;
  G.Debris[3] = {2510, 2500, False, True};
  Butt_1_8();
  EXPECT_EQ(Line(2), "THERE IS SOMETHING WEIRD ABOUT THAT DEBRIS.");
  EXPECT_EQ(G.PromptFace, 4);
  G.CrewPost[2].Infected = G.CrewPost[4].Infected = True;
  G.Debris[3] = {2510, 2500, False, True};
  Butt_1_8();
  EXPECT_EQ(Line(2), "DEBRIS HAS BEEN SUCCESSFULY TRACTORED ABOARD.");
  EXPECT_NE(G.Debris[7].X, 2490);
}

TEST_F(HelmActionsTest, WithAFullHoldDebrisStaysAndFillsTheUnfittedRowsOneByOne) {
  G.FreeCargo = 0;
  G.Debris[5] = {2505, 2500, False, False};
  for (int press = 1; press <= 5; ++press) Butt_1_8();
  EXPECT_EQ(G.Debris[5].X, 2505);
  for (int r = 1; r <= 4; ++r) EXPECT_NE(G.UnfittedComp[r][1], 0) << r;
  EXPECT_EQ(G.FreeCargo, 0);
  for (int c = 1; c <= 14; ++c) EXPECT_EQ(G.Cargo[c], 0);
}

TEST_F(HelmActionsTest, SalvageMustFitTheFreeMass) {
  G.FreeMass = 0;
  AddDebris();
  EXPECT_EQ(G.UnfittedComp[1][1], 0) << "a hundred tries and nothing weighs nothing";
  G.FreeMass = 1000;
  AddDebris();
  const int group = G.UnfittedComp[1][1];
  ASSERT_GE(group, 1);
  ASSERT_LE(group, 7);
  EXPECT_EQ(G.UnfittedComp[1][2], 1);
  EXPECT_EQ(G.FreeMass, 1000 - ComponentWeight(group, 1));
}

TEST_F(HelmActionsTest, APodEndsTheBeamLosesItsVirusAndHaulsWhatFits) {
  Crew(4, 40, 3);
  G.Character[40].Name = "BOB";
  G.CargoPod[2] = {2500, 2510, True};
  G.Debris[2] = {100, 100, False, False};
  G.CargoPod[6] = {2500, 2490, False};
  G.FreeCargo = 1;
  Butt_1_8();
  EXPECT_EQ(G.CargoPod[2].Virus, False);
  EXPECT_NE(G.CargoPod[2].Y, 2510);
  EXPECT_EQ(G.CargoPod[6].Y, 2490) << "one pod a press";
  EXPECT_EQ(G.CrewPost[4].Infected, True);
  EXPECT_EQ(Line(2), "CARGO HAS BEEN SUCCESSFULY TRACTORED ABOARD.");
  EXPECT_EQ(Line(4), "_BOB HAS BEEN INFECTED");
  EXPECT_EQ(G.PromptFace, 4);
  EXPECT_EQ(G.FreeCargo, 1) << "only an empty draw fits one free unit";
}

TEST_F(HelmActionsTest, TheBeamWithNothingInReachSaysWhy) {
  G.OrbitState = 0;
  Butt_1_8();
  EXPECT_EQ(Line(2), "WE MUST CLOSE ON OBJECT IN ORDER TO USE TRACTOR BEAM.");
  G.OrbitState = 1;
  Butt_1_8();
  EXPECT_EQ(Line(2), "WE CANNOT USE TRACTOR BEAM IN PLANET VICINITY.");
  G.Debris[1] = {2500, 2500, False, False};
  G.HailedShip = 2;
  G.MessagePending = False;
  Butt_1_8();
  EXPECT_EQ(G.MessagePending, False) << "nothing while a ship is hailed";
  EXPECT_EQ(G.Debris[1].X, 2500);
}

TEST_F(HelmActionsTest, OnlyVisibleDebrisAndAnyPodInSensorRangeAreDrawn) {
  G.SensorLevel = 150;
  G.Debris[1] = {2550, 2500, False, False};
  G.Debris[2] = {2450, 2500, True, False};
  G.Debris[3] = {2800, 2500, True, False};  // beyond the range of 100
  G.CargoPod[1] = {2500, 2550, False};
  G.ShipFrame = 23.5;
  DrawDebrisCargo();
  EXPECT_EQ(G.ShipFrame, 0);
  ASSERT_EQ(BlitsOf(GFX.DebrisPicture).size(), 1u);
  EXPECT_EQ(BlitsOf(GFX.DebrisPicture)[0].x, CInt(AnchorX(2450)) - 10);
  EXPECT_EQ(BlitsOf(GFX.CargoPodPicture).size(), 1u);
  G.InNebula = True;
  RecordedBlits().clear();
  DrawDebrisCargo();
  EXPECT_TRUE(RecordedBlits().empty());
}

// --- The star lane ------------------------------------------------------

TEST_F(HelmActionsTest, TheLaneLeadsIntoTheNextQuadrantWithShipCrewAndCargoKept) {
  FillPictureTables();
  SetBasePrices();
  G.CurrentQuadrant = 1;
  G.StarLaneKnown = True;
  G.StarLaneX = 2510;
  G.StarLaneY = 2500;
  G.Cargo[1] = 12;
  G.FollowShip = G.FollowMode = 1;
  Body(1, 2600, 2500).Known = True;
  MakeAutopilotList();
  Crew(1, 5, 4);
  G.HullPoints = 1;
  EnteringStarlane();
  EXPECT_EQ(G.CurrentQuadrant, 2);
  EXPECT_EQ(G.StarLaneKnown, False);
  EXPECT_DOUBLE_EQ(G.HullPoints, 0.66) << "one point survives the passage";
  EXPECT_EQ(G.ShipX, 2500);
  EXPECT_EQ(G.Cargo[1], 12);
  EXPECT_EQ(G.CrewPost[1].Person, 5);
  EXPECT_GE(G.PlanetCount, 50) << "a new quadrant was laid out";
  EXPECT_EQ(G.AutopilotCount, 0) << "nothing is charted in the new quadrant";
  EXPECT_EQ(G.FollowShip, 0);
  ASSERT_GE(MediaLog().size(), 2u);
  EXPECT_EQ(MediaLog()[0].kind, MediaCall::Kind::StopTrack);
}

TEST_F(HelmActionsTest, TheLaneOfTheFourthQuadrantEndsTheProgramCleanly) {
  for (int q : {4, 5}) {
    G.CurrentQuadrant = static_cast<std::int16_t>(q);
    G.StarLaneKnown = True;
    G.StarLaneX = 2500;
    G.StarLaneY = 2519;
    ClearMediaLog();
    try {
      EnteringStarlane();
      ADD_FAILURE() << "quadrant " << q << " did not end the program";
    } catch (const ProgramEnd& end) {
      EXPECT_EQ(end.status, 0);
    }
    ASSERT_GE(MediaLog().size(), 3u);
    EXPECT_EQ(MediaLog()[1].file, "anim/end.mpg") << "after the music stops";
    EXPECT_EQ(G.StarLaneKnown, False);
  }
  G.StarLaneKnown = True;
  G.StarLaneY = 2520;  // 20 units off: not yet
  EXPECT_NO_THROW(EnteringStarlane());
  G.StarLaneX = -300;
  EXPECT_NO_THROW(DrawStarLanes());
}

// --- Bad input ----------------------------------------------------------

TEST_F(HelmActionsTest, ClicksAnywhereInEveryOrbitStateWithTheNavigatorsPanelsOpen) {
  for (int n = 1; n <= 20; ++n) Body(n, 2500 + 10 * n, 2500, n % 7 + 1, n % 2 == 0).Known = True;
  G.Debris[1] = {2505, 2500, True, True};
  G.CargoPod[1] = {2495, 2500, True};
  Crew(4, 40, 3);
  G.StarLaneKnown = True;
  G.StarLaneX = -50;
  G.StarLaneY = 2500;
  for (int orbit = 0; orbit <= 7; ++orbit) {
    for (int top : {-3, 1, 95, 30000}) {
      SCOPED_TRACE("orbit " + std::to_string(orbit) + " top " + std::to_string(top));
      OpenNavigator();
      for (int b = 1; b <= 10; ++b) ButtonState(1, b) = 0;
      ButtonState(1, 2) = 1;
      G.AutopilotTop = static_cast<std::int16_t>(top);
      G.AutopilotCount = 120;  // beyond the list's 100 rows
      for (int x = -3; x <= 643; x += 29)
        for (int y = 270; y <= 483; y += 7) {
          G.OrbitState = static_cast<std::int16_t>(orbit);
          G.MessagePending = G.QuestionPending = False;
          G.HailedShip = orbit == 6 ? 1 : 0;
          PointAt(x, y);
          try {
            CheckBridgeMouseDown(1);
            DrawAutopilotList();
            DrawDebrisCargo();
            DrawStarLanes();
            EnteringStarlane();
          } catch (const ScreenChange&) {
          }
        }
    }
  }
}

}  // namespace
}  // namespace lf::test
