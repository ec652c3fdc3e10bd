// Minimal stand-ins for the display layer, the prompt strip, the cursor and
// the doors, so the frame loop builds and runs on its own. Nothing is drawn:
// a blit draws nothing and a flip presents a black frame.
#include <array>
#include <cstdint>
#include <memory>
#include <utility>

#include "display/bitmap.h"
#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/cursor.h"
#include "shell/doors.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/prompts.h"

namespace lf {

Bitmap::~Bitmap() = default;
Bitmap::Bitmap(Bitmap&& other) noexcept : surface_(std::exchange(other.surface_, nullptr)) {}
Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
  surface_ = std::exchange(other.surface_, nullptr);
  return *this;
}

namespace {
std::unique_ptr<Gfx> g_gfx = std::make_unique<Gfx>();
std::array<std::uint16_t, 640 * 480> g_black{};
}  // namespace
Gfx& GFX = *g_gfx;

void InicializeDirectDraw() {}
void SetSrc(int left, int top, int right, int bottom) {
  G.SrcLeft = left;
  G.SrcTop = top;
  G.SrcRight = right;
  G.SrcBottom = bottom;
}
bool BltFast(int, int, const Bitmap&, bool) { return false; }
void FlipBuffers() { CurrentHost().Present(g_black.data(), 640 * 2); }

void DrawBack() {}
void LoadMenuBitmaps() {}
void LoadMainBitmaps() {}
void Kraj() {}

void DrawText() {}

void ReadCursor() {
  int x = 0, y = 0;
  CurrentHost().GetCursorPos(x, y);
  G.MouseX = x;
  G.MouseY = y;
}
void MoveCursor(int x, int y) {
  CurrentHost().SetCursorPos(x, y);
  G.MouseX = x;
  G.MouseY = y;
}
void a_DrawCursor() {}
void DrawCursor() {}
void CheckOverTool() {}
void DrawToolTip() {}

void DrawBigDoors() {}

}  // namespace lf
