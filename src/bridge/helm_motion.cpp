// The helm: a destination from a click, the heading and speed towards it,
// what lies in range of the ship, and whether ALL STOP can be pressed.
#include <algorithm>
#include <cmath>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

void CheckStopAvailability() {
  ButtonState(1, 9) = (G.ShipStepX == 0 && G.ShipStepY == 0) ? 2 : 0;
}

void CheckDestination() {
  ReadCursor();
  if (G.MouseLook != 0) return;
  if (!(G.MouseX > 120 && G.MouseX < 520 && G.MouseY > 25 && G.MouseY < 265)) return;
  PlaySoundFx(2, 2);
  G.DestX = G.MouseX - 320 + G.ViewX + 18;
  G.DestY = G.MouseY - 125 + G.ViewY - 8;
  SetLine("", "DESTINATION COORDINATES SET. FULL AHEAD.", "", 1);
  CheckDirection();
  G.FollowShip = 0;
  G.FollowMode = 0;
}

void CheckDirection() {
  if (G.ShipX == G.DestX && G.ShipY == G.DestY) {
    G.ShipStepX = 0;
    G.ShipStepY = 0;
    ButtonState(1, 9) = 2;
    G.DestMarkerFrame = 0;
    return;
  }
  ButtonState(1, 9) = 0;
  if (G.DestX != G.ShipX) G.ShipStepX = (G.DestX - G.ShipX) / 100;
  if (G.DestY != G.ShipY) G.ShipStepY = (G.DestY - G.ShipY) / 100;
  double speed = 0;
  if (G.PropulsionLevel >= 100 && G.PropulsionSetting >= 100)
    speed = (G.PropulsionLevel - 100) / 100 * EngineSpeed() * 0.5;
  // A division by a zero step fails and leaves the factor at 0.
  double f = 0;
  if (std::abs(G.ShipStepX) > std::abs(G.ShipStepY)) {
    f = std::abs(speed / G.ShipStepX);
  } else if (G.ShipStepY != 0) {
    f = std::abs(speed / G.ShipStepY);
  }
  G.ShipStepX *= f;
  G.ShipStepY *= f;
  G.DestMarkerFrame = 0;
}

void CheckDistance() {
  bool anyInRange = false;
  const int last = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= last; ++i) {
    const PlanetRecord& body = G.Planet[i];
    const double d = std::hypot(G.ShipX - body.X, G.ShipY - body.Y);
    if (d < body.Width - 5) {
      anyInRange = true;
      if (body.Race != 7) {
        ButtonState(1, 5) = 0;
        G.OrbitState = 1;
        ButtonState(5, 1) = 0;
      } else {
        ButtonState(1, 5) = 2;
        ButtonState(1, 3) = 0;
        ButtonState(5, 1) = 0;
        G.OrbitOfferOpen = False;
        G.OrbitState = 1;
      }
      if (G.ScanRequested == True) DrawScanResults();
    } else if (G.OrbitState != 2 && G.OrbitState != 3) {
      ButtonState(1, 7) = 2;
    }
  }
  if (!anyInRange) {
    G.OrbitOfferOpen = True;
    G.OrbitState = 0;
    ButtonState(1, 5) = 2;
  }
  G.ScanRequested = False;
}

}  // namespace lf
