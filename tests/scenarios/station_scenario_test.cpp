// The station as a player meets it, through the headless game: the arrival,
// the refusals of the exit, the departure into orbit, and the exchange.
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

class StationScenario : public lf::test::ScenarioFolderTest {
};

TEST_F(StationScenario, ANewGameIsWelcomedThenRefusedInTurnUntilItsShipCanLeave) {
  ASSERT_EQ(Run("station_walk.txt"), 0) << Err();
  const json arrival = Dump("arrival.json");
  EXPECT_EQ(arrival["StationActive"], -1);
  EXPECT_EQ(arrival["StatusSlot"][12]["Value"], 1);
  EXPECT_EQ(arrival["TermPrompt"], 501);
  EXPECT_EQ(arrival["TermLine"][1].get<std::string>().rfind("DOCKER V", 0), 0u);
  EXPECT_EQ(arrival["TermLine"][7], "DOCKING PROCEDURE IN PROGRESS...");
  EXPECT_EQ(arrival["Timer1Enabled"], 0);
  // Typing: the first letters are on, the far ones still dark.
  EXPECT_GT(arrival["PromptFade"][4][1].get<double>(), 0);
  EXPECT_EQ(arrival["PromptFade"][4][30], 0);

  const json welcome = Dump("welcome.json");
  EXPECT_EQ(welcome["TermPrompt"], 0);
  EXPECT_EQ(welcome["ServiceMenuOpen"], -1);
  EXPECT_EQ(welcome["Cash"], 50000.0);

  EXPECT_EQ(Dump("no_crew.json")["TermPrompt"], 507);
  EXPECT_EQ(Dump("no_hull.json")["TermPrompt"], 508);
  EXPECT_EQ(Dump("no_generator.json")["TermPrompt"], 509);
  EXPECT_EQ(Dump("overfit.json")["TermPrompt"], 512);

  const json departed = Dump("departed.json");
  EXPECT_EQ(departed["StationActive"], 0);
  EXPECT_EQ(departed["BridgeActive"], -1);
  EXPECT_EQ(departed["StatusSlot"][12]["Active"], 0);
  EXPECT_EQ(departed["OrbitState"], 3);
  EXPECT_EQ(departed["OrbitOfferOpen"], -1);
  EXPECT_EQ(departed["Timer1Enabled"], -1);
  const json& buttons = departed["BridgeButton"];
  for (const auto& [p, b] : {std::pair{3, 1}, {3, 2}, {1, 6}, {4, 2}, {5, 1}, {2, 4}})
    EXPECT_EQ(buttons[p][b]["State"], 0) << p << "," << b;
  for (const auto& [p, b] : {std::pair{1, 1}, {2, 1}, {1, 9}}) EXPECT_EQ(buttons[p][b]["State"], 2) << p << "," << b;
  EXPECT_EQ(buttons[1][5]["Present"], 0);
  EXPECT_EQ(buttons[1][6]["Present"], -1);
  // The bridge runs on from there.
  EXPECT_EQ(Dump("bridge.json")["BridgeActive"], -1);
  EXPECT_GT(Dump("bridge.json")["Frame"].get<long>(), departed["Frame"].get<long>());
}

TEST_F(StationScenario, BuyingTenRunsOutOfMoneyThenRoomThenStock) {
  ASSERT_EQ(Run("station_trade.txt"), 0) << Err();
  const json open = Dump("exchange_open.json");
  EXPECT_EQ(open["StatusSlot"][12]["Value"], 3);

  auto row = [](const json& d) {
    return std::tuple{d["StationStock"][1]["Quantity"][1].get<int>(), d["Cargo"][1].get<int>(),
                      d["FreeCargo"].get<int>(), d["Cash"].get<double>()};
  };
  EXPECT_EQ(row(Dump("short_of_money.json")), std::tuple(26, 4, 46, 20.0));
  EXPECT_EQ(row(Dump("short_of_room.json")), std::tuple(23, 7, 0, 9939.0));
  EXPECT_EQ(row(Dump("short_of_stock.json")), std::tuple(0, 30, 77, 9439.0));
  EXPECT_EQ(row(Dump("no_stock_left.json")), std::tuple(0, 30, 77, 9439.0));
  EXPECT_EQ(Dump("back_at_terminal.json")["StatusSlot"][12]["Value"], 1);
}

TEST_F(StationScenario, ADamagedDockedStateKeepsTheLoopRunning) {
  ASSERT_EQ(Run("station_damaged.txt"), 0) << Err();
  const json d = Dump("damaged.json");
  EXPECT_EQ(d["StationActive"], -1);
  EXPECT_EQ(d["NoGameRunning"], 0);
  EXPECT_GE(d["Cash"].get<double>(), 0);
}

}  // namespace
