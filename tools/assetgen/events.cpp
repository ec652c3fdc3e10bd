// Story pictures: the event screen, one scene for every node of every event,
// and the full-screen credits and story pictures.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "families.h"
#include "noise.h"
#include "sprites.h"

namespace assetgen {
namespace {

// Each node's picture is built from the pieces its text speaks of, named in
// the table below: a backdrop first, then the things in it, front last.
struct NodeShot {
  int event, node;
  const char* pieces;
};

constexpr NodeShot kShots[] = {
    // The trapped transport.
    {1, 1, "space vortex-far own"}, {1, 2, "space vortex trapped own"}, {1, 3, "space vortex trapped own hail"},
    {1, 4, "space vortex trapped scan"}, {1, 5, "space vortex trapped own-near hit"},
    {1, 6, "space vortex trapped scan pulse"}, {1, 7, "space vortex trapped own-near"},
    {1, 8, "space vortex trapped own beam-plan"}, {1, 9, "space vortex trapped own shield-plan"},
    {1, 10, "space vortex trapped own beam"}, {1, 12, "space vortex free own smoke"},
    {1, 13, "space vortex own-near beam-broken flash"}, {1, 14, "space vortex hole free own shield"},
    // The plague station.
    {2, 1, "space planet-left station virus own"}, {2, 2, "space station-far virus own-leaving"},
    {2, 3, "space station virus scan"}, {2, 4, "space station virus own hail"},
    {2, 5, "space station virus own shuttle"}, {2, 6, "space station virus scan"},
    {2, 7, "space station virus shuttle-docked"}, {2, 8, "space station own glow"},
    {2, 9, "space station virus own dark"}, {2, 10, "space station virus own hail"},
    {2, 11, "space station virus own-docked"}, {2, 12, "space station virus own lander"},
    {2, 14, "space station own-docked glow"}, {2, 15, "space station virus own-docked virus-aboard dark"},
    {2, 16, "space station own lander glow"}, {2, 17, "space station virus own dark"},
    // The life pod in the debris.
    {3, 1, "space debris own-far"}, {3, 2, "space debris pod scan"}, {3, 3, "space debris-far own-leaving"},
    {3, 4, "space debris pod own scan"}, {3, 5, "space debris pod own beam-pod"},
    {3, 6, "space debris pod own hail"}, {3, 7, "space debris pod own"}, {3, 8, "space own man"},
    {3, 9, "space own man"},
    // The decoy.
    {4, 1, "space wreck-holo-far own hail"}, {4, 2, "space wreck-holo own"}, {4, 3, "space wreck-holo own hail"},
    {4, 4, "space own-leaving"}, {4, 5, "space wreck-holo asteroid pirate-hidden scan"},
    {4, 6, "space wreck-vanish asteroid pirate own"}, {4, 7, "space wreck-vanish asteroid pirate own-near"},
    {4, 8, "space wreck-vanish asteroid pirate own shield"}, {4, 9, "space pirate-near own"},
    {4, 10, "space pirate-near own fire"}, {4, 11, "space pirate-near own hail"},
    {4, 12, "space pirate-near own-fleeing fire"}, {4, 13, "space pirate-near own cargo-dump"},
    // The energy life form.
    {5, 1, "space cloud-far own"}, {5, 2, "space cloud-angry own shield bolt"}, {5, 3, "space cloud own"},
    {5, 4, "space cloud own scan"}, {5, 5, "space cloud own"}, {5, 6, "space cloud-angry own fire flash"},
    {5, 7, "space cloud-far own-leaving"}, {5, 8, "space cloud-far own-leaving"}, {5, 9, "space cloud own hail"},
    {5, 10, "space cloud-far own glow"},
    // The magnetic anomaly.
    {6, 1, "space magstorm-far own"}, {6, 2, "space magstorm own-near"}, {6, 3, "space magstorm-far own scan"},
    {6, 4, "space magstorm own-leaving"}, {6, 5, "space magstorm own-near hit"},
    {6, 6, "space magstorm-far own smoke hail"}, {6, 7, "space magstorm own smoke hit"},
    // The energy ribbon.
    {7, 1, "space ribbon own"}, {7, 2, "space ribbon own-held"}, {7, 3, "space ribbon own-held shield flash"},
    {7, 4, "space ribbon own-held scan"}, {7, 5, "space ribbon own-held hail"}, {7, 6, "space ribbon own-held lander"},
    {7, 7, "space ribbon-far own glow"}, {7, 8, "space ribbon own-held scan"},
    {7, 9, "space ribbon own-held lander-burn flash"},
    // The meteor.
    {8, 1, "space planet-right own hail"}, {8, 2, "space planet-right meteor-far"},
    {8, 3, "space planet-right own-leaving"}, {8, 4, "space planet-right meteor own"},
    {8, 5, "space planet-right meteor-far own-leaving"}, {8, 6, "space planet-right meteor own-far missile"},
    {8, 7, "space meteor trench scan"}, {8, 8, "space planet-right meteor-broken own missile"},
    // The troop landing.
    {9, 1, "space planet-bottom military own hail"}, {9, 2, "space planet-bottom military own"},
    {9, 3, "space planet-bottom military own-leaving"}, {9, 4, "space planet-bottom military own-leaving"},
    {9, 5, "space planet-bottom military own lander"}, {9, 6, "ground scan mountains"},
    {9, 7, "ground mountains lander-down gunfire"}, {9, 8, "space planet-bottom military own-leaving"},
    {9, 9, "ground mountains lander-down gunfire troops flash-small"},
    {9, 10, "ground mountains lander-down troops gunfire barrage"}, {9, 11, "ground mountains lander-down troops"},
    // The crashed ship.
    {10, 1, "space planet-bottom own scan"}, {10, 2, "storm mountains lander-crash lightning"},
    {10, 3, "storm mountains wreck-ground lightning scan"}, {10, 4, "space planet-bottom own hail"},
    {10, 5, "space planet-bottom own-leaving"}, {10, 6, "storm mountains wreck-ground lightning"},
    {10, 7, "space planet-bottom own shield"}, {10, 8, "storm mountains lander lightning"},
    {10, 9, "storm own-descending shield lightning"}, {10, 10, "storm own-descending lightning"},
    {10, 11, "storm own-rising"}, {10, 12, "storm wreck-ground own-landed crew"},
    {10, 13, "storm wreck-ground own-landed cave scan"}, {10, 14, "storm wreck-ground own-landed droids"},
    {10, 15, "storm cave droids man scan"}, {10, 16, "storm cave droids fire"},
    {10, 17, "storm cave man crew"}, {10, 18, "space own man"}, {10, 19, "space own man"},
    // The unknown ship.
    {11, 1, "space alien-far own"}, {11, 2, "space alien own"}, {11, 3, "space alien-far own-leaving"},
    {11, 4, "space alien own scan"}, {11, 5, "space alien own-docked"}, {11, 6, "corridor crew"},
    {11, 7, "corridor wall-grab"}, {11, 8, "space alien own fire flash-small"},
    {11, 9, "space alien own beam-alien"}, {11, 10, "space alien-far own-leaving"},
    {11, 11, "corridor wall-grab crew"},
    // The distress call.
    {12, 1, "space own hail"}, {12, 2, "space own towship hail"}, {12, 3, "space own dark"},
    {12, 4, "space own towship beam-tow"},
    // The lander mission.
    {13, 1, "space planet-bottom own lander"}, {13, 2, "ground mountains lander-down ore"},
    {13, 3, "storm mountains lander lightning"}, {13, 4, "ground mountains lander-down"},
    {13, 5, "ground mountains lander-crash"}, {13, 6, "space gasgiant own lander"},
    {13, 7, "space planet-bottom station-orbit own lander"}, {13, 8, "space planet-bottom own lander"},
    // The disabled freighter.
    {14, 1, "space freighter own"}, {14, 2, "space freighter own hail"}, {14, 3, "space freighter own scan"},
    {14, 4, "space freighter own-leaving"}, {14, 5, "space freighter-fixed own-docked glow"},
    // The life pod, federal version.
    {15, 1, "space pod own hail"}, {15, 2, "space pod own scan"}, {15, 3, "space pod own beam-pod"},
    // The smugglers' convoy.
    {16, 1, "space convoy own"}, {16, 2, "space convoy own scan"}, {16, 3, "space convoy own hail"},
    {16, 4, "space convoy-fleeing smuggler own fire"}, {16, 5, "space convoy-fleeing cargo-dropped own"},
    {16, 6, "space convoy-fleeing cargo-dropped smuggler own"},
    // The life pod, pirate version.
    {17, 1, "space pod own hail"}, {17, 2, "space pod own scan"}, {17, 3, "space pod own beam-pod"},
    // The joint attack.
    {18, 1, "space ally own hail"}, {18, 2, "space ally own"}, {18, 3, "space ally own-leaving"},
    {18, 4, "space ally own pirates fire"},
};

bool Has(std::string_view pieces, std::string_view word) {
  size_t at = 0;
  while ((at = pieces.find(word, at)) != std::string_view::npos) {
    const size_t end = at + word.size();
    const bool startOk = at == 0 || pieces[at - 1] == ' ';
    const bool endOk = end == pieces.size() || pieces[end] == ' ';
    if (startOk && endOk) return true;
    at = end;
  }
  return false;
}

void Nebula(Canvas& cv, uint32_t seed, Rgb tint, double amount) {
  const int w = cv.width(), h = cv.height();
  for (int y = 0; y < h; y += 1) {
    uint32_t* row = cv.Row(y);
    for (int x = 0; x < w; ++x) {
      const double n = ValueNoise(x / 90.0, y / 90.0, seed) * 0.65 + ValueNoise(x / 30.0, y / 30.0, seed + 1) * 0.35;
      const double v = std::max(0.0, n - 0.45) * amount;
      if (v <= 0) continue;
      const uint32_t p = row[x];
      auto add = [&](int shift, double t) {
        return std::min<uint32_t>(255, ((p >> shift) & 255) + uint32_t(t * v * 255));
      };
      row[x] = 0xff000000u | (add(16, tint.r) << 16) | (add(8, tint.g) << 8) | add(0, tint.b);
    }
  }
  cv.Dirty();
}

// Where the captain's own ship stands, and the point most pieces look at.
struct Spot {
  double x, y;
};
constexpr Spot kOwn{150, 200};
constexpr Spot kTarget{420, 150};

void Glow(cairo_t* cr, double x, double y, double r, Rgb c, double alpha) {
  cairo_pattern_t* g = cairo_pattern_create_radial(x, y, 0, x, y, r);
  cairo_pattern_add_color_stop_rgba(g, 0, c.r, c.g, c.b, alpha);
  cairo_pattern_add_color_stop_rgba(g, 1, c.r, c.g, c.b, 0);
  cairo_set_source(cr, g);
  cairo_arc(cr, x, y, r, 0, 2 * M_PI);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
}

void Beam(cairo_t* cr, Spot a, Spot b, Rgb c, double width, bool broken) {
  cairo_save(cr);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  for (int pass = 0; pass < 2; ++pass) {
    cairo_set_line_width(cr, pass == 0 ? width * 3 : width);
    cairo_set_source_rgba(cr, c.r, c.g, c.b, pass == 0 ? 0.25 : 0.9);
    if (broken) {
      const double mx = (a.x + b.x) / 2, my = (a.y + b.y) / 2;
      cairo_move_to(cr, a.x, a.y);
      cairo_line_to(cr, mx - 20, my - 5);
      cairo_move_to(cr, mx + 25, my + 10);
      cairo_line_to(cr, b.x, b.y);
    } else {
      cairo_move_to(cr, a.x, a.y);
      cairo_line_to(cr, b.x, b.y);
    }
    cairo_stroke(cr);
  }
  cairo_restore(cr);
}

// Concentric arcs from a ship: a hail or a call for help.
void Hail(cairo_t* cr, Spot from, double toward) {
  cairo_save(cr);
  cairo_set_line_width(cr, 2);
  for (int i = 1; i <= 4; ++i) {
    cairo_set_source_rgba(cr, kAmber.r, kAmber.g, kAmber.b, 0.9 - i * 0.18);
    cairo_arc(cr, from.x, from.y, 30 + i * 16, toward - 0.45, toward + 0.45);
    cairo_stroke(cr);
  }
  cairo_restore(cr);
}

// A sensor sweep over the target: a fan of light and a grid.
void Scan(cairo_t* cr, Spot at) {
  cairo_save(cr);
  cairo_set_source_rgba(cr, kCyan.r, kCyan.g, kCyan.b, 0.12);
  cairo_move_to(cr, kOwn.x, kOwn.y);
  cairo_arc(cr, kOwn.x, kOwn.y, 420, -0.55, 0.25);
  cairo_close_path(cr);
  cairo_fill(cr);
  cairo_set_line_width(cr, 1);
  cairo_set_source_rgba(cr, kCyan.r, kCyan.g, kCyan.b, 0.55);
  for (int r = 30; r <= 90; r += 30) {
    cairo_arc(cr, at.x, at.y, r, 0, 2 * M_PI);
    cairo_stroke(cr);
  }
  cairo_move_to(cr, at.x - 110, at.y);
  cairo_line_to(cr, at.x + 110, at.y);
  cairo_move_to(cr, at.x, at.y - 110);
  cairo_line_to(cr, at.x, at.y + 110);
  cairo_stroke(cr);
  cairo_restore(cr);
}

void Vortex(cairo_t* cr, Spot c, double scale, uint32_t seed) {
  Rng rng(seed);
  Glow(cr, c.x, c.y, 170 * scale, {0.5, 0.3, 0.9}, 0.55);
  cairo_save(cr);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  for (int arm = 0; arm < 7; ++arm) {
    const double a0 = arm * 2 * M_PI / 7 + rng.Range(0, 0.3);
    cairo_set_line_width(cr, (6 - arm % 4) * scale);
    const Rgb col = Mix({0.6, 0.4, 1.0}, kCyan, arm / 7.0);
    cairo_set_source_rgba(cr, col.r, col.g, col.b, 0.7);
    for (int i = 0; i <= 60; ++i) {
      const double t = i / 60.0, r = (20 + t * 150) * scale, a = a0 + t * 4.2;
      const double x = c.x + std::cos(a) * r * 1.3, y = c.y + std::sin(a) * r * 0.7;
      if (i == 0)
        cairo_move_to(cr, x, y);
      else
        cairo_line_to(cr, x, y);
    }
    cairo_stroke(cr);
  }
  cairo_restore(cr);
  Glow(cr, c.x, c.y, 40 * scale, kWhite, 0.8);
}

void Smoke(cairo_t* cr, Spot at, uint32_t seed) {
  Rng rng(seed);
  for (int i = 0; i < 9; ++i) {
    const double x = at.x - 20 - i * 14 + rng.Range(-6, 6), y = at.y - 10 + rng.Range(-14, 14);
    cairo_set_source_rgba(cr, 0.35, 0.33, 0.32, 0.55 - i * 0.05);
    cairo_arc(cr, x, y, 8 + i * 2.5, 0, 2 * M_PI);
    cairo_fill(cr);
  }
}

void Shield(cairo_t* cr, Spot at, double r) {
  Glow(cr, at.x, at.y, r, kCyan, 0.35);
  cairo_set_line_width(cr, 2);
  cairo_set_source_rgba(cr, kCyan.r, kCyan.g, kCyan.b, 0.8);
  cairo_arc(cr, at.x, at.y, r * 0.8, 0, 2 * M_PI);
  cairo_stroke(cr);
}

void Lightning(cairo_t* cr, uint32_t seed, double top, double bottom) {
  Rng rng(seed);
  for (int bolt = 0; bolt < 3; ++bolt) {
    double x = rng.Range(60, 580), y = top;
    cairo_set_line_width(cr, 2.5);
    cairo_set_source_rgba(cr, 0.85, 0.9, 1.0, 0.95);
    cairo_move_to(cr, x, y);
    while (y < bottom) {
      x += rng.Range(-25, 25);
      y += rng.Range(12, 30);
      cairo_line_to(cr, x, y);
    }
    cairo_stroke(cr);
  }
}

// A rocky horizon across the lower part of the picture.
void Ground(cairo_t* cr, uint32_t seed, Rgb soil, bool mountains) {
  Rng rng(seed);
  const double W = 640, H = 320;
  if (mountains) {
    cairo_move_to(cr, 0, H * 0.62);
    for (int i = 0; i <= 10; ++i) cairo_line_to(cr, i * W / 10, H * 0.45 + rng.Range(-30, 30));
    cairo_line_to(cr, W, H);
    cairo_line_to(cr, 0, H);
    cairo_close_path(cr);
    SetColor(cr, Scale(soil, 0.55));
    cairo_fill(cr);
  }
  cairo_move_to(cr, 0, H * 0.72);
  for (int i = 0; i <= 16; ++i) cairo_line_to(cr, i * W / 16, H * 0.72 + rng.Range(-10, 10));
  cairo_line_to(cr, W, H);
  cairo_line_to(cr, 0, H);
  cairo_close_path(cr);
  cairo_pattern_t* g = cairo_pattern_create_linear(0, H * 0.7, 0, H);
  cairo_pattern_add_color_stop_rgb(g, 0, soil.r, soil.g, soil.b);
  cairo_pattern_add_color_stop_rgb(g, 1, soil.r * 0.4, soil.g * 0.4, soil.b * 0.4);
  cairo_set_source(cr, g);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
}

void Figure(cairo_t* cr, double x, double y, double h, Rgb c) {
  SetColor(cr, c);
  cairo_arc(cr, x, y - h * 0.85, h * 0.13, 0, 2 * M_PI);
  cairo_fill(cr);
  cairo_rectangle(cr, x - h * 0.13, y - h * 0.7, h * 0.26, h * 0.4);
  cairo_fill(cr);
  cairo_rectangle(cr, x - h * 0.12, y - h * 0.3, h * 0.09, h * 0.3);
  cairo_rectangle(cr, x + h * 0.03, y - h * 0.3, h * 0.09, h * 0.3);
  cairo_fill(cr);
}

void Droid(cairo_t* cr, double x, double y, double s) {
  SetColor(cr, {0.3, 0.3, 0.32});
  cairo_rectangle(cr, x - s, y - s * 1.6, s * 2, s * 1.3);
  cairo_fill(cr);
  cairo_rectangle(cr, x - s * 0.8, y - s * 0.3, s * 0.5, s * 0.3);
  cairo_rectangle(cr, x + s * 0.3, y - s * 0.3, s * 0.5, s * 0.3);
  cairo_fill(cr);
  Glow(cr, x - s * 0.4, y - s * 1.1, s * 0.6, kRed, 0.9);
  Glow(cr, x + s * 0.4, y - s * 1.1, s * 0.6, kRed, 0.9);
}

void Pod(cairo_t* cr, Spot at, double s) {
  cairo_save(cr);
  cairo_translate(cr, at.x, at.y);
  cairo_rotate(cr, -0.4);
  cairo_scale(cr, 1.7, 1.0);
  cairo_arc(cr, 0, 0, s, 0, 2 * M_PI);
  cairo_restore(cr);
  SetColor(cr, {0.78, 0.8, 0.84});
  cairo_fill_preserve(cr);
  SetColor(cr, kSteelDark);
  cairo_set_line_width(cr, 2);
  cairo_stroke(cr);
  Glow(cr, at.x + s * 0.5, at.y - s * 0.2, s * 0.6, kAmber, 0.9);
}

void DebrisField(cairo_t* cr, uint32_t seed, double spread) {
  Rng rng(seed);
  for (int i = 0; i < 14; ++i) {
    cairo_save(cr);
    cairo_translate(cr, kTarget.x + rng.Range(-spread, spread), kTarget.y + rng.Range(-spread * 0.6, spread * 0.6));
    cairo_rotate(cr, rng.Range(0, 6.28));
    const double w = rng.Range(8, 30), h = rng.Range(4, 12);
    cairo_move_to(cr, -w / 2, -h / 2);
    cairo_line_to(cr, w / 2, -h / 3);
    cairo_line_to(cr, w / 3, h / 2);
    cairo_line_to(cr, -w / 2, h / 3);
    cairo_close_path(cr);
    SetColor(cr, Mix(kSteelLight, {0.5, 0.35, 0.25}, rng.Unit()));
    cairo_fill(cr);
    cairo_restore(cr);
  }
}

void Hologram(cairo_t* cr, Spot at, double alpha) {
  cairo_push_group(cr);
  ShipShape(cr, at.x, at.y, 170, 1.9, 1, 3);
  cairo_pop_group_to_source(cr);
  cairo_paint_with_alpha(cr, alpha);
  cairo_set_line_width(cr, 1);
  for (double y = at.y - 70; y < at.y + 70; y += 4) {
    cairo_set_source_rgba(cr, kCyan.r, kCyan.g, kCyan.b, 0.25 * alpha);
    cairo_move_to(cr, at.x - 100, y);
    cairo_line_to(cr, at.x + 100, y);
    cairo_stroke(cr);
  }
}

void EnergyCloud(cairo_t* cr, Spot at, double r, Rgb c, uint32_t seed) {
  Rng rng(seed);
  for (int i = 0; i < 8; ++i)
    Glow(cr, at.x + rng.Range(-r * 0.5, r * 0.5), at.y + rng.Range(-r * 0.3, r * 0.3), r * rng.Range(0.4, 0.8), c, 0.45);
  Glow(cr, at.x, at.y, r * 0.3, kWhite, 0.7);
}

void Ribbon(cairo_t* cr, double y0, double amp, bool wrap) {
  cairo_save(cr);
  for (int band = 0; band < 6; ++band) {
    cairo_set_line_width(cr, 10 - band);
    const Rgb c = Mix({1.0, 0.45, 0.85}, {0.6, 0.4, 1.0}, band / 6.0);
    cairo_set_source_rgba(cr, c.r, c.g, c.b, 0.45);
    for (int i = 0; i <= 64; ++i) {
      const double x = i * 10.0;
      double y = y0 + std::sin(i * 0.18 + band * 0.4) * amp + band * 6;
      if (wrap) y += std::exp(-std::pow((x - kOwn.x) / 70, 2)) * (kOwn.y - y);
      if (i == 0)
        cairo_move_to(cr, x, y);
      else
        cairo_line_to(cr, x, y);
    }
    cairo_stroke(cr);
  }
  cairo_restore(cr);
}

void Meteor(Canvas& cv, Spot at, double r, bool broken, bool trench, uint32_t seed) {
  cairo_t* cr = cv.cr();
  if (broken) {
    Rng rng(seed);
    Fireball(cr, at.x, at.y, r * 0.9, 0.35, seed);
    for (int i = 0; i < 16; ++i) {
      const double a = rng.Range(0, 6.28), d = rng.Range(r * 0.6, r * 1.6);
      cairo_arc(cr, at.x + std::cos(a) * d, at.y + std::sin(a) * d, rng.Range(3, 12), 0, 2 * M_PI);
      SetColor(cr, {0.45, 0.38, 0.32});
      cairo_fill(cr);
    }
    return;
  }
  const SurfaceMap map = MakeSurface(kBarren, seed, 128, 64);
  Sphere(cv, map, kBarren, at.x, at.y, r, 0.3, 0.2);
  if (trench) {
    cairo_set_line_width(cr, 4);
    cairo_set_source_rgba(cr, kAmber.r, kAmber.g, kAmber.b, 0.9);
    cairo_move_to(cr, at.x - r * 0.6, at.y - r * 0.3);
    cairo_curve_to(cr, at.x - r * 0.2, at.y + r * 0.1, at.x + r * 0.2, at.y - r * 0.1, at.x + r * 0.6, at.y + r * 0.3);
    cairo_stroke(cr);
  }
}

void Corridor(cairo_t* cr) {
  const double W = 800, H = 420, cx = 330, cy = 150;
  SetColor(cr, {0.2, 0.08, 0.18});
  cairo_paint(cr);
  for (int i = 0; i < 9; ++i) {
    const double t = i / 9.0, w = W * (1 - t) * 0.9, h = H * (1 - t) * 0.95;
    const Rgb c = Mix({0.25, 0.12, 0.22}, {0.05, 0.02, 0.06}, t);
    cairo_save(cr);
    cairo_translate(cr, cx, cy);
    cairo_scale(cr, w / 2, h / 2);
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr);
    SetColor(cr, c);
    cairo_fill(cr);
    cairo_save(cr);
    cairo_translate(cr, cx, cy);
    cairo_scale(cr, w / 2, h / 2);
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr);
    cairo_set_line_width(cr, 3);
    cairo_set_source_rgba(cr, 0.6, 0.3, 0.5, 0.5);
    cairo_stroke(cr);
  }
  Glow(cr, cx, cy, 40, {0.9, 0.5, 0.8}, 0.5);
}

void Cave(cairo_t* cr, uint32_t seed) {
  Rng rng(seed);
  cairo_move_to(cr, 0, 0);
  for (int i = 0; i <= 12; ++i) cairo_line_to(cr, i * 640 / 12.0, 40 + rng.Range(0, 50));
  cairo_line_to(cr, 640, 0);
  cairo_close_path(cr);
  SetColor(cr, {0.12, 0.1, 0.09});
  cairo_fill(cr);
  cairo_arc(cr, 330, 230, 110, M_PI, 2 * M_PI);
  cairo_line_to(cr, 440, 250);
  cairo_line_to(cr, 220, 250);
  cairo_close_path(cr);
  SetColor(cr, {0.02, 0.02, 0.02});
  cairo_fill(cr);
}

void Tracers(cairo_t* cr, Spot from, Spot to, Rgb c, uint32_t seed, int count) {
  Rng rng(seed);
  cairo_set_line_width(cr, 2);
  for (int i = 0; i < count; ++i) {
    const double t = rng.Range(0, 0.6);
    const double ax = from.x + (to.x - from.x) * t + rng.Range(-10, 10), ay = from.y + (to.y - from.y) * t + rng.Range(-10, 10);
    cairo_set_source_rgba(cr, c.r, c.g, c.b, 0.9);
    cairo_move_to(cr, ax, ay);
    cairo_line_to(cr, ax + (to.x - from.x) * 0.15, ay + (to.y - from.y) * 0.15);
    cairo_stroke(cr);
  }
}

void CargoPods(cairo_t* cr, Spot near, uint32_t seed, int count) {
  Rng rng(seed);
  for (int i = 0; i < count; ++i) {
    cairo_save(cr);
    cairo_translate(cr, near.x + rng.Range(-60, 90), near.y + rng.Range(-50, 60));
    cairo_rotate(cr, rng.Range(0, 6.28));
    cairo_rectangle(cr, -9, -6, 18, 12);
    SetColor(cr, {0.55, 0.45, 0.25});
    cairo_fill_preserve(cr);
    SetColor(cr, kSteelDark);
    cairo_set_line_width(cr, 1.5);
    cairo_stroke(cr);
    cairo_restore(cr);
  }
}

void Scene(Canvas& cv, int event, int node) {
  cairo_t* cr = cv.cr();
  const uint32_t seed = Hash(uint32_t(event), uint32_t(node), 77);
  const double W = cv.width(), H = cv.height();
  std::string_view p = "space own";
  for (const NodeShot& s : kShots)
    if (s.event == event && s.node == node) p = s.pieces;
  auto has = [&](std::string_view w) { return Has(p, w); };
  const Rgb soil = event == 10 || event == 13 ? Rgb{0.42, 0.3, 0.22} : Rgb{0.32, 0.36, 0.26};

  // Backdrops.
  if (has("space")) {
    FillRect(cr, 0, 0, W, H, {0.01, 0.01, 0.03});
    static constexpr Rgb kTints[] = {{0.5, 0.2, 0.6}, {0.2, 0.4, 0.7}, {0.7, 0.3, 0.2}, {0.2, 0.6, 0.4}};
    Nebula(cv, Hash(uint32_t(event), 5), kTints[event % 4], 0.7);
    Stars(cv, seed + 5, 700, 0.9);
  } else {
    const bool storm = has("storm");
    cairo_pattern_t* g = cairo_pattern_create_linear(0, 0, 0, H);
    const Rgb top = storm ? Rgb{0.08, 0.07, 0.12} : Rgb{0.25, 0.35, 0.55};
    const Rgb low = storm ? Rgb{0.3, 0.22, 0.3} : Rgb{0.7, 0.6, 0.5};
    cairo_pattern_add_color_stop_rgb(g, 0, top.r, top.g, top.b);
    cairo_pattern_add_color_stop_rgb(g, 1, low.r, low.g, low.b);
    cairo_set_source(cr, g);
    cairo_paint(cr);
    cairo_pattern_destroy(g);
    if (has("corridor")) {
      Corridor(cr);
    } else {
      if (storm) Nebula(cv, seed, {0.4, 0.3, 0.5}, 0.6);
      Ground(cr, Hash(uint32_t(event), 9), soil, has("mountains"));
      if (has("cave")) Cave(cr, seed);
      if (storm && has("lightning")) Lightning(cr, seed, 0, H * 0.6);
    }
  }
  auto planet = [&](int kind, double x, double y, double r) {
    const SurfaceMap map = MakeSurface(kind, uint32_t(event) * 31u + uint32_t(kind), 256, 128);
    Sphere(cv, map, kind, x, y, r, 0.2 + 0.05 * event, 0.3);
  };
  if (has("planet-left")) planet(kTerran, -40, 240, 200);
  if (has("planet-right")) planet(event == 8 ? kTerran : kOcean, 600, 250, 190);
  if (has("planet-bottom")) planet(event == 13 ? kDesert : event == 10 ? kBarren : kTerran, 320, 720, 480);
  if (has("gasgiant")) planet(kGasGiant, 430, 200, 180);

  // Phenomena.
  if (has("vortex") || has("vortex-far")) Vortex(cr, has("vortex-far") ? Spot{470, 120} : kTarget, has("vortex-far") ? 0.45 : 1.0, seed);
  if (has("hole")) {
    cairo_set_line_width(cr, 8);
    cairo_set_source_rgba(cr, kWhite.r, kWhite.g, kWhite.b, 0.8);
    cairo_arc(cr, kTarget.x, kTarget.y, 70, 0, 2 * M_PI);
    cairo_stroke(cr);
  }
  if (has("pulse")) Glow(cr, kTarget.x, kTarget.y, 120, kWhite, 0.3);
  if (has("magstorm") || has("magstorm-far")) {
    const bool far = has("magstorm-far");
    Rng rng(seed);
    for (int i = 0; i < 9; ++i) {
      cairo_set_line_width(cr, far ? 1.5 : 3);
      cairo_set_source_rgba(cr, 0.4, 0.8, 1.0, 0.6);
      const double cx = far ? 480 : 380, cy = 150, rx = (far ? 60 : 150) + i * (far ? 8 : 18), ry = rx * 0.45;
      cairo_save(cr);
      cairo_translate(cr, cx, cy);
      cairo_rotate(cr, rng.Range(-0.5, 0.5));
      cairo_scale(cr, rx, ry);
      cairo_arc(cr, 0, 0, 1, rng.Range(0, 1), rng.Range(3, 6));
      cairo_restore(cr);
      cairo_stroke(cr);
    }
    Glow(cr, far ? 480 : 380, 150, far ? 40 : 90, {0.4, 0.8, 1.0}, 0.4);
  }
  if (has("ribbon")) Ribbon(cr, 120, 50, has("own-held"));
  if (has("ribbon-far")) Ribbon(cr, 60, 20, false);
  if (has("cloud") || has("cloud-angry")) EnergyCloud(cr, kTarget, has("cloud-angry") ? 130 : 100, has("cloud-angry") ? Rgb{1.0, 0.5, 0.3} : Rgb{0.5, 1.0, 0.6}, seed);
  if (has("cloud-far")) EnergyCloud(cr, {520, 90}, 45, {0.5, 1.0, 0.6}, seed);
  if (has("asteroid")) planet(kBarren, 560, 90, 60);
  if (has("debris")) DebrisField(cr, seed, 160);
  if (has("debris-far")) {
    cairo_save(cr);
    cairo_translate(cr, 300, 80);
    cairo_scale(cr, 0.4, 0.4);
    DebrisField(cr, seed, 160);
    cairo_restore(cr);
  }

  // Stations and other ships.
  if (has("station")) StationShape(cr, kTarget.x, kTarget.y, 105, 0.3, 1 + event % 3);
  if (has("station-far")) StationShape(cr, 500, 90, 45, 0.3, 1 + event % 3);
  if (has("station-orbit")) StationShape(cr, 480, 90, 50, 0.6, 2);
  if (has("virus")) Glow(cr, kTarget.x, kTarget.y, 150, {0.4, 1.0, 0.2}, 0.35);
  if (has("trapped")) ShipShape(cr, kTarget.x, kTarget.y, 80, 2.4, 1, 2);
  if (has("free")) ShipShape(cr, 560, 90, 80, 0.9, 1, 2);
  if (has("wreck-holo")) Hologram(cr, kTarget, 0.75);
  if (has("wreck-holo-far")) Hologram(cr, {500, 100}, 0.5);
  if (has("wreck-vanish")) Hologram(cr, {360, 160}, 0.25);
  if (has("pirate-hidden")) {
    ShipShape(cr, 545, 120, 70, 4.2, 7, 5);
    Glow(cr, 545, 120, 50, kRed, 0.25);
  }
  if (has("pirate")) ShipShape(cr, 510, 120, 110, 4.3, 7, 5);
  if (has("pirate-near")) ShipShape(cr, 460, 130, 200, 4.4, 7, 5);
  if (has("alien")) {
    ShipShape(cr, kTarget.x, kTarget.y, 230, 2.0, 6, 4);
    Glow(cr, kTarget.x, kTarget.y, 140, {0.4, 0.6, 1.0}, 0.2);
  }
  if (has("alien-far")) ShipShape(cr, 510, 100, 90, 2.0, 6, 4);
  if (has("military")) ShipShape(cr, 440, 110, 190, 4.5, 1, 4);
  if (has("towship")) ShipShape(cr, 450, 120, 150, 4.4, 3, 2);
  if (has("freighter") || has("freighter-fixed")) {
    ShipShape(cr, kTarget.x + 20, kTarget.y, 200, 1.7, 2, 3);
    if (has("freighter")) Smoke(cr, {kTarget.x + 60, kTarget.y - 10}, seed);
  }
  if (has("convoy") || has("convoy-fleeing")) {
    const double dx = has("convoy-fleeing") ? 120 : 0;
    for (int i = 0; i < 4; ++i) ShipShape(cr, 380 + dx + (i % 2) * 80, 70 + i * 55, 80, has("convoy-fleeing") ? 1.2 : 4.2, 4 + i % 3, 1 + i % 2);
  }
  if (has("smuggler")) ShipShape(cr, 340, 170, 120, 4.2, 5, 2);
  if (has("cargo-dropped")) CargoPods(cr, {420, 240}, seed, 8);
  if (has("ally")) ShipShape(cr, 330, 230, 130, 1.4, 2, 3);
  if (has("pirates")) {
    ShipShape(cr, 500, 90, 100, 4.2, 7, 5);
    ShipShape(cr, 560, 220, 100, 4.0, 7, 4);
    Fireball(cr, 560, 220, 60, 0.35, seed);
  }
  if (has("meteor")) Meteor(cv, kTarget, 90, false, false, seed);
  if (has("meteor-far")) Meteor(cv, {300, 90}, 45, false, false, seed);
  if (has("meteor-broken")) Meteor(cv, kTarget, 90, true, false, seed);
  if (has("trench")) Meteor(cv, {360, 160}, 140, false, true, seed);

  // Ground pieces.
  const double groundY = H * 0.74;
  if (has("wreck-ground")) {
    ShipShape(cr, 420, groundY - 10, 170, 1.2, 4, 3);
    Smoke(cr, {470, groundY - 30}, seed);
  }
  if (has("own-landed")) ShipShape(cr, 190, groundY - 20, 150, 1.57, 1, 3);
  if (has("lander-down")) {
    ShipShape(cr, 250, groundY - 18, 110, 1.57, 1, 1);
    if (has("ore")) CargoPods(cr, {330, groundY + 10}, seed, 5);
  }
  if (has("lander-crash")) {
    ShipShape(cr, 360, groundY - 6, 100, 2.6, 1, 1);
    Smoke(cr, {400, groundY - 30}, seed);
    Fireball(cr, 360, groundY - 6, 70, 0.5, seed);
  }
  if (has("troops"))
    for (int i = 0; i < 9; ++i) Figure(cr, 320 + i * 24, groundY + 30 + (i % 2) * 6, 30, {0.75, 0.8, 0.6});
  if (has("crew"))
    for (int i = 0; i < 3; ++i) Figure(cr, 270 + i * 26, groundY + 30, 34, {0.7, 0.72, 0.78});
  if (has("droids"))
    for (int i = 0; i < 3; ++i) Droid(cr, 470 + i * 60, groundY + 20 + (i % 2) * 10, 24);
  if (has("man")) {
    if (has("space")) {
      // The man's message on the ship's screen.
      Bevel(cr, 372, 52, 196, 216, kSteel, 2);
      FillRect(cr, 380, 60, 180, 200, kSteelDark);
      Portrait(cr, 380, 60, 180, 200, 1, Hash(uint32_t(event), 44));
    } else {
      Figure(cr, 330, groundY + 20, 40, {0.8, 0.75, 0.65});
    }
  }
  if (has("gunfire")) Tracers(cr, {560, H}, {260, groundY - 20}, kAmber, seed, 14);
  if (has("barrage")) Tracers(cr, {320, 0}, {560, groundY}, kRed, seed + 1, 10);
  if (has("wall-grab")) {
    cairo_set_line_width(cr, 14);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
    cairo_set_source_rgba(cr, 0.55, 0.2, 0.45, 0.95);
    cairo_move_to(cr, 60, 60);
    cairo_curve_to(cr, 180, 100, 160, 220, 300, 230);
    cairo_stroke(cr);
    Figure(cr, 320, 280, 90, {0.7, 0.72, 0.78});
  }

  // The captain's own ship.
  const Spot own = has("own-near") ? Spot{250, 190} : has("own-far") ? Spot{90, 250} : kOwn;
  const double ownSize = has("own-near") ? 150 : has("own-far") ? 60 : 110;
  if (has("own") || has("own-near") || has("own-far") || has("own-held")) ShipShape(cr, own.x, own.y, ownSize, 1.45, 1, 3);
  if (has("own-leaving") || has("own-fleeing")) ShipShape(cr, 120, 240, 90, 4.4, 1, 3);
  if (has("own-docked")) ShipShape(cr, kTarget.x - 150, kTarget.y + 20, 110, 1.57, 1, 3);
  if (has("own-descending")) ShipShape(cr, 320, 110, 160, 3.14, 1, 3);
  if (has("own-rising")) ShipShape(cr, 320, 120, 160, 0, 1, 3);
  if (has("shuttle")) ShipShape(cr, 290, 175, 34, 1.4, 1, 1);
  if (has("shuttle-docked")) ShipShape(cr, kTarget.x + 60, kTarget.y + 60, 30, 0.4, 1, 1);
  if (has("lander")) ShipShape(cr, own.x + 110, own.y + 50, 60, 2.0, 1, 1);
  if (has("lander-burn")) {
    ShipShape(cr, own.x + 70, own.y + 30, 40, 1.45, 1, 1);
    Fireball(cr, own.x + 40, own.y + 30, 35, 0.3, seed);
  }

  // What passes between them.
  if (has("beam") || has("beam-plan")) Beam(cr, own, kTarget, kCyan, has("beam-plan") ? 1.5 : 4, false);
  if (has("beam-broken")) Beam(cr, own, kTarget, kRed, 4, true);
  if (has("beam-pod")) Beam(cr, own, {420, 170}, kCyan, 4, false);
  if (has("beam-alien")) Beam(cr, own, kTarget, {0.9, 0.4, 1.0}, 5, false);
  if (has("beam-tow")) Beam(cr, {450, 120}, own, kCyan, 4, false);
  if (has("pod")) Pod(cr, {420, 170}, 18);
  if (has("shield") || has("shield-plan")) Shield(cr, own, has("shield-plan") ? 90 : 110);
  if (has("hail")) Hail(cr, own, std::atan2(kTarget.y - own.y, kTarget.x - own.x));
  if (has("scan")) Scan(cr, has("trench") ? Spot{360, 160} : kTarget);
  if (has("fire")) Tracers(cr, own, kTarget, kRed, seed, 12);
  if (has("bolt")) Beam(cr, kTarget, own, {1.0, 0.6, 0.3}, 3, false);
  if (has("missile")) Beam(cr, own, kTarget, kAmber, 2, false);
  if (has("hit")) {
    Fireball(cr, own.x + 20, own.y - 10, 30, 0.35, seed);
    Fireball(cr, own.x - 25, own.y + 15, 24, 0.5, seed + 1);
  }
  if (has("smoke")) Smoke(cr, own, seed);
  if (has("cargo-dump")) CargoPods(cr, {own.x + 40, own.y + 20}, seed, 9);
  if (has("virus-aboard")) Glow(cr, own.x, own.y, 90, {0.4, 1.0, 0.2}, 0.45);
  if (has("glow")) Glow(cr, W / 2, H / 2, 360, {1.0, 0.85, 0.5}, 0.18);
  if (has("dark")) {
    cairo_set_source_rgba(cr, 0, 0, 0.02, 0.45);
    cairo_paint(cr);
  }
  if (has("flash-small")) Fireball(cr, kTarget.x, kTarget.y + 40, 70, 0.4, seed);
  if (has("flash")) {
    Fireball(cr, own.x, own.y, 160, 0.4, seed);
    Glow(cr, own.x, own.y, 600, kWhite, 0.55);
  }
  if (has("lightning") && has("space")) Lightning(cr, seed, 0, H);

  // A viewport frame.
  Bevel(cr, 0, 0, W, H, kSteel, 0);
  Bevel(cr, 1, 1, W - 2, H - 2, kSteelDark, 0);
}

void FullPicture(Canvas& cv, std::string_view name, uint32_t seed) {
  cairo_t* cr = cv.cr();
  FillRect(cr, 0, 0, 640, 480, {0.01, 0.01, 0.03});
  Nebula(cv, seed, {0.4, 0.2, 0.6}, 0.8);
  Stars(cv, seed, 900, 0.9);
  if (name == "death") {
    Fireball(cr, 320, 220, 180, 0.45, seed);
    GlowText(cr, "YOUR JOURNEY HAS ENDED", 320, 420, 30, kRed);
    return;
  }
  if (name == "quelmar") {
    GlowText(cr, "LANEFARER", 320, 200, 64, kAmber);
    Text(cr, "MADE WITH ITS OWN PICTURES, SOUNDS AND MUSIC", 320, 260, 13, kCyan, Align::Center, true, true);
    Text(cr, "CLICK TO GO ON", 320, 440, 11, kCyanDim, Align::Center, true, true);
    return;
  }
  // story_0..5: the opening and later chapters
  static constexpr const char* kLines[6][3] = {
      {"THE FOUR QUADRANTS", "LIE OPEN BEFORE YOU.", "A STATION, A PURSE, NO SHIP YET."},
      {"THE FIRST STAR LANE", "CARRIES YOU INTO THE UNKNOWN.", "NEW RACES, NEW RULES."},
      {"THE MIDDLE REACHES", "WHERE TRADE AND WAR MEET.", "KEEP YOUR CREW ALIVE."},
      {"THE DEEP QUADRANT", "OLD EMPIRES WATCH.", "YOUR NAME TRAVELS AHEAD OF YOU."},
      {"THE LAST LANE", "IS WITHIN REACH.", "ONE MORE JUMP."},
      {"BEYOND THE LANES", "YOUR ROAD IS COMPLETE.", "THE STARS REMEMBER."}};
  const int n = std::clamp(NumberAfter(name, "story_"), 0, 5);
  const SurfaceMap map = MakeSurface(1 + (n * 3) % 10, seed, 512, 256);
  Sphere(cv, map, 1 + (n * 3) % 10, 500, 170, 120, 0.2 * n, 0.3);
  ShipShape(cr, 180, 190, 140, 1.2, 1, 3);
  GlowText(cr, kLines[n][0], 320, 360, 28, kAmber);
  Text(cr, kLines[n][1], 320, 398, 16, kCyan, Align::Center);
  Text(cr, kLines[n][2], 320, 426, 16, kCyan, Align::Center);
}

}  // namespace

bool DrawEvents(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  if (StartsWith(p, "gfx/credits/")) {
    std::string_view n = p.substr(12);
    FullPicture(cv, n.substr(0, n.size() - 4), HashString(spec.path));
    return true;
  }
  if (p == "gfx/events/back.bmp") {
    cairo_t* cr = cv.cr();
    SteelPlate(cr, 0, 0, 640, 480, HashString(spec.path));
    Bevel(cr, 0, 0, 640, 322, kSteelDark, -2);
    Bevel(cr, 10, 330, 620, 140, {0.03, 0.05, 0.06}, -3);
    return true;
  }
  if (StartsWith(p, "gfx/events/")) {
    const int e = NumberAfter(p, "gfx/events/");
    const int n = NumberAfter(p.substr(p.find('/', 11) + 1), "");
    Scene(cv, e, n);
    return true;
  }
  return false;
}

}  // namespace assetgen
