// The station procedures called from the shell: the hand-over from the
// bridge, the station's share of the mouse, one pass of its loop, and the
// guild panel of the bridge.
#pragma once

namespace lf {

// Stops the clock, swaps the bitmap sets, deals the boards; ends in
// a_StationLoop (screens.h).
void a_EnteringStation();
// A press while the station screen runs.
void a_CheckStationMouseDown();
// One pass of a_StationLoop, its yield included. a_StationLoop (the
// machine) sets StationActive and repeats this while StationActive = -1.
void a_StationLoopFrame();
// The guild panel on the bridge, button (5,8).
void DrawGuildMembership();
// A new headline for the lounge's news screen.
void a_ChangeNewsText();

}  // namespace lf
