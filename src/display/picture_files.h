// Which file each loaded picture was read from, so that a picture can be
// named where it is drawn (a report with --verbose, a test's blit record).
#pragma once

#include <string>

#include "display/bitmap.h"

struct SDL_Surface;

namespace lf {

void NotePictureFile(const SDL_Surface* surface, std::string file);
void ForgetPictureFile(const SDL_Surface* surface);
// The file of a loaded picture; empty for an empty handle or a picture that
// was not read from a file.
const std::string& PictureFile(const Bitmap& bitmap);

}  // namespace lf
