// Ships on the sector view, markers, debris and pods, and the hail pictures.
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"
#include "ship_classes.h"
#include "sprites.h"

namespace assetgen {
namespace {

void Strip(const BitmapSpec& spec, auto&& drawFrame) {
  const int cols = spec.width / spec.frameW;
  for (int i = 0; i < spec.frames; ++i) drawFrame(i, (i % cols) * spec.frameW, (i / cols) * spec.frameH);
}

void Tumbler(const BitmapSpec& spec, Canvas& cv, bool pod, Rgb colour) {
  cairo_t* cr = cv.cr();
  Strip(spec, [&](int i, int x, int y) {
    cairo_save(cr);
    cairo_translate(cr, x + 10, y + 10);
    cairo_rotate(cr, 2 * M_PI * i / spec.frames);
    if (pod) {
      cairo_rectangle(cr, -6, -4, 12, 8);
      SetColor(cr, colour);
      cairo_fill_preserve(cr);
      SetColor(cr, Scale(colour, 0.4));
      cairo_set_line_width(cr, 1);
      cairo_stroke(cr);
      FillRect(cr, -1, -4, 2, 8, Scale(colour, 0.5));
    } else {
      cairo_move_to(cr, -7, -3);
      cairo_line_to(cr, 2, -6);
      cairo_line_to(cr, 7, 1);
      cairo_line_to(cr, 1, 3);
      cairo_line_to(cr, -3, 6);
      cairo_close_path(cr);
      SetColor(cr, {0.5, 0.45, 0.4});
      cairo_fill(cr);
      FillRect(cr, -2, -2, 3, 2, {0.9, 0.5, 0.2});
    }
    cairo_restore(cr);
    // a blinking beacon
    if (pod && (i / 6) % 2 == 0) FillRect(cr, x + 9, y + 9, 2, 2, {1.0, 0.9, 0.4});
  });
}

void HailPicture(Canvas& cv, int shipClass, int variant, uint32_t seed) {
  cairo_t* cr = cv.cr();
  const ShipClassInfo info = ClassInfo(shipClass);
  // the other ship's bridge on the screen: a viewport behind a console
  const Rgb tint = Mix(RaceHull(info.race), kSteelDark, 0.6);
  cairo_pattern_t* g = cairo_pattern_create_linear(0, 0, 0, 240);
  cairo_pattern_add_color_stop_rgb(g, 0, tint.r * 0.5, tint.g * 0.5, tint.b * 0.5);
  cairo_pattern_add_color_stop_rgb(g, 1, tint.r * 0.15, tint.g * 0.15, tint.b * 0.15);
  cairo_set_source(cr, g);
  cairo_paint(cr);
  cairo_pattern_destroy(g);
  Rng rng(seed);
  if (variant <= 3) {
    // the ship in space seen through a window
    FillRect(cr, 30, 20, 340, 150, {0.01, 0.01, 0.04});
    Stars(cv, seed, 140, 0.8);
    FillRect(cr, 0, 0, 400, 20, tint);
    FillRect(cr, 0, 170, 400, 70, tint);
    FillRect(cr, 0, 0, 30, 240, tint);
    FillRect(cr, 370, 0, 30, 240, tint);
    ShipShape(cr, 200 + rng.Range(-60, 60), 95, 110 + variant * 10, M_PI / 2 + rng.Range(-0.5, 0.5), info.race,
              info.hullClass);
  } else {
    // the other captain on the screen
    FillRect(cr, 110, 10, 180, 190, Mix({0.05, 0.06, 0.08}, RaceAccent(info.race), 0.15));
    Portrait(cr, 125, 15, 150, 188, info.race, seed);
    Bevel(cr, 110, 10, 180, 190, kSteelLight, 0);
  }
  // console with blinking lamps
  for (int i = 0; i < 14; ++i) {
    const Rgb c = rng.Unit() < 0.5 ? kAmber : kCyan;
    FillRect(cr, 40 + i * 24, 205 + rng.Int(12), 10, 4, Scale(c, rng.Range(0.4, 1.0)));
  }
  Text(cr, std::string(RaceName(info.race)), 10, 232, 11, Scale(RaceAccent(info.race), 0.9), Align::Left, true, true);
}

}  // namespace

bool DrawShips(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  cairo_t* cr = cv.cr();
  if (p == "gfx/ships/0.bmp") {
    cairo_arc(cr, 15, 10, 6, 0, 2 * M_PI);
    SetColor(cr, {0.5, 0.55, 0.6});
    cairo_set_line_width(cr, 1.5);
    cairo_stroke(cr);
    Text(cr, "?", 15, 14, 10, kWhite, Align::Center);
    return true;
  }
  if (StartsWith(p, "gfx/ships/shp_")) {
    const int mode = NumberAfter(p, "gfx/ships/shp_");
    Strip(spec, [&](int i, int x, int y) {
      if (mode & 2) {
        cairo_arc(cr, x + 17.5, y + 17.5, 16, 0, 2 * M_PI);
        cairo_set_source_rgba(cr, 0.3, 0.6, 1.0, 0.55 + 0.2 * std::sin(i * M_PI / 6));
        cairo_set_line_width(cr, 1.5);
        cairo_stroke(cr);
      }
      ShipShape(cr, x + 17.5, y + 17.5, 26, 0, 1, 3);
      if (mode & 1) {
        const double k = 0.6 + 0.4 * std::sin(i * M_PI / 4);
        FillRect(cr, x + 10, y + 6, 2, 4, Scale(kRed, k));
        FillRect(cr, x + 23, y + 6, 2, 4, Scale(kRed, k));
      }
    });
    return true;
  }
  if (StartsWith(p, "gfx/ships/") && p.size() == std::string_view("gfx/ships/1_1.bmp").size() && p[11] == '_') {
    const int race = p[10] - '0', hull = p[12] - '0';
    ShipShape(cr, 15, 10, 26, M_PI / 2, race, hull);
    return true;
  }
  if (p == "gfx/ships/sel.bmp") {
    // brackets that close in over frames 0..7 and then pulse
    Strip(spec, [&](int i, int x, int y) {
      const double in = i < 8 ? (8 - i) * 2.0 : 0, pulse = i < 8 ? 1.0 : 0.65 + 0.35 * std::sin((i - 8) * M_PI / 8);
      const double x0 = x + 8 - in * 0.5, y0 = y + 5 - in * 0.3, x1 = x + 42 + in * 0.5, y1 = y + 25 + in * 0.3;
      SetColor(cr, Scale(kGreen, pulse));
      cairo_set_line_width(cr, 1.5);
      for (int c = 0; c < 4; ++c) {
        const double cx = c & 1 ? x1 : x0, cy = c & 2 ? y1 : y0, sx = c & 1 ? -1 : 1, sy = c & 2 ? -1 : 1;
        cairo_move_to(cr, cx + sx * 7, cy);
        cairo_line_to(cr, cx, cy);
        cairo_line_to(cr, cx, cy + sy * 5);
      }
      cairo_stroke(cr);
    });
    return true;
  }
  if (p == "gfx/dest.bmp") {
    Strip(spec, [&](int i, int x, int y) {
      const double r = i < 8 ? 16 - i * 1.2 : 7 + 1.5 * std::sin((i - 8) * M_PI / 8);
      SetColor(cr, kAmber);
      cairo_set_line_width(cr, 1.3);
      cairo_arc(cr, x + 17, y + 17, r, 0, 2 * M_PI);
      cairo_stroke(cr);
      cairo_move_to(cr, x + 17, y + 3);
      cairo_line_to(cr, x + 17, y + 10);
      cairo_move_to(cr, x + 17, y + 24);
      cairo_line_to(cr, x + 17, y + 31);
      cairo_move_to(cr, x + 3, y + 17);
      cairo_line_to(cr, x + 10, y + 17);
      cairo_move_to(cr, x + 24, y + 17);
      cairo_line_to(cr, x + 31, y + 17);
      cairo_stroke(cr);
    });
    return true;
  }
  if (p == "gfx/misc/debris.bmp") {
    Tumbler(spec, cv, false, {});
    return true;
  }
  if (p == "gfx/misc/cargo.bmp") {
    Tumbler(spec, cv, true, {0.75, 0.6, 0.3});
    return true;
  }
  if (p == "gfx/misc/hero_pod.bmp") {
    Tumbler(spec, cv, true, {0.8, 0.85, 0.9});
    return true;
  }
  if (StartsWith(p, "gfx/hail/oship_")) {
    const int cls = NumberAfter(p, "gfx/hail/oship_");
    const int variant = p[p.size() - 5] - '0';
    HailPicture(cv, cls, variant, HashString(spec.path));
    return true;
  }
  return false;
}

}  // namespace assetgen
