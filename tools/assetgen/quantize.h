// Reduction of a picture to at most 256 colours by median cut; index 0 is
// the transparent key and is used by key pixels only.
#pragma once

#include <cstdint>
#include <vector>

#include "image.h"

namespace assetgen {

struct Quantized {
  std::vector<uint32_t> palette;  // 0x00RRGGBB, entry 0 is black
  std::vector<uint8_t> indices;   // one per pixel
};

Quantized Quantize(const Image& image);

}  // namespace assetgen
