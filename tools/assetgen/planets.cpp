// Bodies: rotating filmstrips by surface type, stations, unknown-body and
// star-lane markers, list icons and the orbit pictures.
#include <cmath>
#include <cstring>
#include <string>

#include "families.h"
#include "noise.h"
#include "sprites.h"

namespace assetgen {
namespace {

int KindOfName(std::string_view name) {
  static constexpr const char* kNames[] = {"barren", "tundra",  "desert", "terran",   "swamp",
                                           "gasgiant", "genesis", "ocean", "radiated", "toxic"};
  for (int i = 0; i < 10; ++i) {
    if (StartsWith(name, kNames[i])) return i + 1;
  }
  return 0;
}

void Frames(const BitmapSpec& spec, Canvas& cv, auto&& drawFrame) {
  const int cols = spec.width / spec.frameW;
  for (int i = 0; i < spec.frames; ++i) drawFrame(i, (i % cols) * spec.frameW, (i / cols) * spec.frameH);
}

void BodySheet(const BitmapSpec& spec, Canvas& cv, int kind) {
  const SurfaceMap map = MakeSurface(kind, HashString(spec.path), 192, 96);
  const double r = spec.frameW * (kind == kGasGiant ? 0.44 : 0.42);
  Frames(spec, cv, [&](int i, int x, int y) {
    Sphere(cv, map, kind, x + spec.frameW / 2.0, y + spec.frameH / 2.0, r, double(i) / spec.frames);
  });
  if (kind == kGasGiant) {
    // a ring
    Frames(spec, cv, [&](int, int x, int y) {
      cairo_t* cr = cv.cr();
      cairo_save(cr);
      cairo_translate(cr, x + spec.frameW / 2.0, y + spec.frameH / 2.0);
      cairo_scale(cr, 1.0, 0.28);
      cairo_arc(cr, 0, 0, spec.frameW * 0.49, 0, M_PI);
      cairo_set_source_rgba(cr, 0.85, 0.75, 0.55, 0.9);
      cairo_set_line_width(cr, 4);
      cairo_stroke(cr);
      cairo_restore(cr);
    });
  }
}

void OrbitPicture(const BitmapSpec& spec, Canvas& cv, int kind, int variant, int quadrant) {
  const uint32_t seed = HashString(spec.path);
  FillRect(cv.cr(), 0, 0, cv.width(), cv.height(), {0.01, 0.01, 0.03});
  Stars(cv, seed, 500, 0.9);
  const SurfaceMap map = MakeSurface(kind, uint32_t(kind) * 7919u + 5, 512, 256);
  Rng rng(seed);
  // the body fills the lower part of the view, seen from orbit
  const double r = 260 + 40 * (variant % 3);
  const double cx = 200 + rng.Range(-80, 80), cy = 240 + r * 0.62;
  Sphere(cv, map, kind, cx, cy, r, rng.Unit(), -0.55);
  if (quadrant > 0) {
    // the station hangs above the planet, larger in later quadrants' styles
    const int style = (quadrant - 1) % 4 + 1;
    StationShape(cv.cr(), 120 + 160 * rng.Unit(), 75, 55, rng.Range(0, 1), style);
  } else if (variant == 3) {
    // a moon
    const SurfaceMap moon = MakeSurface(kBarren, seed + 3, 128, 64);
    Sphere(cv, moon, kBarren, 330, 60, 22, rng.Unit());
  }
}

}  // namespace

bool DrawPlanets(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  if (StartsWith(p, "gfx/planets/station_") && !StartsWith(p, "gfx/planets/station_icon")) {
    const int style = NumberAfter(p, "gfx/planets/station_");
    Frames(spec, cv, [&](int i, int x, int y) {
      StationShape(cv.cr(), x + 32, y + 32, 27, 2 * M_PI * i / spec.frames, style);
    });
    return true;
  }
  if (StartsWith(p, "gfx/planets/") && p.find("_icon") != std::string_view::npos) {
    const std::string_view name = p.substr(12);
    cairo_t* cr = cv.cr();
    if (StartsWith(name, "station")) {
      FillRect(cr, 1, 1, 6, 6, kCyan);
      FillRect(cr, 3, 0, 2, 8, kCyan);
      FillRect(cr, 0, 3, 8, 2, kCyan);
      FillRect(cr, 3, 3, 2, 2, {0.1, 0.2, 0.3});
      return true;
    }
    const int kind = KindOfName(name);
    const SurfaceMap map = MakeSurface(kind, 11, 64, 32);
    Sphere(cv, map, kind, 4, 4, 3.6, 0.2, 0.2);
    return true;
  }
  if (p == "gfx/planets/station.bmp") {
    cairo_t* cr = cv.cr();
    cairo_arc(cr, 5, 5, 4, 0, 2 * M_PI);
    cairo_set_source_rgb(cr, kCyan.r, kCyan.g, kCyan.b);
    cairo_set_line_width(cr, 1.5);
    cairo_stroke(cr);
    FillRect(cr, 4, 4, 2, 2, kWhite);
    return true;
  }
  if (p == "gfx/planets/landing.bmp") {
    // mission marker: a turning amber diamond with a pulse
    Frames(spec, cv, [&](int i, int x, int y) {
      cairo_t* cr = cv.cr();
      const double t = double(i) / spec.frames;
      cairo_save(cr);
      cairo_translate(cr, x + 10, y + 10);
      cairo_rotate(cr, t * 2 * M_PI);
      cairo_rectangle(cr, -5, -5, 10, 10);
      cairo_set_source_rgb(cr, kAmber.r, kAmber.g, kAmber.b);
      cairo_set_line_width(cr, 1.5);
      cairo_stroke(cr);
      cairo_restore(cr);
      cairo_arc(cr, x + 10, y + 10, 2 + 7 * t, 0, 2 * M_PI);
      cairo_set_source_rgba(cr, 1, 0.8, 0.3, 1 - t);
      cairo_set_line_width(cr, 1);
      cairo_stroke(cr);
    });
    return true;
  }
  if (StartsWith(p, "gfx/planets/")) {
    BodySheet(spec, cv, KindOfName(p.substr(12)));
    return true;
  }
  if (p == "gfx/ukn.bmp" || p == "gfx/uknfade.bmp") {
    // an uncharted body: a grey pulsing disc with a question mark; the fade
    // sheet steps from faint to nearly full
    const bool fade = p == "gfx/uknfade.bmp";
    Frames(spec, cv, [&](int i, int x, int y) {
      cairo_t* cr = cv.cr();
      const double pulse = fade ? (0.25 + 0.1 * (spec.frames - i)) / 1.2 : 0.75 + 0.25 * std::sin(i * 2 * M_PI / 30);
      const double k = std::min(1.0, pulse);
      cairo_arc(cr, x + 32, y + 32, 20, 0, 2 * M_PI);
      cairo_set_source_rgb(cr, 0.25 * k, 0.35 * k, 0.45 * k);
      cairo_fill_preserve(cr);
      cairo_set_source_rgb(cr, 0.5 * k, 0.8 * k, 1.0 * k);
      cairo_set_line_width(cr, 1.5);
      cairo_set_dash(cr, nullptr, 0, 0);
      cairo_stroke(cr);
      Text(cr, "?", x + 32, y + 40, 22, Scale(kCyan, k), Align::Center);
    });
    return true;
  }
  if (p == "gfx/sl.bmp") {
    // the star lane: a turning spiral vortex
    Frames(spec, cv, [&](int i, int x, int y) {
      cairo_t* cr = cv.cr();
      const double t = 2 * M_PI * i / spec.frames;
      for (int arm = 0; arm < 3; ++arm) {
        for (int s = 0; s < 40; ++s) {
          const double f = s / 40.0;
          const double a = t + arm * 2 * M_PI / 3 + f * 5;
          const double rr = 3 + f * 27;
          cairo_arc(cr, x + 32 + std::cos(a) * rr, y + 32 + std::sin(a) * rr, 2.2 - f * 1.2, 0, 2 * M_PI);
          cairo_set_source_rgba(cr, 0.6 + 0.4 * (1 - f), 0.4 + 0.4 * (1 - f), 1.0, 1 - f * 0.6);
          cairo_fill(cr);
        }
      }
      cairo_pattern_t* g = cairo_pattern_create_radial(x + 32, y + 32, 0, x + 32, y + 32, 9);
      cairo_pattern_add_color_stop_rgba(g, 0, 1, 1, 1, 1);
      cairo_pattern_add_color_stop_rgba(g, 1, 0.5, 0.4, 1, 0);
      cairo_set_source(cr, g);
      cairo_arc(cr, x + 32, y + 32, 9, 0, 2 * M_PI);
      cairo_fill(cr);
      cairo_pattern_destroy(g);
    });
    return true;
  }
  if (StartsWith(p, "gfx/orbits/")) {
    const int kind = NumberAfter(p, "gfx/orbits/");
    const std::string_view rest = p.substr(p.find('_') + 1);
    const int variant = NumberAfter(rest, "");
    const int quadrant = variant == 0 ? NumberAfter(rest, "0_") : 0;
    OrbitPicture(spec, cv, kind, variant, quadrant);
    return true;
  }
  return false;
}

}  // namespace assetgen
