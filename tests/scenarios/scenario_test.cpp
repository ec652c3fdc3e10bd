// Runs the game headless on the scripts beside this file and checks what
// their dumps and screenshots show.
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

class Scenario : public lf::test::ScenarioFolderTest {};

TEST_F(Scenario, NewGameWaitsOnTheOpeningPictureThenDocks) {
  ASSERT_EQ(Run("new_game.txt"), 0) << Text("err.txt");
  const json picture = Dump("picture.json");
  EXPECT_EQ(picture["MenuActive"], 0);
  EXPECT_EQ(picture["BridgeActive"], -1);
  EXPECT_EQ(picture["StationActive"], 0);  // still on the picture
  EXPECT_EQ(picture["ClickSeen"], 0);

  const json docked = Dump("docked.json");
  EXPECT_EQ(docked["StationActive"], -1);
  EXPECT_EQ(docked["BridgeActive"], 0);
  EXPECT_EQ(docked["StatusSlot"][12]["Active"], -1);
  EXPECT_EQ(docked["NoGameRunning"], 0);
  EXPECT_EQ(docked["Cash"], 50000.0);
  EXPECT_EQ(docked["CurrentQuadrant"], 1);
  EXPECT_GE(docked["PlanetCount"].get<int>(), 50);
  EXPECT_LE(docked["PlanetCount"].get<int>(), 70);
  EXPECT_EQ(docked["OrbitState"], 3);
  // The logo clip and the menu's music first, then New's press sound.
  const json calls = docked["MediaCalls"];
  ASSERT_GE(calls.size(), 3u);
  EXPECT_EQ(calls[0], "clip anim/tarvish.mpg");
  EXPECT_EQ(calls[1], "track 2");
  EXPECT_EQ(calls[2], "sound 4 1");
}

TEST_F(Scenario, SameSeedSameGameToTheByte) {
  ASSERT_EQ(Run("new_game.txt", "11"), 0);
  const std::string dump = Text("docked.json"), shot = Text("docked.png"), menu = Text("menu.png");
  ASSERT_EQ(Run("new_game.txt", "11"), 0);
  EXPECT_EQ(Text("docked.json"), dump);
  EXPECT_EQ(Text("docked.png"), shot);
  EXPECT_EQ(Text("menu.png"), menu);
  EXPECT_FALSE(menu.empty());
  ASSERT_EQ(Run("new_game.txt", "12"), 0);
  EXPECT_NE(Text("docked.json"), dump);  // another seed, another quadrant
}

TEST_F(Scenario, LoadBeforeAnyGameStartsOneWithoutThePictureAndEscapeResumes) {
  ASSERT_EQ(Run("load_before_game.txt"), 0) << Text("err.txt");
  const json ignored = Dump("resume_ignored.json");
  EXPECT_EQ(ignored["MenuActive"], -1);
  EXPECT_EQ(ignored["NoGameRunning"], -1);
  EXPECT_EQ(ignored["BridgeActive"], 0);
  EXPECT_EQ(ignored["MediaCalls"], json::parse(R"(["clip anim/tarvish.mpg", "track 2"])")) << "Resume is silent";

  const json loaded = Dump("loaded.json");
  EXPECT_EQ(loaded["MenuActive"], 0);
  EXPECT_EQ(loaded["LoadAfterStart"], 0);  // used by that start, and cleared
  EXPECT_EQ(loaded["BridgeActive"], -1);  // no click was needed: no picture
  EXPECT_EQ(loaded["StationActive"], 0);
  EXPECT_EQ(loaded["StatusSlot"][12]["Active"], 0);
  EXPECT_EQ(loaded["NoGameRunning"], 0);

  const json menu = Dump("menu_over_bridge.json");
  EXPECT_EQ(menu["MenuActive"], -1);
  EXPECT_EQ(menu["BridgeActive"], -1);

  const json resumed = Dump("resumed.json");
  EXPECT_EQ(resumed["MenuActive"], 0);
  EXPECT_EQ(resumed["BridgeActive"], -1);
  EXPECT_GT(resumed["Frame"].get<int>(), menu["Frame"].get<int>());
}

TEST_F(Scenario, SecondPageNeedsTwoOksAndAQuestionReplacesAMessage) {
  ASSERT_EQ(Run("second_page.txt"), 0) << Text("err.txt");
  const json first = Dump("first_ok.json");
  EXPECT_EQ(first["MessagePending"], -1);
  EXPECT_EQ(first["PromptLine"][1], "_SECOND PAGE");
  EXPECT_EQ(first["PromptLine"][4], "");

  const json second = Dump("second_ok.json");
  EXPECT_EQ(second["MessagePending"], 0);
  EXPECT_EQ(second["PromptLine"][1], "");

  const json question = Dump("question.json");
  EXPECT_EQ(question["QuestionPending"], -1);
  EXPECT_EQ(question["MessagePending"], 0);
  EXPECT_EQ(question["PromptLine"][2], "DO YOU WANT TO ENTER ORBIT?");
}

TEST_F(Scenario, AMissingDataFolderStillReachesTheMenu) {
  ASSERT_EQ(Run("idle_menu.txt", "5", "/nonexistent-lanefarer-data"), 0) << Text("err.txt");
  const json menu = Dump("menu.json");
  EXPECT_EQ(menu["MenuActive"], -1);
  EXPECT_EQ(menu["NoGameRunning"], -1);
  EXPECT_FALSE(Text("menu.png").empty());
}

TEST_F(Scenario, TheGeneratedDataHoldsEveryPictureAPlayThroughAsksFor) {
  if (!std::getenv("LANEFARER_TEST_DATA")) GTEST_SKIP() << "no generated data folder";
  {
    // Menu, a new game, the opening picture, the station hand-over; Load,
    // the bridge, each officer's page opened in turn.
    std::ofstream f(dir / "tour.txt");
    f << "frames 3\nclick 320 150\nframes 3\nclick 320 240\nframes 5\nkey 27\nframes 2\n"
         "click 320 270\nframes 5\n";
    for (const char* face : {"60 80", "60 200", "60 340", "580 80", "580 200", "580 340"})
      f << "click " << face << "\nframes 3\n";
    f << "dump tour.json\n";
  }
  ASSERT_EQ(Run("tour.txt", "5", Data(), "--verbose"), 0) << Text("err.txt");
  EXPECT_EQ(Text("err.txt").find("missing"), std::string::npos) << Text("err.txt");
  EXPECT_EQ(Text("err.txt").find("unreadable"), std::string::npos) << Text("err.txt");
  EXPECT_EQ(Dump("tour.json")["BridgeActive"], -1);
}

TEST_F(Scenario, BadScriptsAndCommandLinesEndWithStatusTwo) {
  {
    std::ofstream(dir / "bad.txt") << "frames 2\nfly 3 4\n";
  }
  EXPECT_EQ(Run("bad.txt"), 2);
  EXPECT_NE(Text("err.txt").find("script:2:"), std::string::npos) << Text("err.txt");
  {
    std::ofstream(dir / "bad_restore.txt") << "restore missing.json\n";
  }
  EXPECT_EQ(Run("bad_restore.txt"), 2);
  const std::string cmd = "'" LANEFARER_BINARY "' --no-such-option > /dev/null 2>&1";
  const int raw = std::system(cmd.c_str());
  EXPECT_EQ(WEXITSTATUS(raw), 2);
}

TEST_F(Scenario, AWholeFightFromTheAttackClickToVictoryAndBackToTheBridge) {
  ASSERT_EQ(Run("fight.txt"), 0) << Text("err.txt");
  const json start = Dump("start.json");
  EXPECT_EQ(start["FightActive"], -1);
  EXPECT_EQ(start["FightShip"], 1);
  EXPECT_EQ(start["FightHullClass"], 3);
  EXPECT_EQ(start["EnemyHull"], 2501);
  EXPECT_EQ(start["RaceRelation"][1], 30);  // the fight's cost in relations
  EXPECT_EQ(start["Timer1Enabled"], 0);
  EXPECT_EQ(start["Timer2Enabled"], -1);
  const json calls = start["MediaCalls"];
  EXPECT_EQ(calls[calls.size() - 2], "sound 2 1");
  EXPECT_EQ(calls.back(), "track 2");

  // Escape stops the fight's frames, not its clock; Resume goes on from there.
  const json menu = Dump("menu.json"), resumed = Dump("resumed.json");
  EXPECT_EQ(menu["MenuActive"], -1);
  EXPECT_EQ(resumed["MenuActive"], 0);
  EXPECT_EQ(resumed["FightActive"], -1);
  EXPECT_EQ(resumed["BridgeActive"], 0);
  EXPECT_GT(menu["FightRange"].get<double>(), 20.0);  // it closed in on the order
  EXPECT_NEAR(resumed["FightRange"].get<double>(), menu["FightRange"].get<double>(), 0.1);
  EXPECT_EQ(resumed["EnemyHull"], menu["EnemyHull"]);
  EXPECT_EQ(resumed["WeaponRack"], menu["WeaponRack"]);

  const json exploding = Dump("exploding.json");
  EXPECT_EQ(exploding["RapierMissile"], 0);
  EXPECT_EQ(exploding["EnemyHull"], 0);
  EXPECT_GT(exploding["AnimExplosion"].get<double>(), 0.0);
  EXPECT_EQ(exploding["FightLog"][1], "  .... VICTORY! .... VICTORY! .... VICTORY! ....");

  const json end = Dump("end.json");
  EXPECT_EQ(end["FightActive"], 0);
  EXPECT_EQ(end["BridgeActive"], -1);
  EXPECT_EQ(end["Reputation"], 1120.0);
  EXPECT_EQ(end["OtherShip"][1]["Free"], -1);
  EXPECT_EQ(end["Timer1Enabled"], -1);
  EXPECT_EQ(end["Timer2Enabled"], 0);
  int wrecks = 0;
  for (const json& d : end["Debris"]) wrecks += d["Visible"] == -1;
  EXPECT_EQ(wrecks, 1);
  EXPECT_NE(Text("missile.png"), Text("explosion.png"));
  EXPECT_FALSE(Text("end.png").empty());
}

}  // namespace
