// The starting values of a new game, and the loss of one.
#include <gtest/gtest.h>

#include "shell/death.h"
#include "shell/menu.h"
#include "shell/prompts.h"
#include "shell/saved_games.h"
#include "loop_fixture.h"

namespace lf::test {
namespace {

using NewGame = LoopTest;

// StartNew with LoadAfterStart set, so that it does not wait on the opening
// picture.
void StartWithoutPicture() {
  G.LoadAfterStart = True;
  try {
    StartNew();
  } catch (const ScreenChange&) {
  }
}

TEST_F(NewGame, StartsWithTheStartingValues) {
  G.StatusSlot[DeadSlot].Active = True;
  G.StatusSlot[21].Active = True;
  G.StoryStage[10] = True;
  G.TranslatorOwned[3] = True;
  G.Reputation = 700;
  G.ViewDetached = True;
  G.OtherShip[500].Greeted = True;
  G.OtherShip[1].InfoGiven = True;
  G.OtherShip[1].TradeInfoGiven = True;
  StartWithoutPicture();

  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, False);
  EXPECT_EQ(G.StatusSlot[21].Active, True);  // only slots 1..20 are cleared
  EXPECT_EQ(G.StoryStage[10], False);
  const double prices[] = {20, 5, 10, 50, 60, 25, 30, 60, 40, 50, 30, 80, 15, 30};
  for (int i = 1; i <= 14; ++i) EXPECT_EQ(G.BasePrice[i], prices[i - 1]) << "commodity " << i;
  for (int i = 1; i <= 10; ++i)
    EXPECT_EQ(G.TranslatorOwned[i], (i == 1 || i == 7) ? True : False) << "translator " << i;
  EXPECT_EQ(G.Reputation, 0);
  EXPECT_EQ(G.Cash, 50000);
  EXPECT_EQ(G.PropulsionLevel, 200);
  EXPECT_EQ(G.PropulsionSetting, 200);
  EXPECT_EQ(G.SensorLevel, 100);
  EXPECT_EQ(G.SensorSetting, 100);
  EXPECT_EQ(G.LifeSupportLevel, 100);
  EXPECT_EQ(G.LifeSupportSetting, 100);
  for (int i = 1; i <= 7; ++i) EXPECT_EQ(G.RaceRelation[i], 50);
  EXPECT_EQ(G.OtherShip[500].Greeted, False);
  EXPECT_EQ(G.OtherShip[1].InfoGiven, False);
  EXPECT_EQ(G.OtherShip[1].TradeInfoGiven, False);
  EXPECT_EQ(G.ViewDetached, False);
  EXPECT_EQ(G.OrbitState, 3);
  EXPECT_EQ(G.CurrentQuadrant, 1);
  EXPECT_EQ(G.HasLander, True);
  EXPECT_EQ(G.ShowGrid, True);
  EXPECT_EQ(G.NextEventCountdown, 10000);
  EXPECT_EQ(G.NextEventNumber, 1);
  EXPECT_EQ(G.TimeStep, 0.1);
  EXPECT_EQ(G.GameHours, 0);
  EXPECT_EQ(G.Timer1Enabled, True);
  EXPECT_EQ(G.BridgeActive, True);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

TEST_F(NewGame, GivesEveryFittedSlotAShareOfFive) {
  G.HardpointCount = 6;
  G.FittedComp[2][1] = 4;
  G.FittedComp[5][1] = 7;
  G.FittedComp[9][1] = 1;  // beyond the hardpoints, still counted
  StartWithoutPicture();
  if (G.HardpointCount != 6) GTEST_SKIP() << "the generator replaced the fit";
  EXPECT_EQ(G.RepairCrew[2], 5);
  EXPECT_EQ(G.RepairCrew[5], 5);
  EXPECT_EQ(G.RepairCrew[9], 5);
  EXPECT_EQ(G.RepairCrew[3], 0);
  EXPECT_EQ(G.RepairPool, 6 * 40 - 15);
}

TEST_F(NewGame, SeedsTheGeneratorFromTheHostsClock) {
  host.seed = 42;
  StartWithoutPicture();
  const auto first = G.Random.State;
  ResetGame();
  StartWithoutPicture();
  EXPECT_EQ(G.Random.State, first);
  ResetGame();
  host.seed = 43;
  StartWithoutPicture();
  EXPECT_NE(G.Random.State, first);
}

// New over a game in flight: whatever the last game left, the new one
// begins with no hull, no components, no crew and an empty hold.
TEST_F(NewGame, ASecondNewAfterAFittedCrewedLoadedShipStartsClean) {
  OnBridge();  // six posts crewed, seven slots fitted
  G.HullRace = 1;
  G.HullClass = 4;
  G.HullPoints = G.HullPointsMax = 3500;
  G.FreeCargo = 300;
  G.FreeMass = 200;
  G.UnfittedComp[2][1] = 3;
  G.UnfittedComp[2][2] = 4;
  G.AmmoLeft[3] = 12;
  G.Cargo[4] = 40;
  G.CrewPost[2].Infected = True;
  G.CrewPost[3].SalaryBalance = -300;
  G.TreatmentAlloc[2] = 20;
  G.WeaponSetting = G.WeaponLevel = 150;
  G.ShieldSetting = G.ShieldLevel = 180;
  G.Cash = 123;
  G.SensorRingFrame = 6.5;
  G.ShipStepX = 2;
  G.StarLaneKnown = True;
  SetMessage("", "A MESSAGE OF THE LAST GAME", "", 3, "_ITS SECOND PAGE", "", "");
  G.LoadAfterStart = False;

  EraseInfo();
  host.Click(300, 300);  // past the opening picture
  try {
    StartNew();
  } catch (const ScreenChange&) {
  }
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True) << "the opening picture, then docked";
  EXPECT_EQ(G.ProgressCount, 360) << "the loads of a new game fill the loading bar exactly";
  EXPECT_EQ(G.HullRace, 0);
  EXPECT_EQ(G.HullClass, 0);
  EXPECT_EQ(G.HullPoints, 0);
  EXPECT_EQ(G.HullPointsMax, 0);
  EXPECT_EQ(G.HardpointCount, 0);
  EXPECT_EQ(G.FreeCargo, 0);
  EXPECT_EQ(G.FreeMass, 0);
  for (int slot = 0; slot <= 20; ++slot) {
    EXPECT_EQ(G.FittedComp[slot][1], 0) << "slot " << slot;
    EXPECT_EQ(G.FittedHealth[slot], 0) << "slot " << slot;
    EXPECT_EQ(G.RepairCrew[slot], 0) << "slot " << slot;
    EXPECT_EQ(G.AmmoLeft[slot], 0) << "slot " << slot;
  }
  EXPECT_EQ(G.RepairPool, 0);
  EXPECT_EQ(G.UnfittedComp[2][1], 0);
  for (int post = 1; post <= 6; ++post) {
    EXPECT_EQ(G.CrewPost[post].Person, 0) << "post " << post;
    EXPECT_EQ(G.CrewPost[post].Infected, False) << "post " << post;
    EXPECT_EQ(G.CrewPost[post].SalaryBalance, 0) << "post " << post;
    EXPECT_EQ(G.TreatmentAlloc[post], 0) << "post " << post;
  }
  for (int c = 1; c <= 14; ++c) EXPECT_EQ(G.Cargo[c], 0) << "commodity " << c;
  EXPECT_EQ(G.WeaponSetting, 0);
  EXPECT_EQ(G.ShieldSetting, 0);
  EXPECT_EQ(G.PropulsionSetting, 200);
  EXPECT_EQ(G.SensorSetting, 100);
  EXPECT_EQ(G.LifeSupportSetting, 100);
  EXPECT_EQ(G.Cash, 50000);
  EXPECT_EQ(G.SensorRingFrame, 0);
  EXPECT_EQ(G.ShipStepX, 0);
  EXPECT_EQ(G.StarLaneKnown, False);
  EXPECT_EQ(G.MessagePending, False);
  EXPECT_EQ(G.PromptLine[4], "") << "no page of the last game waits";
}

TEST_F(NewGame, LoadingThroughAStartIsUsedOnce) {
  StartWithoutPicture();
  EXPECT_EQ(G.LoadAfterStart, False);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
  host.Click(300, 300);
  try {
    StartNew();
  } catch (const ScreenChange&) {
  }
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True) << "the next start shows the picture and docks";
}

TEST_F(NewGame, DeathShowsItsPictureUntilAPressThenTheMenu) {
  OnBridge();
  EventHandler();  // no loss: nothing happens
  EXPECT_EQ(TopScreen(), Screen::Bridge);

  G.StatusSlot[DeadSlot].Active = True;
  host.Wait(4);
  host.Click(300, 300);
  const long before = host.presented;
  EXPECT_THROW(EventHandler(), ScreenChange);
  EXPECT_EQ(host.presented, before + 5);
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(G.NoGameRunning, True);
  EXPECT_EQ(G.BridgeActive, True);  // the other flags stand as they were
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Track, 2, 0, {}}));
  EXPECT_EQ(TopScreen(), Screen::Menu);

  // After death Resume does nothing, and Load starts afresh.
  ClearMediaLog();
  host.Click(300, BandY(2));
  Frames(2);
  EXPECT_TRUE(MediaLog().empty());
  host.Click(300, BandY(3));
  Frames(1);
  EXPECT_EQ(G.LoadAfterStart, False) << "used by that start, and cleared";
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, False);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

}  // namespace
}  // namespace lf::test
