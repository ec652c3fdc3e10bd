// The project's smoke test: the first voyage of a new captain, from the
// menu to a point in space, by clicks alone through the headless game.
#include <gtest/gtest.h>

#include <cmath>
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

class FirstVoyage : public lf::test::ScenarioFolderTest {
};

// The one post that holds somebody, 0 if none or several.
int OnlyFilledPost(const json& state) {
  int found = 0;
  for (int post = 1; post <= 6; ++post) {
    if (state["CrewPost"][post]["Person"] == 0) continue;
    if (found != 0) return 0;
    found = post;
  }
  return found;
}

TEST_F(FirstVoyage, ANewCaptainBuysAShipHiresAnOfficerAndFlies) {
  ASSERT_EQ(Run("first_voyage.txt", "5"), 0) << Err();

  const json welcome = Dump("welcome.json");
  EXPECT_EQ(welcome["TermPrompt"], 0);
  EXPECT_EQ(welcome["ServiceMenuOpen"], -1);
  EXPECT_EQ(welcome["HullRace"], 0);

  EXPECT_EQ(Dump("dealer.json")["StatusSlot"][12]["Value"], 4);

  const json bought = Dump("bought.json");
  EXPECT_EQ(bought["HullRace"], 1);
  EXPECT_EQ(bought["HullClass"], 1);
  EXPECT_EQ(bought["HardpointCount"], 8);
  EXPECT_EQ(bought["FittedComp"][1], json::parse("[0, 4, 1]"));
  EXPECT_EQ(bought["FittedComp"][2], json::parse("[0, 5, 1]"));
  EXPECT_EQ(bought["Cash"], 50000.0 - 20000 - 5000 - 2000);
  EXPECT_EQ(bought["FreeMass"], 1000 - 200 - 400);

  const json lounge = Dump("lounge.json");
  EXPECT_EQ(lounge["StatusSlot"][12]["Value"], 2);
  const json hired = Dump("hired.json");
  const int post = OnlyFilledPost(hired);
  ASSERT_NE(post, 0);
  const int person = hired["CrewPost"][post]["Person"];
  EXPECT_EQ(hired["Character"][person]["Post"], post);
  EXPECT_EQ(hired["CrewPost"][post]["Health"], 90.0);
  EXPECT_EQ(hired["Cash"], bought["Cash"].get<double>() - 500 * post);

  const json departed = Dump("departed.json");
  EXPECT_EQ(departed["StationActive"], 0);
  EXPECT_EQ(departed["BridgeActive"], -1);
  EXPECT_EQ(departed["OrbitState"], 3);
  EXPECT_EQ(departed["CrewPost"][post]["Person"], person);

  EXPECT_EQ(Dump("left_orbit.json")["OrbitState"], 1);

  const json course = Dump("course.json");
  EXPECT_NE(course["DestX"], departed["ShipX"]);
  EXPECT_EQ(course["PropulsionSetting"], 198.0);

  const json arrived = Dump("arrived.json");
  const double x = arrived["ShipX"], y = arrived["ShipY"];
  const double dx = course["DestX"], dy = course["DestY"];
  EXPECT_LT(std::hypot(x - dx, y - dy), 6) << "the ship stops at the clicked point";
  EXPECT_GT(std::hypot(x - departed["ShipX"].get<double>(), y - departed["ShipY"].get<double>()), 50);
  EXPECT_EQ(arrived["ShipStepX"], 0.0);
  EXPECT_EQ(arrived["ShipStepY"], 0.0);
}

}  // namespace
