// One bridge frame with the whole traffic of a generated quadrant moving
// and a hail's panel and picture drawn, with the bridge set loaded when
// LANEFARER_DATA names a data folder.
#include <benchmark/benchmark.h>

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

void SetUpBridge() {
  using namespace lf;
  ResetGame();
  InicializeDirectDraw();
  if (const char* data = std::getenv("LANEFARER_DATA")) {
    SetDataFolder(data);
    LoadKeptBitmaps();
    LoadMainBitmaps();
  }
  DefineShipSpecs();
  FillBridgeButtons();
  FillOfficerLines();
  RandomizeQuad(1);
  G.TimeStep = 0.1;
  G.ShowGrid = G.ShowSensorRange = True;
  G.SensorRange = 100;
  G.SensorLevel = G.SensorSetting = 100;
  G.PropulsionLevel = G.PropulsionSetting = 200;
  G.HardpointCount = 5;
  const int fit[5][2] = {{4, 1}, {5, 1}, {6, 1}, {7, 1}, {1, 1}};
  for (int i = 0; i < 5; ++i) {
    G.FittedComp[i + 1][1] = static_cast<std::int16_t>(fit[i][0]);
    G.FittedComp[i + 1][2] = static_cast<std::int16_t>(fit[i][1]);
    G.FittedHealth[i + 1] = 300;
  }
  for (int i = 1; i <= G.PlanetCount; ++i) G.Planet[i].Known = True;
  G.ViewX = G.ShipX;
  G.ViewY = static_cast<std::int16_t>(G.ShipY);
  G.DestX = G.ShipX + 300;
  G.DestY = G.ShipY + 200;
  G.PageOpen[3] = 1;
  for (int b = 1; b <= 10; ++b) G.BridgeButton[3][b].Visible = True;
  G.BridgeButton[3][3].State = 1;
  DistributeEnergy();
  CheckDirection();
  for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 50;
  // A hail with the second ship of the table, its picture on the view.
  G.HailedShip = 2;
  LoadOShipOSidePic();
  G.StaticOn = True;
  G.StaticFrame = 1;
}

void BM_BridgeFrameWithTraffic(benchmark::State& state) {
  using namespace lf;
  SetUpBridge();
  for (auto _ : state) {
    CheckStopAvailability();
    CheckMissingComponents();
    UpdateEnergy();
    DrawNebulas();
    DrawQuadBack();
    DrawStars();
    DrawGrid();
    DrawSensorRange();
    DrawPlans();
    DrawToolsIcons();
    DrawShip();
    DrawOtherShips();
    DrawDistance();
    DrawDestination();
    DrawCoords();
    DrawButtons();
    CheckMouseOverButton();
    CheckScroll();
    DrawFaces();
    CheckDistance();
    DrawHealth();
    DrawHailView();
    DrawHailMessages();
    CheckPowerOverload();
    G.MessagePending = G.QuestionPending = False;
    benchmark::DoNotOptimize(BackPixel(320, 145));
  }
}
BENCHMARK(BM_BridgeFrameWithTraffic)->Repetitions(5)->ReportAggregatesOnly(true);

}  // namespace
