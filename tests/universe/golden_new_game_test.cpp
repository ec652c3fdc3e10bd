// Golden new games: the universe a new game generates from a fixed seed,
// held against a stored copy, so that any change to the order or number of
// random draws shows (the range and count tests elsewhere would pass a
// reordered draw).
//
// Only the generated tables are compared, taken right after New has built
// them: bodies, station stocks, characters, other ships, nebulae, asteroid
// fields, debris and pods. A deliberate change to generation rewrites the
// stored copies with
//
//     LANEFARER_REWRITE_GOLDEN=1 ./build/debug/tests/lanefarer_tests --gtest_filter='GoldenNewGame*'
//
// and the diff of tests/universe/golden/ then shows what the change did.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <nlohmann/json.hpp>

#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/menu.h"
#include "shell/saved_games.h"
#include "shell/screens.h"
#include "shell/state_json.h"

namespace lf {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

fs::path Golden(std::uint64_t seed) {
  return fs::path(LANEFARER_SCENARIOS).parent_path() / "universe" / "golden" /
         ("new_game_seed_" + std::to_string(seed) + ".json");
}

// Rows 0..count of a table dumped as an array.
json Rows(const json& table, long long count) {
  json out = json::array();
  for (long long i = 0; i <= count && i < static_cast<long long>(table.size()); ++i) out.push_back(table[i]);
  return out;
}

// The generated tables of the game in the record.
json Universe() {
  const json all = json::parse(DumpState(G).dump());
  const long long bodies = all["PlanetCount"].get<long long>();
  json u;
  u["PlanetCount"] = bodies;
  u["Planet"] = Rows(all["Planet"], bodies);
  u["StationStock"] = Rows(all["StationStock"], bodies);
  u["StationPeople"] = Rows(all["StationPeople"], bodies);
  u["Character"] = all["Character"];
  u["OtherShipCount"] = all["OtherShipCount"];
  u["OtherShip"] = Rows(all["OtherShip"], all["OtherShipCount"].get<long long>());
  u["NebulaCount"] = all["NebulaCount"];
  u["Nebula"] = Rows(all["Nebula"], all["NebulaCount"].get<long long>());
  u["AsteroidFieldCount"] = all["AsteroidFieldCount"];
  u["AsteroidField"] = Rows(all["AsteroidField"], all["AsteroidFieldCount"].get<long long>());
  u["Debris"] = all["Debris"];
  u["CargoPod"] = all["CargoPod"];
  u["ShipX"] = all["ShipX"];
  u["ShipY"] = all["ShipY"];
  u["ChartKind"] = all["ChartKind"];
  return u;
}

// One key a line, and each row of a table on a line of its own, so that a
// change shows as the rows it touched.
std::string Text(const json& u) {
  std::string out = "{\n";
  bool firstKey = true;
  for (const auto& [key, value] : u.items()) {
    out += (firstKey ? " " : ",\n ") + json(key).dump() + ": ";
    firstKey = false;
    if (!value.is_array()) {
      out += value.dump();
      continue;
    }
    out += "[";
    for (std::size_t i = 0; i < value.size(); ++i) out += (i ? ",\n  " : "\n  ") + value[i].dump();
    out += "\n ]";
  }
  return out + "\n}\n";
}

class GoldenNewGame : public ::testing::TestWithParam<std::uint64_t> {
 protected:
  void SetUp() override {
    ResetGame();
    ResetScreens();
    SetHost(&host);
  }
  void TearDown() override {
    SetHost(nullptr);
    ResetScreens();
  }
  ScriptedHost host;
};

TEST_P(GoldenNewGame, GeneratesTheStoredUniverse) {
  host.seed = GetParam();
  // New as the menu runs it; a press takes the opening picture away.
  EraseInfo();
  host.Click(300, 300);
  try {
    StartNew();
  } catch (const ScreenChange&) {
  }
  const json now = Universe();
  const fs::path file = Golden(GetParam());

  if (std::getenv("LANEFARER_REWRITE_GOLDEN")) {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << Text(now);
    GTEST_SKIP() << "rewrote " << file;
  }
  std::ifstream in(file);
  ASSERT_TRUE(in) << file << " is missing: run with LANEFARER_REWRITE_GOLDEN=1 to write it";
  const json stored = json::parse(in);
  if (stored == now) return;
  const json diff = json::diff(stored, now);
  std::string first;
  for (std::size_t i = 0; i < diff.size() && i < 8; ++i) first += "\n  " + diff[i].dump();
  ADD_FAILURE() << diff.size() << " differences from " << file << ", the first:" << first;
}

INSTANTIATE_TEST_SUITE_P(Seeds, GoldenNewGame, ::testing::Values(1u, 5u, 2026u));

}  // namespace
}  // namespace lf
