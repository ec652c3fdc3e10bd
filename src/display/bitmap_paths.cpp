// Every bitmap file the game can load: the fixed sets, and the files whose
// names are built from game values (orbits, hails, events, the dealer's
// filmstrips, the fight's opponent and weapons, the character faces).
#include <array>
#include <memory>
#include <set>

#include "display/bitmap_catalog.h"
#include "universe/data/universe_data.h"

namespace lf {
namespace {

class PathList {
 public:
  void Add(std::string path) {
    if (seen_.insert(path).second) out_.push_back(std::move(path));
  }
  void Add(const BitmapSet& set) {
    for (const BitmapFile& f : set) Add(f.Path);
  }
  std::vector<std::string> Take() { return std::move(out_); }

 private:
  std::set<std::string> seen_;
  std::vector<std::string> out_;
};

std::string N(int n) { return std::to_string(n); }

// Backgrounds of the station screens, under "\gfx\station\a_backs\"
// (the terminal's comes by quadrant).
constexpr std::array<std::string_view, 7> kStationScreenBack = {
    "bar", "commodity", "ship_dealer", "fleet_office", "exploration", "merchant", "mercenary"};

// Component models by group 1..7: beams, computers, launchers, generators,
// engines, sensors, shields.
constexpr std::array<int, 8> kModelsInGroup = {0, 11, 6, 11, 7, 8, 5, 10};

// The node numbers of story events 1..18 (nodes may skip a number).
const std::array<std::vector<int>, 19>& EventNodes() {
  static const std::array<std::vector<int>, 19> nodes = {{
      {},
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14},
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 15, 16, 17},
      {1, 2, 3, 4, 5, 6, 7, 8, 9},
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13},
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10},
      {1, 2, 3, 4, 5, 6, 7},
      {1, 2, 3, 4, 5, 6, 7, 8, 9},
      {1, 2, 3, 4, 5, 6, 7, 8},
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11},
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19},
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11},
      {1, 2, 3, 4},
      {1, 2, 3, 4, 5, 6, 7, 8},
      {1, 2, 3, 4, 5},
      {1, 2, 3},
      {1, 2, 3, 4, 5, 6},
      {1, 2, 3},
      {1, 2, 3, 4},
  }};
  return nodes;
}

}  // namespace

std::vector<std::string> AllBitmapPaths() {
  auto scratch = std::make_unique<Gfx>();
  PathList p;
  p.Add(MenuSet(*scratch));
  p.Add(KeptSet(*scratch));
  p.Add(BridgeSet(*scratch));
  for (int q = 1; q <= 4; ++q) p.Add(StationSet(*scratch, q));
  p.Add(FightSetFixed(*scratch));

  // Orbit pictures by body type: three of a plain body, one per quadrant
  // for a body with a station.
  for (int type = 1; type <= 10; ++type) {
    for (int r = 1; r <= 3; ++r) p.Add(R"(\gfx\orbits\)" + N(type) + "_" + N(r) + ".bmp");
    for (int q = 1; q <= 4; ++q) p.Add(R"(\gfx\orbits\)" + N(type) + "_0_" + N(q) + ".bmp");
  }
  // Hail pictures: five of each ship class.
  for (int c = 1; c <= 19; ++c)
    for (int r = 1; r <= 5; ++r) p.Add(R"(\gfx\hail\oship_)" + N(c) + "_" + N(r) + ".bmp");

  // The station screens and what they load as they open.
  for (std::string_view back : kStationScreenBack)
    p.Add(R"(\gfx\station\a_backs\)" + std::string(back) + ".bmp");
  p.Add(R"(\gfx\station\a_misc\select.bmp)");
  p.Add(R"(\gfx\station\a_misc\news.bmp)");
  for (int group = 1; group <= 7; ++group)
    for (int model = 1; model <= kModelsInGroup[group]; ++model)
      p.Add(R"(\gfx\station\comps\)" + N(group) + "_" + N(model) + ".bmp");
  for (const data::HullRow& h : data::kHullRows)
    p.Add(R"(\gfx\station\comps\10_)" + N(h.Race) + "_" + N(h.Class) + ".bmp");

  // Faces of the 144 characters and of the two heroes.
  for (int c = 1; c <= 144; ++c) p.Add(R"(\gfx\faces\)" + N(c) + ".bmp");
  p.Add(R"(\gfx\faces\hero_1.bmp)");
  p.Add(R"(\gfx\faces\hero_2.bmp)");

  // Story events: the screen and one picture per node.
  p.Add(R"(\gfx\events\back.bmp)");
  for (int e = 1; e <= 18; ++e)
    for (int node : EventNodes()[e]) p.Add(R"(\gfx\events\)" + N(e) + R"(\)" + N(node) + ".bmp");

  // The fight: the opponent's hull, the weapon lines' shots.
  for (const data::ShipClassRow& c : data::kShipClassRows)
    p.Add(R"(\gfx\fight\oship\)" + N(c.Race) + "_" + N(c.HullClass) + ".bmp");
  for (int m = 1; m <= kModelsInGroup[1]; ++m) p.Add(R"(\gfx\fight\wpns\l_)" + N(m) + ".bmp");
  for (int m = 1; m <= kModelsInGroup[3]; ++m) p.Add(R"(\gfx\fight\wpns\r_)" + N(m) + ".bmp");
  p.Add(R"(\gfx\fight\wpns\dragon.bmp)");
  p.Add(R"(\gfx\fight\wpns\rapier.bmp)");
  p.Add(R"(\gfx\fight\wpns\shrike.bmp)");
  return p.Take();
}

}  // namespace lf
