// Generation speed: one quadrant alone, and a whole new game.
#include <benchmark/benchmark.h>

#include "shell/game_state.h"
#include "shell/host.h"
#include "universe/new_game.h"
#include "universe/quadrant.h"
#include "universe/stocks.h"

namespace {

void BM_RandomizeQuad(benchmark::State& state) {
  lf::ResetGame();
  lf::SeedRandom(lf::G.Random, 12345);
  lf::FillPictureTables();
  lf::SetBasePrices();
  const int quadrant = static_cast<int>(state.range(0));
  lf::G.CurrentQuadrant = static_cast<std::int16_t>(quadrant);
  for (auto _ : state) {
    lf::RandomizeQuad(quadrant);
    benchmark::DoNotOptimize(lf::G.PlanetCount);
  }
}
BENCHMARK(BM_RandomizeQuad)->DenseRange(1, 4)->Unit(benchmark::kMicrosecond);

void BM_NewGameGeneration(benchmark::State& state) {
  lf::ScriptedHost host;
  lf::SetHost(&host);
  lf::ResetGame();
  for (auto _ : state) {
    ++host.seed;
    lf::G.CurrentQuadrant = 1;
    lf::SetBasePrices();
    lf::RandomGame();
    lf::RandomizeCharacters();
    lf::DefineShipSpecs();
    benchmark::DoNotOptimize(lf::G.PlanetCount);
  }
  lf::SetHost(nullptr);
}
BENCHMARK(BM_NewGameGeneration)->Unit(benchmark::kMicrosecond);

}  // namespace
