// The catalogue of mission types: one row per type, as the game deals them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace lf::data {

// What fills a mission's places: a destination station, a planet to survey,
// a point near the starting position, nav points, planet kinds to scan.
enum class Target : std::uint8_t { None, Dest, Survey, Near, DestNear, Nav3, Nav2, Kinds, Kind1 };

struct MissionSpec {
  int Type;
  std::string_view Title;
  int Guild;
  int MinRank;
  Target Where;
  int CargoLo, CargoHi;  // 0, 0: no cargo
  int Commodity;         // 0 none; -1 one of 1..3 at random
  double PayFactor;      // > 0: Reward = cargo x base price x factor
  int Reward;            // fixed reward when PayFactor is 0
  int ReputationGain;
  int Class, Threat, Tag;
};

// Type 35 pays what the mercenaries' other engagements of rank 6 pay.
inline constexpr int kEliminateShipReward = 5000;
inline constexpr int kEliminateShipReputation = 1000;
// Type 34 carries data for the mercenaries: as much reputation as type 15.
inline constexpr int kTacticalDataReputation = 200;

using T = Target;
inline constexpr std::array<MissionSpec, 41> kMissionSpecs{{
    {1, "MISS: TRADE GOODS", 1, 1, T::Dest, 100, 199, -1, 0.1, 0, 50, 2, 0, 0},
    {2, "MISS: TRADE GOODS", 1, 2, T::Dest, 300, 499, -1, 0.1, 0, 80, 2, 0, 0},
    {3, "MISS: TRADE GOODS", 1, 3, T::Dest, 600, 999, 8, 0.1, 0, 80, 2, 0, 0},
    {4, "MISS: TRADE GOODS", 1, 4, T::Dest, 1300, 1799, 8, 1, 0, 170, 2, 0, 0},
    {5, "MISS: TRADE GOODS", 1, 5, T::Dest, 2000, 2999, 12, 0.1, 0, 220, 2, 0, 0},
    {6, "MISS: HELP TRADER", 1, 2, T::Near, 0, 0, 0, 0, 1000, 100, 1, 0, 5},
    {7, "MISS: HELP TRADER", 1, 5, T::Near, 0, 0, 0, 0, 3000, 300, 1, 2, 5},
    {8, "MISS: RETRIEVE CARGO", 1, 2, T::DestNear, 0, 0, 0, 0, 800, 100, 3, 1, 0},
    {9, "MISS: RETRIEVE CARGO", 1, 4, T::DestNear, 0, 0, 0, 0, 2000, 200, 3, 2, 0},
    {10, "MISS: LOCATE PLANET", 1, 1, T::Kind1, 0, 0, 0, 0, 300, 50, 3, 0, 0},
    {11, "MISS: LOCATE PLANET", 1, 2, T::Kinds, 0, 0, 0, 0, 1000, 100, 0, 0, 5},
    {12, "MISS: LOCATE PLANET", 1, 3, T::Kinds, 0, 0, 0, 0, 1000, 100, 0, 0, 5},
    {13, "MISS: LOCATE ASTEROIDS", 1, 2, T::None, 0, 0, 0, 0, 2000, 200, 0, 0, 5},
    {14, "MISS: LOCATE NEBULA", 1, 1, T::None, 0, 0, 0, 0, 500, 60, 0, 0, 5},
    {15, "MISS: TRANSPORT GOODS", 1, 2, T::Dest, 0, 0, 0, 0, 1400, 200, 0, 1, 3},
    {16, "MISS: PATROL ROUTE", 1, 4, T::Nav3, 0, 0, 0, 0, 2500, 350, 0, 3, 3},
    {17, "MISS: TRANSPORT V.I.P.", 1, 4, T::Dest, 0, 0, 0, 0, 2800, 400, 0, 2, 3},
    {18, "MISS: RESCUE", 1, 5, T::Near, 0, 0, 0, 0, 2800, 400, 0, 2, 3},
    {19, "MISS: ELIMINATE PIRATES", 1, 5, T::Near, 0, 0, 0, 0, 6000, 700, 0, 0, 3},
    {20, "MISS: LOCATE PLANETS", 2, 2, T::Kind1, 0, 0, 0, 0, 700, 100, 0, 0, 5},
    {21, "MISS: GEO-SCAN PLANET", 2, 2, T::Survey, 0, 0, 0, 0, 1000, 100, 0, 0, 5},
    {22, "MISS: SCAN ASTEROIDS", 2, 2, T::None, 0, 0, 0, 0, 1500, 200, 0, 0, 5},
    {23, "MISS: SCAN NEBULA", 2, 2, T::None, 0, 0, 0, 0, 1000, 170, 0, 0, 5},
    // Type 24 has no row of its own: its slots stay empty.
    {24, "", 0, 0, T::None, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {25, "MISS: TRADE GOODS", 3, 4, T::Dest, 1000, 1499, 8, 0.2, 0, 300, 2, 0, 0},
    {26, "MISS: TRADE GOODS", 3, 4, T::Dest, 2000, 2499, 12, 0.15, 0, 600, 2, 0, 0},
    {27, "MISS: TRADE GOODS", 3, 4, T::Dest, 3000, 3999, 12, 0.2, 0, 900, 2, 0, 0},
    {28, "MISS: TRADE GOODS", 3, 4, T::Dest, 3000, 3999, 12, 0.15, 0, 900, 2, 0, 0},
    {29, "MISS: TRADE VALUABLES", 3, 5, T::Dest, 0, 0, 0, 0, 3500, 1200, 2, 0, 0},
    {30, "MISS: HELP TRADER", 3, 5, T::Near, 0, 0, 0, 0, 3000, 500, 0, 0, 6},
    {31, "MISS: HELP TRADER", 3, 6, T::Near, 0, 0, 0, 0, 1600, 800, 0, 0, 6},
    {32, "MISS: RETRIEVE CARGO", 3, 4, T::DestNear, 0, 0, 0, 0, 400, 1000, 3, 0, 0},
    {33, "MISS: RETRIEVE CARGO", 3, 5, T::DestNear, 0, 0, 0, 0, 1700, 400, 3, 0, 0},
    {34, "MISS: TRANSPORT GOODS", 4, 6, T::Dest, 0, 0, 0, 0, 3500, kTacticalDataReputation, 0, 0, 3},
    {35, "MISS: ELIMINATE SHIP", 4, 6, T::Near, 0, 0, 0, 0, kEliminateShipReward, kEliminateShipReputation, 0, 0, 3},
    {36, "MISS: PATROL ROUTE", 4, 7, T::Nav3, 0, 0, 0, 0, 7000, 1500, 0, 0, 3},
    {37, "MISS: CAPTURE SMUGGLERS", 4, 6, T::Near, 0, 0, 0, 0, 6000, 1500, 0, 0, 3},
    {38, "MISS: RESCUE V.I.P.", 4, 8, T::Near, 0, 0, 0, 0, 12000, 2500, 0, 0, 3},
    {100, "MISS: PATROL ROUTE", 1, 7, T::Nav2, 0, 0, 0, 0, 4000, 1000, 0, 0, 0},
    {101, "MISS: ELIMINATE SHIP", 1, 8, T::Near, 0, 0, 0, 0, 25000, 1200, 0, 0, 0},
    {102, "MISS: RESCUE POD", 1, 8, T::Near, 0, 0, 0, 0, 12000, 2500, 0, 0, 0},
}};

// The row of a type, nullptr for a type outside the catalogue (and 24).
constexpr const MissionSpec* FindMissionSpec(int type) {
  for (const MissionSpec& s : kMissionSpecs)
    if (s.Type == type && !s.Title.empty()) return &s;
  return nullptr;
}

}  // namespace lf::data
