// The hail: the menu by kind and relation, the answers and what they do to
// the relation, the forced answers, breaking off, the ship scanner and the
// relation words; and clicks anywhere in any hail state.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "bridge/comms.h"
#include "bridge/later_procedures.h"
#include "bridge_fixture.h"
#include "shell/screens.h"

namespace lf::test {
namespace {

class HailTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 50;
    G.OtherShipCount = 3;
    Hail(1, 1);
  }

  // Ship row 1 of class c, hailed, the hail open.
  static OtherShipRecord& Hail(int c, int relation) {
    OtherShipRecord& s = G.OtherShip[1];
    s = OtherShipRecord{};
    s.ShipClass = static_cast<std::int16_t>(c);
    s.X = G.ShipX + 30;
    s.Y = G.ShipY;
    s.Free = True;
    G.RaceRelation[ClassInfo(c).Race] = static_cast<std::int16_t>(relation);
    G.HailedShip = 1;
    G.OrbitState = 6;
    G.TradeOpen = False;
    ButtonState(2, 8) = 1;
    ButtonState(2, 2) = 0;
    return s;
  }

  static std::int16_t& Relation() { return G.RaceRelation[ShipRaceOf(1)]; }

  std::vector<std::string> Menu() {
    DrawHailMessages();
    std::vector<std::string> lines;
    for (int n = 1; n <= 30 && !G.HailLine[n].empty(); ++n) lines.push_back(G.HailLine[n]);
    return lines;
  }

  // Clicks the menu line with this text (built afresh); false if absent.
  bool Choose(const std::string& text) {
    const std::vector<std::string> lines = Menu();
    for (std::size_t n = 1; n <= lines.size(); ++n) {
      if (lines[n - 1] != text) continue;
      PointAt(420, 286 + 11 * static_cast<int>(n) + 3);
      CheckHailSel();
      return true;
    }
    return false;
  }
};

using ::testing::ElementsAre;

TEST_F(HailTest, TheMenuFollowsKindAndRelationBands) {
  Hail(1, 34);
  EXPECT_THAT(Menu(), ElementsAre("EVADE"));
  EXPECT_EQ(ButtonState(2, 2), 2);
  Hail(1, 35);
  EXPECT_THAT(Menu(), ElementsAre("GREET", "TRADE INFO", "CLOSE HAIL"));
  Hail(1, 65);
  EXPECT_THAT(Menu(), ElementsAre("GREET", "TRADE INFO", "CLOSE HAIL"));
  Hail(1, 66);
  EXPECT_THAT(Menu(), ElementsAre("GREET", "EXCHANGE INFO", "TECHNICAL ASSIST", "CLOSE HAIL"));
  EXPECT_EQ(ButtonState(2, 2), 0);

  Hail(2, 34);
  EXPECT_THAT(Menu(), ElementsAre("THREAT", "CLOSE HAIL"));
  EXPECT_EQ(ButtonState(2, 2), 0);  // not a forced answer
  Hail(12, 0);
  EXPECT_THAT(Menu(), ElementsAre("PAY FINE"));
  Hail(8, 34);
  EXPECT_THAT(Menu(), ElementsAre("REDEEM"));
  // Beyond the scale: above 100 counts as 100, below 0 as 0.
  Hail(5, 250);
  EXPECT_THAT(Menu(), ElementsAre("GREET", "CLOSE HAIL"));
  Hail(5, -40);
  EXPECT_THAT(Menu(), ElementsAre("REDEEM"));
}

TEST_F(HailTest, LinesDoneLeaveTheMenu) {
  OtherShipRecord& s = Hail(6, 80);
  s.Greeted = s.InfoGiven = s.AssistGiven = True;
  EXPECT_THAT(Menu(), ElementsAre("CLOSE HAIL"));
  s.TradeInfoGiven = True;
  Hail(9, 50).TradeInfoGiven = True;
  EXPECT_THAT(Menu(), ElementsAre("GREET", "CLOSE HAIL"));
}

TEST_F(HailTest, GreetAddsOneAndClosingTheHailForgetsIt) {
  OtherShipRecord& s = Hail(1, 64);
  ASSERT_TRUE(Choose("GREET"));
  EXPECT_EQ(Relation(), 65);
  EXPECT_EQ(G.PromptLine[2], "GREETINGS!");
  EXPECT_EQ(G.PromptLine[4], "_");
  EXPECT_EQ(G.PromptLine[5], " HELLO CAPTAIN!");
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptFace, 2);
  EXPECT_THAT(MediaLog(), ::testing::Contains(Sound(4, 1)));
  EXPECT_FALSE(Choose("GREET"));

  ClearMediaLog();
  ASSERT_TRUE(Choose("CLOSE HAIL"));
  EXPECT_EQ(s.Greeted, False);
  EXPECT_EQ(G.OrbitState, 7);
  EXPECT_EQ(ButtonState(2, 1), 1);
  EXPECT_EQ(ButtonState(1, 1), 0);
  EXPECT_TRUE(G.HailLine[1].empty());
  EXPECT_THAT(MediaLog(), ::testing::Contains(MediaCall{MediaCall::Kind::Track, 4, 0, {}}));

  // The next hail of the same ship greets again, now as a friend.
  Hail(1, 65);
  ASSERT_TRUE(Choose("GREET"));
  EXPECT_EQ(Relation(), 66);
  EXPECT_EQ(G.PromptLine[2], "HELLO, FRIENDLY TRAVELLER!");
  Hail(3, 70);
  ASSERT_TRUE(Choose("GREET"));
  EXPECT_EQ(G.PromptLine[5], " THIS IS FEDERAL PATROL. HOW CAN WE BE OF SERVICE?");
  Hail(5, 50);
  ASSERT_TRUE(Choose("GREET"));
  EXPECT_EQ(G.PromptLine[5], " SAME TO YOU BUDDY!");
}

TEST_F(HailTest, RelationStepsRoundAndNeverWrapPast16Bits) {
  Hail(1, 50);
  ASSERT_TRUE(Choose("TRADE INFO"));
  EXPECT_EQ(Relation(), 57);  // 55 x 31/30 = 56.83
  EXPECT_EQ(G.OtherShip[1].TradeInfoGiven, True);

  Hail(2, 50);
  ASSERT_TRUE(Choose("BUY GOODS"));
  EXPECT_EQ(Relation(), 62);  // 60 x 31/30
  EXPECT_EQ(G.TradeOpen, True);

  Hail(6, 66);
  ASSERT_TRUE(Choose("EXCHANGE INFO"));
  EXPECT_EQ(Relation(), 68);  // 68.2
  EXPECT_EQ(G.PromptLine[5], " WERY WELL. HERE IS OUR DATA.");

  // Nothing caps the relation at 100, but it never wraps around.
  Hail(1, 32767);
  ASSERT_TRUE(Choose("GREET"));
  EXPECT_EQ(Relation(), 32767);
  Hail(1, 32000);
  ASSERT_TRUE(Choose("EXCHANGE INFO"));
  EXPECT_EQ(Relation(), 32000);  // 33066 does not fit
}

TEST_F(HailTest, AThreatenedTraderAt34EitherYieldsTo26OrFleesAt29) {
  bool yielded = false, fled = false;
  for (std::uint64_t seed = 1; seed <= 40 && !(yielded && fled); ++seed) {
    SeedRandom(G.Random, seed);
    OtherShipRecord& s = Hail(2, 34);
    const double x = s.X, y = s.Y;
    ASSERT_TRUE(Choose("THREAT"));
    EXPECT_EQ(G.OrbitState, 7);
    EXPECT_EQ(G.PromptLine[2], "DUMP YOUR CARGO OR ELSE...");
    if (G.HailedShip == 0) {
      fled = true;
      EXPECT_EQ(Relation(), 29);
      EXPECT_EQ(G.PromptLine[5], " NOT A CHANCE! THE LAW WILL DEAL WITH YOU!");
      EXPECT_TRUE(s.X != x || s.Y != y);
    } else {
      yielded = true;
      EXPECT_EQ(Relation(), 26);
      EXPECT_EQ(G.PromptLine[5], " OK. NO PROBLEM. DUMPING CARGO.");
      bool pod = false;
      for (int p = 1; p <= 50; ++p) pod |= G.CargoPod[p].X == x && G.CargoPod[p].Y == y;
      EXPECT_TRUE(pod);
    }
  }
  EXPECT_TRUE(yielded);
  EXPECT_TRUE(fled);
}

TEST_F(HailTest, FinesAreForcedUntaxedAndSetTheRelationTo36) {
  Hail(3, 0);
  G.Cash = 50;
  EXPECT_THAT(Menu(), ElementsAre("PAY FINE"));
  Butt_2_2();  // cannot break off a forced answer
  EXPECT_EQ(G.OrbitState, 6);
  ASSERT_TRUE(Choose("PAY FINE"));
  EXPECT_EQ(G.Cash, 50 - 105);
  EXPECT_EQ(Relation(), 36);
  EXPECT_EQ(ButtonState(2, 2), 0);
  EXPECT_EQ(G.PromptLine[2], "I WOULD LIKE TO PAY FOR MY CRIMES NOW.");
  EXPECT_EQ(G.PromptLine[5], " SMART CHOICE. 105 CREDITS WERE TAKEN FROM YOUR ACCOUNT!");

  Hail(5, 34);
  G.Cash = 1000;
  ASSERT_TRUE(Choose("REDEEM"));
  EXPECT_EQ(G.Cash, 997);
  EXPECT_EQ(Relation(), 36);
  EXPECT_EQ(G.PromptLine[2], "I WANT TO MAKE UP FOR THE MESS I CAUSED!");
  EXPECT_EQ(G.PromptLine[5], " RIGHT! I AM TAKING 3 CREDITS AWAY FROM YOU!");
}

TEST_F(HailTest, EvadeEndsTheHailAndOfferAssistanceRaisesEvent18) {
  Hail(14, 10);
  ASSERT_TRUE(Choose("EVADE"));
  EXPECT_EQ(G.HailedShip, 0);
  EXPECT_EQ(G.OrbitState, 7);
  EXPECT_EQ(G.PromptLine[5], " GOOD THINKING. RESUMING PRESENT COURSE.");

  Hail(7, 40);
  G.StatusSlot[DockedSlot].Active = True;
  ASSERT_TRUE(Choose("OFFER ASSISTANCE"));
  EXPECT_EQ(Relation(), 50);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
  EXPECT_EQ(G.StatusSlot[EventSlot].Active, True);
  EXPECT_EQ(G.StatusSlot[EventSlot].Value, 18);
}

TEST_F(HailTest, ExchangeInfoRevealsUpToFourBodiesAndEndsWhenAllAreKnown) {
  G.PlanetCount = 30;
  for (int i = 1; i <= 30; ++i) G.Planet[i].Known = i > 2 ? True : False;
  Hail(1, 80);
  ASSERT_TRUE(Choose("EXCHANGE INFO"));
  int known = 0;
  for (int i = 1; i <= 30; ++i) known += G.Planet[i].Known != 0;
  EXPECT_GE(known, 29);
  for (int round = 0; round < 3; ++round) {
    Hail(1, 80);
    ASSERT_TRUE(Choose("EXCHANGE INFO"));  // must not hang
  }
  for (int i = 1; i <= 30; ++i) EXPECT_EQ(G.Planet[i].Known, True);
}

TEST_F(HailTest, TechnicalAssistHalvesTheResearchLeftForItsPrice) {
  Hail(1, 90);
  ASSERT_TRUE(Choose("TECHNICAL ASSIST"));
  EXPECT_EQ(G.PromptLine[1], " PROVIDED YOUR SCIENTIST IS CURRENTLY NOT RESEARCHING");
  EXPECT_EQ(G.OtherShip[1].AssistGiven, False);

  G.UpgradeJob[4].Active = True;
  G.UpgradeJob[4].Progress = 40;
  G.Cash = 179;
  Hail(1, 90);
  ASSERT_TRUE(Choose("TECHNICAL ASSIST"));
  EXPECT_EQ(G.PromptLine[1], " WE ARE SORRY, BUT WE ARE UNABLE TO ASSIST YOU!");
  EXPECT_EQ(G.Cash, 179);

  G.Cash = 180;
  Hail(1, 90);
  ASSERT_TRUE(Choose("TECHNICAL ASSIST"));
  EXPECT_EQ(G.Cash, 0);
  EXPECT_EQ(G.UpgradeJob[4].Progress, 70);
  EXPECT_EQ(G.PromptLine[3], " WE HAVE ALSO TAKEN Š180 FOR COMPENSATION!");
  EXPECT_EQ(G.OtherShip[1].AssistGiven, True);
  EXPECT_EQ(Relation(), 90);
}

TEST_F(HailTest, BreakingOffClosesTheHailAndForgetsTheGreeting) {
  OtherShipRecord& s = Hail(2, 70);
  s.Greeted = True;
  G.TradeOpen = True;
  G.MessagePending = True;
  G.PromptLine[2] = "WHAT KIND OF COMMODITIES ARE YOU OFFERING?";
  Butt_2_2();
  EXPECT_EQ(G.OrbitState, 7);
  EXPECT_EQ(s.Greeted, False);
  EXPECT_EQ(G.TradeOpen, False);
  EXPECT_EQ(G.MessagePending, False);
  EXPECT_TRUE(G.PromptLine[2].empty());
  EXPECT_THAT(MediaLog(), ::testing::Contains(Sound(7, 1)));
}

TEST_F(HailTest, TheScannerMarksShipsInRangeAndReportsOnTheHailedOne) {
  G.OtherShip[2].ShipClass = 3;
  G.OtherShip[2].X = G.ShipX + 99;
  G.OtherShip[2].Y = G.ShipY;
  G.OtherShip[3].ShipClass = 3;
  G.OtherShip[3].X = G.ShipX + 101;
  G.OtherShip[3].Y = G.ShipY;

  G.SensorLevel = 99;
  Butt_2_4();
  EXPECT_EQ(G.PromptLine[2], "WE DO NOT HAVE ENOUGH POWER ALLOCATED TO THE SENSOR SYSTEMS!");
  EXPECT_EQ(G.OtherShip[2].Identified, False);

  G.SensorLevel = 100;
  const std::pair<int, const char*> bands[] = {
      {35, "SHIELDS UP, WEAPONS ARMED"}, {36, "SHIELDS UP, WEAPONS DISARMED"},
      {65, "SHIELDS UP, WEAPONS DISARMED"}, {66, "SHIELDS DOWN, WEAPONS DISARMED"}};
  for (const auto& [relation, words] : bands) {
    Hail(2, relation);
    Butt_2_4();
    EXPECT_EQ(G.PromptLine[1], "SCAN RESULTS SHOW:");
    EXPECT_EQ(G.PromptLine[2], "HUMAN TRADER");
    EXPECT_EQ(G.PromptLine[3], words);
  }
  EXPECT_EQ(G.OtherShip[1].Identified, True);
  EXPECT_EQ(G.OtherShip[2].Identified, True);
  EXPECT_EQ(G.OtherShip[3].Identified, False);

  // Outside a hail it only marks; in a nebula it sees nothing.
  G.HailedShip = 0;
  G.OtherShip[2].Identified = False;
  G.InNebula = True;
  G.PromptLine[1].clear();
  Butt_2_4();
  EXPECT_EQ(G.OtherShip[2].Identified, False);
  EXPECT_TRUE(G.PromptLine[1].empty());
}

TEST_F(HailTest, The35BoundaryReadsHostileOnDiplomacyAndNeutralInTheHail) {
  EXPECT_STREQ(DiplomacyWord(35), "HOSTILE");
  EXPECT_STREQ(HailRelationWord(35), "NEUTRAL");
  EXPECT_STREQ(DiplomacyWord(64), "NEUTRAL");
  EXPECT_STREQ(DiplomacyWord(65), "FRIENDLY");
  EXPECT_STREQ(HailRelationWord(65), "NEUTRAL");
  EXPECT_STREQ(HailRelationWord(19), "VERY HOSTILE");
  EXPECT_STREQ(HailRelationWord(20), "HOSTILE");
}

TEST_F(HailTest, ClicksAnywhereInEveryHailStateNeverFail) {
  struct State {
    int shipClass, relation, hailed, orbit;
    bool trade;
  };
  const State states[] = {
      {1, 10, 1, 6, false}, {2, 80, 1, 6, true},  {3, 0, 1, 6, false}, {5, 50, 1, 5, false},
      {2, 50, 1, 7, false}, {44, 50, 1, 6, false}, {2, 50, 700, 6, false}, {0, 50, 1, 6, true},
      {2, 50, -3, 6, true},
  };
  for (const State& st : states) {
    Hail(st.shipClass, st.relation);
    G.OtherShip[1].ShipClass = static_cast<std::int16_t>(st.shipClass);
    G.HailedShip = static_cast<std::int16_t>(st.hailed);
    G.OrbitState = static_cast<std::int16_t>(st.orbit);
    G.TradeOpen = st.trade ? True : False;
    G.PageOpen[2] = 1;
    for (int x = -5; x <= 645; x += 17)
      for (int y = 270; y <= 485; y += 6) {
        try {
          PointAt(x, y);
          DrawHailMessages();
          CheckBridgeMouseDown(1);
          DrawDiplomacy();
        } catch (const ScreenChange&) {
        }
      }
  }
  SUCCEED();
}

}  // namespace
}  // namespace lf::test
