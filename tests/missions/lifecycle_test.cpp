// A mission from its offer to its pay: the offer's tests, taking it, what
// it puts into the sector, progress on the bridge, declining, and the pay
// office of the arrival chain.
#include <gtest/gtest.h>

#include <cmath>

#include "missions_fixture.h"

namespace lf::test {
namespace {

class LifecycleTest : public MissionsTest {
 protected:
  void SetUp() override {
    MissionsTest::SetUp();
    G.FreeCargo = 5000;
    G.Reputation = 30000;  // rank 10: every offer is open
    G.GuildMember = {False, True, True, True};
    // A few pirates and guild ships to be drawn by the missions.
    G.OtherShipCount = 6;
    for (int i = 1; i <= 6; ++i) {
      G.OtherShip[i].ShipClass = static_cast<std::int16_t>(i <= 3 ? 5 : 2);
      G.OtherShip[i].X = G.OtherShip[i].Y = 3900;
      G.OtherShip[i].Free = True;
    }
  }
  // Takes a slot from line 1 of a board.
  static void Take(int board, int slot) {
    Offer(board, 1, slot);
    a_MissionSelection(board);
  }
  static MissionRecord& M(int slot) { return G.Missions[slot]; }
  static void ShipAt(double x, double y) {
    G.ShipX = x;
    G.ShipY = y;
  }
};

TEST_F(LifecycleTest, TheOfferRefusesInItsOrder) {
  const int slot = SlotOfType(38);  // mercenaries, rank 8
  G.GuildMember[3] = False;
  Offer(4, 1, slot);
  a_DrawGuildMissionDesc(4);
  EXPECT_EQ(G.ServicePage, 201) << "membership comes first";

  G.GuildMember[3] = True;
  G.Reputation = 16000 - 1;  // rank 7
  Offer(4, 1, slot);
  G.LoungeSelection = 5;
  a_DrawGuildMissionDesc(4);
  EXPECT_EQ(G.ServicePage, 203);
  EXPECT_EQ(G.LoungeSelection, 0);

  G.Reputation = 16000;
  Carry(1, SlotOfType(1));
  Carry(2, SlotOfType(2));
  Offer(4, 1, slot);
  a_DrawGuildMissionDesc(4);
  EXPECT_EQ(G.ServicePage, 200) << "a third mission is refused as soon as its line opens";
}

TEST_F(LifecycleTest, ThePiratesOffersAreOpenToEveryRank) {
  G.Reputation = 0;
  G.ShipX = 3500;
  G.ShipY = 500;
  const int slot = SlotOfType(101);
  Offer(5, 2, slot);
  a_DrawGuildMissionDesc(1);
  EXPECT_EQ(G.ServicePage, 101) << "the offer stays open";
  a_MissionSelection(1);
  EXPECT_EQ(G.ActiveMission[1], slot);
  EXPECT_EQ(G.MissionBoard[5][2], 0);
}

TEST_F(LifecycleTest, CargoRoomIsTestedAtTheConfirmAndExactRoomIsEnough) {
  const int slot = SlotOfType(3);
  G.FreeCargo = static_cast<std::int16_t>(M(slot).CargoUnits - 1);
  Offer(1, 4, slot);
  a_MissionSelection(1);
  EXPECT_EQ(G.ServicePage, 202);
  EXPECT_TRUE(Sounded(17, 4));
  EXPECT_EQ(G.ActiveMission[1], 0);
  EXPECT_EQ(G.MissionBoard[1][4], slot) << "nothing changes on a refusal";

  G.FreeCargo = M(slot).CargoUnits;
  Offer(1, 4, slot);
  a_MissionSelection(1);
  EXPECT_EQ(G.FreeCargo, 0);
  EXPECT_EQ(G.ActiveMission[1], slot);
  EXPECT_EQ(G.MissionBoard[1][4], 0);
  EXPECT_EQ(G.ServicePage, 0);
}

TEST_F(LifecycleTest, TheSameMissionOnTwoLinesLeavesOneWhenTaken) {
  const int slot = SlotOfType(13);
  G.MissionBoard[1][2] = static_cast<std::int16_t>(slot);
  Take(1, slot);
  EXPECT_EQ(G.MissionBoard[1][1], 0);
  EXPECT_EQ(G.MissionBoard[1][2], slot);
  Carry(1, slot, 1);
  Take(1, SlotOfType(14));
  EXPECT_EQ(G.ActiveMission[2], SlotOfType(14)) << "the second place takes it";
  EXPECT_EQ(G.MissionProgress[2], 0);
}

TEST_F(LifecycleTest, TakingAPodMissionPlacesThePodAndAPirateNearIt) {
  const int slot = SlotOfType(8);
  Take(1, slot);
  bool pod = false;
  for (int n = 1; n <= 50; ++n) pod = pod || (G.CargoPod[n].X == M(slot).TargetX && G.CargoPod[n].Y == M(slot).TargetY);
  EXPECT_TRUE(pod);
  int hunters = 0;
  for (int i = 1; i <= 3; ++i) {
    const OtherShipRecord& s = G.OtherShip[i];
    if (s.Free == False) {
      ++hunters;
      EXPECT_LE(std::abs(s.X - M(slot).TargetX), 50);
      EXPECT_LE(std::abs(s.Y - M(slot).TargetY), 50);
    }
  }
  EXPECT_EQ(hunters, 1);
  EXPECT_EQ(G.FreeCargo, 5000) << "a pod mission takes no room until its pod is aboard";
}

TEST_F(LifecycleTest, TheGuildMemberInDistressIsGuardedByGuildShips) {
  Take(4, SlotOfType(38));
  int moved = 0;
  for (int i = 4; i <= 6; ++i) moved += G.OtherShip[i].Free == False ? 1 : 0;
  EXPECT_GE(moved, 1);
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(G.OtherShip[i].Free, True) << "no pirate is drawn";
}

TEST_F(LifecycleTest, APatrolCountsEachNavPointWhenFlownThrough) {
  const int slot = SlotOfType(16);
  Carry(1, slot);
  ShipAt(M(slot).NavX[2] + 19, M(slot).NavY[2]);
  CheckPatrolPoint();
  EXPECT_EQ(G.MissionProgress[1], 2);
  CheckPatrolPoint();
  EXPECT_EQ(G.MissionProgress[1], 2) << "a point counts once";
  ShipAt(M(slot).NavX[1], M(slot).NavY[1] + 25);
  CheckPatrolPoint();
  EXPECT_EQ(G.MissionProgress[1], 2) << "25 away is not near";
  ShipAt(M(slot).NavX[1], M(slot).NavY[1]);
  CheckPatrolPoint();
  EXPECT_EQ(G.MissionProgress[1], 3);
  EXPECT_TRUE(MissionComplete(16, 3));
  EXPECT_FALSE(MissionComplete(16, 1));
}

TEST_F(LifecycleTest, ReachingADistressCallRaisesItsEventUntilDone) {
  const int slot = SlotOfType(18);
  Carry(2, slot);
  ShipAt(M(slot).TargetX, M(slot).TargetY);
  G.StatusSlot[DockedSlot].Active = True;
  CheckPatrolPoint();
  EXPECT_EQ(G.StatusSlot[EventSlot].Active, True);
  EXPECT_EQ(G.StatusSlot[EventSlot].Value, 17);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
  // The event's last node reports the arrival.
  G.StatusSlot[EventSlot].Active = False;
  CheckMission(6);
  EXPECT_EQ(G.MissionProgress[2], 1);
  CheckPatrolPoint();
  EXPECT_EQ(G.StatusSlot[EventSlot].Active, False) << "a finished mission raises nothing";
}

TEST_F(LifecycleTest, TwoMissionsAtOnePointAreMarkedOneAtATime) {
  const int a = SlotOfType(6);
  int b = a + 38;
  M(b).TargetX = M(a).TargetX;
  M(b).TargetY = M(a).TargetY;
  Carry(1, a);
  Carry(2, b);
  ShipAt(M(a).TargetX, M(a).TargetY);
  CheckMission(6);
  EXPECT_EQ(G.MissionProgress[1], 1);
  EXPECT_EQ(G.MissionProgress[2], 0);
}

TEST_F(LifecycleTest, PlanetScansAdvanceBothGoalsInEitherOrderAndBothPlaces) {
  const int slot = SlotOfType(11);
  M(slot).PlanetKind1 = 2;
  M(slot).PlanetKind2 = 3;
  const int other = SlotOfType(10);
  M(other).PlanetKind1 = 3;
  Carry(1, slot);
  Carry(2, other);
  ShipAt(1000, 1000);
  G.Planet[1].Type = 3;  // the second kind first
  CheckMission(2);
  EXPECT_EQ(G.MissionProgress[1], 2);
  EXPECT_EQ(G.MissionProgress[2], 1) << "one scan serves both places";
  EXPECT_EQ(G.PromptLine[5], "MISSION STATUS UPDATED!");
  G.Planet[1].Type = 2;
  CheckMission(2);
  EXPECT_EQ(G.MissionProgress[1], 3);
  ShipAt(10, 10);
  G.Planet[1].Type = 3;
  CheckMission(2);
  EXPECT_EQ(G.MissionProgress[2], 1) << "no planet under the ship, no change";
}

TEST_F(LifecycleTest, FieldScansCountOnlyInsideTheField) {
  Carry(1, SlotOfType(22));
  CheckMission(3);
  EXPECT_EQ(G.MissionProgress[1], 0);
  G.InAsteroids = True;
  CheckMission(3);
  EXPECT_EQ(G.MissionProgress[1], 1);
}

TEST_F(LifecycleTest, ATractoredPodCompletesItsMissionAndDrifftsAway) {
  const int slot = SlotOfType(9);
  Take(1, slot);
  ShipAt(M(slot).TargetX + 10, M(slot).TargetY);
  CheckMission(1);
  EXPECT_EQ(G.MissionProgress[1], 1);
  EXPECT_EQ(G.PromptLine[2], "WE HAVE SUCCESSFULLY TRACTORED THE CARGO!");
  for (int n = 1; n <= 50; ++n)
    EXPECT_FALSE(G.CargoPod[n].X == M(slot).TargetX && G.CargoPod[n].Y == M(slot).TargetY);
}

TEST_F(LifecycleTest, DecliningCostsAThirdUnlessTheMissionIsDone) {
  const int slot = SlotOfType(12);
  Carry(1, slot, 1);
  G.Cash = 1000;
  DeclineMission(1);
  EXPECT_EQ(G.ActiveMission[1], slot) << "progress 1 blocks the decline";
  EXPECT_EQ(G.PromptLine[1], "YOU HAVE ALREADY COMPLETED YOUR MISSION!");
  G.MissionProgress[1] = 2;
  PointAt(440, 390);
  CheckMissionDecline();
  EXPECT_EQ(G.ActiveMission[1], slot) << "the icon of place 2";
  PointAt(440, 330);
  CheckMissionDecline();
  EXPECT_EQ(G.ActiveMission[1], 0);
  EXPECT_EQ(G.MissionProgress[1], 0);
  EXPECT_EQ(G.Cash, std::floor(1000 - M(slot).Reward / 3.0));
  EXPECT_EQ(G.PromptLine[2], "YOU HAVE DECLINED THE MISSION!");
}

TEST_F(LifecycleTest, DecliningTradeGoodsGivesTheHoldBack) {
  const int slot = SlotOfType(1);
  Take(1, slot);
  EXPECT_EQ(G.FreeCargo, 5000 - M(slot).CargoUnits);
  DeclineMission(1);
  EXPECT_EQ(G.FreeCargo, 5000);
}

TEST_F(LifecycleTest, ADeliveryPaysExactlyAtItsDestination) {
  const int slot = SlotOfType(2);
  M(slot).TargetPlanet = 5;
  Take(1, slot);
  const double cash = G.Cash, reputation = G.Reputation;
  const int units = M(slot).CargoUnits;
  G.TermPrompt = 506;
  a_MissionCheck();
  EXPECT_EQ(G.Cash, cash) << "docked at planet 1, not the destination";
  EXPECT_EQ(G.ActiveMission[1], slot);

  G.ShipX = 500;
  G.ShipY = 3500;
  a_MissionCheck();
  EXPECT_EQ(G.Cash, cash + M(slot).Reward);
  EXPECT_EQ(G.Reputation, reputation + 80);
  EXPECT_EQ(G.FreeCargo, 5000);
  EXPECT_EQ(M(slot).CargoUnits, 0);
  EXPECT_GT(units, 0);
  EXPECT_EQ(G.ActiveMission[1], 0);
  EXPECT_EQ(G.TermPrompt, 510);
  EXPECT_EQ(G.TermLine[1], "WE THANK YOU FOR ACCOMPLISHING YOUR");
  EXPECT_EQ(G.TermLineCount, 3);
}

TEST_F(LifecycleTest, ATradeToTheStationOfAcceptanceIsPaidAtTheNextDockingThere) {
  const int slot = SlotOfType(1);
  M(slot).TargetPlanet = 1;
  Take(1, slot);
  a_MissionCheck();
  EXPECT_EQ(G.ActiveMission[1], 0);
}

TEST_F(LifecycleTest, ADestroyedTargetPaysAtTheNextDockingAnywhere) {
  const int slot = SlotOfType(19);
  Carry(1, slot);
  ShipAt(M(slot).TargetX + 100, M(slot).TargetY);
  MissionFightWon();
  EXPECT_EQ(G.MissionProgress[1], 1);
  const double cash = G.Cash;
  ShipAt(1000, 1000);
  a_MissionCheck();
  EXPECT_EQ(G.Cash, cash + 6000);
  EXPECT_EQ(G.ActiveMission[1], 0);
  EXPECT_EQ(G.MissionProgress[1], 1) << "the place keeps its progress until used again";

  Carry(2, SlotOfType(101));
  MissionFightWon();
  EXPECT_EQ(G.MissionProgress[2], 0) << "a fight far from the target counts for nothing";
}

TEST_F(LifecycleTest, NothingDueGoesStraightOnToTheLoan) {
  Carry(1, SlotOfType(11), 2);
  const double cash = G.Cash;
  G.TermPrompt = 506;
  a_MissionCheck();
  EXPECT_EQ(G.Cash, cash);
  EXPECT_NE(G.TermPrompt, 510);
  EXPECT_EQ(G.ActiveMission[1], SlotOfType(11));
}

TEST_F(LifecycleTest, DamagedTablesPayNothingAndNeverStop) {
  // A kind beyond the catalogue, a slot beyond the table, a negative reward.
  M(1).MissionType = 77;
  Carry(1, 1, 1);
  Carry(2, 900, 1);
  const double cash = G.Cash, reputation = G.Reputation;
  a_MissionCheck();
  EXPECT_EQ(G.Cash, cash);
  CheckPatrolPoint();
  CheckMission(6);
  DrawCurrentMissions();
  DrawMissionObjectives();
  DeclineMission(2);
  EXPECT_EQ(G.ActiveMission[2], 0) << "a place holding no mission is freed";
  EXPECT_EQ(G.Cash, cash);

  const int slot = SlotOfType(13);
  M(slot).Reward = -5000;
  M(slot).ReputationGain = -300;
  Carry(1, slot, 1);
  a_MissionCheck();
  EXPECT_EQ(G.Cash, cash);
  EXPECT_EQ(G.Reputation, reputation);
  EXPECT_EQ(G.ActiveMission[1], 0);

  const int trade = SlotOfType(1);
  M(trade).TargetPlanet = 600;
  Carry(1, trade);
  G.MissionBoard[1][3] = -4;
  G.MissionBoard[2][2] = 700;
  G.ServicePage = 102;
  a_DrawGuildMissions(1);
  a_DrawGuildMissionDesc(1);
  a_MissionSelection(1);
  a_MissionCheck();
  EXPECT_EQ(G.ActiveMission[1], trade) << "no planet of that number: never paid";
  EXPECT_EQ(G.ActiveMission[2], 0);
}

}  // namespace
}  // namespace lf::test
