// The fight screen: background, lamps, gauges, buttons, the opponent's ship
// by range, and the animations of shots, shields and explosions.
#include <algorithm>
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"
#include "sprites.h"

namespace assetgen {
namespace {

// The five warning lamps: lit in warnings.bmp, dark on the background.
constexpr const char* kLampNames[] = {"MISSILE", "SHIELD HIT", "SYSTEM HIT", "CREW HIT", "HULL HIT"};
void Lamp(cairo_t* cr, double x, double y, int i, bool lit) {
  Bevel(cr, x, y, 95, 29, lit ? Rgb{0.75, 0.12, 0.08} : Rgb{0.18, 0.08, 0.07}, 2);
  Text(cr, kLampNames[i], x + 47.5, y + 18, 9, lit ? Rgb{1.0, 0.92, 0.7} : Rgb{0.45, 0.25, 0.2}, Align::Center, true, true);
}

void FightBack(Canvas& cv, uint32_t seed) {
  cairo_t* cr = cv.cr();
  SteelPlate(cr, 0, 0, 640, 480, seed);
  // the main view with a starfield
  Recess(cr, 118, 56, 400, 240, 2);
  cairo_save(cr);
  cairo_rectangle(cr, 118, 56, 400, 240);
  cairo_clip(cr);
  Stars(cv, seed, 300, 0.9);
  cairo_restore(cr);
  // opponent gauges strip
  Recess(cr, 140, 4, 360, 40, 2);
  // own system bars and crew bars
  static constexpr const char* kSystems[] = {"HULL", "SHLD", "GEN", "ENG", "BEAM", "SENS"};
  for (int i = 0; i < 6; ++i) {
    Recess(cr, 35, 69 + 20 * i, 65, 15, 2);
    Text(cr, kSystems[i], 32, 80 + 20 * i, 8, kAmber, Align::Right, true, true);
  }
  static constexpr const char* kPosts[] = {"NAV", "COM", "TAC", "MED", "SCI", "ENG"};
  for (int i = 0; i < 6; ++i) {
    Recess(cr, 35, 189 + 20 * i, 65, 15, 2);
    Text(cr, kPosts[i], 32, 200 + 20 * i, 8, kCyan, Align::Right, true, true);
  }
  // lamps, specials, weapons, targets, energy
  for (int i = 0; i < 5; ++i) Lamp(cr, 11, 324 + 29 * i, i, false);
  Recess(cr, 120, 345, 110, 124, 2);
  Recess(cr, 250, 345, 118, 112, 2);
  Recess(cr, 376, 346, 50, 113, 2);
  Recess(cr, 446, 346, 74, 100, 2);
  Text(cr, "PWR", 456, 341, 8, kCyan, Align::Center, true, true);
  Text(cr, "WPN", 483, 341, 8, kCyan, Align::Center, true, true);
  Text(cr, "SHD", 510, 341, 8, kCyan, Align::Center, true, true);
  // range scale at the right
  Recess(cr, 560, 52, 36, 338, 2);
  for (int i = 0; i <= 10; ++i) FillRect(cr, 590, 55 + i * 31, 6, 1, kCyanDim);
  Text(cr, "RANGE", 578, 404, 8, kCyan, Align::Center, true, true);
  Text(cr, "FAR", 578, 48, 7, kCyan, Align::Center, true, true);
  Text(cr, "NEAR", 578, 416, 7, kCyan, Align::Center, true, true);
  // flee (y 16..25) and self-destruct (y 25..39) over the surrender picture at (18,39)
  Bevel(cr, 18, 15, 92, 11, {0.25, 0.35, 0.30}, 1);
  Text(cr, "FLEE", 64, 24, 8, kGreen, Align::Center, true, true);
  Bevel(cr, 18, 26, 92, 13, {0.40, 0.15, 0.12}, 1);
  Text(cr, "SELF-DESTRUCT", 64, 36, 8, {1.0, 0.6, 0.5}, Align::Center, true, true);
  Recess(cr, 18, 39, 90, 9, 2);
  // range orders: closer (y 429..441) and farther (y above 445), x 535..618
  Bevel(cr, 536, 429, 82, 13, kSteel, 1);
  Text(cr, "CLOSER", 577, 439, 8, kAmber, Align::Center, true, true);
  Bevel(cr, 536, 447, 82, 13, kSteel, 1);
  Text(cr, "FARTHER", 577, 457, 8, kAmber, Align::Center, true, true);
  // power transfer: weapons to shields (x 474..494), shields to weapons (x 499..519), y 449..463
  Bevel(cr, 475, 450, 19, 13, kSteel, 1);
  Text(cr, ">", 484.5, 460, 9, kCyan, Align::Center, true, true);
  Bevel(cr, 500, 450, 19, 13, kSteel, 1);
  Text(cr, "<", 509.5, 460, 9, kCyan, Align::Center, true, true);
  Recess(cr, 125, 303, 390, 20, 2);
}

void OpponentShip(Canvas& cv, int race, int hullClass) {
  cairo_t* cr = cv.cr();
  for (int f = 0; f < 50; ++f) {
    const double x = f * 322;
    // frame f is closeness f: small at the far limit, filling the frame when touching
    const double scale = 0.2 + 0.8 * std::pow(f / 49.0, 1.3);
    cairo_save(cr);
    cairo_rectangle(cr, x, 0, 322, 144);
    cairo_clip(cr);
    cairo_translate(cr, x + 161, 72);
    cairo_scale(cr, 1, 0.45);  // seen from slightly above and behind
    ShipShape(cr, 0, 0, 300 * scale, -M_PI / 2, race, hullClass);
    cairo_restore(cr);
  }
}

void ShieldBubble(Canvas& cv, int frames, int fw, int fh, Rgb c) {
  cairo_t* cr = cv.cr();
  for (int f = 0; f < frames; ++f) {
    const double t = double(f) / frames, fade = 1 - t;
    const double cx = f * fw + fw / 2.0, cy = fh / 2.0;
    cairo_save(cr);
    cairo_translate(cr, cx, cy);
    cairo_scale(cr, fw / 2.0 - 3, fh / 2.0 - 3);
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr);
    cairo_set_line_width(cr, 2 + 4 * fade);
    SetColor(cr, c, std::max(0.0, fade));
    cairo_stroke(cr);
    // hexagon shimmer
    for (int i = 0; i < 12; ++i) {
      const double a = i * M_PI / 6 + t;
      cairo_arc(cr, cx + std::cos(a) * (fw / 2.0 - 12) * (0.6 + 0.4 * t), cy + std::sin(a) * (fh / 2.0 - 12) * (0.6 + 0.4 * t),
                3, 0, 2 * M_PI);
      SetColor(cr, Mix(c, kWhite, 0.5), fade);
      cairo_fill(cr);
    }
  }
}

void BeamShot(Canvas& cv, int frames, uint32_t seed, Rgb c) {
  // from the lower right of the frame (our ship's bay) towards the opponent,
  // whose middle lies at the frame's upper left (5, 20)
  cairo_t* cr = cv.cr();
  Rng rng(seed);
  const double width = rng.Range(2, 6);
  for (int f = 0; f < frames; ++f) {
    const double x = f * 200, t = double(f) / 14.0;
    const double reach = std::min(1.0, t);
    const double fade = f < 14 ? 1.0 : std::max(0.0, 1 - (f - 14) / 10.0);
    const double x0 = x + 195, y0 = 137, x1 = x + 195 - 190 * reach, y1 = 137 - 117 * reach;
    for (int k = 3; k >= 0; --k) {
      cairo_set_line_width(cr, width * (1 + k * 1.2));
      SetColor(cr, k == 0 ? kWhite : c, k == 0 ? fade : fade * 0.3);
      cairo_move_to(cr, x0, y0);
      cairo_line_to(cr, x1, y1);
      cairo_stroke(cr);
    }
    if (f >= 12) Fireball(cr, x + 8, 22, 12, std::min(0.9, (f - 11) / 12.0), seed + uint32_t(f));
  }
}

void MissileShot(Canvas& cv, int frames, uint32_t seed, Rgb c, double size) {
  cairo_t* cr = cv.cr();
  for (int f = 0; f < frames; ++f) {
    const double x = f * 270, t = double(f) / (frames - 1);
    // a curve from the lower left to the opponent's middle at (195, 50),
    // shrinking with distance
    const double px = x + 15 + 180 * t, py = 160 - 110 * t - 40 * std::sin(t * M_PI);
    const double s = size * (1 - 0.6 * t);
    for (int k = 1; k <= 6; ++k) {
      const double tt = std::max(0.0, t - k * 0.02);
      const double tx = x + 15 + 180 * tt, ty = 160 - 110 * tt - 40 * std::sin(tt * M_PI);
      cairo_arc(cr, tx, ty, s * (1 - k * 0.12), 0, 2 * M_PI);
      SetColor(cr, Mix(kAmber, {0.5, 0.5, 0.5}, k / 6.0), 1 - k * 0.14);
      cairo_fill(cr);
    }
    cairo_arc(cr, px, py, s, 0, 2 * M_PI);
    SetColor(cr, c);
    cairo_fill(cr);
    cairo_arc(cr, px, py, s * 0.5, 0, 2 * M_PI);
    SetColor(cr, kWhite);
    cairo_fill(cr);
  }
  (void)seed;
}

}  // namespace

bool DrawFight(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  if (!StartsWith(p, "gfx/fight/")) return false;
  const std::string_view n = p.substr(10);
  const uint32_t seed = HashString(spec.path);
  cairo_t* cr = cv.cr();
  if (n == "fight_back.bmp") {
    FightBack(cv, seed);
    return true;
  }
  if (n == "warnings.bmp") {
    for (int i = 0; i < 5; ++i) Lamp(cr, 0, i * 29, i, true);
    return true;
  }
  if (n == "target_butt.bmp") {
    static constexpr const char* kTargets[] = {"HULL", "POWER", "ENGINE", "WEAPON", "COMP"};
    for (int i = 0; i < 5; ++i) {
      for (int row = 0; row < 2; ++row) {
        Bevel(cr, i * 50, row * 20, 50, 20, row == 0 ? Rgb{0.55, 0.35, 0.1} : kSteel, 2);
        Text(cr, kTargets[i], i * 50 + 25, row * 20 + 13, 8, row == 0 ? kWhite : kAmber, Align::Center, true, true);
      }
    }
    return true;
  }
  if (n == "enemy_icon.bmp") {
    for (int f = 0; f < 8; ++f) {
      const double k = 0.5 + 0.5 * std::sin(f * M_PI / 4);
      cairo_arc(cr, f * 25 + 12.5, 12.5, 5 + 3 * k, 0, 2 * M_PI);
      SetColor(cr, Mix(kRed, kAmber, k));
      cairo_fill(cr);
    }
    return true;
  }
  if (n == "energy.bmp") {
    static constexpr Rgb kColours[] = {{0.4, 0.9, 0.4}, {1.0, 0.4, 0.3}, {0.35, 0.7, 1.0}};
    for (int i = 0; i < 3; ++i) {
      for (int y = 0; y < 100; y += 4) FillRect(cr, i * 20 + 2, y, 16, 3, Mix(Scale(kColours[i], 0.5), kColours[i], 1 - y / 100.0));
    }
    return true;
  }
  if (n == "energy_marker.bmp") {
    cairo_move_to(cr, 0, 0);
    cairo_line_to(cr, 6, 3);
    cairo_line_to(cr, 0, 6);
    cairo_close_path(cr);
    SetColor(cr, kAmber);
    cairo_fill(cr);
    FillRect(cr, 6, 2, 18, 2, kAmber);
    return true;
  }
  if (n == "indi_small.bmp" || n == "indi_large.bmp") {
    const int w = spec.width, h = spec.frameH;
    FillRect(cr, 0, 0, w, h, {0.08, 0.10, 0.12});
    cairo_set_line_width(cr, 1);
    SetColor(cr, kSteelLight);
    cairo_rectangle(cr, 0.5, 0.5, w - 1, h - 1);
    cairo_stroke(cr);
    cairo_pattern_t* g = cairo_pattern_create_linear(0, 0, w, 0);
    cairo_pattern_add_color_stop_rgb(g, 0, 0.9, 0.25, 0.15);
    cairo_pattern_add_color_stop_rgb(g, 0.5, 1.0, 0.8, 0.2);
    cairo_pattern_add_color_stop_rgb(g, 1, 0.3, 1.0, 0.45);
    cairo_set_source(cr, g);
    cairo_rectangle(cr, 0, h, w, h);
    cairo_fill(cr);
    cairo_pattern_destroy(g);
    FillRect(cr, 0, h, w, 2, kWhite, 0.3);
    return true;
  }
  if (n == "comps.bmp") {
    static constexpr const char* kLabels[] = {"HULL", "SHLD", "PWR", "PROP", "WPN", "COMP"};
    for (int i = 0; i < 6; ++i) Text(cr, kLabels[i], 12.5, i * 11 + 9, 8, kAmber, Align::Center, true, true);
    return true;
  }
  if (n == "ready_button.bmp") {
    cairo_arc(cr, 3, 3, 2.6, 0, 2 * M_PI);
    SetColor(cr, {0.15, 0.5, 0.15});
    cairo_fill(cr);
    cairo_arc(cr, 9, 3, 2.6, 0, 2 * M_PI);
    SetColor(cr, kGreen);
    cairo_fill(cr);
    return true;
  }
  if (n == "specs.bmp") {
    static constexpr const char* kSpecs[] = {"COUNTERM.", "VIRUS", "VIRUS PROT.", "ECM", "ECCM"};
    for (int i = 0; i < 5; ++i) {
      for (int c = 0; c < 3; ++c) {
        const Rgb base = c == 0 ? kSteel : c == 1 ? Rgb{0.35, 0.42, 0.5} : Rgb{0.5, 0.35, 0.1};
        Bevel(cr, c * 88, i * 24, 88, 24, base, c == 2 ? -2 : 2);
        Text(cr, kSpecs[i], c * 88 + 44, i * 24 + 16, 9, c == 2 ? kWhite : kAmber, Align::Center, true, true);
      }
    }
    return true;
  }
  if (n == "surrender.bmp") {
    FillRect(cr, 0, 0, 90, 9, {0.05, 0.08, 0.1});
    Text(cr, "NO OFFER", 45, 7.5, 7, kCyanDim, Align::Center, true, true);
    FillRect(cr, 0, 9, 90, 9, {0.4, 0.3, 0.05});
    Text(cr, "SURRENDER!", 45, 16.5, 7, kWhite, Align::Center, true, true);
    return true;
  }
  if (n == "impact.bmp") {
    for (int f = 0; f < spec.frames; ++f) Fireball(cr, f * 60 + 30, 30, 28, (f + 0.5) / spec.frames, seed + uint32_t(f / 100));
    return true;
  }
  if (n == "explo.bmp") {
    for (int f = 0; f < spec.frames; ++f) {
      cairo_save(cr);
      cairo_rectangle(cr, f * 200, 0, 200, 195);
      cairo_clip(cr);
      Fireball(cr, f * 200 + 100, 97, 120, 0.15 + 0.85 * (f + 0.5) / spec.frames, seed);
      cairo_restore(cr);
    }
    return true;
  }
  if (n == "oshield.bmp") {
    ShieldBubble(cv, spec.frames, 230, 120, {1.0, 0.5, 0.3});
    return true;
  }
  if (n == "shield.bmp") {
    ShieldBubble(cv, spec.frames, 400, 240, {0.35, 0.7, 1.0});
    return true;
  }
  if (StartsWith(n, "oship/")) {
    OpponentShip(cv, n[6] - '0', n[8] - '0');
    return true;
  }
  if (StartsWith(n, "wpns/")) {
    const std::string_view w = n.substr(5);
    if (StartsWith(w, "l_") || w == "dragon.bmp") {
      const int m = w == "dragon.bmp" ? 12 : NumberAfter(w, "l_");
      static constexpr Rgb kBeams[] = {{1, 0.2, 0.2}, {0.3, 0.8, 1}, {1, 0.8, 0.2}, {0.4, 1, 0.4}, {0.9, 0.4, 1},
                                       {1, 0.5, 0.1}, {0.5, 0.5, 1}, {1, 1, 1}, {0.2, 1, 0.8}, {1, 0.3, 0.7},
                                       {0.8, 1, 0.3}, {0.3, 0.5, 1}};
      BeamShot(cv, spec.frames, seed, kBeams[(m - 1) % 12]);
    } else {
      const int m = StartsWith(w, "r_") ? NumberAfter(w, "r_") : w == "rapier.bmp" ? 12 : 13;
      MissileShot(cv, spec.frames, seed, m >= 12 ? kCyan : Mix(kRed, kAmber, (m % 4) / 3.0), 6 + 1.5 * (m % 4));
    }
    return true;
  }
  return false;
}

}  // namespace assetgen
