#include "platform/letterbox.h"

#include <algorithm>

namespace lf {
namespace {
constexpr int kW = 640;
constexpr int kH = 480;
// Room left for the window's title bar and borders at start.
constexpr int kFrameAllowance = 40;

int FloorDiv(long a, long b) {
  long q = a / b;
  if ((a % b != 0) && ((a < 0) != (b < 0))) --q;
  return static_cast<int>(q);
}
}  // namespace

Letterbox FitFrame(int windowW, int windowH) {
  windowW = std::max(windowW, 1);
  windowH = std::max(windowH, 1);
  Letterbox box;
  const int scale = std::min(windowW / kW, windowH / kH);
  if (scale >= 1) {
    box.scale = scale;
    box.w = kW * scale;
    box.h = kH * scale;
  } else {
    box.scale = 0;
    // Shrink to the narrower side, keeping 4:3.
    if (windowW * kH <= windowH * kW) {
      box.w = windowW;
      box.h = std::max(1, windowW * kH / kW);
    } else {
      box.h = windowH;
      box.w = std::max(1, windowH * kW / kH);
    }
  }
  box.x = (windowW - box.w) / 2;
  box.y = (windowH - box.h) / 2;
  return box;
}

void WindowToScreen(const Letterbox& box, int wx, int wy, int& sx, int& sy) {
  sx = std::clamp(FloorDiv(static_cast<long>(wx - box.x) * kW, box.w), 0, kW - 1);
  sy = std::clamp(FloorDiv(static_cast<long>(wy - box.y) * kH, box.h), 0, kH - 1);
}

void ScreenToWindow(const Letterbox& box, int sx, int sy, int& wx, int& wy) {
  sx = std::clamp(sx, 0, kW - 1);
  sy = std::clamp(sy, 0, kH - 1);
  wx = box.x + static_cast<int>((2L * sx + 1) * box.w / (2L * kW));
  wy = box.y + static_cast<int>((2L * sy + 1) * box.h / (2L * kH));
}

int OpeningScale(int usableW, int usableH, int requested) {
  if (requested > 0) return requested;
  const int fit = std::min(usableW / kW, (usableH - kFrameAllowance) / kH);
  return std::clamp(fit, 1, 3);
}

}  // namespace lf
