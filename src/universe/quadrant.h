// The current quadrant: its bodies, who lives where, nebulas, debris and
// pods, and the traffic and people placed on them.
#pragma once

namespace lf {

// Builds the whole quadrant (bodies, other ships, nebulas, debris, pods,
// people). Laid again from the start should a draw run out of bounds, so it
// always ends.
void RandomizeQuad(int quadrant);

// The bodies only: positions, races, stations, types, pictures, societies,
// the four pirate bases, ore, the ship's start in quadrant 1, stocks, names.
void RandomizePlans(int quadrant);

// The picture tables of the 26 body pictures, and the unknown-body marker
// Planet[0].
void FillPictureTables();

// PlanetNames, rows 1..318 (132 and 133 empty).
void FillPlanetNames();

// The nebulas' drop rule: for each body in order, the last nebula of the list
// is dropped when it holds the body's centre.
void DropNebulasOverBodies();

// True when (x, y) lies strictly inside the 400 by 240 area of a nebula of
// the list.
bool InsideAnyNebula(double x, double y);

// Draw limit of the bounded draws of a quadrant's generation.
inline constexpr int kDrawLimit = 500;

}  // namespace lf
