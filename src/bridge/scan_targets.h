// What the scanners look at: debris and pods close to the ship, and the
// body the ship is near.
#pragma once

namespace lf {

// Debris or pod k (1..50) lies under 20 units from the ship.
bool NearDebris(int k);
bool NearPod(int k);
// The last body, in table order, whose width is more than its distance
// from the ship; 0 when the ship is near none.
int BodyNearShip();

}  // namespace lf
