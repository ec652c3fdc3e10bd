// The two clocks: frame counting, what holds game time, the story event
// draw, the static, and the fight's countdowns.
#include "shell/clocks.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "shell/event_queue.h"
#include "loop_fixture.h"

namespace lf::test {
namespace {

using Clocks = LoopTest;

TEST_F(Clocks, TickAfterEverySixthAndSixtiethFrameWhileRunning) {
  G.TimeStep = 0.1;
  G.WeaponRack[0] = 1;
  StartTimer1();
  StartTimer2();
  Frames(5);  // idle frames: no loop stands
  EXPECT_EQ(G.GameHours, 0);
  Frames(1);
  EXPECT_NEAR(G.GameHours, 0.1, 1e-9);
  Frames(53);
  EXPECT_EQ(G.WeaponReload[1], 0);
  Frames(1);
  EXPECT_NEAR(G.GameHours, 1.0, 1e-9);
  EXPECT_EQ(G.WeaponReload[1], -1);
  EXPECT_EQ(G.Frame, 60);

  StopTimer1();
  Frames(12);
  EXPECT_NEAR(G.GameHours, 1.0, 1e-9);
  StartTimer1();
  StartTimer1();  // starting a running clock does not restart its interval
  Frames(6);
  EXPECT_NEAR(G.GameHours, 1.1, 1e-9);
}

// A restored state may hold any count: counts at their type's maximum tick
// or wrap on the next frame instead of overflowing.
TEST_F(Clocks, CountsRestoredAtTheirMaximumTickOrWrap) {
  G.TimeStep = 0.1;
  G.WeaponRack[0] = 1;
  StartTimer1();
  StartTimer2();
  G.Timer1Frames = std::numeric_limits<std::int32_t>::max();
  G.Timer2Frames = std::numeric_limits<std::int32_t>::max();
  G.Frame = std::numeric_limits<std::int64_t>::max();
  Frames(1);
  EXPECT_EQ(G.Frame, 0);
  EXPECT_EQ(G.Timer1Frames, 0);
  EXPECT_EQ(G.Timer2Frames, 0);
  EXPECT_NEAR(G.GameHours, 0.1, 1e-9);
  EXPECT_EQ(G.WeaponReload[1], -1);
  G.Timer1Frames = -5;
  Frames(1);
  EXPECT_EQ(G.Timer1Frames, 0);
  Frames(6);
  EXPECT_NEAR(G.GameHours, 0.3, 1e-9) << "then a tick every sixth frame again";
}

TEST_F(Clocks, ATickLeftQueuedByAScreenChangeIsDroppedOnceItsClockStops) {
  G.TimeStep = 0.1;
  StartTimer1();
  host.Wait(5);
  host.Key(27);  // the menu, thrown from the sixth yield before the tick runs
  Frames(6);
  EXPECT_EQ(TopScreen(), Screen::Menu);
  EXPECT_EQ(QueuedEvents(), 1);
  EXPECT_EQ(G.GameHours, 0);
  StopTimer1();
  Frames(1);
  EXPECT_EQ(QueuedEvents(), 0);
  EXPECT_EQ(G.GameHours, 0);
}

TEST_F(Clocks, TimePassesByTheStepOnlyWhenNothingHoldsIt) {
  struct Hold {
    const char* what;
    void (*set)();
  };
  const Hold holds[] = {
      {"waiting to hail", [] { G.BridgeButton[2][1].State = 1; }},
      {"fight (any set value)", [] { G.FightActive = 1; }},
      {"question", [] { G.QuestionPending = True; }},
      {"message", [] { G.MessagePending = True; }},
      {"hail", [] { G.HailedShip = 3; }},
      {"docked", [] { G.StatusSlot[DockedSlot].Active = 1; }},
      {"event raised", [] { G.StatusSlot[EventSlot].Active = True; }},
      {"waiting to attack", [] { G.BridgeButton[3][4].State = 1; }},
  };
  for (const Hold& hold : holds) {
    ResetGame();
    G.TimeStep = 0.1;
    G.NextEventCountdown = 500;
    hold.set();
    Timer1_Timer();
    EXPECT_EQ(G.GameHours, 0) << hold.what;
    EXPECT_EQ(G.NextEventCountdown, 500) << hold.what;
  }
  ResetGame();
  G.TimeStep = 0.1 / 60;  // in orbit
  G.NextEventCountdown = 500;
  Timer1_Timer();
  EXPECT_NEAR(G.GameHours, 0.1 / 60, 1e-12);
  EXPECT_NEAR(G.NextEventCountdown, 499.8, 1e-9);
}

TEST_F(Clocks, EventDrawResetsTheCountdownAndCyclesTheNumber) {
  G.NextEventNumber = 11;
  G.NextEventCountdown = 0.1;
  Timer1_Timer();
  EXPECT_EQ(G.NextEventNumber, 1);
  EXPECT_GE(G.NextEventCountdown, 1000);
  EXPECT_LE(G.NextEventCountdown, 1499);
  EXPECT_EQ(Tracks(2), 0);  // nothing was raised

  double low = 2000, high = 0;
  for (int i = 0; i < 3000; ++i) {
    G.NextEventCountdown = 0;
    const int before = G.NextEventNumber;
    Timer1_Timer();
    EXPECT_EQ(G.NextEventNumber, before == 11 ? 1 : before + 1);
    low = std::min(low, G.NextEventCountdown);
    high = std::max(high, G.NextEventCountdown);
  }
  EXPECT_EQ(low, 1000);
  EXPECT_EQ(high, 1499);
}

TEST_F(Clocks, NoEventIsDrawnDockedInAFightWithOneRaisedOrWaitingToAttack) {
  const std::vector<void (*)()> holds = {
      [] { G.StatusSlot[DockedSlot].Active = True; }, [] { G.FightActive = True; },
      [] { G.StatusSlot[EventSlot].Active = True; }, [] { G.BridgeButton[3][4].State = 1; }};
  for (auto set : holds) {
    ResetGame();
    G.NextEventNumber = 4;
    G.NextEventCountdown = -3;
    set();
    Timer1_Timer();
    EXPECT_EQ(G.NextEventNumber, 4);
    EXPECT_EQ(G.NextEventCountdown, -3);
  }
}

TEST_F(Clocks, StaticBurstsToggleAndItsFramesCycle) {
  G.StaticCountdown = 0;
  G.StaticOn = False;
  Timer1_Timer();
  EXPECT_EQ(G.StaticOn, True);
  EXPECT_GE(G.StaticCountdown, 1);
  EXPECT_LE(G.StaticCountdown, 4);

  G.StaticCountdown = 2;
  G.StaticFrame = 5;
  Timer1_Timer();
  EXPECT_EQ(G.StaticCountdown, 1);
  EXPECT_EQ(G.StaticFrame, 1);

  int lowY = 1000, highY = 0;
  for (int i = 0; i < 3000; ++i) {
    G.StaticCountdown = 0;
    Timer1_Timer();
    lowY = std::min<int>(lowY, G.StaticY);
    highY = std::max<int>(highY, G.StaticY);
  }
  EXPECT_EQ(lowY, 26);
  EXPECT_EQ(highY, 205);
}

TEST_F(Clocks, ChartKindIsRedrawnOnlyWhileNotDocked) {
  G.StatusSlot[DockedSlot].Active = True;
  G.ChartKind = 9;
  Timer1_Timer();
  EXPECT_EQ(G.ChartKind, 9);
  G.StatusSlot[DockedSlot].Active = False;
  int seen[5] = {};
  for (int i = 0; i < 2000; ++i) {
    Timer1_Timer();
    ASSERT_GE(G.ChartKind, 1);
    ASSERT_LE(G.ChartKind, 4);
    ++seen[G.ChartKind];
  }
  EXPECT_GT(seen[1] + seen[2] + seen[3], 400);
  EXPECT_GT(seen[4], 1200);
}

TEST_F(Clocks, SpecialTimersJumpFromOneToMinusOneAndEndAtTheirOwnValues) {
  G.SpecialTimer[1] = -2;   // -3 is timer 1's end
  G.SpecialTimer[2] = 2;    // 1 jumps to -1
  G.SpecialTimer[3] = -40;  // -41 is timer 3's end
  G.SpecialTimer[4] = -9;   // -10 is timer 4's end
  G.SpecialTimer[5] = 0;    // idle stays idle
  Timer2_Timer();
  EXPECT_EQ(G.SpecialTimer[1], 0);
  EXPECT_EQ(G.SpecialTimer[2], -1);
  EXPECT_EQ(G.SpecialTimer[3], 0);
  EXPECT_EQ(G.SpecialTimer[4], 0);
  EXPECT_EQ(G.SpecialTimer[5], 0);

  G.SpecialTimer[2] = -2;  // another timer's end value means nothing to it
  G.SpecialTimer[5] = -19;
  Timer2_Timer();
  EXPECT_EQ(G.SpecialTimer[2], -3);
  EXPECT_EQ(G.SpecialTimer[5], 0);
}

TEST_F(Clocks, ReloadsAndWarningsCountDown) {
  G.WeaponRack[0] = 2;
  G.WeaponReload[1] = 0;
  G.WeaponReload[2] = 5;
  G.WeaponReload[3] = 5;  // past the rack
  G.EnemyWeaponSlot[0] = 2;
  G.EnemyReload[1] = 2;
  G.EnemyReload[2] = 0;
  G.Warning[1] = 1;
  G.Warning[2] = 0;
  Timer2_Timer();
  EXPECT_EQ(G.WeaponReload[1], -1);
  EXPECT_EQ(G.WeaponReload[2], 4);
  EXPECT_EQ(G.WeaponReload[3], 5);
  EXPECT_EQ(G.EnemyReload[1], 1);
  EXPECT_EQ(G.EnemyReload[2], 0);
  EXPECT_EQ(G.Warning[1], 0);
  EXPECT_EQ(G.Warning[2], 0);
}

TEST_F(Clocks, ExitTimersEndTheFightWhenTheyStandAtOne) {
  G.FightActive = True;
  G.SurrenderTimer = 3;
  Timer2_Timer();
  EXPECT_EQ(G.FightActive, True);
  Timer2_Timer();
  EXPECT_EQ(G.SurrenderTimer, 1);
  EXPECT_EQ(G.FightActive, False);

  G.FightActive = True;
  G.SurrenderTimer = 0;
  G.FleeTimer = 2;
  Timer2_Timer();
  EXPECT_EQ(G.FightActive, False);
}

TEST_F(Clocks, TheEndOfTheSelfDestructCountdownLosesTheGame) {
  G.AutodestructTimer = 3;
  Timer2_Timer();
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, False);
  host.Wait(2);
  host.Click(300, 300);
  EXPECT_THROW(Timer2_Timer(), ScreenChange);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, True);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Value, 1);
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(G.NoGameRunning, True);
  EXPECT_EQ(TopScreen(), Screen::Menu);
}

}  // namespace
}  // namespace lf::test
