// The bridge both frame benchmarks draw: a generated quadrant, the bridge
// set loaded when LANEFARER_DATA names a data folder, a fitted ship flying
// with the grid and the sensor ring on and the navigator's page open.
#pragma once

#include <cstdint>
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

inline void SetUpBridge() {
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
}

// The drawing and updates of one bridge frame, in the frame's order, with
// the other ships drawn or not and the lower panel drawn by `panel`.
inline void DrawBridgeFrame(bool otherShips, void (*panel)()) {
  using namespace lf;
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
  if (otherShips) DrawOtherShips();
  DrawDistance();
  DrawDestination();
  DrawCoords();
  DrawButtons();
  CheckMouseOverButton();
  CheckScroll();
  DrawFaces();
  CheckDistance();
  DrawHealth();
  panel();
  CheckPowerOverload();
  G.MessagePending = G.QuestionPending = False;
}
