// The clips of the default data set, drawn frame by frame and encoded as
// MPEG-1 video at 320x240.
#pragma once

#include <string>

namespace assetgen {

constexpr int kClipWidth = 320;
constexpr int kClipHeight = 240;
constexpr int kClipFps = 25;

// One clip: its file under anim/ and its length in frames.
struct ClipInfo {
  const char* file;
  int frames;
};

// Writes every clip into `folder`; false when a file cannot be written.
bool GenerateClips(const std::string& folder);

}  // namespace assetgen
