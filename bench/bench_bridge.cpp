// One bridge frame's drawing and updates over a generated quadrant, with the
// bridge set loaded when LANEFARER_DATA names a data folder.
#include <benchmark/benchmark.h>

#include "bridge_setup.h"

#include <cstdlib>

#include "bridge/bridge_procedures.h"
#include "display/bitmap_sets.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/paths.h"
#include "universe/bridge_buttons.h"
#include "universe/new_game.h"
#include "universe/quadrant.h"

namespace {

void BM_BridgeFrame(benchmark::State& state) {
  using namespace lf;
  SetUpBridge();
  for (auto _ : state) {
    DrawBridgeFrame(false, DrawEnergyList);
    benchmark::DoNotOptimize(BackPixel(320, 145));
  }
}
BENCHMARK(BM_BridgeFrame)->Repetitions(5)->ReportAggregatesOnly(true);

}  // namespace
