#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

#include "generation_util.h"
#include "universe/catalogue.h"
#include "universe/other_ships.h"

namespace lf {
namespace {

constexpr int kSeeds = 300;

bool TypeAllowed(int race, int type) {
  static const std::set<int> kSets[7] = {
      {}, {2, 3, 4, 5, 7, 8}, {2, 3, 4}, {5, 8}, {1, 4, 7, 9, 10}, {1, 2}, {9, 10}};
  return kSets[race].count(type) > 0;
}

// Pictures a type may show (before the pirate bases take theirs).
bool PictureFitsType(int type, int picture, int size) {
  static const std::set<std::pair<int, int>> kByType[11] = {
      {},
      {{1, 1}, {2, 2}},
      {{15, 4}, {22, 3}},
      {{3, 2}, {4, 1}},
      {{16, 4}, {17, 3}, {18, 2}},
      {{13, 3}, {14, 2}},
      {{5, 4}, {5, 5}},
      {{6, 3}, {7, 2}},
      {{8, 3}, {9, 2}},
      {{10, 3}, {11, 2}, {12, 1}},
      {{19, 3}, {20, 2}, {21, 1}},
  };
  return kByType[type].count({picture, size}) > 0;
}

void CheckBodies(int quadrant) {
  ASSERT_GE(G.PlanetCount, 50);
  ASSERT_LE(G.PlanetCount, 70);
  int raceCount[8] = {};
  int pirates = 0;
  for (int i = 1; i <= G.PlanetCount; ++i) {
    const PlanetRecord& p = G.Planet[i];
    SCOPED_TRACE("body " + std::to_string(i));
    ASSERT_GE(p.Race, 0);
    ASSERT_LE(p.Race, 7);
    ++raceCount[p.Race];
    EXPECT_EQ(p.Name, G.PlanetNames[i]);
    EXPECT_GE(p.Ore, 450);
    EXPECT_LE(p.Ore, 549);
    EXPECT_EQ(p.Known, False);
    ASSERT_GE(p.Type, 1);
    ASSERT_LE(p.Type, 10);
    if (p.HasStation != 0) EXPECT_NE(p.Race, 0) << "a station stands only where a race lives";
    if (p.Race == 7) {
      ++pirates;
      EXPECT_EQ(p.Society, 9);
      EXPECT_EQ(p.HasStation, 1);
      EXPECT_GE(p.Picture, 23);
      EXPECT_LE(p.Picture, 25);
      EXPECT_EQ(p.Width, 64);
    } else {
      EXPECT_GE(p.Society, 1);
      EXPECT_LE(p.Society, 8);
      if (p.Race != 0) EXPECT_TRUE(TypeAllowed(p.Race, p.Type)) << "race " << p.Race << " type " << p.Type;
      EXPECT_TRUE(PictureFitsType(p.Type, static_cast<int>(p.Picture), p.Size));
      EXPECT_EQ(p.Width, G.PictureWidth[static_cast<int>(p.Picture)]);
      EXPECT_EQ(p.SmallBody, p.Size <= 3 ? True : False);
    }
    EXPECT_EQ(p.FramesPerRow, 10);
    EXPECT_EQ(p.LastFrame, 89);
    EXPECT_GE(p.Frame, 0);
    EXPECT_LE(p.Frame, 6);
  }
  EXPECT_EQ(pirates, 4);
  if (quadrant == 3) {
    // Every race draw took a body of its own, and the bases took free ones.
    EXPECT_EQ(raceCount[1], 5);
    EXPECT_EQ(raceCount[4], 10);
    EXPECT_EQ(raceCount[5], 10);
    EXPECT_EQ(raceCount[6], 10);
  }
  if (quadrant == 1) {
    EXPECT_EQ(raceCount[3] + raceCount[4] + raceCount[5] + raceCount[6], 0);
    bool atHumanStation = false;
    for (int i = 1; i <= G.PlanetCount; ++i) {
      const PlanetRecord& p = G.Planet[i];
      if (p.X == G.ShipX && p.Y == G.ShipY && p.HasStation != 0 && p.Race == 1) atHumanStation = true;
    }
    EXPECT_TRUE(atHumanStation);
    EXPECT_EQ(G.DestX, G.ShipX);
    EXPECT_EQ(G.DestY, G.ShipY);
  }
}

void CheckSpace() {
  ASSERT_GE(G.NebulaCount, 0);
  ASSERT_LE(G.NebulaCount, 48);
  for (int i = 1; i <= 50; ++i) {
    SCOPED_TRACE("slot " + std::to_string(i));
    const DebrisRecord& d = G.Debris[i];
    const CargoPodRecord& c = G.CargoPod[i];
    EXPECT_FALSE(InsideAnyNebula(d.X, d.Y));
    EXPECT_FALSE(InsideAnyNebula(c.X, c.Y));
    EXPECT_EQ(d.Visible, False);
    for (double v : {d.X, d.Y, c.X, c.Y}) {
      EXPECT_GE(v, 100);
      EXPECT_LT(v, 4900);
    }
    for (int b = 1; b <= G.PlanetCount; ++b) {
      EXPECT_GE(std::hypot(d.X - G.Planet[b].X, d.Y - G.Planet[b].Y), 50);
      EXPECT_GE(std::hypot(c.X - G.Planet[b].X, c.Y - G.Planet[b].Y), 50);
    }
  }
  EXPECT_EQ(G.StarLaneKnown, False);
  EXPECT_TRUE(G.ChartKind == 1 || G.ChartKind == 2);
}

void CheckTraffic(int quadrant) {
  // Ships at bodies first, in body order; then as many again plus 50 free.
  int atBodies = 0;
  for (int i = 1; i <= G.PlanetCount; ++i) {
    const PlanetRecord& p = G.Planet[i];
    if (p.Race == 0) continue;
    constexpr int kShips[10] = {0, 0, 0, 1, 2, 2, 2, 3, 4, 6};
    atBodies += kShips[p.Society];
  }
  ASSERT_EQ(G.OtherShipCount, 2 * atBodies + 52);
  EXPECT_EQ(G.OtherShip[G.OtherShipCount].ShipClass, 0);
  const int trader = std::array<int, 5>{0, 2, 10, 15, 17}[quadrant];
  for (int s = 1; s < G.OtherShipCount; ++s) {
    const OtherShipRecord& o = G.OtherShip[s];
    SCOPED_TRACE("ship " + std::to_string(s));
    EXPECT_EQ(o.TargetX, o.X);
    EXPECT_EQ(o.TargetY, o.Y);
    EXPECT_EQ(o.Free, True);
    if (s <= atBodies) {
      const ShipClassInfo info = ClassInfo(o.ShipClass);
      ASSERT_NE(info.Race, 0);
      const double spread = info.Kind == ShipKind::Pirate ? 500 : 75;
      EXPECT_LE(std::abs(o.X - o.HomeX), spread);
      EXPECT_LE(std::abs(o.Y - o.HomeY), spread);
      EXPECT_TRUE(info.Kind == ShipKind::Military || info.Kind == ShipKind::Pirate);
      EXPECT_EQ(o.WantsTrade, False);
    } else {
      EXPECT_TRUE(o.ShipClass == 1 || o.ShipClass == 6 || o.ShipClass == trader) << o.ShipClass;
      if (o.WantsTrade != False) EXPECT_EQ(o.ShipClass, trader);
    }
  }
}

void CheckPeopleAndStocks(int quadrant) {
  struct Range { int lo, hi; };
  const Range first[5] = {{0, 0}, {1, 48}, {1, 72}, {1, 24}, {73, 96}};
  const Range second[5] = {{0, 0}, {1, 48}, {1, 72}, {72, 143}, {121, 144}};
  std::set<int> seen;
  for (int i = 1; i <= G.PlanetCount; ++i) {
    const PlanetRecord& p = G.Planet[i];
    if (p.HasStation == 0) continue;
    SCOPED_TRACE("station " + std::to_string(i));
    const bool shipHere = std::hypot(G.ShipX - p.X, G.ShipY - p.Y) < p.Width;
    const int a = G.StationPeople[i][1], b = G.StationPeople[i][2];
    if (!shipHere) {
      if (a != 0) {
        EXPECT_GE(a, first[quadrant].lo);
        EXPECT_LE(a, first[quadrant].hi);
        EXPECT_TRUE(seen.insert(a).second) << "row " << a << " stands twice";
      }
      if (b != 0) {
        EXPECT_GE(b, second[quadrant].lo);
        EXPECT_LE(b, second[quadrant].hi);
        EXPECT_TRUE(seen.insert(b).second) << "row " << b << " stands twice";
      }
    } else {
      EXPECT_NE(a, 0);
      EXPECT_NE(b, 0);
    }
    const StationStockRecord& stock = G.StationStock[i];
    for (int c : {4, 5, 10}) {
      if (p.Race == 7) EXPECT_GT(stock.Quantity[c], 0);
      else EXPECT_EQ(stock.Quantity[c], 0);
    }
    if (p.Type == 6 && p.Race != 7) {
      for (int c = 1; c <= 14; ++c) EXPECT_EQ(stock.StationPrice[c], 0);
    }
  }
}

class QuadrantGeneration : public ::testing::TestWithParam<int> {};

TEST_P(QuadrantGeneration, HoldsItsRulesOverManySeeds) {
  const int quadrant = GetParam();
  for (int seed = 1; seed <= kSeeds; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    testing::FreshUniverse(static_cast<std::uint64_t>(seed) * 7919 + quadrant, quadrant);
    RandomizeQuad(quadrant);
    CheckBodies(quadrant);
    CheckSpace();
    CheckTraffic(quadrant);
    CheckPeopleAndStocks(quadrant);
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(AllFour, QuadrantGeneration, ::testing::Values(1, 2, 3, 4));

TEST(QuadrantLayout, NamesFollowTheBodyIndexInEveryQuadrant) {
  for (int q = 1; q <= 4; ++q) {
    testing::FreshUniverse(99 + q, q);
    RandomizeQuad(q);
    EXPECT_EQ(G.Planet[1].Name, "ABBON");
    EXPECT_EQ(G.Planet[7].Name, "DRABAN");
  }
  EXPECT_EQ(G.PlanetNames[32], "NORMAN");
  EXPECT_EQ(G.PlanetNames[70], "NORMAN");
  EXPECT_EQ(G.PlanetNames[131], "TARANIS");
  EXPECT_EQ(G.PlanetNames[132], "");
  EXPECT_EQ(G.PlanetNames[133], "");
  EXPECT_EQ(G.PlanetNames[134], "VOTH");
  EXPECT_EQ(G.PlanetNames[318], "MATHANU");
  EXPECT_EQ(G.PlanetNames[319], "");
  int filled = 0;
  for (const auto& n : G.PlanetNames) filled += n.empty() ? 0 : 1;
  EXPECT_EQ(filled, 316);
}

TEST(QuadrantLayout, TheSameSeedLaysTheSameQuadrant) {
  testing::FreshUniverse(4242, 2);
  RandomizeQuad(2);
  const auto first = G.Planet;
  const auto ships = G.OtherShip;
  testing::FreshUniverse(4242, 2);
  RandomizeQuad(2);
  for (int i = 1; i <= G.PlanetCount; ++i) {
    EXPECT_EQ(G.Planet[i].X, first[i].X);
    EXPECT_EQ(G.Planet[i].Race, first[i].Race);
  }
  EXPECT_EQ(G.OtherShip[10].X, ships[10].X);
}

TEST(QuadrantLayout, LaterQuadrantsLeaveTheShipWhereItWas) {
  testing::FreshUniverse(5, 2);
  G.ShipX = 1234;
  G.ShipY = 2345;
  RandomizeQuad(2);
  EXPECT_EQ(G.ShipX, 1234);
  EXPECT_EQ(G.ShipY, 2345);
}

TEST(NebulaDropRule, DropsOnlyTheLastNebulaAndMovesOn) {
  testing::FreshUniverse(1, 1);
  G.NebulaCount = 3;
  G.Nebula[1] = {0, 0, 1};
  G.Nebula[2] = {1000, 1000, 2};
  G.Nebula[3] = {2000, 2000, 3};
  G.PlanetCount = 4;
  G.Planet[1].X = 100;  // inside nebula 1, not the last: stays
  G.Planet[1].Y = 100;
  G.Planet[2].X = 2100;  // inside nebula 3, the last: dropped
  G.Planet[2].Y = 2100;
  G.Planet[3].X = 1400;  // on the right edge of nebula 2, not strictly inside
  G.Planet[3].Y = 1100;
  G.Planet[4].X = 1399;  // inside nebula 2, now last: dropped
  G.Planet[4].Y = 1239;
  DropNebulasOverBodies();
  EXPECT_EQ(G.NebulaCount, 1);
  EXPECT_TRUE(InsideAnyNebula(100, 100));
  EXPECT_FALSE(InsideAnyNebula(0, 100));  // the edge is outside
  EXPECT_FALSE(InsideAnyNebula(2100, 2100));

  // An empty list has nothing to drop.
  G.NebulaCount = 0;
  DropNebulasOverBodies();
  EXPECT_EQ(G.NebulaCount, 0);
}

TEST(TrafficPlacement, PatrolsAndHeaviesFollowSocietyAndRace) {
  testing::FreshUniverse(3, 4);
  G.PlanetCount = 3;
  G.Planet[1] = {};
  G.Planet[1].X = 1000; G.Planet[1].Y = 1000; G.Planet[1].Race = 4; G.Planet[1].Society = 8;
  G.Planet[2] = {};
  G.Planet[2].X = 3000; G.Planet[2].Y = 3000; G.Planet[2].Race = 0; G.Planet[2].Society = 8;
  G.Planet[3] = {};
  G.Planet[3].X = 2000; G.Planet[3].Y = 4000; G.Planet[3].Race = 7; G.Planet[3].Society = 9;
  PlaceOtherShips();
  // Military Jaytees: two patrols of class 12, two heavies of 13; the
  // uninhabited body none; six pirates of class 5.
  const int expected[] = {12, 12, 13, 13, 5, 5, 5, 5, 5, 5};
  for (int s = 1; s <= 10; ++s) EXPECT_EQ(G.OtherShip[s].ShipClass, expected[s - 1]) << s;
  EXPECT_EQ(G.OtherShip[1].HomeX, 1000);
  EXPECT_EQ(G.OtherShip[5].HomeY, 4000);
  EXPECT_EQ(G.OtherShipCount, 11 + 61);
  for (int s = 11; s < G.OtherShipCount; ++s)
    EXPECT_TRUE(G.OtherShip[s].ShipClass == 1 || G.OtherShip[s].ShipClass == 6 ||
                G.OtherShip[s].ShipClass == 17);
}

}  // namespace
}  // namespace lf
