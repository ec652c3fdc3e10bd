// A finished picture: 0x00RRGGBB pixels, row by row from the top. The value
// 0 (pure black) is the transparent key; every other pixel stays non-zero
// once reduced to 16-bit RGB565.
#pragma once

#include <cstdint>
#include <vector>

namespace assetgen {

struct Image {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;
};

// The darkest opaque tone: it still differs from the key in RGB565.
inline uint32_t KeepOpaque(uint32_t r, uint32_t g, uint32_t b) {
  if (r < 8 && g < 4 && b < 8) { r = 8; g = 4; b = 8; }
  return (r << 16) | (g << 8) | b;
}

}  // namespace assetgen
