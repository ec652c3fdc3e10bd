// The opponent: what its class gives it, the distance it wants, when it
// gives up, how it fires, and what its shots do to the ship and the crew.
#include "combat/fight_fixture.h"

namespace lf::test {
namespace {

// Lands opponent weapon i with seeds 1.. until the log shows `line`; false
// if no seed up to 200 gives it. The ship is put back before every try.
bool LandUntil(int i, const std::string& line) {
  const Game saved = G;
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    G = saved;
    static_cast<ScriptedHost&>(CurrentHost()).seed = seed;
    d_CheckOpponentWeaponHit(i);
    if (G.FightLog[3] == line) return true;
  }
  return false;
}

TEST_F(FightTest, TheOpponentIsBuiltFromItsClassAndLoadout) {
  Fight(4);  // a destroyer: two generators, two shields, three launchers' worth of weapons
  EXPECT_EQ(G.FightHullClass, 4);
  EXPECT_EQ(G.EnemyHullMax, 3501);
  EXPECT_EQ(G.EnemyWeaponsMax, 210 + 140 + 210 + 1);
  EXPECT_EQ(G.EnemyPowerMax, 590 * 2 + 1);
  EXPECT_EQ(G.EnemyPropulsionMax, 321);
  EXPECT_EQ(G.EnemyComputerMax, 131);
  EXPECT_EQ(G.EnemyShieldsMax, 281);
  EXPECT_EQ(G.EnemyShields, 281);
  EXPECT_EQ(G.EnemyWeaponSlot[0], 3);
  EXPECT_EQ(G.EnemyWeaponSlot[2], 3);
  EXPECT_EQ(G.EnemyAmmo[2], 20);
  EXPECT_EQ(G.EnemyAmmo[3], 5);
  // Every fight costs the race 20 of its relation, never below 0.
  EXPECT_EQ(G.RaceRelation[1], 30);
  G.RaceRelation[7] = 10;
  Fight(19);
  EXPECT_EQ(G.RaceRelation[7], 0);
  EXPECT_EQ(G.FightHullClass, 5);
}

TEST_F(FightTest, ItClosesAsFarAsItsLongestReadyWeaponNeedsAndGivesUpByItsKind) {
  Fight(4);
  d_CheckOShipMovement();
  EXPECT_EQ(G.EnemyRangeGoal, 10);  // the torpedo reaches 4 steps
  G.EnemyReload[3] = 2;
  d_CheckOShipMovement();
  EXPECT_EQ(G.EnemyRangeGoal, 20);
  G.EnemyReload[1] = G.EnemyReload[2] = 2;
  d_CheckOShipMovement();
  EXPECT_EQ(G.EnemyRangeGoal, 0);  // nothing ready: it draws off
  EXPECT_EQ(G.SurrenderOffered, 0);

  G.EnemyHull = 350;  // a tenth of 3501 is 350.1
  d_CheckOShipMovement();
  EXPECT_EQ(G.SurrenderOffered, 3);

  Fight(1);  // a scout gives up at a third of its hull
  G.EnemyHull = static_cast<std::int16_t>(G.EnemyHullMax / 3.3) + 1;
  d_CheckOShipMovement();
  EXPECT_EQ(G.SurrenderOffered, 0);
  G.EnemyHull -= 1;
  d_CheckOShipMovement();
  EXPECT_EQ(G.SurrenderOffered, 3);

  Fight(5);  // a pirate only when crippled
  G.EnemyHull = 31;
  d_CheckOShipMovement();
  EXPECT_EQ(G.SurrenderOffered, 0);
  G.EnemyPropulsion = 15;
  d_CheckOShipMovement();
  EXPECT_EQ(G.SurrenderOffered, 3);
}

TEST_F(FightTest, TheRangeFollowsThePlayersOrderAndTheWreckFallsBack) {
  Fight(3);
  G.OrderedRange = 20;
  for (int i = 0; i < 2000; ++i) d_OShipMovement();
  EXPECT_EQ(static_cast<int>(G.FightRange), 20);
  const double held = G.FightRange;
  d_OShipMovement();
  EXPECT_EQ(G.FightRange, held);  // on the order it stands
  G.AnimExplosion = 0;
  G.OrderedRange = 0;  // as the explosion holds it
  for (int i = 0; i < 10; ++i) d_OShipMovement();
  EXPECT_EQ(G.FightRange, 0);
}

TEST_F(FightTest, OneVolleyAtATimeAndNoneOnceItOffersToSurrender) {
  Fight(4);
  G.FightRange = 50;
  for (int i = 0; i < 50; ++i) d_OpponentFireWeapon();
  int flying = 0;
  for (int i = 1; i <= 3; ++i) flying += G.EnemyReload[i] > 0;
  EXPECT_GE(flying, 1);
  const auto reloads = G.EnemyReload;
  d_OpponentFireWeapon();
  EXPECT_EQ(G.EnemyReload, reloads);

  G.EnemyReload.Items.fill(0);
  G.SurrenderOffered = 3;
  for (int i = 0; i < 200; ++i) d_OpponentFireWeapon();
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(G.EnemyReload[i], 0);
}

TEST_F(FightTest, ShieldsTakeAShotWholeOrLetTheRestThrough) {
  Fight(3);  // weapon 1: the tachyon beam, damage 30 x 4
  G.FightRange = 50;
  d_CalculateProbabilities();
  G.ShieldEnergy = 120;
  d_CheckOpponentWeaponHit(1);
  EXPECT_EQ(G.ShieldEnergy, 0);
  EXPECT_EQ(Log(3), "YOUR SHIELDS HAVE BEEN HIT!");
  EXPECT_EQ(G.AnimOwnShield, 0);
  EXPECT_EQ(G.Warning[2], 2);
  EXPECT_EQ(G.HullPoints, 2500);

  G.ShieldEnergy = 100;
  ASSERT_TRUE(LandUntil(1, "YOUR HULL HAS BEEN HIT!"));
  EXPECT_EQ(G.ShieldEnergy, 0);
  EXPECT_EQ(G.HullPoints, 2500 - 20);
  EXPECT_EQ(G.FittedHealth[4], 1000 - 2);  // every slot a tenth
  EXPECT_EQ(G.Warning[5], 2);
}

TEST_F(FightTest, CountermeasuresMakeTheOpponentsMissilesMiss) {
  Fight(3);  // weapon 3: the launcher
  G.FightRange = 50;
  d_CalculateProbabilities();
  ASSERT_EQ(G.EnemyMissileChance, 15);
  G.ShieldEnergy = 10000;
  G.SpecialTimer[1] = 2;
  G.SpecialTimer[4] = 4;
  for (std::uint64_t seed = 1; seed <= 50; ++seed) {
    host.seed = seed;
    d_CheckOpponentWeaponHit(3);
    ASSERT_EQ(Log(3), "ENEMY SHIP MISSED!");
  }
  EXPECT_EQ(G.ShieldEnergy, 10000);
  G.SpecialTimer[1] = G.SpecialTimer[4] = 0;
  d_CheckOpponentWeaponHit(3);  // 15: it cannot miss
  EXPECT_EQ(Log(3), "YOUR SHIELDS HAVE BEEN HIT!");
}

TEST_F(FightTest, ABlowAtAGroupFallsOnEveryComponentOfItAndTheLostOnesLeave) {
  G.HardpointCount = 9;
  for (int s : {8, 9}) {
    G.FittedComp[s][1] = 4;
    G.FittedComp[s][2] = 1;
    G.FittedHealth[s] = 100;
  }
  G.FreeMass = 0;
  G.RepairCrew[8] = 40;
  Fight(3);
  G.FightRange = 50;
  d_CalculateProbabilities();
  G.ShieldEnergy = 0;
  ASSERT_TRUE(LandUntil(1, "SHIP COMPONENT WAS DESTROYED: D-12 RA"));
  EXPECT_EQ(G.FittedHealth[4], 1000 - 120);  // the whole 120 on each generator
  EXPECT_EQ(G.FittedComp[8][1], 0);
  EXPECT_EQ(G.FittedComp[9][1], 0);
  EXPECT_EQ(G.RepairCrew[8], 0);
  EXPECT_EQ(G.FreeMass, 400);  // two generators of 200 back
  EXPECT_EQ(G.HullPoints, 2500);
}

TEST_F(FightTest, TheCrewTakesLessThanTwentyABlowAndLaterVictimsLess) {
  Fight(3);
  for (int i = 0; i < 200; ++i) {
    double before[7];
    for (int p = 1; p <= 6; ++p) {
      G.CrewPost[p].Health = 100;
      G.CrewPost[p].Person = static_cast<std::int16_t>(p);
      before[p] = 100;
    }
    d_DamageCrewmember(5000);
    double last = 20;
    for (int p = 1; p <= 6; ++p) {
      const double lost = before[p] - G.CrewPost[p].Health;
      if (lost == 0) continue;
      EXPECT_GT(lost, 0);
      EXPECT_LT(lost, last);
      last = lost;
    }
  }
}

TEST_F(FightTest, TheLastCrewLostOrTheHullGoneEndsTheGameWithTheFightStopped) {
  Fight(3);
  G.HullPoints = -4;
  host.Click(10, 10);  // past the death picture
  try {
    d_CheckBlownComponent(0);
  } catch (const ScreenChange&) {
  }
  EXPECT_EQ(G.HullPoints, 0);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, True);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Value, 1);
  EXPECT_EQ(G.FightActive, False);
  EXPECT_EQ(G.Timer2Enabled, False);
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(G.NoGameRunning, True);
  EXPECT_EQ(TopScreen(), Screen::Menu);

  Fight(3);
  G.StatusSlot[DeadSlot] = {};
  for (int p = 1; p <= 6; ++p) G.CrewPost[p].Person = 0;
  host.Click(10, 10);
  try {
    d_CheckBlownComponent(2);
  } catch (const ScreenChange&) {
  }
  EXPECT_EQ(G.StatusSlot[DeadSlot].Active, True);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Value, 0);  // lost by crew
  EXPECT_EQ(G.FightActive, False);
}

}  // namespace
}  // namespace lf::test
