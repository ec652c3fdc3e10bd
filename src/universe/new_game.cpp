#include "universe/new_game.h"

#include "display/bitmap_sets.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "station/station_procedures.h"
#include "universe/bridge_buttons.h"
#include "universe/quadrant.h"

namespace lf {

namespace {

void FillFaceAreas() {
  constexpr std::int16_t kFaceY[3] = {29, 155, 289};
  for (int post = 1; post <= 6; ++post) {
    G.FaceX[post] = post <= 3 ? 24 : 538;
    G.FaceY[post] = kFaceY[(post - 1) % 3];
    G.FaceWidth[post] = 80;
    G.FaceHeight[post] = 100;
    G.PageOpen[post] = 0;
  }
}

void LayAsteroidFields() {
  G.AsteroidField = {};
  G.AsteroidFieldCount = 0;
  for (int x = 0; x <= 5000; x += 250)
    for (int y = 0; y <= 5000; y += 250)
      if (Rnd() > 0.95 && G.AsteroidFieldCount < decltype(G.AsteroidField)::kHi) {
        ++G.AsteroidFieldCount;
        G.AsteroidField[G.AsteroidFieldCount].X = x;
        G.AsteroidField[G.AsteroidFieldCount].Y = y;
      }
}

}  // namespace

void RandomGame() {
  a_ChangeNewsText();

  G.SensorRange = 120;
  G.SensorRingFrame = 0;
  G.SectorSize = 5000;
  G.BigDoorPos = 200;
  G.OrbitOfferOpen = True;
  G.ProgressCount = 0;
  G.ProgressMode = 3;

  LoadKeptBitmaps();
  LoadMainBitmapsAtNewGame();
  FillPictureTables();
  FillFaceAreas();

  SeedRandom(G.Random, CurrentHost().ClockSeed());

  FillBridgeButtons();
  LayAsteroidFields();
  FillOfficerLines();

  RandomizeQuad(G.CurrentQuadrant);
}

}  // namespace lf
