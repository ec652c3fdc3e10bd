// Temporary stand-ins for what the display layer and the meeting lounge
// provide, so that the universe builds on its own. Removed at merge.
#include <SDL.h>

#include "display/bitmap.h"
#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"

namespace lf {

Bitmap::~Bitmap() { Reset(); }
Bitmap::Bitmap(Bitmap&& other) noexcept : surface_(other.surface_) { other.surface_ = nullptr; }
Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
  if (this != &other) {
    Reset();
    surface_ = other.surface_;
    other.surface_ = nullptr;
  }
  return *this;
}
void Bitmap::Reset() {
  if (surface_) SDL_FreeSurface(surface_);
  surface_ = nullptr;
}

namespace {
Gfx g_gfx;
}
Gfx& GFX = g_gfx;

Bitmap LoadBitmapIntoDXS(std::string_view) {
  ++G.ProgressCount;
  return Bitmap{};
}
void LoadKeptBitmaps() {}
void LoadMainBitmaps() {}
void DrawProgressBar() {}
void a_ChangeNewsText() {}

}  // namespace lf
