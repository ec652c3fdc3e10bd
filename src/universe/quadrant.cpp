#include "universe/quadrant.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "universe/characters.h"
#include "universe/data/universe_data.h"
#include "universe/other_ships.h"
#include "universe/stocks.h"

namespace lf {

namespace {

// A body row in use, bounded by the table.
int BodiesInUse() { return std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi); }

int DrawBody() { return static_cast<int>(Int(Rnd() * G.PlanetCount)) + 1; }

// Relays that end a generation that cannot succeed (a quadrant number
// without race steps asked to hold the ship, say); never reached in play.
constexpr int kMaxLayings = 1000;
// Draws without a count of their own still stop somewhere.
constexpr long kSafetyDraws = 1000000;

struct RaceStep {
  bool Stations;  // false: n bodies to the race; true: n stations among it
  int Count;
  int Race;
};

// The race steps of each quadrant, in order; a row of Count 0 ends the list.
constexpr RaceStep kRaceSteps[5][9] = {
    {},
    {{false, 25, 1}, {true, 18, 1}, {false, 15, 2}, {true, 8, 2}},
    {{false, 25, 1}, {true, 6, 1}, {false, 10, 2}, {true, 5, 2}, {false, 10, 3}, {true, 5, 3}},
    {{false, 5, 1}, {true, 2, 1}, {false, 10, 4}, {true, 5, 4}, {false, 10, 5}, {true, 5, 5},
     {false, 10, 6}, {true, 4, 6}},
    {{false, 18, 4}, {true, 14, 4}, {false, 18, 6}, {true, 12, 6}},
};

// Types a race's bodies may have: race 1..6, bit t for type t.
constexpr int kTypeSets[7] = {
    0,
    (1 << 2) | (1 << 3) | (1 << 4) | (1 << 5) | (1 << 7) | (1 << 8),  // 1 {2, 3, 4, 5, 7, 8}
    (1 << 2) | (1 << 3) | (1 << 4),                                 // 2 {2, 3, 4}
    (1 << 5) | (1 << 8),                                            // 3 {5, 8}
    (1 << 1) | (1 << 4) | (1 << 7) | (1 << 9) | (1 << 10),          // 4 {1, 4, 7, 9, 10}
    (1 << 1) | (1 << 2),                                            // 5 {1, 2}
    (1 << 9) | (1 << 10),                                           // 6 {9, 10}
};
constexpr bool TypeFitsRace(int race, int type) { return (kTypeSets[race] >> type) & 1; }

void LayBodies() {
  do {
    G.PlanetCount = 0;
    for (int x = 150; x <= 4850; x += 370)
      for (int y = 150; y <= 4850; y += 290)
        if (Rnd() > 0.75) {
          ++G.PlanetCount;
          PlanetRecord& p = G.Planet[G.PlanetCount];
          p.X = x + Int(Rnd() * 140 - 70);
          p.Y = y + Int(Rnd() * 140 - 70);
        }
  } while (G.PlanetCount < 50 || G.PlanetCount > 70);
}

// Step 3: the races and their stations. False when a count ran out.
bool SpreadRaces(int quadrant) {
  if (quadrant < 1 || quadrant > 4) return true;
  const bool onlyFree = quadrant == 3;
  bool first = true;
  for (const RaceStep& step : kRaceSteps[quadrant]) {
    if (step.Count == 0) break;
    const long limit = first ? kSafetyDraws : kDrawLimit;
    first = false;
    long count = 0;
    for (int n = 0; n < step.Count; ++n) {
      for (;;) {
        const int b = DrawBody();
        if (++count > limit) return false;
        PlanetRecord& p = G.Planet[b];
        if (step.Stations) {
          if (p.Race == step.Race) {
            p.HasStation = 1;
            break;
          }
        } else if (!onlyFree || p.Race == 0) {
          p.Race = static_cast<std::int16_t>(step.Race);
          break;
        }
      }
    }
  }
  return true;
}

// Step 4: types by race. False when the count ran out.
bool GiveTypes() {
  int count = 0;
  for (int i = 1; i <= G.PlanetCount; ++i) {
    PlanetRecord& p = G.Planet[i];
    int type = static_cast<int>(Int(Rnd() * 10)) + 1;
    if (p.Race >= 1 && p.Race <= 6) {
      ++count;
      while (!TypeFitsRace(p.Race, type)) {
        if (count >= kDrawLimit) return false;
        type = static_cast<int>(Int(Rnd() * 10)) + 1;
        ++count;
      }
    }
    p.Type = static_cast<std::int16_t>(type);
  }
  return true;
}

void TakePictureGeometry(PlanetRecord& p) {
  const int pic = static_cast<int>(p.Picture);
  p.Width = G.PictureWidth[pic];
  p.Height = G.PictureHeight[pic];
  p.LastFrame = G.PictureLastFrame[pic];
  p.FrameStep = G.PictureFrameStep[pic];
  p.FramesPerRow = G.PictureFramesPerRow[pic];
}

// Step 5: picture and size from one draw p, by type.
void GivePictures() {
  for (int i = 1; i <= G.PlanetCount; ++i) {
    PlanetRecord& p = G.Planet[i];
    const double d = Rnd();
    const bool low = d <= 0.5;
    const int third = d <= 0.33 ? 0 : (d < 0.66 ? 1 : 2);
    int picture = 0, size = 0;
    auto two = [&](int pa, int sa, int pb, int sb) {
      picture = low ? pa : pb;
      size = low ? sa : sb;
    };
    auto three = [&](int pa, int sa, int pb, int sb, int pc, int sc) {
      const int pics[3] = {pa, pb, pc}, sizes[3] = {sa, sb, sc};
      picture = pics[third];
      size = sizes[third];
    };
    switch (p.Type) {
      case 1: two(1, 1, 2, 2); break;
      case 2: two(15, 4, 22, 3); break;
      case 3: two(3, 2, 4, 1); break;
      case 4: three(16, 4, 17, 3, 18, 2); break;
      case 5: two(13, 3, 14, 2); break;
      case 6: two(5, 4, 5, 5); break;
      case 7: two(6, 3, 7, 2); break;
      case 8: two(8, 3, 9, 2); break;
      case 9: three(10, 3, 11, 2, 12, 1); break;
      case 10: three(19, 3, 20, 2, 21, 1); break;
      default: break;
    }
    p.Picture = picture;
    p.Size = static_cast<std::int16_t>(size);
    p.SmallBody = size <= 3 ? True : False;
    p.Frame = Int(Rnd() * 7);
    TakePictureGeometry(p);
  }
}

// Step 7: four pirate bases on bodies without race. False if none was free.
bool PlacePirateBases() {
  for (int n = 0; n < 4; ++n) {
    long count = 0;
    int b = DrawBody();
    while (G.Planet[b].Race != 0) {
      if (++count > kSafetyDraws) return false;
      b = DrawBody();
    }
    PlanetRecord& p = G.Planet[b];
    p.Picture = 23 + Int(Rnd() * 3);
    p.Society = 9;
    p.Race = 7;
    p.HasStation = 1;
    p.Width = 64;
    p.Height = 64;
    p.FramesPerRow = 10;
    p.LastFrame = 89;
    p.FrameStep = 0.5;
  }
  return true;
}

// Step 9: in quadrant 1 the ship starts at a Human station. False if none.
bool PlaceShipAtHumanStation() {
  if (G.CurrentQuadrant != 1) return true;
  bool any = false;
  for (int i = 1; i <= G.PlanetCount; ++i)
    any = any || (G.Planet[i].HasStation != 0 && G.Planet[i].Race == 1);
  if (!any) return false;
  int b = DrawBody();
  while (!(G.Planet[b].HasStation != 0 && G.Planet[b].Race == 1)) b = DrawBody();
  G.ShipX = G.Planet[b].X;
  G.ShipY = G.Planet[b].Y;
  G.DestX = G.Planet[b].X;
  G.DestY = G.Planet[b].Y;
  return true;
}

bool TryPlans(int quadrant) {
  LayBodies();
  for (int i = 1; i <= G.PlanetCount; ++i) {
    PlanetRecord& p = G.Planet[i];
    const double x = p.X, y = p.Y;
    p = PlanetRecord{};
    p.X = x;
    p.Y = y;
  }
  if (!SpreadRaces(quadrant)) return false;
  if (!GiveTypes()) return false;
  GivePictures();
  for (int i = 1; i <= G.PlanetCount; ++i) {
    G.Planet[i].Society = static_cast<std::int16_t>(Int(Rnd() * 8 + 1));
    G.Planet[i].Infected = False;
    G.Planet[i].Epidemic = False;
  }
  if (!PlacePirateBases()) return false;
  for (int i = 1; i <= G.PlanetCount; ++i)
    G.Planet[i].Ore = static_cast<std::int16_t>(Int(Rnd() * 100) + 450);
  return PlaceShipAtHumanStation();
}

bool WithinOfBody(double x, double y, double reach) {
  for (int i = 1; i <= BodiesInUse(); ++i)
    if (std::hypot(x - G.Planet[i].X, y - G.Planet[i].Y) < reach) return true;
  return false;
}

void LayNebulas() {
  for (int i = 1; i <= G.NebulaCount && i <= decltype(G.Nebula)::kHi; ++i) G.Nebula[i] = {};
  G.NebulaCount = 0;
  for (int x = 0; x <= 5000; x += 1000)
    for (int y = 0; y <= 4900; y += 700) {
      ++G.NebulaCount;
      NebulaRecord& n = G.Nebula[G.NebulaCount];
      n.X = x + Int(Rnd() * 150 - 75);
      n.Y = y + Int(Rnd() * 150 - 75);
      n.Kind = static_cast<std::int16_t>(Int(Rnd() * 4 + 1));
    }
  DropNebulasOverBodies();
}

// Step 8; false if a slot found no free place.
bool ScatterDebrisAndPods() {
  auto bad = [](double x, double y) { return InsideAnyNebula(x, y) || WithinOfBody(x, y, 50); };
  for (int i = 1; i <= 50; ++i) {
    DebrisRecord& d = G.Debris[i];
    CargoPodRecord& c = G.CargoPod[i];
    long tries = 0;
    do {
      if (++tries > kSafetyDraws / 10) return false;
      d.X = Int(Rnd() * 4800) + 100;
      d.Y = Int(Rnd() * 4800) + 100;
      c.X = Int(Rnd() * 4800) + 100;
      c.Y = Int(Rnd() * 4800) + 100;
    } while (bad(d.X, d.Y) || bad(c.X, c.Y));
    c.Virus = Rnd() < 0.3 ? True : False;
    d.Virus = Rnd() < 0.3 ? True : False;
  }
  return true;
}

bool TryQuad(int quadrant) {
  RandomizePlans(quadrant);
  PlaceOtherShips();
  for (int i = 1; i <= G.PlanetCount; ++i) G.Planet[i].Known = False;
  for (int i = 1; i <= 50; ++i) G.Debris[i].Visible = False;
  G.ChartKind = static_cast<std::int16_t>(Int(Rnd() * 2) + 1);
  for (int i = 1; i <= decltype(G.OtherShip)::kHi; ++i) G.OtherShip[i].Free = True;
  LayNebulas();
  if (!ScatterDebrisAndPods()) return false;
  G.StarLaneKnown = False;
  DetermineStationPeople();
  return true;
}

}  // namespace

void FillPictureTables() {
  for (int n = 1; n <= 26; ++n) {
    G.PictureWidth[n] = data::kPictures[static_cast<std::size_t>(n)].Size;
    G.PictureHeight[n] = data::kPictures[static_cast<std::size_t>(n)].Size;
    G.PictureFramesPerRow[n] = 10;
    G.PictureLastFrame[n] = 89;
    G.PictureFrameStep[n] = 0.5;
  }
  PlanetRecord& marker = G.Planet[0];
  marker.Width = 64;
  marker.Height = 64;
  marker.FramesPerRow = 10;
  marker.LastFrame = 89;
  marker.FrameStep = 0.5;
}

std::string PlanetPicturePath(int picture) {
  if (picture < 1 || picture > 26) return {};
  return "\\gfx\\planets\\" + std::string(data::kPictures[static_cast<std::size_t>(picture)].File);
}

void FillPlanetNames() {
  for (int i = 0; i <= decltype(G.PlanetNames)::kHi; ++i)
    G.PlanetNames[i] = i <= data::kPlanetNameRows
                           ? std::string(data::kPlanetNames[static_cast<std::size_t>(i)])
                           : std::string();
}

void DropNebulasOverBodies() {
  for (int i = 1; i <= BodiesInUse(); ++i) {
    if (G.NebulaCount < 1 || G.NebulaCount > decltype(G.Nebula)::kHi) return;
    const NebulaRecord& n = G.Nebula[G.NebulaCount];
    const PlanetRecord& p = G.Planet[i];
    if (p.X > n.X && p.X < n.X + 400 && p.Y > n.Y && p.Y < n.Y + 240) {
      G.Nebula[G.NebulaCount] = {};
      --G.NebulaCount;
    }
  }
}

bool InsideAnyNebula(double x, double y) {
  const int count = std::clamp<int>(G.NebulaCount, 0, decltype(G.Nebula)::kHi);
  for (int i = 1; i <= count; ++i) {
    const NebulaRecord& n = G.Nebula[i];
    if (x > n.X && x < n.X + 400 && y > n.Y && y < n.Y + 240) return true;
  }
  return false;
}

void RandomizePlans(int quadrant) {
  for (int laying = 1; laying <= kMaxLayings; ++laying)
    if (TryPlans(quadrant)) break;
  StationStockSpecs();
  FillPlanetNames();
  for (int i = 1; i <= G.PlanetCount; ++i) G.Planet[i].Name = G.PlanetNames[i];
}

void RandomizeQuad(int quadrant) {
  for (int laying = 1; laying <= kMaxLayings; ++laying)
    if (TryQuad(quadrant)) break;
  // The backdrop once, whatever number of layings it took: the loading bar
  // counts it as one load.
  GFX.Back2 = LoadBitmapIntoDXS("\\gfx\\back2.bmp");
}

}  // namespace lf
