// Bad input in a fight: presses anywhere in every state, and restored fights
// that point outside the tables. The fight keeps running or ends cleanly.
#include "combat/fight_fixture.h"

namespace lf::test {
namespace {

// Presses every eighth pixel of the screen in the state `set` makes,
// putting the state back before each press.
void PressEverywhere(FightTest& t, void (*set)(), const std::function<void(int, int)>& press) {
  const Game saved = G;
  for (int y = 1; y < 480; y += 8)
    for (int x = 1; x < 640; x += 8) {
      G = saved;
      set();
      press(x, y);
    }
  (void)t;
}

TEST_F(FightTest, PressesAnywhereInEveryStateNeverFail) {
  G.DragonIonBeam = G.RapierMissile = G.ShrikeMissile = True;
  G.CountermeasureRack = G.ComputerVirus = G.VirusProtection = G.ElectronicCM = G.ElectronicCCM = True;
  Fight(3);
  void (*states[])() = {
      [] {},
      [] { G.WeaponSelected = 5; G.WeaponReload[5] = -1; G.FightRange = 50; G.WeaponEnergy = 500; },
      [] { G.AnimMissile = 20; G.WeaponSelected = 4; },
      [] { G.AnimExplosion = 30; G.EnemyHull = 0; },
      [] { G.SurrenderOffered = 3; },
      [] { G.FleeTimer = 3; G.SurrenderTimer = 3; },
      [] { G.PowerTotal = 2; G.WeaponEnergyMax = 0; G.ShieldEnergyMax = 0; },
  };
  for (auto* set : states)
    PressEverywhere(*this, set, [this](int x, int y) {
      Press(x, y);
      EXPECT_GE(G.PowerFree, -32768);
    });
}

TEST_F(FightTest, RestoredFightsOutsideTheTablesKeepRunningOrEndCleanly) {
  Fight(3);
  const Game start = G;
  void (*bad[])() = {
      [] { G.FightShip = 600; },
      [] { G.OtherShip[1].ShipClass = 99; },
      [] { G.OtherShip[1].ShipClass = -3; },
      [] { G.EnemyHull = -500; G.EnemyHullMax = 0; G.EnemyPropulsionMax = 0; },
      [] { G.WeaponRack[0] = 10; G.WeaponRack[5] = 19; G.WeaponRack[6] = -4; G.WeaponRack[7] = 30; },
      [] { G.WeaponSelected = 11; G.TargetSelected = 9; G.AnimBeam = 13; },
      [] { G.WeaponSelected = 6; G.WeaponRack[6] = 19; G.AnimMissile = 48; G.FiredWeapon = 19; },
      [] { G.AnimMissile = 1e9; G.AnimImpact = 7e5; G.AnimExplosion = 49.9; G.FightRange = -7; },
      [] { G.EnemyWeaponSlot[0] = 40; G.EnemyWeaponSlot[1] = 77; G.EnemyReload[1] = 2; },
      [] { G.HardpointCount = 300; G.StaticOn = True; G.StaticFrame = 9; G.StaticY = 900; G.HullPoints = 10; },
  };
  for (auto* set : bad) {
    G = start;
    ResetScreens();
    Enter([] { d_FightLoop(); });
    set();
    for (int i = 0; i < 200 && TopScreen() == Screen::Fight; ++i) {
      if (i % 20 == 0) host.Click(400, 357);
      Frames(1);
    }
    EXPECT_TRUE(TopScreen() == Screen::Fight || TopScreen() == Screen::Bridge || TopScreen() == Screen::Menu);
  }
}

}  // namespace
}  // namespace lf::test
