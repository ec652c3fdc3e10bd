// A picture file as the display reads it: the header check, the quick
// reader of the game's own kinds (8-bit plain or run-length coded, 24-bit)
// or else SDL's reader and the conversion to the screen's format, and blits
// of the whole picture and of a corner, keyed (run-length coded) and plain.
//
// The first byte of the input picks how the rest is read. Even: the bytes
// stand as they are. Odd: the sizes in the header are first made small and
// the pixel offset made to fall inside the file, so that damaged palettes,
// masks and pixel runs reach the reader and the conversion instead of
// stopping at the header check (SDL's reader is not instrumented, so the
// fuzzer cannot find its way there by coverage alone).
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "display/bitmap.h"
#include "display/screen.h"

namespace {

std::uint32_t U32(const std::vector<std::uint8_t>& b, std::size_t at) {
  return static_cast<std::uint32_t>(b[at]) | static_cast<std::uint32_t>(b[at + 1]) << 8 |
         static_cast<std::uint32_t>(b[at + 2]) << 16 | static_cast<std::uint32_t>(b[at + 3]) << 24;
}
void Put16(std::vector<std::uint8_t>& b, std::size_t at, std::uint32_t v) {
  b[at] = static_cast<std::uint8_t>(v);
  b[at + 1] = static_cast<std::uint8_t>(v >> 8);
}
void Put32(std::vector<std::uint8_t>& b, std::size_t at, std::uint32_t v) {
  Put16(b, at, v);
  Put16(b, at + 2, v >> 16);
}

void MakeHeaderSound(std::vector<std::uint8_t>& b) {
  if (b.size() < 30) return;
  b[0] = 'B';
  b[1] = 'M';
  Put32(b, 10, U32(b, 10) % static_cast<std::uint32_t>(b.size() + 1));
  if (U32(b, 14) == 12) {
    Put16(b, 18, 1 + b[18] % 64);
    Put16(b, 20, 1 + b[20] % 64);
  } else {
    Put32(b, 18, 1 + b[18] % 64);
    const bool topDown = b[25] & 0x80;
    const std::uint32_t h = 1 + b[22] % 64u;
    Put32(b, 22, topDown ? static_cast<std::uint32_t>(-static_cast<std::int32_t>(h)) : h);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  std::vector<std::uint8_t> bytes(data + 1, data + size);
  if (data[0] & 1) MakeHeaderSound(bytes);
  lf::Bitmap picture = lf::BitmapFromBytes(bytes, "fuzz.bmp");
  if (!picture.Loaded()) return 0;
  const int w = picture.Width(), h = picture.Height();
  if (w < 1 || h < 1) std::abort();
  for (const bool keyed : {true, false}) {
    lf::SetSrc(0, 0, w, h);
    lf::BltFast(0, 0, picture, keyed);
    lf::SetSrc(w / 2, h / 2, w, h);
    lf::BltFast(3, 5, picture, keyed);
  }
  return 0;
}
