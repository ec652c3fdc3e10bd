// Placing the traffic of a quadrant: patrols and heavies at inhabited
// bodies, pirates around their bases, then free scouts and traders.
#pragma once

namespace lf {

// Fills the OtherShip table; OtherShipCount ends one above the last ship.
void PlaceOtherShips();

// Patrol and heavy class of a race 1..6 (0 for any other race).
int PatrolClass(int race);
int HeavyClass(int race);

}  // namespace lf
