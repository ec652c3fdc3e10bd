// The navigator's actions played through the headless game: a restored,
// fitted ship flies by the autopilot list, orbits and docks; docking is
// refused where it must be; the beam takes debris; the star lanes lead on
// and the last one ends the run.
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

class HelmScenario : public lf::test::ScenarioFolderTest {
 protected:
  void SetUp() override {
    if (!HaveData()) GTEST_SKIP() << "the voyage needs the generated quadrant art";
    ScenarioFolderTest::SetUp();
  }

  // The start of every script: the bridge after Load, the fitted ship, the
  // navigator's page open.
  static std::string OnTheBridge() {
    return "frames 3\nrestore one_officer.json\nclick 320 270\nframes 5\nrestore helm_ship.json\nframes 2\nclick 60 80\nframes 2\n";
  }
};

TEST_F(HelmScenario, TheAutopilotFliesToAStationOrbitsDocksDepartsAndDocksAtASecond) {
  ASSERT_EQ(Run("helm_voyage.txt"), 0) << Err();
  const json list = Dump("list.json");
  EXPECT_EQ(list["AutopilotCount"], 2);
  EXPECT_EQ(list["AutopilotList"][1], 5);
  EXPECT_EQ(list["AutopilotList"][2], 12);

  const json arrived = Dump("arrived.json");
  EXPECT_EQ(arrived["DestX"], 166.0) << "the destination is the body's centre";
  EXPECT_EQ(arrived["OrbitState"], 1);
  EXPECT_EQ(arrived["PromptLine"][2], "DO YOU WANT TO ENTER ORBIT?");

  const json orbit = Dump("orbit.json");
  EXPECT_EQ(orbit["OrbitState"], 3);
  EXPECT_EQ(orbit["BigDoorPos"], 200);
  EXPECT_NEAR(orbit["TimeStep"].get<double>(), 0.1 / 60, 1e-12);
  EXPECT_EQ(orbit["BridgeButton"][1][6]["Present"], -1) << "LEAVE ORBIT takes the place of ORBIT";

  const json clearance = Dump("clearance.json");
  EXPECT_EQ(clearance["PromptLine"][5], " DOCKING CLEARANCE GRANTED!");
  EXPECT_EQ(clearance["StatusSlot"][12]["Active"], -1);
  EXPECT_EQ(clearance["BridgeActive"], -1) << "the bridge waits for the message to be read";

  const json docked = Dump("docked.json");
  EXPECT_EQ(docked["StationActive"], -1);
  EXPECT_EQ(docked["BridgeActive"], 0);

  const json departed = Dump("departed.json");
  EXPECT_EQ(departed["BridgeActive"], -1);
  EXPECT_EQ(departed["StatusSlot"][12]["Active"], 0);
  EXPECT_EQ(departed["OrbitState"], 3) << "the ship leaves the station into orbit";
  const json left = Dump("left.json");
  EXPECT_EQ(left["OrbitState"], 1);
  EXPECT_EQ(left["DestX"], left["ShipX"]);

  const json second = Dump("second_arrival.json");
  EXPECT_EQ(second["DestX"], 548.0);
  EXPECT_EQ(second["PromptLine"][2], "DO YOU WANT TO ENTER ORBIT?");
  const json dock2 = Dump("second_dock.json");
  EXPECT_EQ(dock2["StationActive"], -1);
  EXPECT_LT(std::hypot(dock2["ShipX"].get<double>() - 548, dock2["ShipY"].get<double>() - 3370), 58);
}

TEST_F(HelmScenario, DockingIsRefusedWhereThereIsNoStationToDockWith) {
  // Each case: what is restored, then a press on DOCK, a dump, and OK.
  const char* cases[][2] = {
      {"{}", "space"},
      {R"({"CargoPod": {"7": {"X": 455, "Y": 3250}}})", "pod"},
      {R"({"CargoPod": {"7": {"X": 4000}}, "Debris": {"30": {"X": 445, "Y": 3252}}})", "debris"},
      {R"({"Debris": {"30": {"X": 4000}}, "ShipX": 530, "ShipY": 3350, "DestX": 530, "DestY": 3350})", "planet"},
      {R"({"ShipX": 1257, "ShipY": 3130, "DestX": 1257, "DestY": 3130})", "pirates"},
      {R"({"RaceRelation": {"3": 20}})", "outlaw"},
  };
  std::string script = OnTheBridge();
  for (const auto& [state, name] : cases) {
    Write(std::string(name) + ".json", state);
    script += std::string("restore ") + name + ".json\nframes 2\n";
    if (std::string(name) == "planet") script += "click 580 440\nframes 2\n";  // no orbit, thanks
    script += std::string("click 287 312\nframes 2\ndump ") + name + "_dock.json\nclick 580 440\nframes 2\n";
  }
  script += "click 580 440\nframes 3\ndump inside.json\n";
  Write("refusals.txt", script);
  ASSERT_EQ(Run("refusals.txt"), 0) << Err();

  EXPECT_EQ(Dump("space_dock.json")["PromptLine"][1], "THERE IS NOTHING TO DOCK ON IN");
  EXPECT_EQ(Dump("pod_dock.json")["PromptLine"][1], "NO REASON FOR DOCKING WITH THE CARGO");
  EXPECT_EQ(Dump("debris_dock.json")["PromptLine"][2], "WHEN WE CAN EASILY TRACTOR IT ABOARS!");
  const json planet = Dump("planet_dock.json");
  EXPECT_EQ(planet["OrbitState"], 1);
  EXPECT_EQ(planet["PromptLine"][2], "WE MUST ENTER ORBIT FIRST.");
  const json pirates = Dump("pirates_dock.json");
  EXPECT_EQ(pirates["PromptLine"][5], " YOU DO-GOODIES MAKE ME SICK!");
  EXPECT_EQ(pirates["StatusSlot"][12]["Active"], 0);
  EXPECT_EQ(pirates["BridgeButton"][1][5]["State"], 2) << "a pirate base has no orbit";
  const json outlaw = Dump("outlaw_dock.json");
  EXPECT_EQ(outlaw["PromptLine"][5], " ARGHH!! ENTER, FRIEND!");
  EXPECT_EQ(outlaw["OrbitState"], 1);
  EXPECT_EQ(Dump("inside.json")["StationActive"], -1);
}

TEST_F(HelmScenario, TheBeamTakesDebrisAndAFullHoldKeepsItInPlace) {
  Write("debris.json", R"({"Debris": {"30": {"X": 445, "Y": 3252, "Virus": 0}}})");
  Write("full.json", R"({"FreeCargo": 0, "FreeMass": 2000, "Debris": {"31": {"X": 455, "Y": 3248, "Virus": 0}}})");
  Write("beam.txt", OnTheBridge() +
                        "restore debris.json\nframes 2\nclick 226 376\nframes 2\ndump taken.json\n"
                        "click 580 440\nframes 2\nrestore full.json\nframes 2\nclick 226 376\nframes 2\n"
                        "dump full_hold.json\n");
  ASSERT_EQ(Run("beam.txt"), 0) << Err();
  const json taken = Dump("taken.json");
  EXPECT_EQ(taken["PromptLine"][2], "DEBRIS HAS BEEN SUCCESSFULY TRACTORED ABOARD.");
  EXPECT_NE(taken["Debris"][30]["X"], 445.0);
  EXPECT_NE(taken["UnfittedComp"][1][1], 0);
  EXPECT_LE(taken["FreeCargo"].get<int>(), 60);
  const json full = Dump("full_hold.json");
  EXPECT_EQ(full["Debris"][31]["X"], 455.0);
  EXPECT_NE(full["UnfittedComp"][2][1], 0) << "salvage still comes aboard";
  EXPECT_EQ(full["FreeCargo"], 0);
}

TEST_F(HelmScenario, LanesLeadIntoTheNextQuadrantAndTheFourthEndsTheRun) {
  Write("lane.json", R"({"StarLaneKnown": -1, "StarLaneX": 400, "StarLaneY": 3262, "Cargo": {"1": 7}})");
  Write("last.json", R"({"StarLaneKnown": -1, "StarLaneX": 455, "StarLaneY": 3250, "CurrentQuadrant": 4,
                           "ShipX": 450, "ShipY": 3250, "DestX": 450, "DestY": 3250})");
  Write("lanes.txt", OnTheBridge() +
                         "dump before.json\nrestore lane.json\nframes 2\ndump lane_seen.json\n"
                         "click 226 312\nframes 2\nclick 450 293\nframes 40\ndump q2.json\n"
                         "restore last.json\nframes 5\ndump never.json\n");
  ASSERT_EQ(Run("lanes.txt"), 0) << Err();
  const json before = Dump("before.json");
  const json q2 = Dump("q2.json");
  EXPECT_EQ(Dump("lane_seen.json")["CurrentQuadrant"], 1);
  EXPECT_EQ(q2["CurrentQuadrant"], 2);
  EXPECT_EQ(q2["StarLaneKnown"], 0);
  EXPECT_NEAR(q2["HullPoints"].get<double>(), 300 * 0.66, 1e-9);
  EXPECT_EQ(q2["Cargo"][1], 7);
  EXPECT_NE(q2["Planet"][1]["X"], before["Planet"][1]["X"]) << "a new quadrant was laid out";
  EXPECT_FALSE(fs::exists(dir / "never.json")) << "the last lane ends the program";
}

TEST_F(HelmScenario, RestoredNonsenseKeepsTheFrameRunning) {
  Write("bad.json", R"({"AutopilotTop": 900, "AutopilotCount": 5000, "AutopilotList": {"1": -4, "2": 9999},
    "StarLaneKnown": -1, "StarLaneX": -700, "StarLaneY": -2000000000, "CurrentQuadrant": 5,
    "Debris": {"1": {"X": -1e12, "Y": 7e9, "Visible": -1}}, "CargoPod": {"2": {"X": 1e300, "Y": -5}},
    "ShipFrame": -3, "StarLaneFrame": 1e9})");
  std::string script = OnTheBridge() + "restore bad.json\nclick 226 312\nframes 3\n";
  for (int x = 5; x < 640; x += 45)
    for (int y = 5; y < 480; y += 37) script += "click " + std::to_string(x) + " " + std::to_string(y) + "\nframes 1\n";
  script += "dump after.json\n";
  Write("bad.txt", script);
  ASSERT_EQ(Run("bad.txt"), 0) << Err();
  const json after = Dump("after.json");
  EXPECT_EQ(after["BridgeActive"], -1);
}

}  // namespace
