#include "canvas.h"

#include <algorithm>
#include <cmath>

#include "noise.h"

namespace assetgen {

Canvas::Canvas(int width, int height)
    : width_(width),
      height_(height),
      surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height)),
      cr_(cairo_create(surface_)) {}

Canvas::~Canvas() {
  cairo_destroy(cr_);
  cairo_surface_destroy(surface_);
}

uint32_t* Canvas::Row(int y) {
  cairo_surface_flush(surface_);
  return reinterpret_cast<uint32_t*>(cairo_image_surface_get_data(surface_) +
                                     size_t(y) * size_t(cairo_image_surface_get_stride(surface_)));
}

void Canvas::Put(int x, int y, Rgb c, double alpha) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  auto ch = [&](double v) { return uint32_t(std::clamp(v * alpha, 0.0, 1.0) * 255 + 0.5); };
  const uint32_t a = uint32_t(std::clamp(alpha, 0.0, 1.0) * 255 + 0.5);
  Row(y)[x] = (a << 24) | (ch(c.r) << 16) | (ch(c.g) << 8) | ch(c.b);
}

void Canvas::Dirty() { cairo_surface_mark_dirty(surface_); }

Image Canvas::Finish() {
  cairo_surface_flush(surface_);
  Image im;
  im.width = width_;
  im.height = height_;
  im.pixels.resize(size_t(width_) * height_);
  const unsigned char* data = cairo_image_surface_get_data(surface_);
  const int stride = cairo_image_surface_get_stride(surface_);
  for (int y = 0; y < height_; ++y) {
    const uint32_t* row = reinterpret_cast<const uint32_t*>(data + size_t(y) * stride);
    for (int x = 0; x < width_; ++x) {
      const uint32_t p = row[x];
      const uint32_t a = p >> 24;
      uint32_t out = 0;
      if (a >= 128) {
        auto un = [&](uint32_t v) { return std::min<uint32_t>(255, (v * 255 + a / 2) / a); };
        out = KeepOpaque(un((p >> 16) & 255), un((p >> 8) & 255), un(p & 255));
      }
      im.pixels[size_t(y) * width_ + x] = out;
    }
  }
  return im;
}

void SetColor(cairo_t* cr, Rgb c, double alpha) { cairo_set_source_rgba(cr, c.r, c.g, c.b, alpha); }

void FillRect(cairo_t* cr, double x, double y, double w, double h, Rgb c, double alpha) {
  SetColor(cr, c, alpha);
  cairo_rectangle(cr, x, y, w, h);
  cairo_fill(cr);
}

void Bevel(cairo_t* cr, double x, double y, double w, double h, Rgb base, int depth) {
  if (depth == 0) {  // a plain one-pixel rim
    SetColor(cr, base);
    cairo_set_line_width(cr, 1);
    cairo_rectangle(cr, x + 0.5, y + 0.5, w - 1, h - 1);
    cairo_stroke(cr);
    return;
  }
  FillRect(cr, x, y, w, h, base);
  const int d = std::abs(depth);
  const Rgb light = Mix(base, kWhite, 0.45), dark = Scale(base, 0.35);
  for (int i = 0; i < d; ++i) {
    const Rgb tl = depth > 0 ? light : dark, br = depth > 0 ? dark : light;
    FillRect(cr, x + i, y + i, w - 2 * i, 1, tl);
    FillRect(cr, x + i, y + i, 1, h - 2 * i, tl);
    FillRect(cr, x + i, y + h - 1 - i, w - 2 * i, 1, br);
    FillRect(cr, x + w - 1 - i, y + i, 1, h - 2 * i, br);
  }
}

void SteelPlate(cairo_t* cr, double x, double y, double w, double h, uint32_t seed) {
  cairo_pattern_t* g = cairo_pattern_create_linear(x, y, x, y + h);
  cairo_pattern_add_color_stop_rgb(g, 0, 0.24, 0.27, 0.32);
  cairo_pattern_add_color_stop_rgb(g, 0.5, 0.17, 0.19, 0.23);
  cairo_pattern_add_color_stop_rgb(g, 1, 0.12, 0.13, 0.16);
  cairo_rectangle(cr, x, y, w, h);
  cairo_set_source(cr, g);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
  // brushed streaks
  Rng rng(seed);
  for (int i = 0; i < int(h); i += 2) {
    const double a = rng.Range(0.0, 0.06);
    cairo_set_source_rgba(cr, 1, 1, 1, a);
    cairo_rectangle(cr, x, y + i, w, 1);
    cairo_fill(cr);
  }
  // bevel
  cairo_set_line_width(cr, 1);
  cairo_set_source_rgba(cr, 0.7, 0.75, 0.85, 0.6);
  cairo_move_to(cr, x + 0.5, y + h - 0.5);
  cairo_line_to(cr, x + 0.5, y + 0.5);
  cairo_line_to(cr, x + w - 0.5, y + 0.5);
  cairo_stroke(cr);
  cairo_set_source_rgba(cr, 0.02, 0.02, 0.04, 0.8);
  cairo_move_to(cr, x + w - 0.5, y + 0.5);
  cairo_line_to(cr, x + w - 0.5, y + h - 0.5);
  cairo_line_to(cr, x + 0.5, y + h - 0.5);
  cairo_stroke(cr);
  // rivets in the corners when there is room
  if (w >= 40 && h >= 40) {
    for (double rx : {x + 5, x + w - 5}) {
      for (double ry : {y + 5, y + h - 5}) {
        cairo_arc(cr, rx, ry, 1.6, 0, 2 * M_PI);
        cairo_set_source_rgb(cr, 0.55, 0.58, 0.64);
        cairo_fill(cr);
      }
    }
  }
}

namespace {
void Face(cairo_t* cr, double size, bool bold, bool mono) {
  cairo_select_font_face(cr, mono ? "DejaVu Sans Mono" : "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL,
                         bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(cr, size);
}
}  // namespace

double TextWidth(cairo_t* cr, const std::string& s, double size, bool bold, bool mono) {
  Face(cr, size, bold, mono);
  cairo_text_extents_t e;
  cairo_text_extents(cr, s.c_str(), &e);
  return e.x_advance;
}

void Text(cairo_t* cr, const std::string& s, double x, double y, double size, Rgb c, Align align, bool bold,
          bool mono) {
  const double w = TextWidth(cr, s, size, bold, mono);
  if (align == Align::Center) x -= w / 2;
  if (align == Align::Right) x -= w;
  SetColor(cr, c);
  cairo_move_to(cr, x, y);
  cairo_show_text(cr, s.c_str());
}

void GlowText(cairo_t* cr, const std::string& s, double x, double y, double size, Rgb c, Align align) {
  const double w = TextWidth(cr, s, size, true, false);
  if (align == Align::Center) x -= w / 2;
  if (align == Align::Right) x -= w;
  cairo_move_to(cr, x, y);
  cairo_text_path(cr, s.c_str());
  for (int i = 4; i >= 1; --i) {
    SetColor(cr, c, 0.10);
    cairo_set_line_width(cr, i * 2.5);
    cairo_stroke_preserve(cr);
  }
  SetColor(cr, Scale(c, 0.25));
  cairo_set_line_width(cr, 2);
  cairo_stroke_preserve(cr);
  cairo_pattern_t* g = cairo_pattern_create_linear(0, y - size, 0, y);
  const Rgb top = Mix(c, kWhite, 0.55);
  cairo_pattern_add_color_stop_rgb(g, 0, top.r, top.g, top.b);
  cairo_pattern_add_color_stop_rgb(g, 1, c.r, c.g, c.b);
  cairo_set_source(cr, g);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
}

void Stars(Canvas& cv, uint32_t seed, int count, double brightness) {
  Rng rng(seed);
  for (int i = 0; i < count; ++i) {
    const int x = rng.Int(cv.width()), y = rng.Int(cv.height());
    const double b = brightness * (0.35 + 0.65 * rng.Unit() * rng.Unit());
    const double tint = rng.Unit();
    const Rgb c = tint < 0.2 ? Rgb{1.0, 0.85, 0.7} : tint < 0.4 ? Rgb{0.75, 0.85, 1.0} : kWhite;
    cv.Put(x, y, Scale(c, b));
    if (b > 0.8 * brightness) {
      cv.Put(x + 1, y, Scale(c, b * 0.45));
      cv.Put(x - 1, y, Scale(c, b * 0.45));
      cv.Put(x, y + 1, Scale(c, b * 0.45));
      cv.Put(x, y - 1, Scale(c, b * 0.45));
    }
  }
  cv.Dirty();
}

void Recess(cairo_t* cr, double x, double y, double w, double h, int border) {
  Bevel(cr, x - border, y - border, w + 2 * border, h + 2 * border, kSteelDark, -border);
  FillRect(cr, x, y, w, h, {0.03, 0.04, 0.06});
}

}  // namespace assetgen
