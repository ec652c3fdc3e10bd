// Numbers stored low byte first, as the picture and sound files hold them.
// The caller makes sure the bytes are there.
#pragma once

#include <cstdint>

namespace lf {

inline std::uint16_t U16(const std::uint8_t* p) { return static_cast<std::uint16_t>(p[0] | p[1] << 8); }

inline std::uint32_t U32(const std::uint8_t* p) {
  return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
         static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

}  // namespace lf
