// The two wrapped star layers, the grid and the sensor ring.
#include <cmath>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "display/bitmap_catalog.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"

namespace lf {

namespace {

void Piece(int left, int top, int right, int bottom, int x, int y, const Bitmap& bitmap) {
  SetSrc(left, top, right, bottom);
  BltFast(x, y, bitmap, true);
}

// One layer, wrapped in four pieces, moving at `speed` times the view.
void DrawStarLayer(const Bitmap& layer, double speed) {
  const int sx = static_cast<int>(Int(Frac(G.ViewX * speed / 399) * 399 + 1));
  const int sy = static_cast<int>(Int(Frac(G.ViewY * speed / 239) * 239 + 1));
  if (!(sx > 0 && sx < 401 && sy > 0 && sy < 241)) return;
  Piece(0, 0, sx, sy, 520 - sx, 265 - sy, layer);
  Piece(sx, 0, 400, sy, 120, 265 - sy, layer);
  Piece(sx, sy, 400, 240, 120, 25, layer);
  Piece(0, sy, sx, 240, 520 - sx, 25, layer);
}

}  // namespace

void DrawStars() {
  if (!std::isfinite(G.ViewX)) return;
  DrawStarLayer(GFX.StarLayer[1], 0.6);
  DrawStarLayer(GFX.StarLayer[2], 0.9);
}

void DrawGrid() {
  if (!std::isfinite(G.ViewX)) return;
  const int gx = CInt(80 - Frac(G.ViewX / 79) * 79);
  const int gy = CInt(80 - Frac(G.ViewY / 79.0) * 79);
  Piece(0, 0, 399 - gx, 239 - gy, 121 + gx, 25 + gy, GFX.Grid);
  Piece(0, 239 - gy, 399 - gx, 239, 121 + gx, 25, GFX.Grid);
  Piece(399 - gx, 0, 399, 239 - gy, 121, 25 + gy, GFX.Grid);
  Piece(399 - gx, 239 - gy, 399, 239, 121, 25, GFX.Grid);
}

void DrawSensorRange() {
  if (G.SensorLevel >= 100 && G.InNebula == 0) {
    const int r = CInt(G.SensorRange);
    const int size = 2 * r;
    DrawClipped(CInt(AnchorX(G.ShipX)) - (r - 13), CInt(AnchorY(G.ShipY)) - (r - 11), size, size,
                static_cast<int>(Int(G.SensorRingFrame)) * size, 0, SensorRingFor(G.SensorRange));
  }
  G.SensorRingFrame += 0.1;
  if (G.SensorRingFrame > 8) G.SensorRingFrame = 0;
}

}  // namespace lf
