// What the scanners look at: debris and pods close to the ship, and the
// body the ship is near.
#pragma once

// Debris or pods under 20 units from the ship: NearDebris, NearPod.
#include "bridge/helm_reach.h"

namespace lf {

// The last body, in table order, whose width is more than its distance
// from the ship; 0 when the ship is near none.
int BodyNearShip();

}  // namespace lf
