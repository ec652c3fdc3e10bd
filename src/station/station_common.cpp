#include "station/station_common.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/station_procedures.h"

namespace lf {

int DockedPlanet(double margin) {
  const int count = std::min<int>(G.PlanetCount, decltype(G.Planet)::kHi);
  for (int i = 1; i <= count; ++i) {
    const PlanetRecord& p = G.Planet[i];
    const double d = std::hypot(G.ShipX - p.X, G.ShipY - p.Y);
    if (d < p.Width - margin) return i;
  }
  return 0;
}

int StationRace() {
  const int planet = DockedPlanet();
  return planet == 0 ? 0 : G.Planet[planet].Race;
}

bool IsPirateStation() { return StationRace() == 7; }

std::int16_t& StationPage() { return G.StatusSlot[DockedSlot].Value; }

void ReturnToTerminal(bool welcome) {
  GFX.StationBack =
      LoadBitmapIntoDXS(R"(\gfx\station\a_backs\terminal_)" + std::to_string(G.CurrentQuadrant) + ".bmp");
  a_ClearTermScreen();
  StationPage() = 1;
  if (welcome) a_Welcome();
}

}  // namespace lf
