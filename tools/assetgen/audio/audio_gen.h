// The sound half of the default data set: sound effects, music and clips.
#pragma once

#include <string>

namespace assetgen {

// Writes sounds/, music/ and anim/ under dataDir. Returns false, after one
// line on stderr, when a file cannot be written.
bool GenerateAudio(const std::string& dataDir);

}  // namespace assetgen
