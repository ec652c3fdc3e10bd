// Shared set-up for the universe tests: a fresh record with the tables a
// quadrant needs, seeded.
#pragma once

#include <cstdint>

#include "shell/game_state.h"
#include "universe/quadrant.h"
#include "universe/stocks.h"

namespace lf::testing {

inline void FreshUniverse(std::uint64_t seed, int quadrant) {
  ResetGame();
  SeedRandom(G.Random, seed);
  FillPictureTables();
  SetBasePrices();
  G.SectorSize = 5000;
  G.SensorRange = 120;
  G.CurrentQuadrant = static_cast<std::int16_t>(quadrant);
}

}  // namespace lf::testing
