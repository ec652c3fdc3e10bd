// Drawing and writing the bitmaps of the manifest.
#pragma once

#include <string>

#include "image.h"
#include "manifest.h"

namespace assetgen {

// The finished picture of one entry.
Image RenderBitmap(const BitmapSpec& spec);

// Writes every entry whose path starts with onlyPrefix (all when empty)
// under dataDir, in two threads, with a progress display on stderr.
// Returns false after one line on stderr when a file cannot be written.
bool GenerateBitmaps(const std::string& dataDir, const std::string& onlyPrefix);

}  // namespace assetgen
