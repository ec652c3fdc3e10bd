// Bad input on the officers' lists and in restored states: every shipboard
// procedure keeps running.
#include <limits>

#include "bridge/later_procedures.h"
#include "bridge_fixture.h"
#include "shell/screens.h"
#include "shell/state_json.h"

namespace lf::test {
namespace {

using ShipboardRobustnessTest = BridgeTest;

void EveryShipboardProcedure() {
  UpdateHealth();
  UpdateRepair();
  UpdateUpgrade();
  DrawTime();
  DrawMaintnanceList();
  DrawCargoList();
  DrawEngineerAdd();
  DrawUnfitted();
  DrawMedicalList();
  DrawQuarantineList();
  DrawCrewInfo();
  DrawResearchList();
  DrawSoftwareOnBoard();
  DrawShipStatus();
  CheckVirus();
  DrawScanResults();
}

TEST_F(ShipboardRobustnessTest, RestoredValuesBeyondTheirRangesKeepTheShipboardRunning) {
  for (int post = 1; post <= 6; ++post) Crew(post, post, 3);
  G.CrewPost[1].Health = 1e9;
  G.CrewPost[2].Health = -1e9;  // dies this frame
  G.CrewPost[3].Person = 500;   // beyond the characters
  G.CrewPost[4].Infected = 1;
  G.Character[5].Skill = 40;
  G.Character[6].Skill = -2;
  G.TreatmentAlloc[1] = 32000;
  G.MedicalPool = -32000;
  G.FittedHealth[1] = std::numeric_limits<double>::infinity();
  G.FittedHealth[2] = -1e300;
  G.RepairCrew[2] = 32000;
  G.RepairPool = 32000;
  G.FittedComp[3][2] = 99;  // a model beyond the catalogue
  G.UnfittedComp[1][1] = 12;
  G.UnfittedComp[2][1] = 1;
  G.UnfittedComp[2][2] = -7;
  G.UpgradeJob[5].Active = True;
  G.UpgradeJob[5].Progress = 1e308;
  G.UpgradeJob[9].Active = True;  // research on an empty slot
  G.Cargo[3] = -40;
  G.ActiveMission[1] = 900;
  G.HardpointCount = 40;
  G.PlanetCount = 900;
  G.Reputation = -1e12;
  G.Cash = std::numeric_limits<double>::quiet_NaN();
  G.HullPointsMax = -3;
  G.StarLaneKnown = 1;
  G.StarLaneX = -2000000000;
  G.VirusSpreadArmed = True;
  G.LoanActive = True;
  G.LoanMonthsLeft = -32768;
  G.StatusSlot[4].Active = True;
  G.StatusSlot[7].Active = True;
  G.StatusSlot[8].Active = True;
  for (double hours : {-1e9, 2.0, 1e18, 743.99, 744.0, 8760.0 * 400 + 24}) {
    G.GameHours = hours;
    G.MessagePending = False;
    EXPECT_NO_THROW(EveryShipboardProcedure()) << hours;
    EXPECT_NO_THROW(HandleShipEvent7());
    EXPECT_NO_THROW(HandleShipEvent8());
  }
}

TEST_F(ShipboardRobustnessTest, ClicksAnywhereOnTheShipboardListsNeverFail) {
  Crew(4, 4, 5);
  G.CrewPost[4].Infected = True;
  G.Cargo[5] = 12;
  G.UnfittedComp[4][1] = 3;
  G.RepairPool = -20;
  for (const auto& [page, button] : {std::pair{6, 1}, {6, 2}, {6, 3}, {6, 4}, {4, 1}, {4, 4}, {5, 2}, {5, 5},
                                     {5, 7}, {2, 6}}) {
    G.PageOpen = {};
    G.PageOpen[page] = 1;
    ButtonState(page, button) = 1;
    for (int x = 370; x <= 515; x += 3)
      for (int y = 270; y <= 410; y += 3) {
        PointAt(x, y);
        EXPECT_NO_THROW(CheckBridgeMouseDown(1));
      }
  }
}

TEST_F(ShipboardRobustnessTest, EveryNewVariableGoesThroughDumpAndRestore) {
  const nlohmann::json in = {{"UpgradeJob", {{"4", {{"Upgraded", -1}, {"Progress", 37.5}, {"Bonus", 0.5}}}}},
                             {"VirusSpreadArmed", -1},
                             {"LoanMonthMarked", -1},
                             {"LoanMonthsLeft", 3},
                             {"NewsDay", 17},
                             {"AutoRepairUnit", -1},
                             {"ShrikeMissile", -1},
                             {"StarLaneY", 4321},
                             {"ActiveMission", {{"2", 7}}},
                             {"Missions", {{"7", {{"MissionType", 26}}}}}};
  RestoreState(G, in);
  const auto out = DumpState(G);
  EXPECT_EQ(out["UpgradeJob"][4]["Progress"], 37.5);
  EXPECT_EQ(out["UpgradeJob"][4]["Bonus"], 0.5);
  EXPECT_EQ(out["VirusSpreadArmed"], -1);
  EXPECT_EQ(out["LoanMonthMarked"], -1);
  EXPECT_EQ(out["LoanMonthsLeft"], 3);
  EXPECT_EQ(out["NewsDay"], 17);
  EXPECT_EQ(out["AutoRepairUnit"], -1);
  EXPECT_EQ(out["ShrikeMissile"], -1);
  EXPECT_EQ(out["StarLaneY"], 4321);
  EXPECT_EQ(out["Missions"][G.ActiveMission[2]]["MissionType"], 26);
}

}  // namespace
}  // namespace lf::test
