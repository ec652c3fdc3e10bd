#include "display/bmp_decode.h"

#include <array>

#include "shell/little_endian.h"

namespace lf {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint32_t kUncompressed = 0, kRle8 = 1;
constexpr std::size_t kPaletteBytes = 256 * 4;

// 5-6-5 keeps the top bits of each channel.
constexpr std::uint16_t To565(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
  return static_cast<std::uint16_t>((r >> 3) << 11 | (g >> 2) << 5 | (b >> 3));
}

using Colours = std::array<std::uint16_t, 256>;

Colours PaletteColours(const PlainBmp& layout, const std::vector<std::uint8_t>& bytes) {
  Colours c{};
  const std::uint8_t* p = bytes.data() + layout.PaletteAt;
  for (std::size_t i = 0; i < c.size(); ++i, p += 4) c[i] = To565(p[2], p[1], p[0]);
  return c;
}

std::uint16_t* Row(std::uint16_t* pixels, std::size_t pitch, const PlainBmp& layout, int fileRow) {
  const int y = layout.TopRowFirst ? fileRow : layout.Height - 1 - fileRow;
  return pixels + static_cast<std::size_t>(y) * pitch;
}

void DecodeRows8(const PlainBmp& layout, const std::vector<std::uint8_t>& bytes, std::uint16_t* pixels,
                 std::size_t pitch) {
  const Colours colours = PaletteColours(layout, bytes);
  const std::size_t stride = (static_cast<std::size_t>(layout.Width) + 3) & ~std::size_t{3};
  const std::uint8_t* src = bytes.data() + layout.PixelsAt;
  for (int r = 0; r < layout.Height; ++r, src += stride) {
    std::uint16_t* dst = Row(pixels, pitch, layout, r);
    for (int x = 0; x < layout.Width; ++x) dst[x] = colours[src[x]];
  }
}

void DecodeRows24(const PlainBmp& layout, const std::vector<std::uint8_t>& bytes, std::uint16_t* pixels,
                  std::size_t pitch) {
  const std::size_t stride = (static_cast<std::size_t>(layout.Width) * 3 + 3) & ~std::size_t{3};
  const std::uint8_t* src = bytes.data() + layout.PixelsAt;
  for (int r = 0; r < layout.Height; ++r, src += stride) {
    std::uint16_t* dst = Row(pixels, pitch, layout, r);
    const std::uint8_t* p = src;
    for (int x = 0; x < layout.Width; ++x, p += 3) dst[x] = To565(p[2], p[1], p[0]);
  }
}

// Runs and literal stretches, rows bottom first. Pixels no code reaches
// keep palette index 0, as the general reader leaves them.
bool DecodeRunLength8(const PlainBmp& layout, const std::vector<std::uint8_t>& bytes, std::uint16_t* pixels,
                      std::size_t pitch) {
  const Colours colours = PaletteColours(layout, bytes);
  for (int y = 0; y < layout.Height; ++y) {
    std::uint16_t* dst = pixels + static_cast<std::size_t>(y) * pitch;
    for (int x = 0; x < layout.Width; ++x) dst[x] = colours[0];
  }
  const std::uint8_t* p = bytes.data() + layout.PixelsAt;
  const std::uint8_t* const end = bytes.data() + bytes.size();
  long long row = 0;  // counted from the bottom
  long long x = 0;
  // Every pixel written must lie inside its row of the picture.
  const auto fits = [&](long long n) { return row < layout.Height && x + n <= layout.Width; };
  while (end - p >= 2) {
    const std::uint8_t count = p[0], value = p[1];
    p += 2;
    if (count != 0) {
      if (!fits(count)) return false;
      std::uint16_t* dst = Row(pixels, pitch, layout, static_cast<int>(row)) + x;
      const std::uint16_t c = colours[value];
      for (int i = 0; i < count; ++i) dst[i] = c;
      x += count;
      continue;
    }
    switch (value) {
      case 0:  // end of a row
        ++row;
        x = 0;
        break;
      case 1:  // end of the picture
        return true;
      case 2:  // a jump right and up
        if (end - p < 2) return false;
        x += p[0];
        row += p[1];
        p += 2;
        break;
      default: {  // a literal stretch, padded to an even length
        const std::size_t n = value;
        const std::size_t padded = n + (n & 1);
        if (static_cast<std::size_t>(end - p) < padded || !fits(static_cast<long long>(n))) return false;
        std::uint16_t* dst = Row(pixels, pitch, layout, static_cast<int>(row)) + x;
        for (std::size_t i = 0; i < n; ++i) dst[i] = colours[p[i]];
        p += padded;
        x += static_cast<long long>(n);
        break;
      }
    }
  }
  return false;  // the stream stopped before its end code
}

}  // namespace

std::optional<PlainBmp> PlainBmpLayout(const std::vector<std::uint8_t>& bytes) {
  if (bytes.size() < kFileHeader + kInfoHeader || bytes[0] != 'B' || bytes[1] != 'M') return std::nullopt;
  const std::uint8_t* info = bytes.data() + kFileHeader;
  const std::uint32_t infoSize = U32(info);
  if (infoSize < kInfoHeader || infoSize > 1024 || kFileHeader + infoSize > bytes.size()) return std::nullopt;

  PlainBmp layout;
  const auto width = static_cast<std::int32_t>(U32(info + 4));
  const auto height = static_cast<std::int32_t>(U32(info + 8));
  layout.Bits = U16(info + 14);
  const std::uint32_t compression = U32(info + 16);
  const std::uint32_t coloursUsed = U32(info + 32);
  if (width <= 0 || height == 0 || height == INT32_MIN) return std::nullopt;
  layout.Width = width;
  layout.TopRowFirst = height < 0;
  layout.Height = height < 0 ? -height : height;
  layout.PaletteAt = kFileHeader + infoSize;
  layout.PixelsAt = U32(bytes.data() + 10);
  if (layout.PixelsAt > bytes.size()) return std::nullopt;

  const std::size_t left = bytes.size() - layout.PixelsAt;
  const auto w = static_cast<std::size_t>(layout.Width), h = static_cast<std::size_t>(layout.Height);
  if (layout.Bits == 8) {
    // Only a full palette: with fewer colours an index past the last one
    // makes the picture unreadable, which the general reader reports.
    if (coloursUsed != 0 && coloursUsed != 256) return std::nullopt;
    if (layout.PaletteAt + kPaletteBytes > bytes.size()) return std::nullopt;
    if (compression == kRle8) {
      if (layout.TopRowFirst) return std::nullopt;
      layout.RunLength = true;
      return layout;
    }
    if (compression != kUncompressed) return std::nullopt;
    if (((w + 3) & ~std::size_t{3}) * h > left) return std::nullopt;
    return layout;
  }
  if (layout.Bits == 24 && compression == kUncompressed) {
    if (((w * 3 + 3) & ~std::size_t{3}) * h > left) return std::nullopt;
    return layout;
  }
  return std::nullopt;
}

bool DecodePlainBmp(const PlainBmp& layout, const std::vector<std::uint8_t>& bytes, std::uint16_t* pixels,
                    std::size_t pitch) {
  if (layout.RunLength) return DecodeRunLength8(layout, bytes, pixels, pitch);
  if (layout.Bits == 8)
    DecodeRows8(layout, bytes, pixels, pitch);
  else
    DecodeRows24(layout, bytes, pixels, pitch);
  return true;
}

}  // namespace lf
