// The kinds of BMP file the game's pictures are stored in (8-bit with a
// full palette, plain or run-length coded, and 24-bit plain) read straight
// into 16-bit 5-6-5 pixels: one pass through a 256-entry colour table
// instead of an 8-bit picture converted afterwards. Any other kind, and any
// coded stream that strays outside its picture or stops short, is left to
// the general reader, which gives the same pixels more slowly or refuses
// the file.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace lf {

struct PlainBmp {
  int Width = 0;
  int Height = 0;
  int Bits = 0;          // 8 or 24
  bool RunLength = false;
  bool TopRowFirst = false;
  std::size_t PaletteAt = 0;
  std::size_t PixelsAt = 0;
};

// The layout of a file whose header has already been found sound, when it
// is one of the kinds read here.
std::optional<PlainBmp> PlainBmpLayout(const std::vector<std::uint8_t>& bytes);

// Writes the picture into `pixels` (rows `pitch` pixels apart, Width x
// Height). False when a coded stream is damaged; the pixels are then
// partly written and must not be used.
bool DecodePlainBmp(const PlainBmp& layout, const std::vector<std::uint8_t>& bytes, std::uint16_t* pixels,
                    std::size_t pitch);

}  // namespace lf
