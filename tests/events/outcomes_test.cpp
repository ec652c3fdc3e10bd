// Walking the scripts by clicks on the reply bands: the money, crew and ship
// each node's row gives or takes, the rules by skill and chance, the lander,
// and the four ways out: the end, the loss of the game, the tow and a fight.
#include <gtest/gtest.h>

#include "event_fixture.h"

namespace lf::test {
namespace {

using Outcomes = EventTest;

TEST_F(Outcomes, ARefusedEventStillEndsWithItsReputationAndTheBridgeComesBack) {
  struct Refusal {
    int event, choice, reputation;
  };
  for (const Refusal& r : {Refusal{1, 2, 500}, Refusal{12, 2, 50}, Refusal{13, 2, 50}, Refusal{8, 2, 500}}) {
    SCOPED_TRACE("event " + std::to_string(r.event));
    G.Reputation = 100;
    Raise(r.event);
    ASSERT_TRUE(OnEventScreen());
    if (r.event == 8) {
      Choose(2);  // STEADY AS SHE GOES
      ASSERT_EQ(Node(8), 3);
      Choose(1);
    } else {
      Choose(r.choice);
    }
    EXPECT_TRUE(BackOnBridge());
    EXPECT_EQ(G.Reputation, 100 + r.reputation);
  }
  EXPECT_GE(Tracks(4), 4);
}

TEST_F(Outcomes, RewardsAndLossesOfTheClosingNodesAreAppliedExactlyOnce) {
  struct Row {
    int event, node, choice;
    double cash;
    void (*check)();
  };
  const Row rows[] = {
      {1, 12, 1, 5000, [] { EXPECT_EQ(G.HullPoints, 250); }},
      {1, 14, 1, 5000, [] { EXPECT_EQ(G.FittedHealth[4], 500); EXPECT_EQ(G.FittedHealth[5], 1000); }},
      {2, 8, 1, 6000, nullptr},
      {2, 14, 1, 6000, nullptr},
      {2, 16, 1, 6000, nullptr},
      {2, 9, 1, 0, [] { EXPECT_EQ(G.CrewPost[4].Person, 0); EXPECT_EQ(G.CrewPost[1].Person, 1); }},
      {2, 17, 1, 0, [] { EXPECT_EQ(G.CrewPost[4].Person, 0); EXPECT_EQ(G.CrewPost[1].Person, 0); }},
      {8, 8, 1, 10000, nullptr},
      {9, 9, 1, 6000, [] { EXPECT_EQ(G.CrewPost[1].Person, 0); }},
      {9, 10, 1, 10000, [] { EXPECT_EQ(G.CrewPost[1].Person, 1); }},
      {9, 11, 1, 10000, nullptr},
      {6, 6, 1, 0, [] {
         EXPECT_EQ(G.FittedComp[5][1], 0);
         EXPECT_EQ(G.FittedHealth[5], 1000);  // only the group goes
         EXPECT_EQ(G.FittedComp[4][1], 4);
       }},
      {6, 7, 1, 0, [] { EXPECT_EQ(G.FittedComp[4][1], 0); EXPECT_EQ(G.FittedComp[5][1], 0); }},
      {10, 16, 1, 0, [] { EXPECT_EQ(G.CrewPost[4].Person, 0); }},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE("event " + std::to_string(r.event) + " node " + std::to_string(r.node));
    G.HullPoints = 500;
    for (int i = 1; i <= 7; ++i) {
      G.FittedComp[i][1] = static_cast<std::int16_t>(i);
      G.FittedHealth[i] = 1000;
    }
    for (int p = 1; p <= 6; ++p) G.CrewPost[p].Person = static_cast<std::int16_t>(p);
    G.Cash = 1000;
    G.Reputation = 0;
    Raise(r.event);
    At(r.node);
    Choose(r.choice);
    EXPECT_TRUE(BackOnBridge());
    EXPECT_EQ(G.Cash, 1000 + r.cash);
    EXPECT_EQ(G.Reputation, 500);
    if (r.check) r.check();
  }
}

TEST_F(Outcomes, EffectsOfNodesThatLeadOnComeBeforeTheNextNode) {
  G.HasLander = True;
  Raise(10);
  At(2);
  Choose(1);  // DAMN!
  EXPECT_EQ(Node(10), 6);
  EXPECT_EQ(G.HasLander, False);

  G.FittedHealth[7] = 1000;
  At(9);
  Choose(3);  // abort: the shields paid for the landing all the same
  EXPECT_EQ(Node(10), 11);
  EXPECT_NEAR(G.FittedHealth[7], 700, 1e-9);

  Raise(11);
  At(11);
  G.CrewPost[5].Health = 80;
  Choose(1);
  EXPECT_EQ(Node(11), 8);
  EXPECT_EQ(G.CrewPost[5].Health, 40);
  At(7);
  Choose(2);
  EXPECT_EQ(Node(11), 9);
  EXPECT_EQ(G.CrewPost[5].Person, 0);

  // The pirates take every credit and all the cargo, but not the hold's space.
  Raise(4);
  G.Cash = 12345;
  G.FreeCargo = 17;
  for (int c = 1; c <= 14; ++c) G.Cargo[c] = static_cast<std::int16_t>(c);
  At(9);
  Choose(3);  // SURRENDER SHIP!
  ASSERT_EQ(Node(4), 13);
  Choose(1);
  EXPECT_TRUE(BackOnBridge());
  EXPECT_EQ(G.Cash, 0);
  for (int c = 1; c <= 14; ++c) EXPECT_EQ(G.Cargo[c], 0);
  EXPECT_EQ(G.FreeCargo, 17);
}

TEST_F(Outcomes, TheRescuedManJoinsAtHisPostWithLowHealthAndNoSalaryDisplacingWhoeverStoodThere) {
  for (int face : {1, 2}) {
    G.RescuedPerson = 30;
    G.Character[30].Post = 5;
    G.Character[30].Salary = 900;
    G.CrewPost[5].Person = 5;
    G.CrewPost[5].Health = 100;
    if (face == 1) {
      Raise(3);
      Choose(1);  // CONDUCT THE SWEEP
      Choose(2);  // tractor it in
      ASSERT_EQ(Node(3), 5);
      Choose(1);  // BRING HIM ON
      ASSERT_EQ(Node(3), 8);
    } else {
      Raise(10);
      At(17);
      Choose(1);
      ASSERT_EQ(Node(10), 18);
    }
    Choose(1);
    EXPECT_TRUE(BackOnBridge());
    EXPECT_EQ(G.CrewPost[5].Person, 30);
    EXPECT_EQ(G.CrewPost[5].Health, 15);
    EXPECT_EQ(G.Character[30].Salary, 0);
  }
  // A position without a hero draws one before he joins.
  G.RescuedPerson = 0;
  Raise(3);
  At(8);
  Choose(1);
  ASSERT_GE(G.RescuedPerson, 1);
  EXPECT_EQ(G.CrewPost[G.Character[G.RescuedPerson].Post].Person, G.RescuedPerson);
}

TEST_F(Outcomes, TheUnlinkedReplyOfThePodLeadsToTheTractorBeam) {
  Raise(3);
  At(7);
  Choose(2);  // YOU ARE RIGHT.
  EXPECT_EQ(Node(3), 5);
}

TEST_F(Outcomes, SkillRulesReadThePersonAtThePost) {
  struct Rule {
    int event, node, post, skill, next;
  };
  const Rule rules[] = {{1, 6, 6, 3, 9}, {1, 6, 6, 2, 8}, {2, 5, 4, 4, 7}, {2, 5, 4, 3, 10},
                        {7, 4, 6, 4, 7}, {7, 4, 6, 3, 6}, {1, 6, 6, 0, 8}};
  for (const Rule& r : rules) {
    SCOPED_TRACE("event " + std::to_string(r.event) + " skill " + std::to_string(r.skill));
    G.Character[r.post].Skill = static_cast<std::int16_t>(r.skill);
    if (r.skill == 0) G.CrewPost[r.post].Person = 0;  // nobody at the post
    Raise(r.event);
    At(r.node);
    Choose(1);
    EXPECT_EQ(Node(r.event), r.next);
  }
}

TEST_F(Outcomes, ChanceRulesSplitAsTheRowsSay) {
  struct Rule {
    int event, node;
    int pass;
    double share;
  };
  const Rule rules[] = {{1, 10, 12, 0.6}, {2, 7, 8, 0.8}, {2, 11, 14, 0.7}, {2, 12, 16, 0.7}, {16, 3, 5, 0.5}};
  for (const Rule& r : rules) {
    const NodeRule* row = FindNodeRule(r.event, r.node);
    ASSERT_NE(row, nullptr);
    int passed = 0;
    for (int i = 0; i < 4000; ++i) passed += DecideNext(r.event, row->reply[0], 0) == r.pass;
    EXPECT_NEAR(passed / 4000.0, r.share, 0.04) << "event " << r.event << " node " << r.node;
  }
  // The lander's trouble: a skilled navigator comes through one time in ten.
  const NodeRule* trouble = FindNodeRule(13, 3);
  G.Character[1].Skill = 2;
  for (int i = 0; i < 200; ++i) {
    G.CrewPost[1].Person = 1;
    ASSERT_EQ(DecideNext(13, trouble->reply[0], 0), 5);
  }
  G.Character[1].Skill = 3;
  int through = 0;
  for (int i = 0; i < 4000; ++i) {
    G.CrewPost[1].Person = 1;
    G.HasLander = True;
    const int next = DecideNext(13, trouble->reply[0], 0);
    through += next == 4;
    if (next == 5) EXPECT_TRUE(G.HasLander == False && G.CrewPost[1].Person == 0);
  }
  EXPECT_NEAR(through / 4000.0, 0.1, 0.02);
}

TEST_F(Outcomes, TheLanderMeetsAGasGiantAStationOrGoesDownForOre) {
  G.ShipX = 900;
  G.ShipY = 800;  // at planet 1
  G.LanderLoad = 37;
  struct Case {
    int type;
    double station;
    int next;
  };
  for (const Case& c : {Case{6, 0, 6}, Case{6, 1, 7}, Case{1, 1, 7}}) {
    G.Planet[1].Type = static_cast<std::int16_t>(c.type);
    G.Planet[1].HasStation = c.station;
    G.Reputation = 0;
    Raise(13);
    Choose(1);
    EXPECT_EQ(Node(13), c.next);
    Choose(1);
    EXPECT_TRUE(BackOnBridge());
    EXPECT_EQ(G.Reputation, 50);
  }
  G.Planet[1].Type = 1;
  G.Planet[1].HasStation = 0;
  int landed = 0;
  for (int i = 0; i < 60; ++i) {
    G.EventScript[13].Text[2][2] = "";
    host.seed = static_cast<std::uint64_t>(i);  // the launch reseeds from the clock
    Raise(13);
    Choose(1);
    ASSERT_TRUE(Node(13) == 2 || Node(13) == 3);
    if (Node(13) == 2) {
      ++landed;
      EXPECT_EQ(G.EventScript[13].Text[2][2], "RESULTED IN EXTRACTION OF 37 OF ORE.");
    } else {
      EXPECT_EQ(G.EventScript[13].Text[2][2], "");  // no ore line from this way
    }
    Choose(1);
  }
  EXPECT_GT(landed, 45);
  EXPECT_LT(landed, 60);
}

TEST_F(Outcomes, TheDistressCallTowsTheShipToTheNearestStationForItsPriceAndDocks) {
  for (double cash : {50000.0, 3000.0}) {
    ResetScreens();
    Enter(RunLoop);
    G.ShipX = G.ShipY = 2500;
    G.Cash = cash;
    G.Reputation = 0;
    Raise(12);
    Choose(1);
    EXPECT_EQ(Node(12), 2);
    Choose(1);
    EXPECT_EQ(Node(12), 4);
    Calls().clear();
    Choose(1);
    EXPECT_EQ(G.ShipX, 4000);  // planet 2 is nearer than planet 1
    EXPECT_EQ(G.ShipY, 4200);
    EXPECT_EQ(G.Cash, cash > 10000 ? cash - 10000 : 0);
    EXPECT_EQ(G.Reputation, 0);
    EXPECT_EQ(G.StatusSlot[EventSlot].Active, 0);
    EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True);
    Frames(1);
    EXPECT_TRUE(Called("a_EnteringStation"));
  }
}

TEST_F(Outcomes, ALostGameShowsTheMenuAndResumeHasNothingToGoBackTo) {
  struct Loss {
    int event, node, choice;
  };
  for (const Loss& l : {Loss{1, 5, 1}, Loss{1, 13, 1}, Loss{2, 15, 1}, Loss{5, 6, 1}, Loss{7, 3, 1},
                        Loss{7, 9, 1}, Loss{11, 9, 1}, Loss{12, 3, 1}}) {
    SCOPED_TRACE("event " + std::to_string(l.event) + " node " + std::to_string(l.node));
    ResetScreens();
    G.MenuActive = False;
    G.NoGameRunning = False;
    Enter(RunLoop);
    G.Reputation = 0;
    Raise(l.event);
    At(l.node);
    Choose(l.choice);
    ASSERT_EQ(TopScreen(), Screen::Menu);
    EXPECT_EQ(G.MenuActive, True);
    EXPECT_EQ(G.EventActive, 0);
    EXPECT_EQ(G.BridgeActive, 0);
    EXPECT_EQ(G.StatusSlot[EventSlot].Active, 0);
    EXPECT_EQ(G.Reputation, 0);
    host.Click(320, ::lf::test::BandY(2));  // Resume
    Frames(3);
    EXPECT_EQ(TopScreen(), Screen::Menu);
  }
}

TEST_F(Outcomes, FightsDrawTheirOpponentFromTheRowsClassesAndPayNoReputation) {
  G.OtherShipCount = 40;
  for (int s = 1; s <= 40; ++s) G.OtherShip[s].ShipClass = static_cast<std::int16_t>(1 + s % 19);
  struct Fight {
    int event, node;
    std::set<int> classes;
  };
  for (const Fight& f : {Fight{4, 7, {5, 8, 19}}, Fight{4, 12, {5, 8, 19}}, Fight{16, 6, {2, 10, 15, 17}},
                         Fight{16, 4, {2, 10, 15, 17}}, Fight{18, 4, {5, 8, 19}}}) {
    SCOPED_TRACE("event " + std::to_string(f.event) + " node " + std::to_string(f.node));
    ResetScreens();
    G.FightActive = False;
    Enter(RunLoop);
    G.Reputation = 0;
    Raise(f.event);
    At(f.node);
    Choose(1);
    ASSERT_EQ(TopScreen(), Screen::Fight);
    EXPECT_EQ(G.FightActive, True);
    EXPECT_TRUE(f.classes.count(G.OtherShip[G.FightShip].ShipClass));
    EXPECT_EQ(G.StatusSlot[EventSlot].Active, 0);
    EXPECT_EQ(G.EventActive, 0);
    EXPECT_EQ(G.Reputation, 0);
  }
  // A quadrant without such a ship: the event ends for the bridge.
  ResetScreens();
  G.FightActive = False;
  Enter(RunLoop);
  for (int s = 1; s <= 40; ++s) G.OtherShip[s].ShipClass = 1;
  Raise(18);
  At(4);
  Choose(1);
  EXPECT_TRUE(BackOnBridge());
  EXPECT_EQ(G.Reputation, 0);
}

TEST_F(Outcomes, TheJointAttackWalksToItsFight) {
  G.OtherShipCount = 3;
  G.OtherShip[1].ShipClass = 1;
  G.OtherShip[2].ShipClass = 19;
  G.OtherShip[3].ShipClass = 3;
  Raise(18);
  Choose(1);
  EXPECT_EQ(Node(18), 2);
  Choose(1);
  EXPECT_EQ(Node(18), 4);
  Choose(1);
  EXPECT_EQ(G.FightShip, 2);
}

}  // namespace
}  // namespace lf::test
