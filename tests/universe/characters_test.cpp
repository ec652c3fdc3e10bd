#include <gtest/gtest.h>

#include <set>

#include "generation_util.h"
#include "universe/characters.h"
#include "universe/new_game.h"

namespace lf {
namespace {

TEST(Characters, NamesPostsSkillsAndSalaries) {
  const int lo[7][7] = {{}, {0, 2, 3, 1, 1, 2, 2}, {0, 3, 1, 2, 1, 2, 2}, {0, 2, 2, 1, 2, 4, 3},
                        {0, 1, 1, 3, 1, 1, 2}, {0, 2, 2, 1, 4, 2, 1}, {0, 3, 2, 2, 3, 1, 3}};
  const int hi[7][7] = {{}, {0, 4, 5, 3, 3, 4, 4}, {0, 5, 3, 3, 3, 3, 4}, {0, 3, 4, 3, 4, 5, 4},
                        {0, 2, 2, 5, 2, 2, 3}, {0, 3, 3, 2, 5, 4, 3}, {0, 4, 4, 4, 4, 2, 5}};
  std::set<int> skillsSeen;
  for (int seed = 1; seed <= 40; ++seed) {
    testing::FreshUniverse(seed, 1);
    RandomizeCharacters();
    for (int c = 1; c <= 144; ++c) {
      const CharacterRecord& p = G.Character[c];
      const int race = CharacterRace(c);
      ASSERT_EQ(p.Post, ((c - 1) % 24) / 4 + 1);
      ASSERT_GE(p.Skill, lo[race][p.Post]) << c;
      ASSERT_LE(p.Skill, hi[race][p.Post]) << c;
      ASSERT_GE(p.Salary - p.Skill * 100, -20) << c;
      ASSERT_LE(p.Salary - p.Skill * 100, 19) << c;
      skillsSeen.insert(race * 100 + p.Post * 10 + p.Skill);
    }
  }
  // Both ends of a range come up: a Jaytees navigator at 1 and 2, never 3.
  EXPECT_TRUE(skillsSeen.count(4 * 100 + 10 + 1));
  EXPECT_TRUE(skillsSeen.count(4 * 100 + 10 + 2));
  EXPECT_TRUE(skillsSeen.count(3 * 100 + 50 + 4));  // Lagew science 4..5
  EXPECT_TRUE(skillsSeen.count(3 * 100 + 50 + 5));
  EXPECT_EQ(G.Character[1].Name, "AGNES DEVERAUX");
  EXPECT_EQ(G.Character[72].Name, "LAGEEW");
  EXPECT_EQ(G.Character[97].Name, "MA MARKON");
  EXPECT_EQ(G.Character[144].Name, "WLAN KHAN GO");
  EXPECT_EQ(G.Character[0].Name, "");
  EXPECT_EQ(G.Character[0].Salary, 0);
}

void Stations(int count, int quadrant) {
  G.CurrentQuadrant = static_cast<std::int16_t>(quadrant);
  G.PlanetCount = static_cast<std::int16_t>(count);
  for (int i = 1; i <= count; ++i) {
    G.Planet[i] = {};
    G.Planet[i].X = 100.0 * i;
    G.Planet[i].Y = 100;
    G.Planet[i].Width = 50;
    G.Planet[i].HasStation = 1;
    G.Planet[i].Race = 1;
  }
  G.ShipX = -1000;
  G.ShipY = -1000;
}

TEST(StationPeople, QuadrantThreeDrawsALagewButNeverRow144) {
  std::set<int> second;
  for (int seed = 1; seed <= 200; ++seed) {
    testing::FreshUniverse(seed, 3);
    Stations(20, 3);
    DetermineStationPeople();
    for (int i = 1; i <= 20; ++i) {
      const int a = G.StationPeople[i][1], b = G.StationPeople[i][2];
      EXPECT_LE(a, 24);
      if (b != 0) second.insert(b);
    }
  }
  EXPECT_TRUE(second.count(72));
  EXPECT_FALSE(second.count(144));
  EXPECT_EQ(*second.rbegin(), 143);
}

TEST(StationPeople, TheUsedRowsRunOutLateInQuadrantOne) {
  testing::FreshUniverse(8, 1);
  Stations(40, 1);
  DetermineStationPeople();
  std::set<int> rows;
  int empty = 0;
  for (int i = 1; i <= 40; ++i) {
    const int a = G.StationPeople[i][1];
    if (a == 0) ++empty;
    else EXPECT_TRUE(rows.insert(a).second) << "row " << a << " twice";
    const int b = G.StationPeople[i][2];
    if (b != 0) EXPECT_TRUE(rows.insert(b).second) << "row " << b << " twice";
  }
  EXPECT_LE(rows.size(), 48u);
  EXPECT_GT(empty, 0);
}

TEST(StationPeople, TheShipsOwnBodyGetsTwoPersonsAndOldPlacesStay) {
  testing::FreshUniverse(21, 3);
  Stations(10, 3);
  for (int i = 1; i <= 10; ++i) G.StationPeople[i][2] = 140;  // from the quadrant before
  G.ShipX = 500;  // at body 5
  G.ShipY = 110;
  DetermineStationPeople();
  EXPECT_GE(G.StationPeople[5][2], 73);  // quadrant 3's second pass takes a Jaytees
  EXPECT_LE(G.StationPeople[5][2], 96);
  EXPECT_NE(G.StationPeople[5][1], 0);
  int kept = 0;
  for (int i = 1; i <= 10; ++i) kept += G.StationPeople[i][2] == 140 ? 1 : 0;
  EXPECT_GT(kept, 0);  // a station with one new person keeps the old second
}

}  // namespace
}  // namespace lf
