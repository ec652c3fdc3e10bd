#include <gtest/gtest.h>

#include "shell/state_json.h"

namespace lf {
namespace {

TEST(StateDump, UsesTheGameNamesWithTablesFromZero) {
  ResetGame();
  G.Cash = 50000;
  G.OrbitState = 3;
  G.StatusSlot[DockedSlot].Active = True;
  G.Planet[3].Width = 120;
  const auto j = DumpState(G);
  EXPECT_EQ(j["Cash"], 50000.0);
  EXPECT_EQ(j["OrbitState"], 3);
  ASSERT_EQ(j["StatusSlot"].size(), 31u);
  EXPECT_EQ(j["StatusSlot"][12]["Active"], -1);
  EXPECT_EQ(j["Planet"][3]["Width"], 120.0);
  EXPECT_EQ(j["PromptFade"].size(), 21u);
  EXPECT_EQ(j["PromptFade"][0].size(), 201u);
  EXPECT_TRUE(j.contains("Frame"));
}

TEST(StateRestore, MergesRowsByIndexAndRoundTrips) {
  ResetGame();
  G.Planet[2].Known = True;
  RestoreState(G, nlohmann::json::parse(R"({"Planet": {"3": {"Known": -1}}, "Cash": 12.5})"));
  EXPECT_EQ(G.Planet[3].Known, True);
  EXPECT_EQ(G.Planet[2].Known, True);  // untouched rows stay
  EXPECT_EQ(G.Cash, 12.5);
  const std::string first = DumpStateText(G);
  ResetGame();
  RestoreState(G, nlohmann::json::parse(first));
  EXPECT_EQ(DumpStateText(G), first);
}

TEST(StateRestore, BadInputIsRefusedAndChangesNothing) {
  ResetGame();
  G.Cash = 5;
  const char* bad[] = {
      R"({"Cash": 1, "NoSuchThing": 3})",
      R"({"Cash": 1, "OrbitState": 70000})",
      R"({"Cash": 1, "Planet": {"251": {"Known": -1}}})",
      R"({"Cash": 1, "Planet": {"x": {}}})",
      R"({"Cash": 1, "Planet": [{"Wide": 3}]})",
      R"({"Cash": "lots"})",
      R"({"Cash": 1, "StatusSlot": 4})",
      // Just past the 64-bit fields, written as reals.
      R"({"Cash": 1, "Frame": 9223372036854775808.0})",
      R"({"Cash": 1, "RandomState": 18446744073709551616.0})",
      R"({"Cash": 1, "RandomState": -1.0})",
  };
  for (const char* text : bad) {
    EXPECT_THROW(RestoreState(G, nlohmann::json::parse(text)), RestoreError) << text;
    EXPECT_EQ(G.Cash, 5) << text;
  }
}

}  // namespace
}  // namespace lf
