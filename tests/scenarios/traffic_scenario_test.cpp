// Headless runs with other ships about: a trader's call, a greeting, a trade
// and the end of the link; and restored ship tables that make no sense.
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

class TrafficScenario : public lf::test::ScenarioFolderTest {
 protected:
  void SetUp() override {
    ScenarioFolderTest::SetUp();
    environment = "ASAN_OPTIONS=detect_leaks=0";
  }
};

TEST_F(TrafficScenario, AFriendlyTraderCallsIsGreetedTradesAndTheLinkCloses) {
  ASSERT_EQ(Run("trader_call.txt"), 0) << Err();
  const json called = Dump("called.json");
  EXPECT_EQ(called["HailedShip"], 1);
  EXPECT_EQ(called["OrbitState"], 5);
  EXPECT_EQ(called["PromptLine"][1], "HELLO, FRIENDLY TRAVELLER!");
  EXPECT_EQ(called["OtherShip"][1]["WantsTrade"], 0);
  EXPECT_EQ(called["PageOpen"][2], 1);

  // GREET: 70 + 1; TRADE GOODS: (71 + 10) x 31/30 = 83.7, so 84.
  const json open = Dump("trade_open.json");
  EXPECT_EQ(open["OrbitState"], 6);
  EXPECT_EQ(open["TradeOpen"], -1);
  EXPECT_EQ(open["RaceRelation"][1], 84);
  EXPECT_EQ(open["OtherShip"][1]["Greeted"], -1);
  EXPECT_EQ(open["MessagePending"], 0);
  EXPECT_GE(open["ShipOffer"][1], 0);
  const int offer = 40;  // restored before the purchase
  const double price = open["BasePrice"][1];

  // Ten bought, one sold back.
  const json traded = Dump("traded.json");
  EXPECT_EQ(traded["Cargo"][1], 9);
  EXPECT_EQ(traded["ShipOffer"][1], offer - 9);
  EXPECT_EQ(traded["FreeCargo"], 20 - 9);
  EXPECT_DOUBLE_EQ(traded["Cash"].get<double>(), 1000 - 9 * price);

  const json closed = Dump("closed.json");
  EXPECT_EQ(closed["OrbitState"], 0);
  EXPECT_EQ(closed["HailedShip"], 0);
  EXPECT_EQ(closed["TradeOpen"], 0);
  EXPECT_EQ(closed["OtherShip"][1]["Greeted"], 0);
  EXPECT_EQ(closed["Cargo"][1], 9);

  // No Lagew translator: the officer says so and no hail opens.
  const json refused = Dump("no_translator.json");
  EXPECT_EQ(refused["HailedShip"], 0);
  EXPECT_EQ(refused["PromptLine"][1], "I AM AFFRAID WE DO NOT HAVE THE TECHNICAL");

  // A Human scout hailed by a click: the friendly menu; data exchanged.
  const json hailed = Dump("hailed.json");
  EXPECT_EQ(hailed["HailedShip"], 4);
  EXPECT_EQ(hailed["OrbitState"], 6);
  EXPECT_EQ(hailed["HailLine"][2], "EXCHANGE INFO");
  const json exchanged = Dump("exchanged.json");
  EXPECT_EQ(exchanged["RaceRelation"][1], 87);  // 84 x 31/30 = 86.8
  EXPECT_EQ(exchanged["OtherShip"][4]["InfoGiven"], -1);
  EXPECT_EQ(exchanged["PromptLine"][5], " WERY WELL. HERE IS OUR DATA.");
  int known = 0;
  for (const json& body : exchanged["Planet"]) known += body["Known"] != 0;
  EXPECT_GE(known, 1);
  EXPECT_LE(known, 4);
}

TEST_F(TrafficScenario, AHostilePirateClosesInAndTheFightStartsWithin50) {
  ASSERT_EQ(Run("pirate_closing.txt"), 0) << Err();
  const auto distance = [](const json& d) {
    const json& s = d["OtherShip"][1];
    return std::hypot(s["X"].get<double>() - d["ShipX"].get<double>(),
                      s["Y"].get<double>() - d["ShipY"].get<double>());
  };
  const json closing = Dump("closing.json");
  EXPECT_EQ(closing["FightActive"], 0);
  EXPECT_GT(distance(closing), 50);
  // It heads for the player, not for home.
  EXPECT_EQ(closing["OtherShip"][1]["TargetX"], 2510);
  EXPECT_EQ(closing["OtherShip"][1]["TargetY"], 2506);
  const json fight = Dump("fight.json");
  EXPECT_NE(fight["FightActive"], 0);
  EXPECT_EQ(fight["FightShip"], 1);
  EXPECT_LT(distance(fight), 50);
}

TEST_F(TrafficScenario, NonsenseShipTablesKeepTheBridgeRunning) {
  ASSERT_EQ(Run("traffic_bad_input.txt"), 0) << Err();
  const json bad = Dump("bad.json");
  EXPECT_EQ(bad["BridgeActive"], -1);
  EXPECT_GT(bad["Frame"].get<int>(), 40);
}

}  // namespace
