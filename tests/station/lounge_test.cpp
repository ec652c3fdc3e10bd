// The meeting lounge as a captain uses it: hiring into free and taken
// posts at the edge of the fee, dismissing, the list's layout, the news and
// the pirates' goods.
#include <gtest/gtest.h>

#include <vector>

#include "bridge/bridge_helpers.h"
#include "screens_fixture.h"

namespace lf::test {
namespace {

class LoungeTest : public StationScreenTest {
 protected:
  void SetUp() override {
    StationScreenTest::SetUp();
    OwnHull(1, 1);
    People({5, 13, 21});  // a communicator, a medical officer and an engineer
  }

  static void People(std::vector<int> rows) {
    G.StationPeople[1] = {};
    int place = 0;
    for (int r : rows) G.StationPeople[1][++place] = static_cast<std::int16_t>(r);
  }
  static std::vector<int> Waiting() {
    std::vector<int> out;
    for (int n = 1; n <= 10 && G.StationPeople[1][n] != 0; ++n) out.push_back(G.StationPeople[1][n]);
    return out;
  }

  void ListLine(int line) { PressLounge(300, 70 + 14 * (line - 1) + 4); }
  void CrewLine(int post) { PressLounge(500, 70 + 24 * (post - 1) + 4); }
  void Dismiss(int post) { PressLounge(440, 70 + 24 * (post - 1) + 4); }
  void Confirm() { PressLounge(580, 377); }
  void Hire(int line) {
    ListLine(line);
    ASSERT_EQ(G.LoungeSelection, line);
    Confirm();
  }
};

TEST_F(LoungeTest, HiringIntoAFreePostClosesTheListAndTheFeeMustStayBelowTheCash) {
  G.Cash = 1000;  // a communicator's fee is exactly 1000
  Hire(1);
  EXPECT_EQ(G.CrewPost[2].Person, 0);
  EXPECT_EQ(G.Cash, 1000);
  EXPECT_TRUE(MediaLog().size() == 1) << "the refusal on a free post is silent";
  EXPECT_EQ(G.LoungeSelection, 0);

  G.Cash = 1001;
  G.CrewPost[2].Health = 12;
  G.CrewPost[2].SalaryBalance = 2;
  ClearMediaLog();
  Hire(1);
  EXPECT_EQ(G.CrewPost[2].Person, 5);
  EXPECT_EQ(G.CrewPost[2].Health, 90);
  EXPECT_EQ(G.CrewPost[2].SalaryBalance, 0);
  EXPECT_EQ(G.Cash, 1);
  EXPECT_EQ(Waiting(), (std::vector<int>{13, 21}));
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(4, 1)}) << "the line's sound only";
  EXPECT_EQ(G.RepairPool, 8 * 40);
}

TEST_F(LoungeTest, HiringIntoATakenPostSwapsTheOfficersOnTheList) {
  for (int post = 1; post <= 6; ++post) G.CrewPost[post].Person = static_cast<std::int16_t>(24 + 4 * post - 3);  // Hagels
  G.CrewPost[4].Health = 40;
  G.Character[13].Skill = 5;
  Hire(2);  // the Human medical officer, 2000
  EXPECT_EQ(G.CrewPost[4].Person, 13);
  EXPECT_EQ(G.CrewPost[4].Health, 90);
  EXPECT_EQ(G.Cash, 48000);
  EXPECT_EQ(Waiting(), (std::vector<int>{5, 37, 21})) << "the former officer stands in the new one's place";
  EXPECT_EQ(G.MedicalPool, CInt(600 / 1.1));

  G.Cash = 3000;  // an engineer's fee, not below it
  ClearMediaLog();
  Hire(3);
  EXPECT_EQ(G.CrewPost[6].Person, 45);
  EXPECT_EQ(MediaLog().back(), Sound(13, 5));

  G.Cash = 10000;
  Hire(2);  // and he can be hired back for the fee
  EXPECT_EQ(G.CrewPost[4].Person, 37);
  EXPECT_EQ(G.Cash, 8000);
}

TEST_F(LoungeTest, HiredOfficersCountOnTheBridge) {
  G.Character[21].Skill = 4;
  G.BridgeButton[5][2].State = 2;
  EXPECT_EQ(OfficerSkill(6), 0);
  Hire(3);
  EXPECT_EQ(OfficerSkill(6), 4);
  People({17});  // a science officer frees the science page's button 2
  Hire(1);
  EXPECT_EQ(G.BridgeButton[5][2].State, 0);
}

TEST_F(LoungeTest, DismissingSendsTheOfficerToAWorldOfTheStationsRaceWithoutAStation) {
  G.CrewPost[1].Person = 2;
  G.CrewPost[1].Health = 77;
  G.StationPeople[2] = {0, 9, 0};
  CrewLine(1);
  EXPECT_EQ(G.LoungeSelection, 21);
  ClearMediaLog();
  Dismiss(1);
  EXPECT_EQ(G.CrewPost[1].Person, 0);
  EXPECT_EQ(G.LoungeSelection, 0);
  EXPECT_EQ(G.StationPeople[2][2], 2) << "body 2 is the only Human world without a station";
  EXPECT_EQ(Waiting(), (std::vector<int>{5, 13, 21})) << "not back on this station's list";
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(2, 1)});

  G.Planet[2].HasStation = 1;  // no world to go to: he is simply gone
  G.CrewPost[3].Person = 10;
  Dismiss(3);
  EXPECT_EQ(G.CrewPost[3].Person, 0);
  Dismiss(3);  // an empty post has no button
  EXPECT_EQ(MediaLog().size(), 2u);
}

TEST_F(LoungeTest, TheNewsLineMovesDownAsTheListGrowsAndOnlyPiratesMakeAnOffer) {
  EXPECT_EQ(NewsLine(), 4);
  EXPECT_EQ(OfferLine(), 0);
  People({5, 13, 21, 29, 33});
  EXPECT_EQ(NewsLine(), 6);
  ListLine(6);
  EXPECT_EQ(G.LoungeSelection, 30);
  ListLine(7);
  EXPECT_EQ(G.LoungeSelection, 30) << "no offer at a lawful station";
  DockAt(7, 1);
  EXPECT_EQ(OfferLine(), 7);
  ListLine(7);
  EXPECT_EQ(G.LoungeSelection, 31);
  People({});
  EXPECT_EQ(NewsLine(), 1);
  ListLine(1);
  EXPECT_EQ(G.LoungeSelection, 30);
}

TEST_F(LoungeTest, TheNewsCyclesThroughSevenItemsAndEmptiesOldLines) {
  G.NewsIndex = 0;
  a_ChangeNewsText();
  EXPECT_EQ(G.NewsIndex, 1);
  EXPECT_EQ(G.PirateNews[6], "TO KNOW.");
  EXPECT_EQ(G.FederalNews[4], "");
  a_ChangeNewsText();
  EXPECT_EQ(G.PirateNews[4], "") << "a shorter item leaves no old line behind";
  EXPECT_EQ(G.FederalNews[2], "NAVIGATION INFORMATION INCLUDING  ALL PLANETS IN THE QUADRANT AROUND");
  for (int i = 0; i < 5; ++i) a_ChangeNewsText();
  EXPECT_EQ(G.NewsIndex, 7);
  a_ChangeNewsText();
  EXPECT_EQ(G.NewsIndex, 1);
}

TEST_F(LoungeTest, PirateGoodsAreBoughtOnceAndGreyedOut) {
  DockAt(7, 1);
  ListLine(OfferLine());
  ASSERT_EQ(G.LoungeSelection, 31);
  G.Cash = 6999;
  PressLounge(450, 285 + 4);  // the decoder, 7000
  EXPECT_EQ(G.LoungeSelection, 41);
  ClearMediaLog();
  Confirm();
  EXPECT_EQ(G.BlackDecoder, False);
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(13, 6)});
  G.Cash = 7000;
  Confirm();
  EXPECT_EQ(G.BlackDecoder, True);
  EXPECT_EQ(G.Cash, 0);
  EXPECT_EQ(G.LoungeSelection, 31);
  PressLounge(450, 285 + 4);
  EXPECT_EQ(G.LoungeSelection, 31) << "an owned good cannot be chosen again";
  PressLounge(450, 315 + 4);  // the biomissile, 1000
  ClearMediaLog();
  Confirm();
  EXPECT_EQ(G.ShrikeMissile, False);
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(13, 1)});
}

}  // namespace
}  // namespace lf::test
