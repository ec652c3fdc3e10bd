// Debris and cargo pods on the sector view, within the sensor's reach.
#include <cmath>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "display/gfx.h"
#include "shell/game_state.h"

namespace lf {

namespace {

constexpr int kSize = 20;
constexpr double kFrames = 24;

bool InSensorRange(double x, double y) { return std::hypot(G.ShipX - x, G.ShipY - y) < G.SensorRange; }

void DrawObject(double x, double y, int frame, const Bitmap& strip) {
  const double left = AnchorX(x) - kSize / 2, top = AnchorY(y) - kSize / 2;
  if (!std::isfinite(left) || !std::isfinite(top) || std::abs(left) > 1e6 || std::abs(top) > 1e6) return;
  DrawClipped(CInt(left), CInt(top), kSize, kSize, kSize * frame, 0, strip);
}

}  // namespace

void DrawDebrisCargo() {
  G.ShipFrame += 0.5;
  if (!(G.ShipFrame < kFrames) || !(G.ShipFrame >= 0)) G.ShipFrame = 0;
  if (G.SensorLevel < 100 || G.InNebula != 0) return;
  const int frame = static_cast<int>(G.ShipFrame);
  for (int i = 1; i <= 50; ++i) {
    const DebrisRecord& d = G.Debris[i];
    if (d.Visible == True && InSensorRange(d.X, d.Y)) DrawObject(d.X, d.Y, frame, GFX.DebrisPicture);
    const CargoPodRecord& c = G.CargoPod[i];
    if (InSensorRange(c.X, c.Y)) DrawObject(c.X, c.Y, frame, GFX.CargoPodPicture);
  }
}

}  // namespace lf
