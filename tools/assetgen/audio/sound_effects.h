// The 33 sounds of the bank, sounds/1.wav .. 33.wav.
#pragma once

#include <string>

namespace assetgen {

constexpr int kSoundRate = 22050;

// Writes every sound into `folder`; false when a file cannot be written.
bool GenerateSounds(const std::string& folder);

}  // namespace assetgen
