// The big doors of the view, run in OrbitState 2, 4, 5 and 7, and the hail
// picture with its static bursts that the doors uncover.
#pragma once

namespace lf {

// One frame of the doors: 200 frames closing, 200 opening, then the change
// of OrbitState completes (2 -> 3, 4 -> 1, 5 -> 6, 7 -> 0).
void DrawBigDoors();

// The hailed ship's picture in the view at (121,25), with a burst of static
// while StaticOn is set (the frame draws it in OrbitState 6).
void DrawHailView();

}  // namespace lf
