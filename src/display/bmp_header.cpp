#include "display/bmp_header.h"

#include "shell/little_endian.h"

namespace lf {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kCoreHeader = 12;  // the old header with 16-bit sizes
constexpr std::uint32_t kUncompressed = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3, kAlphaBitFields = 6;

}  // namespace

std::optional<std::string> BmpHeaderFault(const std::vector<std::uint8_t>& bytes) {
  if (bytes.size() < kFileHeader + 4) return "too short for a picture header";
  if (bytes[0] != 'B' || bytes[1] != 'M') return "not a BMP picture";
  const std::uint32_t pixelOffset = U32(&bytes[10]);
  const std::uint32_t infoSize = U32(&bytes[14]);
  if (infoSize < kCoreHeader || infoSize > 1024 || kFileHeader + infoSize > bytes.size())
    return "picture header cut short or damaged";

  long long width = 0, height = 0;
  std::uint32_t bits = 0, compression = kUncompressed;
  const std::uint8_t* info = &bytes[kFileHeader];
  if (infoSize == kCoreHeader) {
    width = U16(info + 4);
    height = U16(info + 6);
    bits = U16(info + 10);
  } else {
    if (infoSize < 16) return "picture header cut short or damaged";
    width = static_cast<std::int32_t>(U32(info + 4));
    height = static_cast<std::int32_t>(U32(info + 8));
    bits = U16(info + 14);
    if (infoSize >= 20) compression = U32(info + 16);
  }
  if (height < 0) height = -height;  // stored top row first
  if (width <= 0 || height <= 0) return "declares no picture (" + std::to_string(width) + "x" + std::to_string(height) + ")";
  const std::string size = std::to_string(width) + "x" + std::to_string(height);
  if (width > kLargestPictureSide || height > kLargestPictureSide || width * height > kLargestPicturePixels)
    return "declares " + size + ", larger than any picture the game draws";
  if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32)
    return "declares " + std::to_string(bits) + " bits a pixel";

  if (compression == kUncompressed || compression == kBitFields || compression == kAlphaBitFields) {
    // Rows are padded to four bytes; the file must hold every row.
    const long long row = (width * bits + 31) / 32 * 4;
    if (pixelOffset > bytes.size() || row * height > static_cast<long long>(bytes.size() - pixelOffset))
      return "declares " + size + " but the file is too short to hold it";
  } else if (compression == kRle8 || compression == kRle4) {
    if (pixelOffset > bytes.size()) return "pixels start past the end of the file";
  } else {
    return "compressed in a way pictures of the game are not";
  }
  return std::nullopt;
}

}  // namespace lf
