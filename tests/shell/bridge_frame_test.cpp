// The bridge frame: the order of its steps, the hand-overs, what holds the
// ship and the rates back, motion, the view, and the strip.
#include <gtest/gtest.h>

#include "shell/input.h"
#include "loop_fixture.h"

namespace lf::test {
namespace {

using BridgeFrame = LoopTest;

TEST_F(BridgeFrame, TakesARaisedEventBeforeADocking) {
  OnBridge();
  G.StatusSlot[EventSlot].Active = True;
  G.StatusSlot[DockedSlot].Active = True;
  Frames(1);
  EXPECT_EQ(TopScreen(), Screen::Event);
  EXPECT_EQ(ScreenDepth(), 1);
  EXPECT_EQ(G.EventActive, True);
  EXPECT_EQ(G.StationActive, False);
  EXPECT_EQ(G.BridgeActive, False);
  EXPECT_FALSE(Called("a_EnteringStation"));
}

TEST_F(BridgeFrame, AMessageHoldsBothHandOversAndEverythingElse) {
  OnBridge();
  G.StatusSlot[EventSlot].Active = True;
  G.StatusSlot[DockedSlot].Active = True;
  G.MessagePending = True;
  G.ShipX = 100;
  G.ShipStepX = 3;
  Frames(3);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
  EXPECT_EQ(G.BridgeActive, True);
  EXPECT_EQ(G.ShipX, 100);
  EXPECT_FALSE(Called("UpdateHealth"));
  EXPECT_FALSE(Called("c_EnterEvent"));
  EXPECT_FALSE(Called("a_EnteringStation"));

  G.MessagePending = False;  // the OK
  Frames(1);
  EXPECT_EQ(TopScreen(), Screen::Event);
}

TEST_F(BridgeFrame, ADockingWithNoMessageGoesToTheStationAndStaysThere) {
  OnBridge();
  G.StatusSlot[DockedSlot].Active = True;
  G.MouseLook = True;
  Frames(1);
  EXPECT_EQ(TopScreen(), Screen::Station);
  EXPECT_EQ(G.StationActive, True);
  EXPECT_EQ(G.BridgeActive, False);
  EXPECT_EQ(G.MouseLook, False);
  Frames(5);
  EXPECT_EQ(TopScreen(), Screen::Station);
  EXPECT_EQ(Count("a_EnteringStation"), 1);
}

TEST_F(BridgeFrame, CallsItsProceduresInTheFixedOrder) {
  OnBridge();
  G.ShowGrid = True;
  G.ShowSensorRange = True;
  G.SensorLevel = 100;
  G.ShipStepX = 1;
  G.DestX = 4000;
  Frames(1);
  const std::vector<std::string> expected = {"CheckStopAvailability",
                                             "CheckMissingComponents",
                                             "UpdateHealth",
                                             "UpdateRepair",
                                             "UpdateEnergy",
                                             "UpdateUpgrade",
                                             "CheckPatrolPoint",
                                             "DrawBack",
                                             "DrawNebulas",
                                             "DrawQuadBack",
                                             "DrawStars",
                                             "DrawGrid",
                                             "DrawSensorRange",
                                             "DrawPlans",
                                             "DrawToolsIcons",
                                             "DrawTime",
                                             "DrawDebrisCargo",
                                             "DrawMissionObjectives",
                                             "DrawShip",
                                             "DrawOtherShips",
                                             "DrawDistance",
                                             "DrawDestination",
                                             "DrawCoords",
                                             "DrawButtons",
                                             "CheckMouseOverButton",
                                             "CheckScroll",
                                             "DrawFaces",
                                             "CheckDistance",
                                             "DrawText",
                                             "DrawHealth",
                                             "DrawCursor",
                                             "CheckOverTool",
                                             "CheckPowerOverload",
                                             "FlipBuffers"};
  EXPECT_EQ(Calls(), expected);
}

TEST_F(BridgeFrame, RatesAndChecksStandUnderAPromptOrAHail) {
  OnBridge();
  G.QuestionPending = True;
  Frames(1);
  for (const char* held :
       {"UpdateHealth", "UpdateRepair", "UpdateEnergy", "UpdateUpgrade", "CheckMouseOverButton",
        "CheckScroll", "CheckDistance", "CheckPowerOverload", "CheckPatrolPoint"})
    EXPECT_FALSE(Called(held)) << held;
  EXPECT_TRUE(Called("DrawText"));

  Calls().clear();
  G.QuestionPending = False;
  G.HailedShip = 4;
  G.OrbitState = 6;
  Frames(1);
  for (const char* held :
       {"UpdateHealth", "UpdateRepair", "UpdateEnergy", "UpdateUpgrade", "CheckPowerOverload"})
    EXPECT_FALSE(Called(held)) << held;
  EXPECT_TRUE(Called("CheckMouseOverButton"));  // a hail is no prompt
  EXPECT_EQ(G.HailedShip, 4);

  Calls().clear();
  G.OrbitState = 0;  // out of the hail states the hail is dropped
  Frames(1);
  EXPECT_EQ(G.HailedShip, 0);
  Calls().clear();
  Frames(1);
  EXPECT_TRUE(Called("UpdateHealth"));
}

TEST_F(BridgeFrame, DrawsTheOpenPanelsInTheirOrderAndHailMessagesOnlyInAnOpenHail) {
  OnBridge();
  const int panels[][2] = {{5, 8}, {1, 2}, {5, 5}, {2, 8}, {2, 6}, {5, 2}, {4, 1}, {6, 2},
                           {6, 4}, {4, 4}, {3, 3}, {5, 4}, {6, 3}, {6, 1}, {5, 3}, {5, 7}};
  for (auto [p, b] : panels) G.BridgeButton[p][b].State = 1;
  G.OrbitState = 6;
  G.HailedShip = 2;
  Frames(1);
  std::vector<std::string> drawn;
  for (const auto& c : Calls())
    if (c.rfind("Draw", 0) == 0 && c != "DrawHealth" && c != "DrawCursor" && c != "DrawFaces")
      drawn.push_back(c);
  const std::vector<std::string> tail(drawn.end() - 16, drawn.end());
  const std::vector<std::string> expected = {
      "DrawGuildMembership", "DrawAutopilotList",  "DrawCrewInfo",    "DrawHailMessages",
      "DrawSoftwareOnBoard", "DrawResearchList",   "DrawMedicalList", "DrawCargoList",
      "DrawUnfitted",        "DrawQuarantineList", "DrawEnergyList",  "DrawCurrentMissions",
      "DrawEngineerAdd",     "DrawMaintnanceList", "DrawDiplomacy",   "DrawShipStatus"};
  EXPECT_EQ(tail, expected);

  Calls().clear();
  G.OrbitState = 5;  // the hail still opening
  Frames(1);
  EXPECT_EQ(G.BridgeButton[2][8].State, 1);
  EXPECT_FALSE(Called("DrawHailMessages"));
}

TEST_F(BridgeFrame, HailMessagesButtonIsAvailableOnlyWhileAHailOpensOrStands) {
  OnBridge();
  G.OrbitState = 5;
  G.HailedShip = 1;
  G.BridgeButton[2][8].State = 2;
  Frames(1);
  EXPECT_EQ(G.BridgeButton[2][8].State, 0);
  G.OrbitState = 6;
  G.BridgeButton[2][8].State = 1;
  Frames(1);
  EXPECT_EQ(G.BridgeButton[2][8].State, 1);
  G.OrbitState = 3;
  Frames(1);
  EXPECT_EQ(G.BridgeButton[2][8].State, 2);
}

TEST_F(BridgeFrame, AMovingShipAdvancesTwiceItsStep) {
  OnBridge();
  G.ShipX = 100;
  G.ShipY = 200;
  G.ShipStepX = 3;
  G.ShipStepY = -2;
  G.DestX = 3000;
  G.DestY = 10;
  Frames(1);
  EXPECT_EQ(G.ShipX, 106);
  EXPECT_EQ(G.ShipY, 196);
  EXPECT_EQ(G.ViewX, 200);  // view clamped off the edge
  EXPECT_EQ(G.ViewY, 196);
}

TEST_F(BridgeFrame, EdgesPinTheShipBehindTheirGuards) {
  OnBridge();
  G.DestX = G.DestY = 2500;
  G.ShipX = 4999;
  G.ShipStepX = 3;
  G.ShipY = 1;
  G.ShipStepY = -3;
  Frames(1);
  EXPECT_EQ(G.ShipX, 5000);
  EXPECT_EQ(G.ShipY, 0);
  Frames(2);
  EXPECT_EQ(G.ShipX, 5000);
  EXPECT_EQ(G.ShipY, 0);

  // Towards the other two edges the second step follows the pin.
  G.ShipX = 1;
  G.ShipStepX = -3;
  G.ShipY = 4999;
  G.ShipStepY = 3;
  Frames(3);
  EXPECT_EQ(G.ShipX, -3);
  EXPECT_EQ(G.ShipY, 5003);
}

TEST_F(BridgeFrame, NothingMovesTheShipUnlessTheBridgeIsFreeInFlight) {
  OnBridge();
  G.ShipStepX = 2;
  G.DestX = 4000;
  G.BridgeButton[2][1].State = 1;  // waiting to hail
  Frames(1);
  EXPECT_EQ(G.ShipX, 2500);
  G.BridgeButton[2][1].State = 0;
  G.OrbitState = 3;
  Frames(1);
  EXPECT_EQ(G.ShipX, 2500);
  G.OrbitState = 1;
  G.OrbitOfferOpen = False;
  Frames(1);
  EXPECT_EQ(G.ShipX, 2504);
}

TEST_F(BridgeFrame, ArrivalWithinFiveUnitsStopsTheShip) {
  OnBridge();
  G.ShipX = 100;
  G.DestX = 104.9;
  G.ShipStepX = 3;
  G.ShipStepY = 1;
  Frames(1);
  EXPECT_EQ(G.ShipStepX, 0);
  EXPECT_EQ(G.ShipStepY, 0);
  EXPECT_EQ(G.ShipX, 100);
}

TEST_F(BridgeFrame, ClampsDestinationAndViewIntoTheSector) {
  OnBridge();
  G.ShipX = 4990;
  G.ShipY = 4990;
  G.DestX = -5;
  G.DestY = 6000;
  Frames(1);
  EXPECT_EQ(G.DestX, 0);
  EXPECT_EQ(G.DestY, 5000);
  EXPECT_EQ(G.ViewX, 4800);
  EXPECT_EQ(G.ViewY, 4880);
}

TEST_F(BridgeFrame, ArrowsMoveADetachedViewWithinItsBounds) {
  OnBridge();
  G.ViewDetached = True;
  G.ViewX = 300;
  G.ViewY = 300;
  Form_KeyDown(37);
  Form_KeyDown(38);
  EXPECT_EQ(G.ViewX, 293);
  EXPECT_EQ(G.ViewY, 293);
  Form_KeyDown(39);
  Form_KeyDown(39);
  Form_KeyDown(40);
  EXPECT_EQ(G.ViewX, 307);
  EXPECT_EQ(G.ViewY, 300);
  Form_KeyDown(13);  // no other key acts
  EXPECT_EQ(G.ViewX, 307);

  G.ViewX = 200;
  G.ViewY = 120;
  Form_KeyDown(37);
  Form_KeyDown(38);
  Frames(1);
  EXPECT_EQ(G.ViewX, 200);
  EXPECT_EQ(G.ViewY, 120);

  G.ViewDetached = False;  // attached, the next frame puts it back on the ship
  Form_KeyDown(39);
  Frames(1);
  EXPECT_EQ(G.ViewX, G.ShipX);
}

TEST_F(BridgeFrame, ChasesAFollowedShip) {
  OnBridge();
  G.OtherShip[7].X = 1234;
  G.OtherShip[7].Y = 2345;
  G.FollowMode = 1;
  G.FollowShip = 7;
  Frames(1);
  EXPECT_EQ(G.DestX, 1234);
  EXPECT_EQ(G.DestY, 2345);
  EXPECT_TRUE(Called("CheckDirection"));
}

TEST_F(BridgeFrame, AFailingStepIsSkippedAndTheFrameGoesOn) {
  OnBridge();
  G.FollowMode = 1;
  G.FollowShip = 900;  // past the ship table
  const long before = host.presented;
  Frames(1);
  EXPECT_TRUE(Called("DrawButtons"));
  EXPECT_EQ(host.presented, before + 1);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

TEST_F(BridgeFrame, OffersOrbitNearABodyAndHoldsTheCursorOnTheStrip) {
  OnBridge();
  G.OrbitState = 1;
  G.OrbitOfferOpen = True;
  G.MessagePending = True;
  G.StatusSlot[DockedSlot].Active = False;
  host.cursorX = 250;
  host.cursorY = 100;
  Frames(1);
  EXPECT_EQ(G.QuestionPending, True);
  EXPECT_EQ(G.MessagePending, False);
  EXPECT_EQ(G.PromptLine[1], "");
  EXPECT_EQ(G.PromptLine[2], "DO YOU WANT TO ENTER ORBIT?");
  EXPECT_EQ(G.PromptLine[3], "");
  EXPECT_EQ(G.PromptFace, 1);
  EXPECT_EQ(Sounds(2, 1), 1);
  EXPECT_EQ(host.cursorX, 250);
  EXPECT_EQ(host.cursorY, 420);

  host.cursorY = 450;  // below the strip's top it stays where it is
  Frames(1);
  EXPECT_EQ(host.cursorY, 450);
}

TEST_F(BridgeFrame, RecountsTheRepairPoolFromTheEngineerAndFittedShares) {
  OnBridge();
  G.HardpointCount = 10;
  G.FittedComp[1][1] = 4;
  G.RepairCrew[1] = 20;
  G.FittedComp[2][1] = 5;
  G.RepairCrew[2] = 30;
  G.FittedComp[3][1] = 0;
  G.RepairCrew[3] = 40;  // no component: its share does not count
  G.FittedComp[11][1] = 1;
  G.RepairCrew[11] = 70;  // past the hardpoints: not counted either
  G.FittedHealth[1] = G.FittedHealth[2] = 1;  // far from done: no share comes back
  Frames(1);
  EXPECT_EQ(G.RepairPool, 3 * 15 * 10 - 50);
  G.CrewPost[6].Person = 0;
  Frames(1);
  EXPECT_EQ(G.RepairPool, 0);
}

TEST_F(BridgeFrame, CapsTheHullAtItsMaximum) {
  OnBridge();
  G.HullPointsMax = 100;
  G.HullPoints = 150;
  Frames(1);
  EXPECT_EQ(G.HullPoints, 100);
}

TEST_F(BridgeFrame, LeavingTheLoopWithTheFlagDownClosesTheProgram) {
  OnBridge();
  G.BridgeActive = False;
  try {
    Frames(1);
    FAIL() << "the program went on";
  } catch (const ProgramEnd& end) {
    EXPECT_EQ(end.status, 0);
  }
}

}  // namespace
}  // namespace lf::test
