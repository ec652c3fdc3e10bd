// The catalogue made at a new game, and the boards dealt from it at each
// docking, rank by rank.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <vector>

#include "missions_fixture.h"

namespace lf::test {
namespace {

using CatalogueTest = MissionsTest;

TEST_F(CatalogueTest, SlotsHoldNineOfEachTypeAndThePiratesTypesInTheFirst38) {
  std::map<int, int> count;
  for (int s = 1; s <= 500; ++s) ++count[G.Missions[s].MissionType];
  EXPECT_EQ(count[100], 13);
  EXPECT_EQ(count[101], 13);
  EXPECT_EQ(count[102], 12);
  for (int t = 1; t <= 38; ++t) EXPECT_EQ(count[t], 9) << "type " << t;
  EXPECT_EQ(count[0], 120) << "slots 381..500 stay empty";
  for (int s = 1; s <= 380; ++s) {
    const MissionRecord& m = G.Missions[s];
    if (m.MissionType == 24) {
      EXPECT_EQ(m.Guild, 0);
      EXPECT_EQ(MissionInSlot(s), nullptr);
    } else {
      EXPECT_NE(MissionInSlot(s), nullptr) << "slot " << s;
      EXPECT_TRUE(m.Flavour == 1 || m.Flavour == 2);
    }
  }
}

TEST_F(CatalogueTest, TargetsObeyTheirDrawingRules) {
  for (int s = 1; s <= 380; ++s) {
    const MissionRecord& m = G.Missions[s];
    const data::MissionSpec* spec = data::FindMissionSpec(m.MissionType);
    if (spec == nullptr) continue;
    SCOPED_TRACE("slot " + std::to_string(s) + " type " + std::to_string(m.MissionType));
    using data::Target;
    if (spec->Where == Target::Dest || spec->Where == Target::DestNear) {
      const PlanetRecord& p = G.Planet[m.TargetPlanet];
      EXPECT_NE(p.HasStation, 0);
      EXPECT_NE(p.Race, 7) << "never a pirate station";
    }
    if (spec->Where == Target::Survey) {
      const PlanetRecord& p = G.Planet[m.TargetPlanet];
      EXPECT_EQ(p.HasStation, 0);
      EXPECT_NE(p.Type, 6);
      EXPECT_NE(p.Race, 7);
    }
    if (spec->Where == Target::Near || spec->Where == Target::DestNear) {
      // Drawn around the ship's starting place (2000, 2000).
      EXPECT_GT(std::abs(m.TargetX - 2000), 250);
      EXPECT_GT(std::abs(m.TargetY - 2000), 250);
      EXPECT_LE(std::abs(m.TargetX - 2000), 500);
      EXPECT_LE(std::abs(m.TargetY - 2000), 500);
    }
    if (spec->Where == Target::Nav3 || spec->Where == Target::Nav2)
      for (int n = 1; n <= (spec->Where == Target::Nav3 ? 3 : 2); ++n) {
        EXPECT_GE(m.NavX[n], 500);
        EXPECT_LT(m.NavX[n], 3500);
        EXPECT_GE(m.NavY[n], 500);
      }
    if (spec->Where == Target::Kinds) {
      EXPECT_NE(m.PlanetKind1, m.PlanetKind2);
      EXPECT_GE(m.PlanetKind2, 1);
    }
    if (spec->Where == Target::Kind1) {
      EXPECT_EQ(m.PlanetKind2, 0);
    }
  }
}

TEST_F(CatalogueTest, TradePayFollowsCargoAndBasePrice) {
  for (int s = 39; s <= 380; ++s) {
    const MissionRecord& m = G.Missions[s];
    const data::MissionSpec* spec = data::FindMissionSpec(m.MissionType);
    if (spec == nullptr || spec->CargoHi == 0) continue;
    EXPECT_GE(m.CargoUnits, spec->CargoLo);
    EXPECT_LE(m.CargoUnits, spec->CargoHi);
    EXPECT_EQ(m.Reward, static_cast<int>(std::nearbyint(m.CargoUnits * G.BasePrice[m.CommodityNo] * spec->PayFactor)));
    if (m.MissionType == 4) {
      EXPECT_EQ(m.Reward, m.CargoUnits * 60) << "commodity 8 at full price";
    }
  }
  EXPECT_GT(G.Missions[SlotOfType(35)].Reward, 0) << "the engagement names an amount of its own";
}

// The MinRank values dealt on each board at each rank, line by line.
struct RankRow {
  int Rank;
  std::vector<int> Board1, Board3, Board4;
};

std::vector<int> MinRanks(int board) {
  std::vector<int> out;
  for (int line = 1; line <= 10; ++line)
    if (G.MissionBoard[board][line] != 0) out.push_back(G.Missions[G.MissionBoard[board][line]].MinRank);
  return out;
}

TEST_F(CatalogueTest, EachRankDealsItsLinesFromTheRightGuilds) {
  const std::vector<RankRow> rows{
      {1, {1, 1, 2}, {4, 6}, {6, 8}},          {2, {1, 2, 2, 3}, {4, 6}, {6, 8}},
      {3, {2, 3, 3, 4}, {4, 6}, {6, 8}},       {4, {3, 4, 4, 5}, {4, 4, 4, 5}, {6, 8}},
      {5, {4, 5, 5, 5}, {4, 5, 5, 6}, {6, 8}}, {6, {5, 5}, {5, 6, 6, 6}, {6, 6, 6, 7}},
      {7, {5}, {6, 6}, {6, 7, 7, 8}},          {8, {5}, {4, 6}, {7, 8, 8, 8}},
      {9, {5}, {4, 6}, {8, 8}},                {10, {5}, {4, 6}, {6, 8}},
  };
  constexpr int kThreshold[] = {0, 1000, 2000, 4000, 6000, 9000, 13000, 16000, 21000, 30000};
  for (const RankRow& row : rows) {
    SCOPED_TRACE("rank " + std::to_string(row.Rank));
    G.Reputation = kThreshold[row.Rank - 1];
    ASSERT_EQ(MissionRank(G.Reputation), row.Rank);
    if (row.Rank > 1) {
      ASSERT_EQ(MissionRank(G.Reputation - 0.5), row.Rank - 1);
    }
    a_StationMissionRandomize();
    EXPECT_EQ(MinRanks(1), row.Board1);
    EXPECT_EQ(MinRanks(3), row.Board3);
    EXPECT_EQ(MinRanks(4), row.Board4);
    for (int b = 1; b <= 4; ++b)
      for (int line = 1; line <= 10; ++line) {
        const int slot = G.MissionBoard[b][line];
        if (slot == 0) continue;
        EXPECT_EQ(G.Missions[slot].Guild, b);
        EXPECT_LT(G.Missions[slot].MissionType, 100) << "the pirates' types never reach the lawful boards";
      }
    EXPECT_EQ(G.Missions[G.MissionBoard[2][1]].MissionType, 20);
    const std::size_t exploration = row.Rank == 3 ? 3 : 1;
    EXPECT_EQ(MinRanks(2).size(), exploration);
  }
}

TEST_F(CatalogueTest, APirateStationDealsOnlyThePiratesBoardAndTheScanLine) {
  G.Reputation = 5000;
  a_StationMissionRandomize();
  G.MissionBoard[5] = {};
  G.ShipX = 3500;
  G.ShipY = 500;
  a_StationMissionRandomize();
  for (int b : {1, 3, 4}) EXPECT_TRUE(MinRanks(b).empty()) << "board " << b;
  EXPECT_EQ(MinRanks(2).size(), 1u);
  for (int line = 1; line <= 3; ++line) EXPECT_GE(G.Missions[G.MissionBoard[5][line]].MissionType, 100);
  EXPECT_EQ(G.MissionBoard[5][4], 0);

  // Back at a lawful station board 5 is not cleared.
  const auto pirates = G.MissionBoard[5];
  G.ShipX = G.ShipY = 1000;
  a_StationMissionRandomize();
  EXPECT_EQ(G.MissionBoard[5], pirates);
}

TEST_F(CatalogueTest, TwoDockingsDealAnew) {
  G.Reputation = 2000;
  a_StationMissionRandomize();
  const auto first = G.MissionBoard;
  bool differs = false;
  for (int i = 0; i < 5 && !differs; ++i) {
    a_StationMissionRandomize();
    differs = !(G.MissionBoard == first);
  }
  EXPECT_TRUE(differs);
}

TEST_F(CatalogueTest, AnEmptiedCatalogueLeavesTheLinesEmptyAndTheDockingGoesOn) {
  for (int s = 1; s <= 500; ++s)
    if (G.Missions[s].MissionType != 20 && G.Missions[s].MissionType < 100) G.Missions[s] = {};
  a_StationMissionRandomize();
  EXPECT_TRUE(MinRanks(1).empty());
  EXPECT_EQ(MinRanks(2).size(), 1u);
}

}  // namespace
}  // namespace lf::test
