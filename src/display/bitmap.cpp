#include "display/bitmap.h"

#include <SDL.h>

#include <utility>

#include "display/picture_files.h"

namespace lf {

Bitmap::~Bitmap() { Reset(); }

Bitmap::Bitmap(Bitmap&& other) noexcept : surface_(std::exchange(other.surface_, nullptr)) {}

Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
  if (this != &other) {
    Reset();
    surface_ = std::exchange(other.surface_, nullptr);
  }
  return *this;
}

Bitmap Bitmap::Adopt(SDL_Surface* surface) {
  Bitmap b;
  b.surface_ = surface;
  return b;
}

int Bitmap::Width() const { return surface_ ? surface_->w : 0; }
int Bitmap::Height() const { return surface_ ? surface_->h : 0; }

void Bitmap::Reset() {
  if (surface_) {
    ForgetPictureFile(surface_);
    SDL_FreeSurface(surface_);
  }
  surface_ = nullptr;
}

void Bitmap::KeepPlainRows() {
  if (surface_) SDL_SetSurfaceRLE(surface_, 0);
}

}  // namespace lf
