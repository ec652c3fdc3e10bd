// Space: star layers, nebulae, the asteroid field, the quadrant backdrop,
// the grid, sensor rings and static.
#include <algorithm>
#include <cmath>

#include "families.h"
#include "noise.h"

namespace assetgen {
namespace {

void NoiseCloud(Canvas& cv, uint32_t seed, Rgb a, Rgb b, double scale, double threshold, double edgeFade) {
  const int w = cv.width(), h = cv.height();
  for (int y = 0; y < h; ++y) {
    uint32_t* row = cv.Row(y);
    for (int x = 0; x < w; ++x) {
      double n = Fbm(x / scale, y / scale, seed, 5);
      // fade towards the picture's edges so the cloud has no hard border
      if (edgeFade > 0) {
        const double ex = std::min(x, w - 1 - x) / (w * edgeFade), ey = std::min(y, h - 1 - y) / (h * edgeFade);
        n *= std::clamp(std::min(ex, ey), 0.0, 1.0);
      }
      const double v = (n - threshold) / (1 - threshold);
      if (v <= 0.02) continue;
      const double m = Fbm(x / scale * 2, y / scale * 2, seed + 5, 3);
      Rgb c = Scale(Mix(a, b, m), std::min(1.0, 0.04 + v * 1.8));
      auto ch = [](double t) { return uint32_t(std::clamp(t, 0.0, 1.0) * 255 + 0.5); };
      row[x] = 0xff000000u | (ch(c.r) << 16) | (ch(c.g) << 8) | ch(c.b);
    }
  }
  cv.Dirty();
}

}  // namespace

bool DrawSpace(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  const uint32_t seed = HashString(spec.path);
  cairo_t* cr = cv.cr();
  if (StartsWith(p, "gfx/stars/")) {
    Stars(cv, seed, p == "gfx/stars/star_1.bmp" ? 260 : 120, p == "gfx/stars/star_1.bmp" ? 0.6 : 1.0);
    return true;
  }
  if (StartsWith(p, "gfx/nebulas/nebula_")) {
    static constexpr Rgb kA[] = {{0.55, 0.20, 0.60}, {0.15, 0.35, 0.70}, {0.70, 0.30, 0.15}, {0.20, 0.60, 0.45}};
    static constexpr Rgb kB[] = {{0.95, 0.45, 0.60}, {0.40, 0.80, 0.95}, {1.00, 0.70, 0.30}, {0.60, 0.95, 0.70}};
    const int k = (NumberAfter(p, "gfx/nebulas/nebula_") - 1) & 3;
    NoiseCloud(cv, seed, kA[k], kB[k], 70, 0.42, 0.22);
    return true;
  }
  if (p == "gfx/nebulas/ast_field.bmp") {
    Rng rng(seed);
    for (int i = 0; i < 60; ++i) {
      const double x = rng.Range(15, 185), y = rng.Range(15, 185), r = rng.Range(1.5, 6.5);
      cairo_new_path(cr);
      for (int k = 0; k < 7; ++k) {
        const double a = k * 2 * M_PI / 7, rr = r * rng.Range(0.7, 1.2);
        cairo_line_to(cr, x + std::cos(a) * rr, y + std::sin(a) * rr);
      }
      cairo_close_path(cr);
      const double g = rng.Range(0.35, 0.6);
      cairo_set_source_rgb(cr, g, g * 0.9, g * 0.8);
      cairo_fill_preserve(cr);
      cairo_set_source_rgb(cr, g * 0.5, g * 0.45, g * 0.4);
      cairo_set_line_width(cr, 0.8);
      cairo_stroke(cr);
    }
    return true;
  }
  if (p == "gfx/back2.bmp") {
    NoiseCloud(cv, seed, {0.10, 0.08, 0.25}, {0.25, 0.12, 0.35}, 160, 0.5, 0);
    Stars(cv, seed + 1, 1800, 0.5);
    return true;
  }
  if (p == "gfx/grid.bmp") {
    // lines every 79 pixels, the picture is laid in four pieces to scroll
    for (int x = 0; x < cv.width(); x += 79) FillRect(cr, x, 0, 1, cv.height(), {0.10, 0.30, 0.35});
    for (int y = 0; y < cv.height(); y += 79) FillRect(cr, 0, y, cv.width(), 1, {0.10, 0.30, 0.35});
    return true;
  }
  if (StartsWith(p, "gfx/srange_")) {
    const int d = spec.frameW;
    for (int i = 0; i < spec.frames; ++i) {
      const double cx = i * d + d / 2.0, cy = d / 2.0, r = d / 2.0 - 1.5;
      cairo_set_line_width(cr, 1.2);
      cairo_set_source_rgb(cr, 0.15, 0.55, 0.45);
      cairo_arc(cr, cx, cy, r, 0, 2 * M_PI);
      cairo_stroke(cr);
      // a sweeping arc that turns with the frame
      const double a = 2 * M_PI * i / spec.frames;
      cairo_set_line_width(cr, 2);
      cairo_set_source_rgb(cr, 0.4, 1.0, 0.8);
      cairo_arc(cr, cx, cy, r, a, a + 0.6);
      cairo_stroke(cr);
      cairo_arc(cr, cx, cy, r, a + M_PI, a + M_PI + 0.6);
      cairo_stroke(cr);
    }
    return true;
  }
  if (StartsWith(p, "gfx/static/")) {
    Rng rng(seed);
    for (int y = 0; y < cv.height(); ++y) {
      uint32_t* row = cv.Row(y);
      const double band = rng.Unit() < 0.08 ? 0.4 : 0.0;
      for (int x = 0; x < cv.width(); ++x) {
        const double v = std::clamp(0.08 + 0.75 * rng.Unit() * rng.Unit() + band, 0.05, 1.0);
        const uint32_t g = uint32_t(v * 230), b = uint32_t(std::min(255.0, v * 255 + 10));
        row[x] = 0xff000000u | (g << 16) | (g << 8) | b;
      }
    }
    cv.Dirty();
    return true;
  }
  return false;
}

}  // namespace assetgen
