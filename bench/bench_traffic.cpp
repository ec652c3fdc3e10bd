// One bridge frame with the whole traffic of a generated quadrant moving
// and a hail's panel and picture drawn, with the bridge set loaded when
// LANEFARER_DATA names a data folder.
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
#include "universe/universe_procedures.h"
#include "shell/doors.h"

namespace {

void SetUpBridgeWithTraffic() {
  using namespace lf;
  SetUpBridge();
  for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 50;
  // A hail with the second ship of the table, its picture on the view.
  G.HailedShip = 2;
  LoadOShipOSidePic();
  G.StaticOn = True;
  G.StaticFrame = 1;
}

void BM_BridgeFrameWithTraffic(benchmark::State& state) {
  using namespace lf;
  SetUpBridgeWithTraffic();
  for (auto _ : state) {
    DrawBridgeFrame(true, [] {
      DrawHailView();
      DrawHailMessages();
    });
    benchmark::DoNotOptimize(BackPixel(320, 145));
  }
}
BENCHMARK(BM_BridgeFrameWithTraffic)->Repetitions(5)->ReportAggregatesOnly(true);

}  // namespace
