// A bitmap handle: a picture read from a file into memory, colour 0 as its
// transparent key. A handle that was never loaded, or whose file is
// missing, draws nothing.
#pragma once

struct SDL_Surface;

namespace lf {

class Bitmap {
 public:
  Bitmap() = default;
  ~Bitmap();
  Bitmap(Bitmap&& other) noexcept;
  Bitmap& operator=(Bitmap&& other) noexcept;
  Bitmap(const Bitmap&) = delete;
  Bitmap& operator=(const Bitmap&) = delete;

  // Takes ownership of an RGB565 surface.
  static Bitmap Adopt(SDL_Surface* surface);

  bool Loaded() const { return surface_ != nullptr; }
  int Width() const;
  int Height() const;
  SDL_Surface* Surface() const { return surface_; }
  void Reset();
  // Leaves the picture in plain rows: a glyph sheet is blitted a cell at a
  // time, and run-length coding would make every cell walk whole rows.
  void KeepPlainRows();

 private:
  SDL_Surface* surface_ = nullptr;
};

}  // namespace lf
