#include "display/gfx.h"

namespace lf {
namespace {
Gfx g_gfx;
}  // namespace

Gfx& GFX = g_gfx;

void ReleaseAllBitmaps() { GFX = Gfx{}; }

}  // namespace lf
