// Moving the view: the centring icons, mouse look, the scroll margins of
// the window, and the grid and sensor-ring switches of the top strip.
#include "bridge/bridge_procedures.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/guards.h"

namespace lf {

namespace {

bool Strictly(int left, int right, int top, int bottom) {
  return G.MouseX > left && G.MouseX < right && G.MouseY > top && G.MouseY < bottom;
}
bool Inclusive(int left, int right, int top, int bottom) {
  return G.MouseX >= left && G.MouseX <= right && G.MouseY >= top && G.MouseY <= bottom;
}

Flag Toggled(Flag f) { return f == True ? False : True; }

}  // namespace

void CheckViewMode() {
  if (Inclusive(433, 444, 4, 18)) {
    PlaySoundFx(4, 1);
    G.ViewDetached = False;
    G.TooltipText = "CENTER ON SHIP";
  }
  if (Inclusive(462, 473, 4, 18)) {
    PlaySoundFx(4, 1);
    G.ViewX = G.DestX;
    Assign(G.ViewY, G.DestY);
    G.ViewDetached = 1;
    G.TooltipText = "CENTER ON DESTINATION";
  }
}

void CheckViewMove() {
  if (!FreeBridge()) return;
  ReadCursor();
  const int dx = G.MouseX - 320;
  const int dy = G.MouseY - 145;
  if (dx != 0) {
    G.ViewDetached = 1;
    G.ViewX += dx / 2.0;
  }
  if (dy != 0) {
    G.ViewDetached = 1;
    Assign(G.ViewY, G.ViewY + dy / 2.0);
  }
  MoveCursor(320, 145);
}

void CheckScroll() {
  ReadCursor();
  Assign(G.ScrollDelay, G.ScrollDelay + 1.0);
  const int x = G.MouseX, y = G.MouseY;
  const bool ready = G.ScrollDelay >= 10;
  bool inMargin = false;
  if (Strictly(145, 495, 25, 50)) {
    inMargin = true;
    if (ready) {
      Assign(G.ViewY, static_cast<double>(G.ViewY) - (51 - y));
      G.ViewDetached = 1;
    }
  }
  if (Strictly(145, 495, 240, 265)) {
    inMargin = true;
    if (ready) {
      Assign(G.ViewY, static_cast<double>(G.ViewY) + (y - 240));
      G.ViewDetached = 1;
    }
  }
  if (Strictly(120, 145, 50, 240)) {
    inMargin = true;
    if (ready) {
      G.ViewX -= 145 - x;
      G.ViewDetached = 1;
    }
  }
  if (Strictly(495, 520, 50, 240)) {
    inMargin = true;
    if (ready) {
      G.ViewX += x - 495;
      G.ViewDetached = 1;
    }
  }
  if (!inMargin) G.ScrollDelay = 0;
}

void CheckGrid() {
  if (!Strictly(404, 415, 4, 18)) return;
  PlaySoundFx(4, 1);
  G.ShowGrid = Toggled(G.ShowGrid);
}

void CheckSensorRange() {
  if (!Strictly(375, 386, 4, 18)) return;
  PlaySoundFx(4, 1);
  G.ShowSensorRange = Toggled(G.ShowSensorRange);
  G.SensorRingFrame = 0;
}

}  // namespace lf
