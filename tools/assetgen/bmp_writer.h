// Windows BMP output: 24-bit for small pictures, 8-bit with a palette of its
// own (run-length coded when that is smaller) for large ones.
#pragma once

#include <string>

#include "image.h"

namespace assetgen {

// Writes the picture to a temporary name beside path and renames it into
// place. Returns false, with the reason in *error, when it cannot.
bool WriteBmp(const std::string& path, const Image& image, bool allowPalette, std::string* error);

}  // namespace assetgen
