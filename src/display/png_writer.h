// Screenshots: a 640x480 RGB565 frame written as an 8-bit RGB PNG file.
#pragma once

#include <cstdint>
#include <string>

namespace lf {

// Writes the frame; false (and no file left behind) when it cannot.
bool WritePng(const std::string& file, const std::uint16_t* rgb565, int pitchBytes);

}  // namespace lf
