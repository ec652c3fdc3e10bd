// One frame of the bridge loop (RunLoop, screens.h).
#pragma once

namespace lf {

// The 32 steps of a bridge frame, from the maintenance pool to the flip and
// the yield. Each step that fails is skipped; the frame goes on.
void RunLoopFrame();

}  // namespace lf
