// Writes a 640x480 RGB565 frame to a PNG file (the headless driver's
// screenshots).
#pragma once

#include <cstdint>
#include <string>

namespace lf {

// False if the file cannot be written; `error` then says why.
bool WriteScreenshotPng(const std::string& file, const std::uint16_t* rgb565, int pitchBytes, std::string& error);

}  // namespace lf
