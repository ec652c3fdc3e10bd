// The universe's procedures called by the bridge frame.
#pragma once

namespace lf {

// Moves every other ship, turns the hostile ones on the player, lets traders
// call, and draws what the sensors see. May start a fight.
void DrawOtherShips();

}  // namespace lf
