// A star lane passage: the next quadrant laid out with its backdrop loaded
// from the data folder named by LANEFARER_DATA (the clip is not timed).
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/paths.h"
#include "universe/quadrant.h"
#include "universe/stocks.h"

namespace {

void BM_LanePassageQuad(benchmark::State& state) {
  using namespace lf;
  ResetGame();
  InicializeDirectDraw();
  if (const char* data = std::getenv("LANEFARER_DATA")) SetDataFolder(data);
  SeedRandom(G.Random, 4711);
  FillPictureTables();
  SetBasePrices();
  G.SectorSize = 5000;
  G.SensorRange = 100;
  int quadrant = 1;
  for (auto _ : state) {
    quadrant = quadrant % 3 + 2;
    G.CurrentQuadrant = static_cast<std::int16_t>(quadrant);
    RandomizeQuad(quadrant);
    benchmark::DoNotOptimize(G.PlanetCount);
  }
}
BENCHMARK(BM_LanePassageQuad)->Unit(benchmark::kMillisecond);

}  // namespace
