// The science officer's page: research chosen by its icon, advancing by the
// officer's skill and decided by one draw; the scanner on bodies, nebulas,
// asteroid fields and objects.
#include "bridge/later_procedures.h"
#include "bridge_fixture.h"
#include "display/gfx.h"

namespace lf::test {
namespace {

class ScienceTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    G.PageOpen[5] = 1;
    ButtonState(5, 2) = 1;
  }
  // The icon of slot i in the research list.
  void PressIcon(int slot) { Press(500, 288 + 8 * slot + 4); }
  // A seed whose first draw is below (or not below) the chance.
  static void SeedSoThatTheDrawIs(bool below, double chance) {
    for (std::uint64_t seed = 1;; ++seed) {
      SeedRandom(G.Random, seed);
      RandomState copy = G.Random;
      if ((NextRandom(copy) < chance) == below) return;
    }
  }
  static int FramesUntilDecided(int slot) {
    int frames = 0;
    while (G.UpgradeJob[slot].Active == True && G.UpgradeJob[slot].Upgraded == False && frames < 5000) {
      UpdateUpgrade();
      ++frames;
    }
    return frames;
  }
};

TEST_F(ScienceTest, ResearchCompletesAtTheSkillsPaceAndUpgradesTheComponent) {
  Crew(5, 30, 5);
  PressIcon(5);
  ASSERT_EQ(G.UpgradeJob[5].Active, True);
  EXPECT_EQ(MediaLog().back(), Sound(2, 1));
  SeedSoThatTheDrawIs(true, 5.0 / 6);
  EXPECT_NEAR(FramesUntilDecided(5), 600, 1);  // 5/30 a frame, decided once past 100
  EXPECT_EQ(G.UpgradeJob[5].Upgraded, True);
  EXPECT_EQ(G.UpgradeJob[5].Progress, 100);
  EXPECT_EQ(G.UpgradeJob[5].Bonus, 5.0 / 8);
  EXPECT_EQ(G.PromptLine[2], "M-207 PHALANX HAS BEEN SUCCESSFULLY UPGRADED!");
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptFace, 6);

  ClearMediaLog();
  PressIcon(5);
  EXPECT_TRUE(MediaLog().empty()) << "a done job takes no click";
}

TEST_F(ScienceTest, AFailedAttemptCostsTheWholeProgress) {
  Crew(5, 30, 1);
  PressIcon(4);
  SeedSoThatTheDrawIs(false, 1.0 / 6);
  EXPECT_NEAR(FramesUntilDecided(4), 3000, 1);
  EXPECT_EQ(G.UpgradeJob[4].Upgraded, False);
  EXPECT_EQ(G.UpgradeJob[4].Progress, 0);
  EXPECT_EQ(G.PromptLine[2], "CAPTAIN, I HAVE FAILED IN ATTEMPT TO UPGRADE THE ALS-40 PROTECTOR");
}

TEST_F(ScienceTest, OneJobAtATimeAndNeverOnAComputerOrAnEmptySlot) {
  Crew(5, 30, 3);
  Fit(6, 2, 1);  // a computer
  ClearMediaLog();
  PressIcon(6);
  EXPECT_EQ(G.UpgradeJob[6].Active, False);
  EXPECT_TRUE(MediaLog().empty());

  PressIcon(5);
  for (int f = 0; f < 100; ++f) UpdateUpgrade();
  PressIcon(1);  // the generator: the weapon's job is put aside
  EXPECT_EQ(G.UpgradeJob[5].Active, False);
  EXPECT_NEAR(G.UpgradeJob[5].Progress, 10, 1e-9);
  EXPECT_EQ(G.UpgradeJob[1].Active, True);
  PressIcon(1);
  EXPECT_EQ(G.UpgradeJob[1].Active, False) << "a second click stops it";

  // A job left active on a slot whose component has gone, and beyond the fit.
  G.UpgradeJob[6].Active = True;
  G.FittedComp[6][1] = 0;
  G.UpgradeJob[20].Active = True;
  for (int f = 0; f < 10; ++f) UpdateUpgrade();
  EXPECT_EQ(G.UpgradeJob[6].Progress, 0);
  EXPECT_EQ(G.UpgradeJob[20].Progress, 0);
  EXPECT_NO_THROW(DrawResearchList());
}

TEST_F(ScienceTest, TheResearchListShowsEachSlotsState) {
  Crew(5, 30, 4);
  Fit(6, 2, 1);
  G.UpgradeJob[1].Upgraded = True;
  G.UpgradeJob[5].Active = True;
  G.UpgradeJob[5].Progress = 50;
  PointAt(500, 288 + 8 * 4 + 4);
  DrawResearchList();
  const auto icons = BlitsOf(GFX.UpgradePicture);
  ASSERT_EQ(icons.size(), 6u);
  EXPECT_EQ(icons[0].left, 45) << "upgraded";
  EXPECT_EQ(icons[3].left, 15) << "under the cursor";
  EXPECT_EQ(icons[4].left, 0);
  EXPECT_EQ(icons[5].left, 30) << "a computer cannot be upgraded";
  for (const BlitRecord& b : BlitsOf(GFX.MaintSlider))
    if (b.y == 287 + 40 + 4) EXPECT_EQ(b.right - b.left, 52);
}

TEST_F(ScienceTest, TheScannerReportsTheBodyAndCountsNothingWithoutPower) {
  G.PlanetCount = 2;
  G.Planet[1] = {};
  G.Planet[2].X = 2530;
  G.Planet[2].Y = 2500;
  G.Planet[2].Width = 60;
  G.Planet[2].Type = 4;
  G.Planet[2].Size = 4;
  G.Planet[2].Race = 1;
  G.SensorLevel = 99;
  PressButton(5, 1);
  EXPECT_EQ(G.PromptLine[2], "WE DO NOT HAVE ENOUGH POWER ALLOCATED TO THE SENSOR SYSTEMS!");
  EXPECT_EQ(G.Planet[2].Known, False);

  G.SensorLevel = 100;
  PressButton(5, 1);
  EXPECT_EQ(G.Planet[2].Known, True);
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptLine[1], "SCAN RESULTS:");
  EXPECT_EQ(G.PromptLine[2], "TYPE: TERRAN, SIZE: LARGE, POP: HUMAN");
  EXPECT_EQ(G.OrbitState, 1);

  G.MessagePending = False;
  G.PromptLine[1] = "";
  G.OrbitState = 3;
  G.Planet[2].Race = 7;
  PressButton(5, 1);
  EXPECT_EQ(G.PromptLine[2], "PIRATE STATION! ANARCHY SITUATION!") << "in orbit, every time";
}

TEST_F(ScienceTest, NebulasAsteroidsAndObjects) {
  G.SensorLevel = 100;
  G.InNebula = True;
  PressButton(5, 1);
  const std::string first = G.PromptLine[1];
  PressButton(5, 1);
  PressButton(5, 1);
  EXPECT_EQ(G.PromptLine[2], "OF SPACE DUST PER CUBIC METER!");
  EXPECT_NE(G.PromptLine[1], first) << "another count at each press";
  G.InNebula = False;
  G.InAsteroids = True;
  PressButton(5, 1);
  EXPECT_EQ(G.PromptLine[2], "ASTEROID SCAN COMPLETE!");
  G.InAsteroids = False;
  G.Debris[9] = {2505, 2495, False, True};
  PressButton(5, 1);
  EXPECT_EQ(G.PromptLine[2], "THAT DEBRIS CHECKS ALL RIGHT.") << "no virus for the science scanner";
  G.Debris[9] = {};
  PressButton(5, 1);
  EXPECT_EQ(G.PromptLine[2], "NO OBJECT TO SCAN!");
}

}  // namespace
}  // namespace lf::test
