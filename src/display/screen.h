// The screen layer: a 640x480 RGB565 back surface, bitmaps loaded by file,
// blits with the shared source rectangle, and the present step.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "display/bitmap.h"

namespace lf {

inline constexpr int kScreenWidth = 640;
inline constexpr int kScreenHeight = 480;

// Opens the back surface (no window: the host shows presented frames).
void InicializeDirectDraw();

// Reads a picture in the game's path notation ("\gfx\main\0.bmp"). Counts
// ProgressCount and draws the progress bar as a load under way asks.
// A missing or unreadable file gives an empty handle.
Bitmap LoadBitmapIntoDXS(std::string_view gamePath);

// The picture in the bytes of a BMP file, converted to the screen's format
// with colour 0 as its key; an empty handle, and `file` named as unusable,
// when the bytes are not a picture the game can draw.
Bitmap BitmapFromBytes(const std::vector<std::uint8_t>& bytes, const std::string& file);

// The shared source rectangle, set before every blit.
void SetSrc(int left, int top, int right, int bottom);

// Copies the shared source rectangle of `bitmap` to the back surface at
// (x, y); keyed leaves out colour 0. A rectangle that does not fit the
// screen or the source, or an empty handle, is skipped: returns false.
bool BltFast(int x, int y, const Bitmap& bitmap, bool keyed);

// Shows the back surface through the host, then clears it to black.
void FlipBuffers();

// The back surface, for the host, screenshots and tests.
const std::uint16_t* BackPixels();
int BackPitchBytes();
std::uint16_t BackPixel(int x, int y);
// The last presented frame (what a screenshot shows).
const std::uint16_t* PresentedPixels();

// RGB565 of an 8-bit colour.
constexpr std::uint16_t Rgb565(int r, int g, int b) {
  return static_cast<std::uint16_t>(((r >> 3) << 11) | ((g >> 2) << 5) | (b >> 3));
}

}  // namespace lf
