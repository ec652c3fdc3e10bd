// The star lane: a turning gate on the map once its place is known; flying
// into it takes the ship to the next quadrant, and the lane of the fourth
// quadrant ends the voyage.
#include <algorithm>
#include <cmath>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/menu.h"
#include "universe/quadrant.h"

namespace lf {

namespace {

constexpr int kSize = 64;
constexpr int kPerRow = 10;
constexpr double kLastFrame = 88.9;
constexpr double kReach = 20;
constexpr int kLastQuadrant = 4;

}  // namespace

void DrawStarLanes() {
  G.StarLaneFrame += 0.5;
  if (!(G.StarLaneFrame <= kLastFrame) || !(G.StarLaneFrame >= 0)) G.StarLaneFrame = 0;
  const double left = AnchorX(G.StarLaneX) - kSize / 2, top = AnchorY(G.StarLaneY) - kSize / 2;
  if (std::abs(left) > 1e6 || std::abs(top) > 1e6) return;
  const int frame = static_cast<int>(G.StarLaneFrame);
  DrawClipped(CInt(left), CInt(top), kSize, kSize, (frame % kPerRow) * kSize, (frame / kPerRow) * kSize,
              GFX.PlanetBitmap[101]);
}

void EnteringStarlane() {
  if (!(std::hypot(G.ShipX - G.StarLaneX, G.ShipY - G.StarLaneY) < kReach)) return;
  // A quadrant outside 1..4 (a damaged state) counts as the nearest one.
  G.CurrentQuadrant = static_cast<std::int16_t>(std::clamp<int>(G.CurrentQuadrant, 1, kLastQuadrant));
  StopTrack();
  if (G.CurrentQuadrant == kLastQuadrant) {
    // The end of the voyage: the closing clips, and the program ends.
    G.StarLaneKnown = False;
    VideoLane();
    Form_Unload();
  }
  VideoLane();
  G.StarLaneKnown = False;
  G.HullPoints *= 0.66;
  ++G.CurrentQuadrant;
  RandomizeQuad(G.CurrentQuadrant);
  // The old quadrant's bodies leave the autopilot list with it, and the
  // ship that was followed stayed behind.
  MakeAutopilotList();
  G.FollowShip = 0;
  G.FollowMode = 0;
}

}  // namespace lf
