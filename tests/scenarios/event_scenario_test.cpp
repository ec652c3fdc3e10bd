// A story event played through the headless game: raised by a restored
// state, walked by clicks on its reply bands, ended, and dumped.
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

class EventScenario : public lf::test::ScenarioFolderTest {
};

TEST_F(EventScenario, ThePlagueStationIsWalkedByItsBandsToItsEnd) {
  ASSERT_EQ(Run("event_plague.txt"), 0) << Err();
  const json entered = Dump("entered.json");
  EXPECT_EQ(entered["EventActive"], -1);
  EXPECT_EQ(entered["BridgeActive"], 0);
  EXPECT_EQ(entered["EventScript"][2]["Node"], 1);
  EXPECT_EQ(entered["EventScript"][2]["Text"][1][1],
            "DURING ONE REGULAR VISIT TO THE SPACE STATION YOU FIND ONE THING VERY");

  EXPECT_EQ(Dump("node4.json")["EventScript"][2]["Node"], 4);
  EXPECT_EQ(Dump("node7.json")["EventScript"][2]["Node"], 7);

  // The medic's fate is drawn: the antidote and its gift, or his death.
  const json outcome = Dump("outcome.json");
  const int node = outcome["EventScript"][2]["Node"];
  ASSERT_TRUE(node == 8 || node == 9) << node;
  const json ended = Dump("ended.json");
  EXPECT_EQ(ended["EventActive"], 0);
  EXPECT_EQ(ended["BridgeActive"], -1);
  EXPECT_EQ(ended["StatusSlot"][20]["Active"], 0);
  EXPECT_EQ(ended["Reputation"], 500.0);
  EXPECT_EQ(ended["Cash"], node == 8 ? 7000.0 : 1000.0);
  EXPECT_EQ(ended["CrewPost"][4]["Person"], node == 8 ? 5 : 0);
  const json calls = ended["MediaCalls"];
  EXPECT_EQ(calls.back(), "track 4");
}

}  // namespace
