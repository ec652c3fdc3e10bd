// Space: star layers, nebulae, the asteroid field, the quadrant backdrop,
// the grid, sensor rings and static.
#include <algorithm>
#include <cmath>
#include <vector>

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
    // 36 frames of one field, stepped through in a loop: every rock turns on
    // itself and circles a little about its place, whole turns over the 36
    // frames so the last frame runs on into the first.
    struct Rock {
      double x, y, r, drift, phase, spin, grey;
      int turns;
      double shape[7];
    };
    Rng rng(seed);
    std::vector<Rock> rocks(70);
    for (Rock& k : rocks) {
      k.x = rng.Range(18, 182);
      k.y = rng.Range(18, 182);
      k.r = rng.Range(1.5, 6.5);
      k.drift = rng.Range(0.5, 3.0);
      k.phase = rng.Range(0, 2 * M_PI);
      k.spin = rng.Range(0, 2 * M_PI);
      k.turns = rng.Unit() < 0.5 ? 1 : -1;
      k.grey = rng.Range(0.35, 0.6);
      for (double& v : k.shape) v = rng.Range(0.7, 1.2);
    }
    const int frames = spec.frames, d = spec.frameW;
    for (int f = 0; f < frames; ++f) {
      const double t = 2 * M_PI * f / frames;
      for (const Rock& k : rocks) {
        const double cx = f * d + k.x + std::cos(k.phase + t) * k.drift;
        const double cy = k.y + std::sin(k.phase + t) * k.drift;
        cairo_new_path(cr);
        for (int i = 0; i < 7; ++i) {
          const double a = k.spin + k.turns * t + i * 2 * M_PI / 7, rr = k.r * k.shape[i];
          cairo_line_to(cr, cx + std::cos(a) * rr, cy + std::sin(a) * rr);
        }
        cairo_close_path(cr);
        cairo_set_source_rgb(cr, k.grey, k.grey * 0.9, k.grey * 0.8);
        cairo_fill_preserve(cr);
        cairo_set_source_rgb(cr, k.grey * 0.5, k.grey * 0.45, k.grey * 0.4);
        cairo_set_line_width(cr, 0.8);
        cairo_stroke(cr);
      }
    }
    return true;
  }
  if (p == "gfx/back2.bmp") {
    // Drawn keyed over the nebulae and the asteroid fields: a sparse
    // backdrop of faint dust and far galaxies that leaves most of the
    // picture in the key colour.
    // No cloud of its own: a dim cloud drawn over a nebula reads as a hole
    // in it. Dust is loose grains in drifts, each grain a lit pixel.
    Rng rng(seed + 2);
    for (int drift = 0; drift < 40; ++drift) {
      const double x = rng.Range(20, 980), y = rng.Range(20, 980), r = rng.Range(8, 30);
      const Rgb tint = rng.Unit() < 0.5 ? Rgb{0.75, 0.65, 0.95} : Rgb{0.95, 0.8, 0.7};
      for (int grain = 0; grain < 30; ++grain) {
        const double a = rng.Range(0, 2 * M_PI), d = r * std::sqrt(rng.Unit());
        cv.Put(int(x + std::cos(a) * d), int(y + std::sin(a) * d * 0.6), Scale(tint, rng.Range(0.25, 0.55)));
      }
    }
    cv.Dirty();
    for (int g = 0; g < 9; ++g) {
      const double x = rng.Range(40, 960), y = rng.Range(40, 960), r = rng.Range(5, 14);
      const double tilt = rng.Range(0, M_PI), flat = rng.Range(0.3, 0.8);
      cairo_save(cr);
      cairo_translate(cr, x, y);
      cairo_rotate(cr, tilt);
      cairo_scale(cr, 1, flat);
      cairo_pattern_t* glow = cairo_pattern_create_radial(0, 0, 0, 0, 0, r);
      cairo_pattern_add_color_stop_rgba(glow, 0, 0.85, 0.8, 0.95, 0.9);
      cairo_pattern_add_color_stop_rgba(glow, 0.35, 0.45, 0.4, 0.7, 0.6);
      cairo_pattern_add_color_stop_rgba(glow, 1, 0.1, 0.08, 0.2, 0);
      cairo_set_source(cr, glow);
      cairo_arc(cr, 0, 0, r, 0, 2 * M_PI);
      cairo_fill(cr);
      cairo_pattern_destroy(glow);
      cairo_restore(cr);
    }
    Stars(cv, seed + 1, 700, 0.5);
    return true;
  }
  if (p == "gfx/grid.bmp") {
    // lines every 79 pixels, the picture is laid in four pieces to scroll
    for (int x = 0; x < cv.width(); x += 79) FillRect(cr, x, 0, 1, cv.height(), {0.10, 0.30, 0.35});
    for (int y = 0; y < cv.height(); y += 79) FillRect(cr, 0, y, cv.width(), 1, {0.10, 0.30, 0.35});
    return true;
  }
  if (StartsWith(p, "gfx/srange_")) {
    // A frame of 2R is drawn at the ship's anchor less (R - 13, R - 11),
    // and the ship's picture, 35 square, at the anchor less (17, 10): the
    // ship's middle stands at (R - 12.5, R - 3.5) of the frame, and the
    // ring is centred there, as large as the frame lets it be.
    const int d = spec.frameW;
    for (int i = 0; i < spec.frames; ++i) {
      const double R = d / 2.0;
      const double cx = i * d + R - 12.5, cy = R - 3.5, r = R - 14;
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
