// A watch on the blits, for tests: when set, BltFast calls it first on
// every call, whether the blit then succeeds or is skipped, with the place,
// the handle and keyed; the source rectangle is G.SrcLeft..SrcBottom.
#pragma once

#include "display/bitmap.h"

namespace lf {

using BlitObserver = void (*)(int x, int y, const Bitmap& bitmap, bool keyed);
extern BlitObserver g_blit_observer;

}  // namespace lf
