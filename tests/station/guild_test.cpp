// The guild halls: joining at and below each threshold, the member's list,
// the special equipment and its flags, the refusals by sound, and the
// bridge's panel of memberships.
#include <gtest/gtest.h>

#include <algorithm>

#include "media/media.h"
#include "shell/saved_games.h"
#include "station/guilds.h"
#include "screens_fixture.h"

namespace lf::test {
namespace {

class GuildTest : public StationScreenTest {
 protected:
  void Enter(int screen) {
    StationPage() = static_cast<std::int16_t>(screen);
    G.ServicePage = 0;
  }
  void Press(int x, int y) {
    PointAt(x, y);
    CheckGuildMouseDown(CurrentGuild());
  }
  void Line(int n) { Press(300, 70 + 14 * (n - 1) + 4); }
  void Item(int row) { Press(500, 270 + 15 * row + 4); }
  void Confirm() { Press(580, 377); }
  bool Heard(int s, int c) const {
    const auto& log = MediaLog();
    return std::find(log.begin(), log.end(), Sound(s, c)) != log.end();
  }
};

TEST_F(GuildTest, JoiningTakesTheThresholdAndTheFee) {
  Enter(6);  // exploration: 1000
  G.Reputation = 999;
  Line(1);
  EXPECT_EQ(G.ServicePage, 204);
  EXPECT_TRUE(Heard(8, 1));
  G.Reputation = 1000;
  Line(1);
  EXPECT_EQ(G.ServicePage, 1);
  G.Cash = 4999;
  Confirm();
  EXPECT_TRUE(Heard(13, 5));
  EXPECT_EQ(G.GuildMember[1], 0);
  G.Cash = 5000;
  Confirm();
  EXPECT_EQ(G.GuildMember[1], True);
  EXPECT_EQ(G.Cash, 0);
  EXPECT_EQ(G.ServicePage, 0);

  // A member's first line is blank and does nothing.
  Line(1);
  EXPECT_EQ(G.ServicePage, 0);

  Enter(8);  // mercenary: 9000
  G.Reputation = 8999;
  Line(1);
  EXPECT_EQ(G.ServicePage, 204);
  G.Reputation = 9000;
  Line(1);
  EXPECT_EQ(G.ServicePage, 1);
}

TEST_F(GuildTest, OnlyMembersSeeTheSpecialOffer) {
  Enter(7);
  Line(2);
  EXPECT_EQ(G.ServicePage, 201);
  EXPECT_TRUE(Heard(19, 1));
  G.GuildMember[2] = True;
  Line(2);
  EXPECT_EQ(G.ServicePage, 2);
}

TEST_F(GuildTest, EquipmentIsBoughtOnceAndSetsItsFlag) {
  Enter(7);
  G.GuildMember[2] = True;
  OwnHull(1, 1);
  const int hold = G.FreeCargo;
  Line(2);
  Item(1);  // the extra cargo container
  EXPECT_EQ(G.ServicePage, 301);
  G.Cash = 50000;
  Confirm();
  EXPECT_EQ(G.ExtraCargoContainer, True);
  EXPECT_EQ(G.FreeCargo, hold + 1000);
  EXPECT_EQ(G.Cash, 47000);
  EXPECT_EQ(G.ServicePage, 2);
  Item(1);  // owned: it cannot be chosen again
  EXPECT_EQ(G.ServicePage, 2);

  Item(3);  // the automatic repair unit, 10000
  G.Cash = 9999;
  Confirm();
  EXPECT_EQ(G.AutoRepairUnit, 0);
  EXPECT_TRUE(Heard(13, 5));
  G.Cash = 10000;
  Confirm();
  EXPECT_EQ(G.AutoRepairUnit, True);

  // The mercenaries' Rapier refuses on channel 6 when the purse is short.
  Enter(8);
  G.GuildMember[3] = True;
  Line(2);
  Item(3);
  EXPECT_EQ(G.ServicePage, 303);
  ClearMediaLog();
  G.Cash = 400;
  Confirm();
  EXPECT_TRUE(Heard(13, 6));
  EXPECT_EQ(G.RapierMissile, 0);
  G.Cash = 500;  // below the fee: the refusal sounds, and the missile is bought all the same
  Confirm();
  EXPECT_EQ(G.RapierMissile, True);
  EXPECT_EQ(G.Cash, 0);
}

TEST_F(GuildTest, ThePurseBelowTheFeeSoundsTheRefusalOnAnyPage) {
  Enter(6);
  G.Cash = 100;
  Confirm();
  EXPECT_TRUE(Heard(13, 5));
  EXPECT_EQ(G.Cash, 100);
}

TEST_F(GuildTest, CrewLinesAndTheExit) {
  Enter(6);
  G.CrewPost[2].Person = 7;
  Press(500, 70 + 24 + 4);
  EXPECT_EQ(G.ServicePage, 22);
  Press(500, 70 + 24 * 3 + 4);  // an empty post
  EXPECT_EQ(G.ServicePage, 22);
  Press(550, 440);
  EXPECT_EQ(StationPage(), 1);
  EXPECT_EQ(G.ServicePage, 0);
  EXPECT_EQ(G.ServiceMenuOpen, True);  // the halls end with the welcome
}

TEST_F(GuildTest, PressesAndDrawsAnywhereOnNonsenseNeverFail) {
  for (int screen = 5; screen <= 8; ++screen) {
    for (int page : {-7, 0, 1, 2, 5, 26, 29, 55, 109, 139, 150, 199, 204, 300, 306, 349, 32000}) {
      Enter(screen);
      G.ServicePage = static_cast<std::int16_t>(page);
      G.ChartKind = static_cast<std::int16_t>(page % 9);
      G.CurrentQuadrant = static_cast<std::int16_t>(page % 6);
      G.LoanDue = page * 1000;
      G.Cash = 3000;
      for (int y = 5; y < 480; y += 23)
        for (int x = 3; x < 640; x += 37) {
          PointAt(x, y);
          if (screen == 5) a_CheckMouseDown5();
          else CheckGuildMouseDown(screen - 5);
          StationPage() = static_cast<std::int16_t>(screen);
          EXPECT_GE(G.Cash, 0);
        }
      a_DrawFedText();
      a_DrawFedTrans();
      a_DrawFedLoan();
      a_DrawFedPayFine();
      a_DrawFedCharts();
      a_DrawFedStarLane();
      a_DrawGuildCrew();
      a_DrawGuildCrewMembers();
      a_DrawGuildSelection();
      a_DrawGuildMembership();
      DrawGuildMembership();
    }
  }
}

}  // namespace
}  // namespace lf::test

namespace lf::test {
namespace {

TEST_F(GuildTest, ANewGameForgetsLoansMembershipsAndEquipment) {
  G.LoanActive = True;
  G.LoanDue = 6000;
  G.LoanMonthsLeft = 2;
  G.ChartBought = True;
  G.GuildMember[3] = True;
  G.RapierMissile = True;
  G.TargetingComputer = True;
  G.BlackDecoder = True;
  G.ShrikeMissile = True;
  EraseInfo();
  EXPECT_EQ(G.LoanActive, 0);
  EXPECT_EQ(G.LoanDue, 0);
  EXPECT_EQ(G.LoanMonthsLeft, 0);
  EXPECT_EQ(G.ChartBought, 0);
  EXPECT_EQ(G.GuildMember[3], 0);
  EXPECT_EQ(G.RapierMissile, 0);
  EXPECT_EQ(G.TargetingComputer, 0);
  EXPECT_EQ(G.BlackDecoder, 0);
  EXPECT_EQ(G.ShrikeMissile, 0);
}

}  // namespace
}  // namespace lf::test
