#include "universe/characters.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "display/screen.h"
#include "shell/game_state.h"
#include "universe/data/universe_data.h"
#include "universe/new_game.h"

namespace lf {

namespace {

// The rows a station's first and second person are drawn from: Int(Rnd x n)
// + first row.
struct DrawRange {
  int N, First;
};
struct QuadrantPeople {
  DrawRange FirstPerson, SecondPerson;
};
constexpr QuadrantPeople kPeople[5] = {
    {{0, 0}, {0, 0}},
    {{48, 1}, {48, 1}},
    {{72, 1}, {72, 1}},
    {{24, 1}, {72, 72}},
    {{24, 73}, {24, 121}},
};

int DrawRow(DrawRange r) { return static_cast<int>(Int(Rnd() * r.N)) + r.First; }

}  // namespace

Table<Bitmap, 144>& CharacterFace() {
  static Table<Bitmap, 144> faces;
  return faces;
}

int CharacterRace(int row) { return (row >= 1 && row <= 144) ? (row - 1) / 24 + 1 : 0; }

int CharacterPostOfRow(int row) { return (row >= 1 && row <= 144) ? ((row - 1) % 24) / 4 + 1 : 0; }

void RandomizeCharacters() {
  G.Character[0].Name.clear();
  G.Character[0].Post = 0;
  G.Character[0].Salary = 0;
  for (int c = 1; c <= 144; ++c) {
    CharacterFace()[c] = LoadBitmapIntoDXS("\\gfx\\faces\\" + std::to_string(c) + ".bmp");
    CharacterRecord& person = G.Character[c];
    person.Name = std::string(data::kCharacterNames[static_cast<std::size_t>(c)]);
    person.Post = static_cast<std::int16_t>(CharacterPostOfRow(c));
    const data::SkillRange range =
        data::kSkillRanges[static_cast<std::size_t>(CharacterRace(c) - 1)]
                          [static_cast<std::size_t>(person.Post - 1)];
    person.Skill = static_cast<std::int16_t>(Int(Rnd() * (range.Hi - range.Lo + 1)) + range.Lo);
    person.Salary = static_cast<std::int16_t>(Int(Rnd() * 40) - 20 + person.Skill * 100);
  }
}

void DetermineStationPeople() {
  if (G.CurrentQuadrant < 1 || G.CurrentQuadrant > 4) return;
  const QuadrantPeople& ranges = kPeople[G.CurrentQuadrant];
  Table<bool, 144> used{};

  // Draws until an unused row comes up; the 50th draw leaves the place empty.
  auto drawFree = [&](DrawRange r) {
    for (int count = 1;; ++count) {
      const int row = DrawRow(r);
      if (count >= 50) return 0;
      if (!used[row]) return row;
    }
  };
  // The ship's own body: at most 50 draws, the last one stands even if used.
  auto drawForShip = [&](DrawRange r, int draws) {
    int row = DrawRow(r);
    for (int count = 1; count < draws && used[row]; ++count) row = DrawRow(r);
    return row;
  };

  const int bodies = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= bodies; ++i) {
    if (G.Planet[i].HasStation == 0) continue;
    const int n = static_cast<int>(Int(Rnd() * 2)) + 1;
    const int first = drawFree(ranges.FirstPerson);
    G.StationPeople[i][1] = static_cast<std::int16_t>(first);
    used[first] = true;
    if (n == 2) {
      const int second = drawFree(ranges.SecondPerson);
      G.StationPeople[i][2] = static_cast<std::int16_t>(second);
      used[second] = true;
    }
  }

  DrawRange second = ranges.SecondPerson;
  if (G.CurrentQuadrant == 3) second = {24, 73};
  const int draws = G.CurrentQuadrant == 1 ? 1 : 50;
  for (int i = 1; i <= bodies; ++i) {
    const PlanetRecord& p = G.Planet[i];
    if (std::hypot(G.ShipX - p.X, G.ShipY - p.Y) >= p.Width) continue;
    const int a = drawForShip(ranges.FirstPerson, draws);
    G.StationPeople[i][1] = static_cast<std::int16_t>(a);
    used[a] = true;
    const int b = drawForShip(second, draws);
    G.StationPeople[i][2] = static_cast<std::int16_t>(b);
    used[b] = true;
  }
}

}  // namespace lf
