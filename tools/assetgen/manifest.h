// The list of every bitmap file the game reads, with its size and the
// layout of its frames. Plain data: the game's tests read it too, so it
// needs nothing but the standard library.
#pragma once

#include <cstddef>
#include <span>

namespace assetgen {

struct BitmapSpec {
  const char* path;  // under the data folder, lower case, forward slashes
  int width;         // whole sheet
  int height;
  int frameW;        // one frame or cell; equal to the sheet for a single picture
  int frameH;
  int frames;        // frames or cells the game may read from the sheet
  bool keyed;        // pure black is the transparent colour of this picture
};

// Every bitmap, each path once.
std::span<const BitmapSpec> Manifest();

// The entry of a path, or nullptr.
const BitmapSpec* FindBitmap(const char* path);

}  // namespace assetgen
