// The story told by reputation at each docking, and the missions' share of
// the saved state.
#include <gtest/gtest.h>

#include "missions_fixture.h"
#include "shell/saved_games.h"
#include "shell/state_json.h"

namespace lf::test {
namespace {

class StoryTest : public MissionsTest {
 protected:
  // Docks with clicks waiting for the pictures; returns how many pictures
  // waited for a press.
  int Dock(int clicksReady = 6) {
    for (int i = 0; i < clicksReady; ++i) host.Click(10, 10);
    host.yieldBudget = 200;
    a_CheckStoryPass();
    host.yieldBudget = -1;
    const int shown = clicksReady - static_cast<int>(host.batches.size());
    host.batches.clear();
    return shown;
  }
  static int Stages() {
    int n = 0;
    for (int s = 1; s <= 10; ++s) n += G.StoryStage[s] != 0 ? 1 : 0;
    return n;
  }
};

TEST_F(StoryTest, EachThresholdOpensItsStageOnceAtADocking) {
  G.Reputation = 2999;
  EXPECT_EQ(Dock(), 0);
  G.Reputation = 3000;
  EXPECT_EQ(Dock(), 1);
  EXPECT_EQ(G.StoryStage[1], True);
  EXPECT_EQ(Dock(), 0) << "a picture is never shown twice";
  for (double r : {7000.0, 13000.0, 19000.0}) {
    G.Reputation = r;
    EXPECT_EQ(Dock(), 1) << r;
  }
  EXPECT_EQ(G.StarLaneKnown, False);
  G.Reputation = 25000;
  EXPECT_EQ(Dock(), 1);
  EXPECT_EQ(G.StarLaneKnown, True);
  EXPECT_NE(G.StarLaneX, 0) << "the lane given is placed like the one the fleet office sells";
  G.Reputation = 100;
  EXPECT_EQ(Dock(), 0);
  EXPECT_EQ(Stages(), 5) << "stages only go forward";
}

TEST_F(StoryTest, OneLargeRiseShowsSeveralPicturesInARow) {
  G.Reputation = 13000;
  EXPECT_EQ(Dock(), 3);
  EXPECT_EQ(Stages(), 3);
}

TEST_F(StoryTest, ALaneAlreadyBoughtStaysWhereItIs) {
  G.StarLaneKnown = True;
  G.StarLaneX = 1234;
  G.StarLaneY = 2345;
  G.Reputation = 30000;
  Dock();
  EXPECT_EQ(G.StarLaneX, 1234);
  EXPECT_EQ(G.StarLaneY, 2345);
}

TEST_F(StoryTest, TheMissionsTravelThroughADumpAndANewGameClearsThePlaces) {
  G.MissionBoard[3][4] = 17;
  G.ActiveMission[2] = 42;
  G.MissionProgress[2] = 3;
  G.StoryStage[2] = True;
  G.Missions[42].NavY[3] = 777;
  const auto dumped = DumpState(G);
  const MissionsState before = G;
  ResetGame();
  RestoreState(G, dumped);
  EXPECT_EQ(G.MissionBoard, before.MissionBoard);
  EXPECT_EQ(G.ActiveMission[2], 42);
  EXPECT_EQ(G.MissionProgress[2], 3);
  EXPECT_EQ(G.Missions[42].NavY[3], 777);
  EXPECT_EQ(G.Missions[42].Title, before.Missions[42].Title);
  EXPECT_EQ(G.Missions[300].Reward, before.Missions[300].Reward);

  EraseInfo();
  EXPECT_EQ(G.ActiveMission[2], 0);
  EXPECT_EQ(G.MissionProgress[2], 0);
  EXPECT_EQ(G.StoryStage[2], False);
}

}  // namespace
}  // namespace lf::test
