// The dealer's turning pictures of components and hulls.
#pragma once

#include "canvas.h"

namespace assetgen {

// `frames` frames of 200 x 200 side by side: component `model` of `group`
// 1..7, or (group 10) the hull of `race` and `hullClass`, turning once
// around on a lit plinth.
void DrawTurntable(Canvas& cv, int group, int model, int race, int hullClass, int frames);

}  // namespace assetgen
