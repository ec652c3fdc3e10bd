// A Cairo drawing surface for one picture, and the drawing helpers shared
// by the families of pictures.
#pragma once

#include <cairo.h>

#include <cstdint>
#include <string>

#include "image.h"
#include "palette.h"

namespace assetgen {

class Canvas {
 public:
  Canvas(int width, int height);
  ~Canvas();
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  cairo_t* cr() const { return cr_; }
  int width() const { return width_; }
  int height() const { return height_; }

  // Direct pixel access (premultiplied ARGB); call Dirty() afterwards.
  uint32_t* Row(int y);
  void Put(int x, int y, Rgb c, double alpha = 1.0);
  void Dirty();

  // The picture with the key rule applied: alpha below one half is the key,
  // everything else opaque and never key-black.
  Image Finish();

 private:
  int width_, height_;
  cairo_surface_t* surface_;
  cairo_t* cr_;
};

void SetColor(cairo_t* cr, Rgb c, double alpha = 1.0);
void FillRect(cairo_t* cr, double x, double y, double w, double h, Rgb c, double alpha = 1.0);
// A raised (depth > 0) or sunken (depth < 0) plate with bevelled edges;
// depth 0 draws only a one-pixel rim.
void Bevel(cairo_t* cr, double x, double y, double w, double h, Rgb base, int depth);
// A dark well sunk into a panel, its bevel `border` pixels wide around it.
void Recess(cairo_t* cr, double x, double y, double w, double h, int border);
// A plate with brushed texture, rivets and a bevel.
void SteelPlate(cairo_t* cr, double x, double y, double w, double h, uint32_t seed);

enum class Align { Left, Center, Right };
// Text in DejaVu Sans (mono when asked); y is the baseline.
void Text(cairo_t* cr, const std::string& s, double x, double y, double size, Rgb c, Align align = Align::Left,
          bool bold = true, bool mono = false);
// Text with a dark outline and a soft glow, for titles and labels.
void GlowText(cairo_t* cr, const std::string& s, double x, double y, double size, Rgb c, Align align = Align::Center);
double TextWidth(cairo_t* cr, const std::string& s, double size, bool bold = true, bool mono = false);

// A starfield of dots on whatever is there already.
void Stars(Canvas& cv, uint32_t seed, int count, double brightness);

}  // namespace assetgen
