// Presses all over the boards of the lounge and the guilds, over dealt
// boards and over damaged ones: nothing stops, no money is made at a board,
// and only real missions are ever carried.
#include <gtest/gtest.h>

#include "missions_fixture.h"
#include "shell/state_json.h"

namespace lf::test {
namespace {

class BoardsRobustnessTest : public MissionsTest {
 protected:
  using Press = void (*)();
  void Sweep(int board, Press press) {
    static constexpr int kColumns[] = {5, 100, 245, 252, 300, 398, 402, 440, 500, 571, 580, 590, 620};
    for (int y = 2; y < 480; y += 5) {
      for (int x : kColumns) {
        const double cash = G.Cash;
        PointAt(x, y);
        ASSERT_NO_THROW(press()) << x << "," << y;
        ASSERT_NO_THROW(a_DrawGuildMissions(board)) << x << "," << y;
        if (G.ServicePage >= 100 && G.ServicePage <= 199) {
          ASSERT_NO_THROW(a_DrawGuildMissionDesc(board));
        }
        ASSERT_LE(G.Cash, cash) << "a board pays nothing";
        for (int place = 1; place <= 2; ++place)
          if (G.ActiveMission[place] != 0) {
            ASSERT_NE(MissionInPlace(place), nullptr) << x << "," << y;
          }
        // Free the places now and then so that later lines can be taken.
        if (G.ActiveMission[2] != 0) G.ActiveMission = {};
      }
    }
  }
  static void Restore(const char* json) { RestoreState(G, nlohmann::json::parse(json)); }
};

TEST_F(BoardsRobustnessTest, PressesOverDealtAndDamagedBoardsOfEveryScreen) {
  const char* states[] = {
      "{}",
      R"({"MissionBoard": {"1": [0, 500, -3, 32767, 381, 24], "2": [0, 901, 1, 2], "3": [0, 7, 7, 7], "4": [0, -1]},
          "ServicePage": 109})",
      R"({"Missions": {"1": {"MissionType": 999}, "2": {"MissionType": -4, "Guild": 2}, "39": {"TargetPlanet": 700}},
          "MissionBoard": {"1": [0, 1, 2, 39], "2": [0, 1, 2, 39]}, "FreeCargo": -5})",
      R"({"Planet": {"1": {"Race": 7}}, "ServicePage": 105, "MissionBoard": {"5": [0, 1, 2, 3, 0, 0, 0, 0, 0, 0, 400]}})",
  };
  for (int rank : {0, 4000, 30000}) {
    for (const char* state : states) {
      SCOPED_TRACE(state);
      G.Reputation = rank;
      G.GuildMember = {False, True, True, True};
      G.FreeCargo = 3000;
      a_StationMissionRandomize();
      Restore(state);
      StationPage() = 2;
      Sweep(IsPirateStation() ? 5 : 1, a_CheckMouseDown2);
      StationPage() = 6;
      Sweep(2, a_CheckMouseDown6);
      StationPage() = 7;
      Sweep(3, a_CheckMouseDown7);
      StationPage() = 8;
      Sweep(4, a_CheckMouseDown8);
      G.Planet[1].Race = 1;
      G.ServicePage = 0;
      G.ActiveMission = {};
    }
  }
}

}  // namespace
}  // namespace lf::test
