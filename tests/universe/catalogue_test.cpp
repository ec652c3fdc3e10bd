#include <gtest/gtest.h>

#include "shell/game_state.h"
#include "universe/catalogue.h"
#include "universe/new_game.h"

namespace lf {
namespace {

class Catalogue : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetGame();
    DefineShipSpecs();
  }
};

TEST_F(Catalogue, HullsExistOnlyWhereDefined) {
  int defined = 0;
  long long priceSum = 0;
  for (int race = 1; race <= 7; ++race)
    for (int cls = 1; cls <= 5; ++cls) {
      const HullRecord& h = G.Hull[race][cls];
      if (h.Name.empty()) {
        EXPECT_EQ(h.Price, 0);
        EXPECT_EQ(h.Hardpoints, 0);
        continue;
      }
      ++defined;
      priceSum += h.Price;
      EXPECT_LE(h.Hardpoints, 16);
    }
  EXPECT_EQ(defined, 19);
  EXPECT_EQ(priceSum, 656980);  // pirate hulls cost hundreds, not thousands
  EXPECT_EQ(G.Hull[4][1].Name, "");  // an undefined cell reads empty
  EXPECT_EQ(G.Hull[4][4].Name, "JAYSOON");
  EXPECT_EQ(G.Hull[4][4].Hardpoints, 16);
  EXPECT_EQ(G.Hull[7][2].Price, 360);
  EXPECT_EQ(G.Hull[6][2].CargoHold, 7000);
  EXPECT_EQ(G.HullClassName[3], "FRIGATE");
  EXPECT_EQ(G.HullClassName[5], "PIRATE");
}

TEST_F(Catalogue, ComponentsReadAsTextAndNumbers) {
  const int models[8] = {0, 11, 6, 11, 7, 8, 5, 10};
  for (int g = 1; g <= 7; ++g) {
    int named = 0;
    for (int m = 0; m <= 12; ++m) named += ComponentText(g, m, 1).empty() ? 0 : 1;
    EXPECT_EQ(named, models[g]) << "group " << g;
    // A model above the last reads empty cells.
    EXPECT_EQ(ComponentText(g, models[g] + 1, 1), "");
    EXPECT_EQ(ComponentValue(g, models[g] + 1, 3), 0);
  }
  EXPECT_EQ(ComponentText(1, 1, 1), "M-207 Phalanx");
  EXPECT_EQ(ComponentText(2, 6, 2), "Woot-Am Biotronic Computr");
  EXPECT_EQ(ComponentText(3, 9, 1), "JX-3 weasel");
  EXPECT_DOUBLE_EQ(ComponentValue(4, 3, 6), 0.12);
  EXPECT_EQ(ComponentValue(7, 10, 3), 8000);
  // Cells outside the table and groups 0, 8..10 read empty.
  EXPECT_EQ(ComponentText(11, 1, 1), "");
  EXPECT_EQ(ComponentValue(1, 99, 4), 0);
  EXPECT_EQ(ComponentValue(-1, 1, 4), 0);
  EXPECT_EQ(ComponentText(8, 1, 1), "");
}

TEST_F(Catalogue, LookupsTakeTheirColumnByGroup) {
  // Weight: column 4, but column 6 for sensors and 7 for shields.
  EXPECT_EQ(ComponentWeight(1, 7), 350);
  EXPECT_EQ(ComponentWeight(6, 1), 130);
  EXPECT_EQ(ComponentWeight(7, 1), 150);
  // Full health: column 6 for computers, engines and sensors.
  EXPECT_EQ(ComponentFullHealth(2, 2), 140);
  EXPECT_EQ(ComponentFullHealth(5, 5), 90);
  EXPECT_EQ(ComponentFullHealth(3, 8), 250);
  // Demand: the generator's is its output; launchers have none.
  EXPECT_EQ(ComponentPowerDemand(4, 6), 2400);
  EXPECT_EQ(ComponentPowerDemand(3, 3), 0);
  EXPECT_EQ(ComponentPowerDemand(7, 5), 650);
  EXPECT_EQ(ComponentPowerDemand(1, 1), 220);
  EXPECT_EQ(ComponentWeight(0, 1), 0);
  EXPECT_EQ(ComponentFullHealth(9, 1), 0);
}

TEST_F(Catalogue, HealthPercentFloorsAndFailsOnAnEmptySlot) {
  G.FittedComp[2][1] = 4;  // generator 1, full health 590
  G.FittedComp[2][2] = 1;
  G.FittedHealth[2] = 5.8;
  EXPECT_EQ(HealthPercent(2), 0);  // under 1%: still delivers its output
  G.FittedHealth[2] = 590;
  EXPECT_EQ(HealthPercent(2), 100);
  G.FittedHealth[2] = 589;
  EXPECT_EQ(HealthPercent(2), 99);
  EXPECT_THROW(HealthPercent(3), StatementFailed);   // group 0: division fails
  EXPECT_THROW(HealthPercent(21), StatementFailed);  // no such slot
  int shown = -1;
  Skip([&] { shown = HealthPercent(3); });
  EXPECT_EQ(shown, -1);
}

TEST_F(Catalogue, ShipClassesGiveRaceHullAndLoadout) {
  EXPECT_EQ(ClassHull(11).Name, "GOLEM");  // race 3 has no frigate
  EXPECT_EQ(ClassHull(19).Name, "ONE-EYE");
  EXPECT_EQ(ClassHull(17).Name, "WOOT-RABA");
  const int races[20] = {0, 1, 1, 1, 1, 7, 2, 2, 7, 3, 3, 3, 4, 4, 5, 5, 5, 6, 6, 7};
  int slotsTotal = 0;
  for (int c = 1; c <= 19; ++c) {
    SCOPED_TRACE("class " + std::to_string(c));
    const ShipClassInfo info = ClassInfo(c);
    EXPECT_EQ(info.Race, races[c]);
    EXPECT_EQ(G.ShipLoadout[c][0][1], info.HullClass);
    const HullRecord hull = ClassHull(c);
    ASSERT_FALSE(hull.Name.empty());
    int slots = 0;
    for (int s = 1; s <= 16; ++s) {
      const int group = G.ShipLoadout[c][s][1];
      if (group == 0) continue;
      ++slots;
      EXPECT_FALSE(ComponentText(group, G.ShipLoadout[c][s][2], 1).empty());
    }
    EXPECT_LE(slots, hull.Hardpoints);  // every loadout fits its hull
    slotsTotal += slots;
  }
  EXPECT_EQ(slotsTotal, 138);
  EXPECT_EQ(ClassInfo(5).Kind, ShipKind::Pirate);
  EXPECT_EQ(ClassInfo(10).Kind, ShipKind::Trader);
  EXPECT_EQ(ClassInfo(14).Kind, ShipKind::Scout);
  EXPECT_EQ(ClassInfo(13).Kind, ShipKind::Military);
  EXPECT_EQ(KindLabel(ClassInfo(8).Kind), "PIRAT");
  // Numbers outside 1..19 have no race, hull or kind.
  EXPECT_EQ(ClassInfo(40).Race, 0);
  EXPECT_EQ(ClassInfo(0).Kind, ShipKind::None);
  EXPECT_EQ(ClassHull(40).Name, "");
  EXPECT_EQ(RaceName(6), "WOOT-AM");
  EXPECT_EQ(RaceName(8), "");
  EXPECT_EQ(GradeName(5), "EXCELLENT");
}

}  // namespace
}  // namespace lf
