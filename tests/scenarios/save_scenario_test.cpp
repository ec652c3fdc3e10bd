// Saving on the bridge and loading from the menu, played through the
// headless game: the loaded position matches the saved one on every field
// the files hold.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <nlohmann/json.hpp>

#include "support/scenario_folder.h"

#include "shell/save_layout.h"
#include "shell/save_store.h"
#include "shell/state_json.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

class SaveScenario : public lf::test::ScenarioFolderTest {
 protected:
  void SetUp() override {
    if (!HaveData()) GTEST_SKIP() << "the bridge needs the generated art";
    ScenarioFolderTest::SetUp();
  }
};

// The fields the sixteen files hold, whole or from entry 1 on, less those
// that the bridge frames run after the load move on at once: the view
// following the ship, the repair pool's recount, the bodies' animation and
// the other ships' courses.
const char* const kSavedWhole[] = {
    "CurrentQuadrant", "HullRace", "HullClass", "StoryStage", "TranslatorOwned", "ChartBought", "LoanActive",
    "LoanMonthsLeft", "LoanDue", "NextEventCountdown", "NextEventNumber", "NoGameRunning", "GuildMember",
    "ShipX", "ShipY", "ShipStepX", "ShipStepY", "BridgeActive", "StationActive", "EventActive", "ShowGrid",
    "DestX", "DestY", "RaceRelation", "Cash", "Reputation", "GameHours", "TimeStep",
    "StarLaneKnown", "NebulaCount", "AsteroidFieldCount", "PlanetCount", "PlanetNames", "StarLaneX",
    "StarLaneY", "BlackDecoder", "SecretCargo", "CountermeasureRack", "ComputerVirus", "ExtraCargoContainer",
    "VirusProtection", "AutoRepairUnit", "ElectronicCM", "ElectronicCCM", "RapierMissile", "DragonIonBeam",
    "ShrikeMissile", "TargetingComputer", "UpgradeJob", "CrewPost", "HasLander", "HullPointsMax",
    "HullPoints", "FreeMass", "HardpointCount", "FreeCargo", "FittedHealth", "AmmoLeft", "RepairCrew",
    "FittedComp", "MedicalPool", "TreatmentAlloc", "Cargo", "WeaponLevel", "WeaponSetting",
    "ShieldLevel", "ShieldSetting", "PropulsionLevel", "PropulsionSetting", "SensorLevel", "SensorSetting",
    "LifeSupportLevel", "LifeSupportSetting", "SparePower", "UnfittedComp", "Character", "OtherShipCount"};

void ExpectSameSavedFields(const json& saved, const json& loaded) {
  for (const char* key : kSavedWhole) EXPECT_EQ(saved[key], loaded[key]) << key;
  for (int i = 1; i <= 250; ++i) {
    json p = saved["Planet"][i], q = loaded["Planet"][i];
    p.erase("Frame");
    q.erase("Frame");
    EXPECT_EQ(p, q) << "body " << i;
    EXPECT_EQ(saved["Nebula"][i], loaded["Nebula"][i]) << "nebula " << i;
    EXPECT_EQ(saved["AsteroidField"][i], loaded["AsteroidField"][i]) << "asteroid field " << i;
  }
  for (int i = 1; i <= 50; ++i) {
    EXPECT_EQ(saved["Debris"][i], loaded["Debris"][i]) << "debris " << i;
    EXPECT_EQ(saved["CargoPod"][i], loaded["CargoPod"][i]) << "pod " << i;
  }
  for (int i = 1; i <= saved["OtherShipCount"].get<int>(); ++i) {
    json a = saved["OtherShip"][i], b = loaded["OtherShip"][i];
    for (const char* k : {"StepX", "StepY", "TargetX", "TargetY"}) {
      a.erase(k);
      b.erase(k);
    }
    EXPECT_EQ(a, b) << "ship " << i;
  }
  for (int p = 1; p <= 6; ++p)
    for (int b = 1; b <= 15; ++b)
      for (const char* k : {"Present", "Visible"})  // the frames set the states anew
        EXPECT_EQ(saved["BridgeButton"][p][b][k], loaded["BridgeButton"][p][b][k]) << p << "," << b << " " << k;
}

TEST_F(SaveScenario, SavedPositionComesBackThroughTheMenu) {
  ASSERT_EQ(Run("save_load.txt"), 0);
  EXPECT_EQ(Dump("no_position.json")["PromptLine"][2], "");
  EXPECT_EQ(Dump("no_position.json")["MessagePending"], 0);
  EXPECT_EQ(Dump("no_position.json")["BridgeActive"], -1);
  const json saved = Dump("saved.json");
  {
    // The position the game stood in, saved as the bridge's button does.
    auto game = std::make_unique<lf::Game>();
    json state = json::object();  // the record's fields, without the run's logs
    const auto known = lf::DumpState(*game);
    for (const auto& [key, value] : saved.items())
      if (known.contains(key)) state[key] = value;
    lf::RestoreState(*game, state);
    ASSERT_EQ(lf::StorePosition((dir / "save").string(), lf::WritePosition(*game)), "");
  }
  ASSERT_EQ(Run("load_menu.txt"), 0);
  const json fresh = Dump("new_game.json");
  EXPECT_EQ(fresh["StationActive"], -1);
  EXPECT_NE(fresh["Planet"], saved["Planet"]) << "the new game should lay out another quadrant";
  const json loaded = Dump("loaded.json");
  EXPECT_EQ(loaded["PromptLine"][2], "POSITION LOADED!");
  EXPECT_EQ(loaded["OrbitState"], 0);
  EXPECT_EQ(loaded["MenuActive"], 0);
  EXPECT_EQ(loaded["StationActive"], 0);
  ExpectSameSavedFields(saved, loaded);
  // One position: the sixteen files and nothing left of the swap.
  int files = 0;
  for (const auto& e : fs::directory_iterator(dir / "save")) files += e.path().extension() == ".sav";
  EXPECT_EQ(files, 16);
  EXPECT_FALSE(fs::exists(dir / "save.new"));
  EXPECT_FALSE(fs::exists(dir / "save.old"));
}

}  // namespace
