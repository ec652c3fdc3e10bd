// Missions as a player meets them, through the headless game: the lounge's
// board dealt at docking and an offer taken, a patrol point flown through,
// and the pay of a delivery and a won strike at the next docking.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "support/scenario_folder.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

class MissionsScenario : public lf::test::ScenarioFolderTest {
 protected:
  // A crewless new game on the bridge dies before its first restore (the
  // crew's loss ends the game): the flight scenarios cannot start then.
  static bool DiedBeforeTheRestore(const json& dump) { return dump["StatusSlot"][13]["Active"] == -1; }
};

TEST_F(MissionsScenario, TheLoungeBoardIsDealtAtDockingAndItsOffersObeyTheirTests) {
  ASSERT_EQ(Run("missions_board.txt"), 0) << Err();
  const json docked = Dump("docked.json");
  ASSERT_EQ(docked["Reputation"], 0.0);
  // Rank 1: the public board deals MinRank 1, 1, 2; the exploration guild
  // only its planet scan; no pirates' offer on a lawful board.
  const json& board = docked["MissionBoard"];
  int ranks[3] = {};
  for (int line = 1; line <= 3; ++line) {
    const json& m = docked["Missions"][board[1][line].get<int>()];
    ranks[line - 1] = m["MinRank"];
    EXPECT_EQ(m["Guild"], 1);
  }
  EXPECT_EQ(ranks[0], 1);
  EXPECT_EQ(ranks[1], 1);
  EXPECT_EQ(ranks[2], 2);
  EXPECT_EQ(board[1][4], 0);
  EXPECT_EQ(docked["Missions"][board[2][1].get<int>()]["MissionType"], 20);
  EXPECT_EQ(board[2][2], 0);

  // Line 2's goods do not fit the empty hold of a new game.
  EXPECT_EQ(Dump("offer.json")["ServicePage"], 101);
  const json noRoom = Dump("no_room.json");
  EXPECT_EQ(noRoom["ServicePage"], 202);
  EXPECT_EQ(noRoom["ActiveMission"][1], 0);

  // Line 1 is taken into the first place and leaves the board.
  const json accepted = Dump("accepted.json");
  EXPECT_EQ(accepted["ActiveMission"][1], board[1][1]);
  EXPECT_EQ(accepted["MissionBoard"][1][1], 0);
  EXPECT_EQ(accepted["ServicePage"], 0);
  // Line 3 asks for rank 2.
  const json second = Dump("second.json");
  EXPECT_EQ(second["ServicePage"], 203);
  EXPECT_EQ(second["ActiveMission"][2], 0);
}

TEST_F(MissionsScenario, APatrolPointCountsWhenTheShipFliesThroughIt) {
  ASSERT_EQ(Run("missions_patrol.txt"), 0) << Err();
  const json before = Dump("before.json");
  ASSERT_FALSE(DiedBeforeTheRestore(before)) << "the new game died with no crew before the ship was restored";
  EXPECT_EQ(before["MissionProgress"][1], 0);
  const json flown = Dump("flown.json");
  EXPECT_GT(flown["ShipX"].get<double>(), 500.0) << "the ship flew past the point at x 480";
  EXPECT_EQ(flown["MissionProgress"][1], 1);
  EXPECT_EQ(flown["MissionProgress"][2], 0) << "the strike is far away";
}

TEST_F(MissionsScenario, ADeliveryAndAWonStrikePayExactlyAtTheNextDocking) {
  ASSERT_EQ(Run("missions_pay.txt"), 0) << Err();
  const json docked = Dump("docked.json");
  ASSERT_FALSE(DiedBeforeTheRestore(docked)) << "the new game died with no crew before the ship was restored";
  ASSERT_EQ(docked["StationActive"], -1) << "the voyage never reached the station";
  EXPECT_EQ(docked["Cash"], 1000.0) << "nothing is paid before the chain reaches the missions";
  EXPECT_EQ(docked["ActiveMission"][2], 39);
  const int reward = docked["Missions"][39]["Reward"];
  const int units = docked["Missions"][39]["CargoUnits"];
  EXPECT_GT(units, 0);

  const json paid = Dump("ok1.json");
  EXPECT_EQ(paid["TermPrompt"], 510);
  EXPECT_EQ(paid["TermLine"][1], "WE THANK YOU FOR ACCOMPLISHING YOUR");
  EXPECT_EQ(paid["Cash"].get<double>(), 1000.0 + 6000 + reward);
  EXPECT_EQ(paid["Reputation"].get<double>(), 700.0 + 50);
  EXPECT_EQ(paid["FreeCargo"], units);
  EXPECT_EQ(paid["ActiveMission"][1], 0);
  EXPECT_EQ(paid["ActiveMission"][2], 0);
  EXPECT_EQ(paid["Missions"][39]["CargoUnits"], 0);

  const json welcome = Dump("ok2.json");
  EXPECT_EQ(welcome["TermPrompt"], 0);
  EXPECT_EQ(welcome["Cash"], paid["Cash"]) << "paid once";
}

}  // namespace
