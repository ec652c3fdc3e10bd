// The medical officer's page: health lost to life support and viruses,
// treatment and its shares, quarantine and the cure, death and the end of
// the game, the medical scanner, and what the lists draw.
#include "bridge/later_procedures.h"
#include "bridge_fixture.h"
#include "display/gfx.h"
#include "shell/screens.h"

namespace lf::test {
namespace {

class CrewHealthTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    const char* names[] = {"", "ANNA BELL", "BO KARR", "CY DEW", "DOC HALE", "EVE FOX", "FRED GRAY"};
    for (int post = 1; post <= 6; ++post) G.Character[10 + post].Name = names[post];
  }
  // Post p manned by character 10 + p.
  static void Man(int post, int skill, double health = 100) {
    Crew(post, 10 + post, skill);
    G.CrewPost[post].Health = health;
  }
  static void Frames(int n) {
    for (int f = 0; f < n; ++f) UpdateHealth();
  }
};

TEST_F(CrewHealthTest, WithoutLifeSupportTheCrewDiesOneAFrameAndHealthZeroIsNotDeath) {
  Man(1, 3, 3);
  Man(2, 3, 4);
  G.LifeSupportLevel = 0;
  Frames(1);
  EXPECT_EQ(G.CrewPost[1].Health, 1);
  EXPECT_EQ(G.CrewPost[2].Health, 2);
  Frames(1);
  EXPECT_EQ(G.CrewPost[1].Person, 0);
  EXPECT_EQ(G.CrewPost[2].Health, 2) << "the loop ends at the first death";
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptLine[1], "MEDICAL REPORTS INCLUDE:");
  EXPECT_EQ(G.PromptLine[2], "CREWMAN ANNA BELL HAS DECEASED!");
  EXPECT_EQ(MediaLog().back(), Sound(8, 3));
  G.MessagePending = False;
  Frames(5);
  EXPECT_EQ(G.CrewPost[2].Health, 0) << "at 0 no rule acts: neither loss nor death";
  EXPECT_EQ(G.CrewPost[2].Person, 12);

  // The last one dies: the death picture until a click, then the menu.
  G.CrewPost[2].Health = 0.5;
  ScriptedHost deathHost;
  deathHost.yieldBudget = 100;
  deathHost.Click(320, 240);
  SetHost(&deathHost);
  EXPECT_THROW(Frames(1), ScreenChange);
  SetHost(&host);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, True);
  EXPECT_EQ(G.MenuActive, True);
}

TEST_F(CrewHealthTest, TreatmentHealsByTheShareAndThePatientsSkillAndTheCuredGiveTheirTimeBack) {
  Man(4, 5);
  Man(1, 2, 50);
  G.TreatmentAlloc[1] = 40;
  G.MedicalPool = 100;
  Frames(1);
  EXPECT_NEAR(G.CrewPost[1].Health, 50 + 40.0 / 200 + 2.0 / 50, 1e-12);
  int frames = 1;
  while (G.TreatmentAlloc[1] != 0 && frames < 1000) {
    Frames(1);
    ++frames;
  }
  EXPECT_EQ(frames, 209);  // 50 / 0.24 frames, then over 100
  EXPECT_EQ(G.CrewPost[1].Health, 100);
  EXPECT_EQ(G.MedicalPool, 140);
  EXPECT_EQ(G.PromptLine[2], "CREWMAN ANNA BELL WAS SUCCESSFULLY CURED!");
  EXPECT_EQ(G.PromptFace, 4);
  EXPECT_EQ(G.MessagePending, False);

  // At exactly 100, at 0, without a share or without life support: nothing.
  Man(2, 3, 0);
  Man(3, 3, 60);
  G.TreatmentAlloc[1] = G.TreatmentAlloc[2] = 50;
  Frames(10);
  EXPECT_EQ(G.CrewPost[1].Health, 100);
  EXPECT_EQ(G.CrewPost[2].Health, 0);
  EXPECT_EQ(G.CrewPost[3].Health, 60);
  G.TreatmentAlloc[3] = 50;
  G.LifeSupportLevel = 99;
  Frames(1);
  EXPECT_NEAR(G.CrewPost[3].Health, 60 - 1.0 / 50, 1e-12);
}

TEST_F(CrewHealthTest, TheTreatmentSliderTakesFromThePoolOnlyForTheHurt) {
  Man(1, 3, 100);
  Man(2, 3, 70);
  G.MedicalPool = 60;
  G.PageOpen[4] = 1;
  ButtonState(4, 1) = 1;
  Press(438, 283 + 16 + 4);  // wants 50 for a healthy post
  EXPECT_EQ(G.TreatmentAlloc[1], 0);
  Press(438, 283 + 32 + 4);
  EXPECT_EQ(G.TreatmentAlloc[2], 50);
  EXPECT_EQ(G.MedicalPool, 10);
  Press(489, 283 + 32 + 4);  // the pool is short: all that is left
  EXPECT_EQ(G.TreatmentAlloc[2], 60);
  EXPECT_EQ(G.MedicalPool, 0);
}

TEST_F(CrewHealthTest, QuarantineStopsTheVirusAndTheTreatmentAndTheCureNeedsNoDoctor) {
  Man(1, 3, 80);
  G.CrewPost[1].Infected = True;
  G.TreatmentAlloc[1] = 20;
  Frames(100);
  EXPECT_NEAR(G.CrewPost[1].Health, 80 + 100 * (20.0 / 200 + 3.0 / 50 - 0.05), 1e-9);

  G.PageOpen[4] = 1;
  ButtonState(4, 4) = 1;
  const int row1 = 302 + 4;
  Press(400, row1);
  EXPECT_EQ(G.CrewPost[1].Quarantined, True);
  EXPECT_EQ(MediaLog().back(), Sound(4, 1));
  const double held = G.CrewPost[1].Health;
  Frames(100);
  EXPECT_EQ(G.CrewPost[1].Health, held) << "no virus damage and no treatment";
  DrawFaces();
  EXPECT_EQ(BlitsOf(GFX.ComputerFace[1]).size(), 1u) << "a quarantined post shows the computer";

  // No medical officer: the button is not drawn, but the press cures.
  Press(470, row1);
  EXPECT_EQ(G.CrewPost[1].Infected, False);
  EXPECT_EQ(G.CrewPost[1].Quarantined, False);

  G.CrewPost[1].Infected = True;
  G.CrewPost[1].Health = 2;
  Press(470, row1);
  EXPECT_EQ(G.CrewPost[1].Infected, True) << "too weak to be treated";
}

TEST_F(CrewHealthTest, AtDeathsDoorTheFaceGoesToTheComputerAndTheSkillIsLostForGood) {
  Man(5, 4, 2.5);
  DrawFaces();
  EXPECT_EQ(BlitsOf(GFX.CharacterFace[15]).size(), 1u);
  G.LifeSupportLevel = 99;
  Frames(25);  // 0.02 a frame: 2.0 at the end
  DrawFaces();
  EXPECT_EQ(BlitsOf(GFX.ComputerFace[5]).size(), 1u);
  EXPECT_EQ(G.Character[15].Skill, 1);
  G.LifeSupportLevel = 100;
  G.TreatmentAlloc[5] = 100;
  Frames(100);
  DrawFaces();
  EXPECT_GT(G.CrewPost[5].Health, 50);
  EXPECT_EQ(BlitsOf(GFX.CharacterFace[15]).size(), 2u) << "the face comes back";
  EXPECT_EQ(G.Character[15].Skill, 1) << "the skill does not";
}

TEST_F(CrewHealthTest, TheQuarantineListShowsItsButtonsBySkill) {
  Man(3, 3);
  G.CrewPost[3].Infected = True;
  Man(4, 1);
  DrawQuarantineList();
  EXPECT_TRUE(BlitsOf(GFX.QuarantineUp).empty());
  Man(4, 2);
  G.CrewPost[3].Quarantined = True;
  DrawQuarantineList();
  ASSERT_EQ(BlitsOf(GFX.QuarantineDown).size(), 1u);
  EXPECT_EQ(BlitsOf(GFX.QuarantineDown)[0].y, 302 + 34);
  EXPECT_TRUE(BlitsOf(GFX.TreatmentUp).empty());
  Man(4, 4);
  DrawQuarantineList();
  EXPECT_EQ(BlitsOf(GFX.TreatmentUp).size(), 1u);
}

TEST_F(CrewHealthTest, TheMedicalScannerFindsVirusesOnPodsAlwaysAndOnDebrisWithSkill) {
  G.SensorLevel = 100;
  G.PageOpen[4] = 1;
  G.CargoPod[3] = {2510, 2505, True};
  PressButton(4, 2);
  EXPECT_EQ(G.PromptLine[2], "A VIRUS HAS BEEN DISCOVERED.");
  EXPECT_EQ(ButtonState(4, 2), 0);

  G.CargoPod[3] = {};
  G.Debris[2] = {2490, 2500, False, True};
  PressButton(4, 2);
  EXPECT_EQ(G.PromptLine[2], "NO DISCOVERIES WERE MADE.") << "an empty post works as skill 1";
  Man(4, 3);
  PressButton(4, 2);
  EXPECT_EQ(G.PromptLine[2], "A VIRUS HAS BEEN DISCOVERED.");

  G.Debris[2] = {};
  PressButton(4, 2);
  EXPECT_EQ(G.PromptLine[2], "NO OBJECT TO SCAN!");
  G.SensorLevel = 99;
  PressButton(4, 2);
  EXPECT_EQ(G.PromptLine[2], "WE DO NOT HAVE ENOUGH POWER ALLOCATED TO THE SENSOR SYSTEMS!");

  G.SensorLevel = 100;
  G.PlanetCount = 1;
  G.Planet[1].X = 2520;
  G.Planet[1].Y = 2500;
  G.Planet[1].Width = 60;
  G.Planet[1].HasStation = 1;
  G.OrbitState = 1;
  PressButton(4, 2);
  EXPECT_EQ(G.PromptLine[2], "WE MUST ENTER ORBIT FIRST.");
  G.OrbitState = 3;
  PressButton(4, 2);
  EXPECT_EQ(G.PromptLine[2], "STATION IS MEDICALLY SECURE!");
}

}  // namespace
}  // namespace lf::test
