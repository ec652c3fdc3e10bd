// Shipboard life played through the headless driver: a pay day short of
// cash, a repair, quarantine while the virus spreads, and the cure.
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

class ShipboardScenario : public lf::test::ScenarioFolderTest {
};

int InfectedCount(const json& state) {
  int n = 0;
  for (int post = 1; post <= 6; ++post)
    if (state["CrewPost"][post]["Person"] != 0 && state["CrewPost"][post]["Infected"] != 0) ++n;
  return n;
}

TEST_F(ShipboardScenario, AMonthTurnsARepairEndsAndAQuarantinedOfficerIsCured) {
  ASSERT_EQ(Run("shipboard.txt"), 0) << Err();

  // 1 FEB: the navigator is paid, the medical officer cannot be (the payments
  // stop there), the engineer is paid on the next frame with the last cash.
  const json payday = Dump("payday.json");
  EXPECT_EQ(payday["Cash"], 0.0);
  EXPECT_EQ(payday["CrewPost"][1]["SalaryBalance"], -1);
  EXPECT_EQ(payday["CrewPost"][4]["SalaryBalance"], 1);
  EXPECT_EQ(payday["CrewPost"][6]["SalaryBalance"], -1);
  EXPECT_EQ(payday["MessagePending"], -1);
  EXPECT_EQ(payday["PromptLine"][1], "YOU ARE UNABLE TO PAY SALARIES TO ALL OF YOUR CREW");
  EXPECT_GE(payday["GameHours"].get<double>(), 744);

  const json repaired = Dump("repaired.json");
  EXPECT_EQ(repaired["FittedHealth"][5], 120.0);
  EXPECT_EQ(repaired["RepairCrew"][5], 0);
  const double treated = repaired["CrewPost"][1]["Health"].get<double>();
  EXPECT_GT(treated, 80) << "treatment outruns the virus";

  const json quarantined = Dump("quarantined.json");
  EXPECT_EQ(quarantined["CrewPost"][1]["Quarantined"], -1);

  // 2 FEB, an even day: the virus spreads from the quarantined officer, whose
  // health has stood still.
  const json spread = Dump("spread.json");
  EXPECT_EQ(InfectedCount(spread), 2);
  EXPECT_EQ(spread["PromptLine"][2], "HAS BEEN INFECTED. MAYBE A QUARANTINE SEPARATION");
  EXPECT_EQ(spread["CrewPost"][1]["Health"], quarantined["CrewPost"][1]["Health"]);

  const json cured = Dump("cured.json");
  EXPECT_EQ(cured["CrewPost"][1]["Infected"], 0);
  EXPECT_EQ(cured["CrewPost"][1]["Quarantined"], 0);
  EXPECT_EQ(InfectedCount(cured), 1);
}

}  // namespace
