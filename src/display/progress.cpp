// The bridge backdrop and the progress display.
#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"

namespace lf {
namespace {

// Loads that fill the bar, by ProgressMode 1..4: the bridge set, the
// station set, a new game, the fight set.
int LoadsToFill(int mode) {
  switch (mode) {
    case 1: return 191;
    case 2: return 21;
    case 3: return 360;
    case 4: return 35;
    default: return 0;
  }
}

}  // namespace

void DrawBack() {
  SetSrc(0, 0, kScreenWidth, kScreenHeight);
  BltFast(0, 0, GFX.Back, false);
}

void DrawProgressBar() {
  SetSrc(0, 0, kScreenWidth, kScreenHeight);
  BltFast(0, 0, GFX.LoadingPicture, false);
  const int n = LoadsToFill(G.ProgressMode);
  // Another mode divides by zero: the bar's statements fail and are skipped.
  if (n > 0) {
    int width = static_cast<int>(Int((611.0 / n) * G.ProgressCount));
    if (width < 1) width = 1;
    SetSrc(0, 0, width, 46);
    BltFast(10, 396, GFX.ProgressBarPicture, false);
  }
  FlipBuffers();
}

}  // namespace lf
