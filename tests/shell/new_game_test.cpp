// The starting values of a new game, and the loss of one.
#include <gtest/gtest.h>

#include "shell/death.h"
#include "shell/menu.h"
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
  EXPECT_EQ(G.LoadAfterStart, True);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, False);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

}  // namespace
}  // namespace lf::test
