// The player's ship in the view, the destination marker and the distance
// to it, the coordinates box, and the crew's health bars.
#include <algorithm>
#include <cmath>
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"
#include "shell/guards.h"

namespace lf {

namespace {

int DestinationTenths() {
  const double d = std::hypot(G.ShipX - G.DestX, G.ShipY - G.DestY) / 10;
  return std::isfinite(d) ? CInt(Int(d)) : 0;
}

// A number printed with the pattern "##": nothing for 0.
std::string Hashes(double value) {
  const double v = Int(value);
  return v == 0 ? std::string() : IntText(v);
}

}  // namespace

void DrawShip() {
  int sheet = 0;
  Skip([&] {
    const bool weapons = ButtonState(3, 1) == 1, shield = ButtonState(3, 2) == 1;
    sheet = weapons && shield ? 3 : weapons ? 1 : shield ? 2 : 0;
  });
  DrawClipped(CInt(AnchorX(G.ShipX)) - 17, CInt(AnchorY(G.ShipY)) - 10, 35, 35,
              35 * CInt(Int(G.ShipFrame)), 0, GFX.OwnShip[sheet]);
}

void DrawDestination() {
  if (DestinationTenths() > 2) {
    DrawClipped(CInt(300 + G.DestX - G.ViewX) - 14, CInt(AnchorY(G.DestY)) - 7, 34, 34,
                34 * CInt(Int(G.DestMarkerFrame)), 0, GFX.Dest);
  }
  G.DestMarkerFrame += 0.3;
  if (G.DestMarkerFrame > 24) G.DestMarkerFrame = 8;
}

void DrawDistance() {
  const int d = DestinationTenths();
  if (d <= 2) return;
  const std::string text = " " + std::to_string(d);
  const int x = CInt(AnchorX(G.ShipX)) + 15;
  const int y = CInt(AnchorY(G.ShipY)) + 15;
  if (y >= 26 && x >= 121 && x + 6 * CodePointCount(text) <= 513 && y + 6 <= 265)
    DrawSmallText(x, y, text);
}

void DrawCoords() {
  SetSrc(0, 0, 81, 32);
  BltFast(431, 31, GFX.Mask, false);
  const double values[3][2] = {{G.ShipX, G.ShipY}, {G.DestX, G.DestY}, {G.ViewX, double(G.ViewY)}};
  const char* labels[3] = {"SHIP:", "DEST:", "VIEW:"};
  for (int row = 0; row < 3; ++row) {
    const int y = 36 + 8 * row;
    DrawSmallText(438, y, labels[row]);
    DrawSmallText(467, y, Hashes(values[row][0] / 100) + "," + Hashes(values[row][1] / 100));
  }
}

void DrawHealth() {
  for (int post = 1; post <= 6; ++post) {
    const int x = G.FaceX[post], y = G.FaceY[post] + 105;
    SetSrc(0, 0, 80, 10);
    BltFast(x, y, GFX.Health2, true);
    const CrewPostRecord& crew = G.CrewPost[post];
    if (crew.Person == 0) continue;
    const int w = std::clamp(CInt(0.79 * crew.Health) + RandomInt(2) - 2, 2, 100);
    SetSrc(0, 0, w, 10);
    BltFast(x, y, GFX.Health, true);
  }
}

}  // namespace lf
