// A look at a picture file's header before the BMP reader is given it: the
// reader trusts the declared size and allocates it, so a header that
// declares more than the file holds, or more than any picture the game
// draws, is refused here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lf {

// No picture of the game is wider or higher than this, or larger in all.
inline constexpr long long kLargestPictureSide = 32768;
inline constexpr long long kLargestPicturePixels = 8LL << 20;
// The largest picture file read (an uncompressed 32-bit picture of the
// largest size, with room for its headers).
inline constexpr std::size_t kLargestPictureFile = static_cast<std::size_t>(kLargestPicturePixels) * 4 + 65536;

// Why the bytes of a BMP file must not be read as a picture; nothing when
// the header is sound. Only the header is checked: the pixels are the
// reader's business.
std::optional<std::string> BmpHeaderFault(const std::vector<std::uint8_t>& bytes);

}  // namespace lf
