#include "platform/shot_png.h"

#include <cstring>
#include <vector>

#include <png.h>

namespace lf {

bool WriteScreenshotPng(const std::string& file, const std::uint16_t* rgb565, int pitchBytes, std::string& error) {
  constexpr int kW = 640, kH = 480;
  std::vector<std::uint8_t> rgb(static_cast<std::size_t>(kW) * kH * 3);
  for (int y = 0; y < kH; ++y) {
    const auto* row = reinterpret_cast<const std::uint16_t*>(reinterpret_cast<const std::uint8_t*>(rgb565) +
                                                             static_cast<std::ptrdiff_t>(y) * pitchBytes);
    std::uint8_t* out = rgb.data() + static_cast<std::size_t>(y) * kW * 3;
    for (int x = 0; x < kW; ++x) {
      const unsigned p = row[x];
      const unsigned r = (p >> 11) & 31, g = (p >> 5) & 63, b = p & 31;
      out[3 * x] = static_cast<std::uint8_t>((r << 3) | (r >> 2));
      out[3 * x + 1] = static_cast<std::uint8_t>((g << 2) | (g >> 4));
      out[3 * x + 2] = static_cast<std::uint8_t>((b << 3) | (b >> 2));
    }
  }
  png_image image;
  std::memset(&image, 0, sizeof image);
  image.version = PNG_IMAGE_VERSION;
  image.width = kW;
  image.height = kH;
  image.format = PNG_FORMAT_RGB;
  if (!png_image_write_to_file(&image, file.c_str(), 0, rgb.data(), kW * 3, nullptr)) {
    error = image.message[0] ? image.message : "cannot write the file";
    png_image_free(&image);
    return false;
  }
  return true;
}

}  // namespace lf
