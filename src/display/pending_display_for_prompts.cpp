// Temporary stand-ins, until the display layer and the screen loops are
// merged, for exactly what the prompt strip, cursor and doors call: the
// source rectangle, BltFast (which only reports to the blit observer), the
// handle table, LoadOrbitPic and DrawMainMenu. Delete this file at merge.
#include "display/bitmap.h"
#include "display/bitmap_sets.h"
#include "display/blit_observer.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/screens.h"

namespace lf {

Bitmap::~Bitmap() = default;
Bitmap::Bitmap(Bitmap&& other) noexcept : surface_(other.surface_) { other.surface_ = nullptr; }
Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
  surface_ = other.surface_;
  other.surface_ = nullptr;
  return *this;
}

namespace {
Gfx g_gfx;
}  // namespace
Gfx& GFX = g_gfx;

void SetSrc(int left, int top, int right, int bottom) {
  G.SrcLeft = left;
  G.SrcTop = top;
  G.SrcRight = right;
  G.SrcBottom = bottom;
}

bool BltFast(int x, int y, const Bitmap& bitmap, bool keyed) {
  if (g_blit_observer) g_blit_observer(x, y, bitmap, keyed);
  return false;
}

void LoadOrbitPic() {}

void DrawMainMenu() { throw ScreenChange{}; }

}  // namespace lf
