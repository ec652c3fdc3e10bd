#include "display/png_writer.h"

#include <png.h>

#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <vector>

#include "display/screen.h"

namespace lf {
namespace {

// 5 or 6 bits widened to 8 so that white stays white.
std::uint8_t Widen5(unsigned v) { return static_cast<std::uint8_t>((v << 3) | (v >> 2)); }
std::uint8_t Widen6(unsigned v) { return static_cast<std::uint8_t>((v << 2) | (v >> 4)); }

bool Write(std::FILE* fp, const std::vector<std::uint8_t>& rgb) {
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  if (!png) return false;
  png_infop info = png_create_info_struct(png);
  if (!info) {
    png_destroy_write_struct(&png, nullptr);
    return false;
  }
  std::vector<png_bytep> rows(kScreenHeight);
  for (int y = 0; y < kScreenHeight; ++y)
    rows[y] = const_cast<png_bytep>(rgb.data() + static_cast<std::size_t>(y) * kScreenWidth * 3);
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    return false;
  }
  png_init_io(png, fp);
  png_set_IHDR(png, info, kScreenWidth, kScreenHeight, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  png_write_image(png, rows.data());
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return true;
}

}  // namespace

bool WritePng(const std::string& file, const std::uint16_t* rgb565, int pitchBytes) {
  if (!rgb565 || pitchBytes < kScreenWidth * 2) return false;
  std::vector<std::uint8_t> rgb(static_cast<std::size_t>(kScreenWidth) * kScreenHeight * 3);
  const auto* base = reinterpret_cast<const std::uint8_t*>(rgb565);
  for (int y = 0; y < kScreenHeight; ++y) {
    for (int x = 0; x < kScreenWidth; ++x) {
      std::uint16_t p;
      std::memcpy(&p, base + static_cast<std::size_t>(y) * pitchBytes + 2 * static_cast<std::size_t>(x), 2);
      std::uint8_t* o = rgb.data() + (static_cast<std::size_t>(y) * kScreenWidth + x) * 3;
      o[0] = Widen5(p >> 11);
      o[1] = Widen6((p >> 5) & 0x3F);
      o[2] = Widen5(p & 0x1F);
    }
  }
  std::FILE* fp = std::fopen(file.c_str(), "wb");
  if (!fp) return false;
  const bool ok = Write(fp, rgb);
  if (std::fclose(fp) != 0 || !ok) {
    std::remove(file.c_str());
    return false;
  }
  return true;
}

}  // namespace lf
