#include "bridge/ship_pick.h"

#include <algorithm>
#include <cmath>

#include "shell/game_state.h"

namespace lf {

double ShipScreenX(int i) { return 300 + G.OtherShip[i].X - Int(G.ViewX) - 14; }
double ShipScreenY(int i) { return 125 + G.OtherShip[i].Y - G.ViewY - 8; }

bool ShipUnderCursor(int i) {
  const double dx = ShipScreenX(i) + 12 - G.MouseX;
  const double dy = ShipScreenY(i) + 7 - G.MouseY;
  return std::sqrt(dx * dx + dy * dy) < 10;
}

bool ShipInReach(int i) {
  const double dx = G.OtherShip[i].X - G.ShipX;
  const double dy = G.OtherShip[i].Y - G.ShipY;
  return std::sqrt(dx * dx + dy * dy) < G.SensorRange && G.InNebula == 0;
}

int PickShip() {
  const int last = std::min<int>(G.OtherShipCount, decltype(G.OtherShip)::kHi);
  for (int i = 1; i <= last; ++i) {
    if (ShipUnderCursor(i) && ShipInReach(i)) return i;
  }
  return 0;
}

}  // namespace lf
