// The player's side of a fight: the weapon lines, reach and reloads,
// energy and the sliders, the chance values and how shots are resolved.
#include "combat/fight_fixture.h"

namespace lf::test {
namespace {

// Resolves `n` beams (kind 2) or missiles (kind 1) from weapon value v and
// counts the misses told in the log.
int Misses(int kind, int v, int n, const char* missLine) {
  int misses = 0;
  for (int i = 0; i < n; ++i) {
    G.FiredWeapon = static_cast<std::int16_t>(v);
    G.FightLog[3].clear();
    G.EnemyHull = 30000;
    G.EnemyShields = 0;
    G.EnemyPower = G.EnemyPropulsion = G.EnemyWeapons = G.EnemyComputer = 300;
    G.AnimExplosion = -1;
    d_CheckWeaponHit(kind);
    if (G.FightLog[3] == missLine) ++misses;
  }
  return misses;
}

TEST_F(FightTest, TheRackHoldsTwoBlankLinesThenFittedWeaponsThenTheGuildsWeapons) {
  G.DragonIonBeam = G.ShrikeMissile = True;
  Fight();
  EXPECT_EQ(G.WeaponRack[0], 6);
  EXPECT_EQ(G.WeaponRack[1], 0);
  EXPECT_EQ(G.WeaponRack[2], 0);
  EXPECT_EQ(G.WeaponRack[3], 1);   // the beam's slot
  EXPECT_EQ(G.WeaponRack[4], 3);   // the launcher's slot
  EXPECT_EQ(G.WeaponRack[5], 20);  // Dragon
  EXPECT_EQ(G.WeaponRack[6], 22);  // Shrike; no Rapier owned
  EXPECT_EQ(G.WeaponReload[6], 0);

  // A ship with nothing to fire has only the two blank lines, and a click on
  // them selects nothing.
  G.FittedComp[1][1] = G.FittedComp[3][1] = 0;
  G.DragonIonBeam = G.ShrikeMissile = False;
  d_DetermineWeapons();
  EXPECT_EQ(G.WeaponRack[0], 2);
  Press(300, 355);
  Press(300, 365);
  EXPECT_EQ(G.WeaponSelected, 0);

  // Sixteen launchers fill the list to its tenth line and no further.
  G.HardpointCount = 16;
  for (int s = 1; s <= 16; ++s) {
    G.FittedComp[s][1] = 3;
    G.FittedComp[s][2] = 1;
  }
  d_DetermineWeapons();
  EXPECT_EQ(G.WeaponRack[0], 10);
  EXPECT_EQ(G.WeaponRack[10], 8);
}

TEST_F(FightTest, AWeaponIsReadyOneSecondInAndOnlyWhileInReach) {
  Fight();
  G.FightRange = 25;  // distance 25: the beam of range 3 reaches 25
  d_CheckWeaponRange();
  EXPECT_EQ(G.WeaponReload[3], 0);
  Timer2_Timer();
  EXPECT_EQ(G.WeaponReload[3], -1);
  Timer2_Timer();
  EXPECT_EQ(G.WeaponReload[3], -2);  // no floor
  G.FightRange = 24.9;
  d_CheckWeaponRange();
  EXPECT_EQ(G.WeaponReload[3], 1);  // out of reach: held unready
  EXPECT_EQ(G.WeaponReload[1], 1);  // a blank line is never in reach

  G.DragonIonBeam = G.RapierMissile = True;
  d_DetermineWeapons();  // lines 5 and 6: Dragon, Rapier
  G.FightRange = 35;     // distance 15
  d_CheckWeaponRange();
  EXPECT_EQ(G.WeaponReload[5], 0);
  EXPECT_EQ(G.WeaponReload[6], 0);
  G.FightRange = 34;  // distance 16: too far for the Dragon, not for the Rapier
  d_CheckWeaponRange();
  EXPECT_EQ(G.WeaponReload[5], 1);
  EXPECT_EQ(G.WeaponReload[6], 0);
}

TEST_F(FightTest, ABeamFiresOnlyWithItsEnergyAndAShotInFlightBlocksTheNext) {
  Fight();
  G.FightRange = 50;
  G.WeaponReload[3] = -1;
  Press(300, 375);  // line 3
  ASSERT_EQ(G.WeaponSelected, 3);
  G.WeaponEnergy = 224;  // the beam takes 220 and needs 5 to spare
  Press(400, 380);      // target 2
  EXPECT_EQ(G.TargetSelected, 2);
  EXPECT_EQ(G.AnimBeam, -1);
  G.WeaponEnergy = 225;
  Press(400, 357);
  EXPECT_EQ(G.AnimBeam, 0);
  EXPECT_DOUBLE_EQ(G.WeaponEnergy, 5);
  EXPECT_EQ(G.WeaponReload[3], 3);
  // While it flies no line can be chosen.
  Press(300, 386);
  EXPECT_EQ(G.WeaponSelected, 3);
}

TEST_F(FightTest, TheLastRoundOfALauncherTakesEveryEmptyLauncherWithIt) {
  G.HardpointCount = 8;
  G.FittedComp[8][1] = 3;
  G.FittedComp[8][2] = 2;  // a second launcher, already empty
  G.AmmoLeft[3] = 1;
  G.AmmoLeft[8] = 1;
  G.FreeMass = 100;
  Fight();
  G.AmmoLeft[8] = 0;
  G.FightRange = 50;
  G.WeaponReload[4] = -1;
  Press(300, 386);  // line 4: the launcher of slot 3
  Press(400, 357);
  EXPECT_EQ(G.AnimMissile, 0);
  EXPECT_EQ(G.AmmoLeft[3], 0);
  EXPECT_EQ(G.FittedComp[3][1], 0);
  EXPECT_EQ(G.FittedComp[8][1], 0);
  EXPECT_EQ(G.FreeMass, 100 + 170 + 220);
  // The rack keeps the line, but it can no longer be chosen.
  G.AnimMissile = -1;
  G.WeaponSelected = 0;
  Press(300, 386);
  EXPECT_EQ(G.WeaponSelected, 0);
}

TEST_F(FightTest, TheRapierIsASingleShotThatStillStrikesAsARapier) {
  G.RapierMissile = True;
  Fight();  // line 5: the Rapier
  G.FightRange = 50;
  G.WeaponReload[5] = -1;
  Press(300, 397);
  Press(400, 357);
  EXPECT_EQ(G.RapierMissile, False);
  EXPECT_EQ(G.WeaponRack[5], 0);
  EXPECT_EQ(G.AnimMissile, 0);
  const int hull = G.EnemyHull;
  G.EnemyShields = 30000;  // shields do not stop it
  ASSERT_TRUE(FramesUntil([] { return G.AnimMissile < 0; }, 60));
  EXPECT_EQ(Log(2), "RAPIER MISSILE INFLICTED SEVERE DAMAGE ON THE ENEMY VESSEL");
  EXPECT_GE(hull - G.EnemyHull, 333);
  EXPECT_LE(hull - G.EnemyHull, 370);
}

TEST_F(FightTest, SlidersTakeOnlyWhatIsFreeAndTheTransfersLeaveTheGiversSetting) {
  Fight();
  ASSERT_EQ(G.WeaponEnergyMax, 230);
  ASSERT_EQ(G.WeaponPowerSet, 230);
  ASSERT_EQ(G.PowerFree, 1);
  Press(480, 396);  // half way: frees 115
  EXPECT_EQ(G.WeaponPowerSet, 115);
  EXPECT_EQ(G.PowerFree, 116);
  Press(480, 347);  // wants 112.7 of the 116 free
  EXPECT_EQ(G.WeaponPowerSet, 228);
  EXPECT_EQ(G.PowerFree, 3);
  // With only 1 free a move up takes that 1 and leaves 1 free.
  G.WeaponPowerSet = 115;
  G.PowerFree = 1;
  Press(480, 347);
  EXPECT_EQ(G.WeaponPowerSet, 116);
  EXPECT_EQ(G.PowerFree, 1);

  G.ShieldPowerSet = 100;
  G.WeaponPowerSet = 100;
  G.WeaponEnergy = 50;
  Press(484, 455);  // weapons to shields: a fifth of the weapons' setting
  EXPECT_EQ(G.ShieldPowerSet, 120);
  EXPECT_EQ(G.WeaponPowerSet, 100);
  EXPECT_DOUBLE_EQ(G.WeaponEnergy, 0);
}

TEST_F(FightTest, SpecialSystemsRunAndRecoverByTheClock) {
  Fight();
  Press(180, 355);
  EXPECT_EQ(G.SpecialTimer[1], 0);  // not owned
  G.CountermeasureRack = True;
  Press(180, 355);
  EXPECT_EQ(G.SpecialTimer[1], 3);
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Sound, 20, 3, {}}));
  std::vector<int> seen;
  for (int i = 0; i < 6; ++i) {
    Timer2_Timer();
    seen.push_back(G.SpecialTimer[1]);
  }
  EXPECT_EQ(seen[0], 2);
  EXPECT_EQ(seen[1], -1);  // from 1 it jumps to -1
  EXPECT_EQ(seen[2], -2);
  EXPECT_EQ(seen[3], 0);   // at its end value it is free again
}

TEST_F(FightTest, ChanceValuesAtTheirLimits) {
  Fight();
  G.FightRange = 50;
  G.Character[3].Skill = 4;
  d_CalculateProbabilities();
  EXPECT_EQ(G.LaserChance, 60);  // computer 10, officer 50, no range penalty
  EXPECT_EQ(Misses(2, 1, 300, "YOUR LASER MISSED!"), 0);

  // No computer, nobody at the tactical post, far off: the floor of 15.
  G.FittedComp[2][1] = 0;
  G.CrewPost[3].Person = 0;
  G.FightRange = 0;
  d_CalculateProbabilities();
  EXPECT_EQ(G.LaserChance, 15);
  const int n = 4000;
  const double rate = 1 - Misses(2, 1, n, "YOUR LASER MISSED!") / double(n);
  EXPECT_NEAR(rate, 15.0 / 40, 0.03);

  // The launcher: accuracy 2 (35), evasion 1 (-50), no computer, no officer.
  G.WeaponSelected = 4;
  G.FightRange = 50;
  d_CalculateProbabilities();
  EXPECT_EQ(G.MissileChance, 15);  // -15 floored
  G.FittedComp[2][1] = 2;
  G.CrewPost[3].Person = 3;
  G.Character[3].Skill = 3;
  d_CalculateProbabilities();
  EXPECT_EQ(G.MissileChance, 5);  // 35 - 50 + 10 + 10: only 1..9 can miss
  const double missileRate = 1 - Misses(1, 3, n, "YOUR ROCKET MISSED!") / double(n);
  EXPECT_NEAR(missileRate, 0.5, 0.04);
  G.EnemyPower = -10000;
  d_CalculateProbabilities();
  EXPECT_EQ(G.MissileChance, 100);

  // The opponent at touching range: its beams at 10 cannot miss, and its
  // missiles stand at the floor.
  EXPECT_EQ(G.EnemyLaserChance, 10);
  EXPECT_EQ(G.EnemyMissileChance, 15);
}

TEST_F(FightTest, ABeamAgainstShieldsAndThroughThem) {
  Fight();
  G.FightRange = 50;
  G.Character[3].Skill = 4;
  d_CalculateProbabilities();  // 60: never misses
  G.FiredWeapon = 1;           // the Phalanx: damage 10 x 3
  G.EnemyShields = 31;
  G.TargetSelected = 3;
  d_CheckWeaponHit(2);
  EXPECT_EQ(G.EnemyShields, 1);
  EXPECT_EQ(G.EnemyHull, 2501);
  EXPECT_EQ(G.AnimEnemyShield, 0);
  EXPECT_EQ(G.TargetSelected, 1);

  // Shields at or below the damage collapse, and the whole damage lands.
  G.EnemyShields = 30;
  G.TargetSelected = 3;
  d_CheckWeaponHit(2);
  EXPECT_EQ(G.EnemyShields, -10000);
  EXPECT_EQ(G.EnemyHull, 2498);
  EXPECT_EQ(G.EnemyPropulsion, 301 - 36);
  EXPECT_EQ(Log(3), "ENEMY SHIP SUSTAINED TOTAL DAMAGE TO THEIR SHIELDS");

  // A system already gone passes the whole damage to the hull.
  G.EnemyPower = -10000;
  G.TargetSelected = 2;
  d_CheckWeaponHit(2);
  EXPECT_EQ(G.EnemyHull, 2468);
  EXPECT_EQ(G.EnemyPower, -10000);

  // At the hull every system loses a tenth.
  G.TargetSelected = 1;
  d_CheckWeaponHit(2);
  EXPECT_EQ(G.EnemyHull, 2438);
  EXPECT_EQ(G.EnemyWeapons, 471 - 3);
}

TEST_F(FightTest, MissilesAgainstShieldsTheVirusAndTheShrike) {
  Fight();
  G.MissileChance = 10;  // cannot miss
  G.FiredWeapon = 3;     // the Redeye: damage 50 / 5
  G.TargetSelected = 4;
  G.FightRange = 50;
  // Shields above a tenth of the damage stop it; the target stays chosen.
  d_CheckWeaponHit(1);
  EXPECT_EQ(G.EnemyShields, 131);
  EXPECT_EQ(G.TargetSelected, 4);
  EXPECT_EQ(G.EnemyWeapons, 471);
  EXPECT_EQ(Log(3), "ENEMYS SHIELDS SUSTAINED SIGNIFICANT DAMAGE");

  // With the virus running four in five pass the shields.
  G.SpecialTimer[2] = 5;
  int through = 0;
  for (int i = 0; i < 2000; ++i) {
    G.EnemyShields = 100;
    G.EnemyHull = 30000;
    G.AnimExplosion = -1;
    d_CheckWeaponHit(1);
    if (G.EnemyShields < 90) ++through;
  }
  EXPECT_NEAR(through / 2000.0, 0.8, 0.04);
  G.SpecialTimer[2] = 0;

  // The Shrike destroys the system outright, shields or not.
  G.FiredWeapon = 22;
  G.EnemyShields = 141;
  G.TargetSelected = 5;
  G.MissileChance = 10;
  d_CheckWeaponHit(1);
  EXPECT_EQ(G.EnemyComputer, -10000);
  EXPECT_EQ(G.EnemyShields, 141);
  EXPECT_EQ(G.TargetSelected, 5);
  EXPECT_EQ(Log(3), "SHRIKE MISSILE DESTROYED THE COMPUTER SYSTEMS ON THE ENEMY SHIP");
}

TEST_F(FightTest, TheHullCountsAsLostAtFivePointsAndSystemsAtZero) {
  Fight();
  G.EnemyHull = 6;
  G.EnemyPropulsion = 0;
  d_CheckDestroyedComponent();
  EXPECT_EQ(G.AnimExplosion, -1);
  EXPECT_EQ(G.EnemyPropulsion, -10000);
  EXPECT_EQ(Log(3), "PROPULSION SYSTEMS ON THE ENEMY SHIP WERE DESTROYED");
  G.EnemyHull = 5;
  d_CheckDestroyedComponent();
  EXPECT_EQ(G.EnemyHull, 0);
  EXPECT_EQ(G.AnimExplosion, 0);
  EXPECT_EQ(Log(2), "  .... VICTORY! .... VICTORY! .... VICTORY! ....");
  EXPECT_EQ(Log(3), "ENEMY SHIP HAS BEEN OBLITERATED. YOU ARE VICTORIOUS!");
  G.AnimExplosion = 40;
  d_CheckDestroyedComponent();  // a shot landing on the wreck
  EXPECT_EQ(G.AnimExplosion, 40);
}

}  // namespace
}  // namespace lf::test
