// The main menu bands and title, the loading pictures and the progress bar.
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"
#include "sprites.h"

namespace assetgen {
namespace {

// The entries 1..6 of the menu, in the order of their bands.
constexpr const char* kEntries[7] = {"", "NEW GAME", "RESUME", "LOAD GAME", "INTRODUCTION", "CREDITS", "EXIT"};

void SpaceBackdrop(Canvas& cv, uint32_t seed) {
  FillRect(cv.cr(), 0, 0, cv.width(), cv.height(), {0.01, 0.01, 0.035});
  Stars(cv, seed, cv.width() * cv.height() / 500, 0.9);
}

void LoadingPicture(Canvas& cv, const std::string& title, uint32_t seed, int kind) {
  SpaceBackdrop(cv, seed);
  cairo_t* cr = cv.cr();
  if (kind == 0) {
    const SurfaceMap map = MakeSurface(kTerran, 42, 512, 256);
    Sphere(cv, map, kTerran, 470, 210, 150, 0.3, 0.3);
    ShipShape(cr, 200, 230, 130, 1.1, 1, 3);
  } else if (kind == 1) {
    StationShape(cr, 320, 200, 150, 0.3, 1);
    ShipShape(cr, 320, 380, 60, 0, 1, 2);
  } else {
    ShipShape(cr, 200, 220, 150, M_PI / 2, 1, 3);
    ShipShape(cr, 470, 200, 150, -M_PI / 2, 7, 5);
    cairo_set_line_width(cr, 3);
    cairo_set_source_rgba(cr, 1, 0.3, 0.2, 0.9);
    cairo_move_to(cr, 270, 215);
    cairo_line_to(cr, 400, 205);
    cairo_stroke(cr);
  }
  GlowText(cr, title, 320, 60, 34, kAmber);
  // the frame the bar runs in, at (10,396), 611x46
  Bevel(cr, 6, 392, 619, 54, kSteelDark, -3);
  Text(cr, "LOADING", 320, 468, 11, kCyanDim, Align::Center, true, true);
}

}  // namespace

bool DrawMenu(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  const uint32_t seed = HashString(spec.path);
  cairo_t* cr = cv.cr();
  if (p == "gfx/main/0.bmp") {
    SpaceBackdrop(cv, seed);
    cairo_pattern_t* g = cairo_pattern_create_radial(320, 140, 10, 320, 140, 330);
    cairo_pattern_add_color_stop_rgba(g, 0, 0.35, 0.25, 0.6, 0.5);
    cairo_pattern_add_color_stop_rgba(g, 1, 0, 0, 0, 0);
    cairo_set_source(cr, g);
    cairo_paint(cr);
    cairo_pattern_destroy(g);
    GlowText(cr, "LANEFARER", 320, 78, 58, kAmber);
    Text(cr, "A CAPTAIN'S ROAD THROUGH FOUR QUADRANTS", 320, 106, 12, kCyan, Align::Center, true, true);
    return true;
  }
  if (StartsWith(p, "gfx/main/")) {
    const int n = NumberAfter(p, "gfx/main/");
    for (int lit = 0; lit < 2; ++lit) {
      const double y = lit * 60;
      FillRect(cr, 0, y, 640, 60, {0.01, 0.01, 0.035});
      // a steel plate behind the word
      cairo_save(cr);
      cairo_rectangle(cr, 170, y + 8, 300, 44);
      cairo_clip(cr);
      SteelPlate(cr, 170, y + 8, 300, 44, seed);
      cairo_restore(cr);
      if (lit) {
        cairo_set_line_width(cr, 2);
        SetColor(cr, kAmber);
        cairo_rectangle(cr, 171, y + 9, 298, 42);
        cairo_stroke(cr);
        GlowText(cr, kEntries[n], 320, y + 40, 24, kAmber);
      } else {
        Text(cr, kEntries[n], 320, y + 40, 24, {0.62, 0.72, 0.80}, Align::Center);
      }
    }
    return true;
  }
  if (p == "gfx/loading/loadingpic.bmp") {
    LoadingPicture(cv, "PREPARING THE BRIDGE", seed, 0);
    return true;
  }
  if (p == "gfx/loading/docking.bmp") {
    LoadingPicture(cv, "DOCKING", seed, 1);
    return true;
  }
  if (p == "gfx/loading/fight.bmp") {
    LoadingPicture(cv, "BATTLE STATIONS", seed, 2);
    return true;
  }
  if (p == "gfx/loading/progressbar.bmp") {
    // drawn from the left at a growing width: a cyan-to-amber energy bar
    cairo_pattern_t* g = cairo_pattern_create_linear(0, 0, spec.width, 0);
    cairo_pattern_add_color_stop_rgb(g, 0, 0.1, 0.5, 0.6);
    cairo_pattern_add_color_stop_rgb(g, 1, 1.0, 0.7, 0.2);
    cairo_set_source(cr, g);
    cairo_paint(cr);
    cairo_pattern_destroy(g);
    for (int x = 0; x < spec.width; x += 8) FillRect(cr, x, 0, 2, spec.height, {0.05, 0.05, 0.08}, 0.6);
    FillRect(cr, 0, 0, spec.width, 6, kWhite, 0.25);
    FillRect(cr, 0, spec.height - 6, spec.width, 6, {0, 0, 0}, 0.35);
    return true;
  }
  return false;
}

}  // namespace assetgen
