// The endings of a fight played through the screen machine: victory, the
// opponent's surrender, flight, the player's surrender, self-destruction; a
// further attacker; and Escape and Resume in mid-fight.
#include <cmath>

#include "combat/fight_fixture.h"

namespace lf::test {
namespace {

bool OnBridgeAgain() {
  return ScreenDepth() == 1 && TopScreen() == Screen::Bridge && G.BridgeActive == True && G.FightActive == 0 &&
         G.Timer1Enabled == True && G.Timer2Enabled == 0;
}

TEST_F(FightTest, VictoryFallsBackExplodesAndPaysByHullClass) {
  G.Reputation = 1000;
  Fight(4);
  G.FightRange = 30;
  G.EnemyHull = 4;
  d_CheckDestroyedComponent();
  ASSERT_EQ(G.AnimExplosion, 0);
  ASSERT_TRUE(FramesUntil([] { return G.FightActive == 0; }));
  EXPECT_EQ(Sounds(33, 5), 1);
  Frames(1);
  EXPECT_TRUE(OnBridgeAgain());
  EXPECT_EQ(G.Reputation, 1150);
  EXPECT_EQ(G.OtherShip[1].Free, True);
  EXPECT_GE(G.OtherShip[1].X, 100);
  EXPECT_LT(G.OtherShip[1].X, 4900);
  int wrecks = 0;
  for (int n = 1; n <= 50; ++n) {
    const DebrisRecord& d = G.Debris[n];
    if (d.Visible == 0) continue;
    ++wrecks;
    EXPECT_LE(std::abs(d.X - 2475), 25);
    EXPECT_LE(std::abs(d.Y - 2475), 25);
  }
  EXPECT_EQ(wrecks, 1);
  EXPECT_EQ(G.DestX, G.ShipX);
}

TEST_F(FightTest, AnOfferedSurrenderAcceptedEndsTheFightWithoutPay) {
  G.Reputation = 1000;
  Fight(3);
  G.SurrenderOffered = 3;
  Frames(1);
  EXPECT_EQ(Log(1), " ... THE OTHER SHIP IS OFFERING HIS SURRENDER! ...");
  host.Click(60, 43);
  Frames(2);
  EXPECT_TRUE(OnBridgeAgain());
  EXPECT_EQ(G.Reputation, 1000);
  EXPECT_NE(G.OtherShip[1].X, 500);
  EXPECT_EQ(Sounds(2, 3), 1);
}

TEST_F(FightTest, FlightTakesFiveSecondsAndAThirdOfTheHull) {
  Fight(3);
  // A try succeeds one time in ten, with no sign when it fails.
  int tries = 0;
  while (G.FleeTimer == 0 && tries < 500) {
    host.seed = static_cast<std::uint64_t>(++tries);
    Press(60, 20);
  }
  ASSERT_EQ(G.FleeTimer, 6);
  EXPECT_GT(tries, 1);
  EXPECT_TRUE(FramesUntil([] { return G.FightActive == 0; }, 400));
  EXPECT_EQ(G.FleeTimer, 1);
  const double hull = G.HullPoints;
  Frames(1);
  EXPECT_TRUE(OnBridgeAgain());
  EXPECT_DOUBLE_EQ(G.HullPoints, hull - hull / 3);
}

TEST_F(FightTest, SurrenderingToATraderCostsUpToThreeThousandOrPaysUpToOneThousand) {
  G.Cash = 100;
  Fight(2);
  Press(60, 43);
  EXPECT_EQ(G.SurrenderTimer, 5);
  ASSERT_TRUE(FramesUntil([] { return G.FightActive == 0; }, 400));
  Frames(1);
  EXPECT_TRUE(OnBridgeAgain());
  EXPECT_GE(G.Cash, 100 - 2999);  // no floor
  EXPECT_LE(G.Cash, 1100);
}

TEST_F(FightTest, SurrenderingToAWarshipEmptiesASmallPurseAndCalmsTheRace) {
  G.Cash = 500;
  Fight(3);
  G.OtherShip[1].Free = False;  // a mission's hunter
  Press(60, 43);
  ASSERT_TRUE(FramesUntil([] { return G.FightActive == 0; }, 400));
  Frames(1);
  EXPECT_TRUE(OnBridgeAgain());
  EXPECT_EQ(G.Cash, 0);
  EXPECT_EQ(G.RaceRelation[1], 36);
  EXPECT_EQ(G.OtherShip[1].Free, True);
  EXPECT_EQ(G.OtherShip[1].X, 500);  // it stays where it is
}

TEST_F(FightTest, SelfDestructionEndsTheGameAfterFourSeconds) {
  Fight(3);
  Press(60, 32);
  EXPECT_EQ(G.AutodestructTimer, 5);
  host.Wait(300);
  host.Click(320, 240);  // past the death picture, which waits for a press
  ASSERT_TRUE(FramesUntil([] { return G.StatusSlot[DeadSlot].Active == True; }, 400));
  EXPECT_GE(host.presented, 240);
  EXPECT_EQ(G.FightActive, False);
  EXPECT_EQ(G.StatusSlot[DeadSlot].Value, 1);
  EXPECT_EQ(TopScreen(), Screen::Menu);
  EXPECT_EQ(G.NoGameRunning, True);
  EXPECT_EQ(G.Timer2Enabled, False);
}

TEST_F(FightTest, AHostileShipInRangeAttacksAsTheFightEnds) {
  G.OtherShipCount = 3;
  Park(2, 2);   // a trader never attacks
  Park(3, 13);  // a destroyer does, while the relation is below 35
  for (int i : {2, 3}) {
    G.OtherShip[i].X = G.ShipX + 30;
    G.OtherShip[i].Y = G.ShipY;
  }
  G.RaceRelation[4] = 60;
  Fight(3);
  G.EnemyHull = 0;
  G.AnimExplosion = 0;
  G.FightActive = False;
  G.RaceRelation[4] = 34;
  Frames(1);
  EXPECT_EQ(TopScreen(), Screen::Fight);
  EXPECT_EQ(G.FightShip, 3);
  EXPECT_EQ(G.FightActive, True);
  EXPECT_EQ(G.FightHullClass, 4);
  EXPECT_EQ(G.RaceRelation[4], 14);

  // A race at 35 or more whose ship is free leaves the player alone.
  G.RaceRelation[4] = 35;
  G.EnemyHull = 0;
  G.FightActive = False;
  Frames(1);
  EXPECT_TRUE(OnBridgeAgain());
}

TEST_F(FightTest, EscapeAndResumeKeepTheFightWhereItStood) {
  Fight(3);
  G.OrderedRange = 30;
  Frames(90);
  host.Key(27);
  Frames(1);
  ASSERT_EQ(TopScreen(), Screen::Menu);
  const double range = G.FightRange;
  const auto rack = G.WeaponRack;
  const int hull = G.EnemyHull;
  host.Click(300, BandY(2));
  Frames(2);
  EXPECT_EQ(TopScreen(), Screen::Fight);
  EXPECT_EQ(G.FightActive, True);
  EXPECT_EQ(G.BridgeActive, False);
  EXPECT_NEAR(G.FightRange, range, 0.2);  // one fight frame since
  EXPECT_EQ(G.WeaponRack, rack);
  EXPECT_EQ(G.EnemyHull, hull);
}

TEST_F(FightTest, LoadFromTheMenuInMidFightLeavesNoFightClockBehind) {
  Fight(3);
  host.Key(27);
  Frames(1);
  host.Click(300, BandY(3));
  Frames(2);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
  EXPECT_EQ(G.FightActive, False);
  EXPECT_EQ(G.Timer2Enabled, False);
  EXPECT_EQ(G.Timer1Enabled, True);
}

}  // namespace
}  // namespace lf::test
