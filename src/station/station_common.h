// What every station screen shares: the docked planet, the current screen,
// and the way back to the terminal.
#pragma once

#include <cstdint>

namespace lf {

// The planet the ship is docked at: the first of planets 1..PlanetCount
// whose distance from the ship is less than its Width less `margin`; 0 when
// the ship is near none. Callers must handle 0 (a restored game may put the
// ship anywhere).
int DockedPlanet(double margin = 0);

// The race of the docked planet, 0 when there is none; 7 is a pirate station.
int StationRace();
bool IsPirateStation();

// The current station screen 1..8: the value field of the docked slot.
std::int16_t& StationPage();

// Back to the terminal from another screen: the terminal background, the
// terminal text typed anew, StationPage 1, and the welcome text when
// `welcome` is true. The caller clears its own screen's selection.
void ReturnToTerminal(bool welcome);

}  // namespace lf
