// The big doors of the view, run in OrbitState 2, 4, 5 and 7.
#pragma once

namespace lf {

void DrawBigDoors();

}  // namespace lf
