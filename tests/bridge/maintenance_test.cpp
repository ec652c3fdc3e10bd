// The engineer's page: repair by shares of the engineer's effort at the
// rates of his skill, the shares taken from the pool, the hold and its
// jettison, the unfitted store, and what the lists draw.
#include "bridge_fixture.h"
#include "display/gfx.h"
#include "shell/bridge_frame_steps.h"
#include "universe/catalogue.h"

namespace lf::test {
namespace {

class MaintenanceTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    for (int i = 1; i <= 5; ++i) G.FittedHealth[i] = Full(i);
    G.PageOpen[6] = 1;
  }
  static double Full(int slot) { return ComponentFullHealth(G.FittedComp[slot][1], G.FittedComp[slot][2]); }
  // Frames of UpdateRepair until the slot's share is released (at most n).
  static int FramesUntilDone(int slot, int n) {
    for (int f = 1; f <= n; ++f) {
      UpdateRepair();
      if (G.RepairCrew[slot] == 0) return f;
    }
    return -1;
  }
};

TEST_F(MaintenanceTest, AShareRepairsAtTheEngineersRateAndGivesItsEffortBack) {
  Crew(6, 20, 3);
  G.FittedHealth[5] = Full(5) / 2;  // the beam weapon at 50%
  G.RepairCrew[5] = 100;
  RecountRepairPool();
  EXPECT_EQ(G.RepairPool, 3 * 15 * 6 - 100);
  for (int f = 0; f < 100; ++f) UpdateRepair();
  EXPECT_NEAR(G.FittedHealth[5], 60 + 100 * (100.0 / 700 + 3.0 / 50), 1e-9);
  EXPECT_EQ(G.MessagePending, False);

  // Released only once 1% over full: (121.2 - 60) / 0.2029 frames in all.
  const int rest = FramesUntilDone(5, 1000);
  EXPECT_EQ(100 + rest, 302);
  EXPECT_EQ(G.FittedHealth[5], Full(5));
  EXPECT_EQ(G.RepairPool, 170 + 100);
  EXPECT_EQ(G.PromptLine[2], "M-207 PHALANX HAS BEEN SUCCESSFULLY REPAIRED!");
  EXPECT_EQ(G.PromptFace, 6);
  EXPECT_EQ(G.PromptAge, 0);
  EXPECT_EQ(G.MessagePending, False) << "a passing line";
  EXPECT_EQ(MediaLog().back(), Sound(2, 2));
}

TEST_F(MaintenanceTest, BelowTheSkillsLimitAComponentCreepsUnlessTheAutoRepairUnitWorksIt) {
  // No engineer: the ship works as with skill 1, mending from 80% only.
  G.RepairCrew[5] = 100;
  RecountRepairPool();
  EXPECT_EQ(G.RepairPool, 50 - 100) << "the pool may stand below 0";
  G.FittedHealth[5] = 0.79 * Full(5) + 0.01;
  double before = G.FittedHealth[5];
  UpdateRepair();
  EXPECT_NEAR(G.FittedHealth[5] - before, 101.0 / 30000, 1e-12);

  G.FittedHealth[5] = 0.80 * Full(5) + 0.01;
  before = G.FittedHealth[5];
  UpdateRepair();
  EXPECT_NEAR(G.FittedHealth[5] - before, 100.0 / 700 + 1.0 / 50, 1e-12);

  G.AutoRepairUnit = True;
  G.FittedHealth[5] = 0.05 * Full(5);
  before = G.FittedHealth[5];
  UpdateRepair();
  EXPECT_NEAR(G.FittedHealth[5] - before, 100.0 / 700 + 1.0 / 50, 1e-12);
}

TEST_F(MaintenanceTest, WithoutEffortOrInOrbitNothingMendsAndCompletionsAreToldOneAFrame) {
  Crew(6, 20, 5);
  G.FittedHealth[4] = Full(4) / 2;
  for (int f = 0; f < 500; ++f) UpdateRepair();
  EXPECT_EQ(G.FittedHealth[4], Full(4) / 2) << "effort 0 never repairs";

  G.RepairCrew[4] = 100;
  G.TimeStep = 0.1 / 60;
  for (int f = 0; f < 500; ++f) UpdateRepair();
  EXPECT_EQ(G.FittedHealth[4], Full(4) / 2) << "in orbit";
  G.TimeStep = 0.1;

  // Two components one step short of done: the first completes, the second
  // waits for the next frame.
  G.RepairCrew[4] = G.RepairCrew[5] = 10;
  G.FittedHealth[4] = 1.0099 * Full(4);
  G.FittedHealth[5] = 1.0099 * Full(5);
  UpdateRepair();
  EXPECT_EQ(G.RepairCrew[4], 0);
  EXPECT_EQ(G.RepairCrew[5], 10);
  EXPECT_EQ(G.PromptLine[2], "ALS-40 PROTECTOR HAS BEEN SUCCESSFULLY REPAIRED!");
  UpdateRepair();
  EXPECT_EQ(G.RepairCrew[5], 0);
  EXPECT_EQ(G.PromptLine[2], "M-207 PHALANX HAS BEEN SUCCESSFULLY REPAIRED!");
}

TEST_F(MaintenanceTest, RestoredHealthBeyondTheLimitsIsHandled) {
  G.FittedHealth[2] = 3 * Full(2);
  G.FittedHealth[3] = -40;
  G.RepairCrew[3] = 100;
  G.FittedComp[6][1] = 0;
  G.RepairCrew[6] = 50;  // an empty slot holding effort
  G.FittedHealth[6] = 1e9;
  UpdateRepair();
  EXPECT_EQ(G.FittedHealth[2], Full(2)) << "cut back in the same pass";
  EXPECT_EQ(G.FittedHealth[6], 1e9) << "an empty slot is left alone";
  UpdateRepair();
  EXPECT_GT(G.FittedHealth[3], -40);
}

TEST_F(MaintenanceTest, TheSliderTakesItsShareFromThePool) {
  Crew(6, 20, 1);  // 1 x 15 x 6 = 90
  RecountRepairPool();
  ButtonState(6, 1) = 1;
  const int row5 = 287 + 8 * 5 + 4;
  Press(438, row5);  // Int(53 / 1.05) = 50
  EXPECT_EQ(G.RepairCrew[5], 50);
  EXPECT_EQ(G.RepairPool, 40);
  Press(489, row5);  // wants 49 more of 40: the pool goes whole
  EXPECT_EQ(G.RepairCrew[5], 90);
  EXPECT_EQ(G.RepairPool, 0);
  Press(400, row5);  // back to Int(15 / 1.05) = 14
  EXPECT_EQ(G.RepairCrew[5], 14);
  EXPECT_EQ(G.RepairPool, 76);
  G.FittedComp[6][1] = 0;
  Press(438, 287 + 8 * 6 + 4);
  EXPECT_EQ(G.RepairCrew[6], 0) << "an empty slot takes no effort";
}

TEST_F(MaintenanceTest, TheHoldListsWhatItHoldsAndJettisonedGoodsAreGone) {
  G.Cargo[1] = 5;
  G.Cargo[8] = 25;
  G.Cargo[14] = 3;
  G.FreeCargo = 100;
  G.ActiveMission[2] = 7;
  G.Missions[7].MissionType = 27;
  DrawCargoList();
  const auto buttons = BlitsOf(GFX.JobArrow[1]);
  ASSERT_EQ(buttons.size(), 3u) << "MISSION CARGO has no buttons";
  EXPECT_EQ(buttons[2].y, 300);

  ButtonState(6, 2) = 1;
  Press(503, 293 + 3);  // ten computers
  EXPECT_EQ(G.Cargo[8], 15);
  EXPECT_EQ(MediaLog().back(), Sound(5, 1));
  Press(503, 300 + 3);  // ten of three alcohol: all three
  EXPECT_EQ(G.Cargo[14], 0);
  Press(493, 286 + 3);  // one food
  EXPECT_EQ(G.Cargo[1], 4);
  EXPECT_EQ(MediaLog().back(), Sound(3, 1));
  EXPECT_EQ(G.FreeCargo, 114);
  Press(503, 314 + 3);  // where the mission cargo stood: now an empty row
  EXPECT_EQ(G.FreeCargo, 114);
}

TEST_F(MaintenanceTest, AnUnfittedComponentThrownAwayKeepsItsWeightTaken) {
  G.UnfittedComp[2][1] = 1;
  G.UnfittedComp[2][2] = 3;
  G.FreeMass = 100;
  ButtonState(6, 4) = 1;
  DrawUnfitted();
  ASSERT_EQ(BlitsOf(GFX.JobArrow[2]).size(), 1u);
  EXPECT_EQ(BlitsOf(GFX.JobArrow[2])[0].y, 300);
  Press(503, 303);
  EXPECT_EQ(G.UnfittedComp[2][1], 0);
  EXPECT_EQ(G.FreeMass, 100);
  EXPECT_EQ(MediaLog().back(), Sound(5, 1));
}

TEST_F(MaintenanceTest, TheListGreysWhatThisEngineerCannotMend) {
  Crew(6, 20, 3);
  G.FittedHealth[4] = 0.6 * Full(4);
  G.FittedHealth[5] = 0.4 * Full(5);
  G.RepairCrew[5] = 40;
  DrawMaintnanceList();
  auto bandAt = [](int y) {
    for (const BlitRecord& b : BlitsOf(GFX.FontVsml))
      if (b.y == y && b.x > 490) return b.top;  // the percentage
    return -1;
  };
  EXPECT_EQ(bandAt(287 + 32 + 1), 0) << "60% mends at skill 3";
  EXPECT_EQ(bandAt(287 + 40 + 1), 12) << "40% does not";
  bool bar = false;
  for (const BlitRecord& b : BlitsOf(GFX.MaintSlider))
    if (b.y == 287 + 40 + 4) bar = b.right - b.left == 42;
  EXPECT_TRUE(bar) << "Int(1.05 x 40)";
}

}  // namespace
}  // namespace lf::test
