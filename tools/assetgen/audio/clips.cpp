#include "audio/clips.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

#include "audio/mpeg_writer.h"
#include "audio/synth.h"

namespace assetgen {
namespace {

constexpr double W = kClipWidth;
constexpr double H = kClipHeight;

struct Rgb {
  double r, g, b;
};
constexpr Rgb kAmber{1.0, 0.68, 0.18};
constexpr Rgb kCyan{0.30, 0.85, 1.0};
constexpr Rgb kSteel{0.17, 0.19, 0.22};

void Colour(cairo_t* cr, Rgb c, double a = 1.0) { cairo_set_source_rgba(cr, c.r, c.g, c.b, a); }

double Smooth(double x) {
  x = std::clamp(x, 0.0, 1.0);
  return x * x * (3 - 2 * x);
}

// 0 before `from`, rising to 1 over `rise` seconds, falling back to 0 by `to`.
double Window(double t, double from, double to, double rise = 0.6) {
  return Smooth((t - from) / rise) * Smooth((to - t) / rise);
}

void Black(cairo_t* cr) {
  cairo_set_source_rgb(cr, 0, 0, 0);
  cairo_paint(cr);
}

// Dark steel with a faint band of light.
void Steel(cairo_t* cr) {
  cairo_pattern_t* p = cairo_pattern_create_linear(0, 0, 0, H);
  cairo_pattern_add_color_stop_rgb(p, 0, 0.05, 0.06, 0.08);
  cairo_pattern_add_color_stop_rgb(p, 0.5, kSteel.r * 0.8, kSteel.g * 0.8, kSteel.b * 0.8);
  cairo_pattern_add_color_stop_rgb(p, 1, 0.03, 0.035, 0.05);
  cairo_set_source(cr, p);
  cairo_paint(cr);
  cairo_pattern_destroy(p);
}

// Stars drifting left at `speed` pixels a second, twinkling.
void Stars(cairo_t* cr, double t, std::uint32_t seed, double speed, int count = 120) {
  Noise n(seed);
  for (int i = 0; i < count; ++i) {
    const double depth = 0.3 + 0.7 * n.Unit();
    double x = n.Unit() * W - t * speed * depth;
    x -= std::floor(x / W) * W;
    const double y = n.Unit() * H;
    const double tw = 0.6 + 0.4 * std::sin(t * (2 + 3 * n.Unit()) + i);
    const double size = depth > 0.85 ? 1.6 : 1.0;
    cairo_set_source_rgba(cr, 0.8 + 0.2 * depth, 0.85, 1.0, depth * tw);
    cairo_rectangle(cr, x, y, size, size);
    cairo_fill(cr);
  }
}

void Text(cairo_t* cr, const char* text, double size, double y, Rgb c, double alpha, double x = W / 2) {
  if (alpha <= 0) return;
  cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
  cairo_set_font_size(cr, size);
  cairo_text_extents_t e;
  cairo_text_extents(cr, text, &e);
  const double left = x - e.width / 2 - e.x_bearing;
  // A soft glow under the letters, then the letters.
  for (int k = 2; k >= 1; --k) {
    Colour(cr, c, alpha * 0.18);
    for (int dx = -k; dx <= k; dx += k) {
      cairo_move_to(cr, left + dx, y + (dx == 0 ? k : 0));
      cairo_show_text(cr, text);
    }
  }
  Colour(cr, c, alpha);
  cairo_move_to(cr, left, y);
  cairo_show_text(cr, text);
}

void Glow(cairo_t* cr, double x, double y, double radius, Rgb c, double alpha) {
  cairo_pattern_t* p = cairo_pattern_create_radial(x, y, 0, x, y, radius);
  cairo_pattern_add_color_stop_rgba(p, 0, c.r, c.g, c.b, alpha);
  cairo_pattern_add_color_stop_rgba(p, 1, c.r, c.g, c.b, 0);
  cairo_set_source(cr, p);
  cairo_arc(cr, x, y, radius, 0, kTwoPi);
  cairo_fill(cr);
  cairo_pattern_destroy(p);
}

void FadeToBlack(cairo_t* cr, double amount) {
  if (amount <= 0) return;
  cairo_set_source_rgba(cr, 0, 0, 0, std::min(1.0, amount));
  cairo_paint(cr);
}

// The emblem: a ring drawn out by `progress` around a lane chevron, on a
// bevelled plate.
void Emblem(cairo_t* cr, double cx, double cy, double r, double progress, double t) {
  cairo_save(cr);
  cairo_new_path(cr);
  for (int k = 0; k < 6; ++k) {
    const double a = kTwoPi * k / 6 + kPi / 6;
    cairo_line_to(cr, cx + r * 1.35 * std::cos(a), cy + r * 1.35 * std::sin(a));
  }
  cairo_close_path(cr);
  cairo_pattern_t* plate = cairo_pattern_create_linear(cx, cy - r * 1.35, cx, cy + r * 1.35);
  cairo_pattern_add_color_stop_rgb(plate, 0, 0.34, 0.37, 0.42);
  cairo_pattern_add_color_stop_rgb(plate, 1, 0.10, 0.11, 0.13);
  cairo_set_source(cr, plate);
  cairo_fill_preserve(cr);
  cairo_pattern_destroy(plate);
  cairo_set_line_width(cr, 2);
  cairo_set_source_rgba(cr, 0.6, 0.65, 0.7, 0.8);
  cairo_stroke(cr);

  cairo_set_line_width(cr, 5);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  Colour(cr, kCyan, 0.9);
  cairo_arc(cr, cx, cy, r, -kPi / 2, -kPi / 2 + kTwoPi * Smooth(progress));
  cairo_stroke(cr);

  const double a = Smooth((progress - 0.4) / 0.6);
  Colour(cr, kAmber, a);
  cairo_move_to(cr, cx - r * 0.5, cy + r * 0.45);
  cairo_line_to(cr, cx, cy - r * 0.55);
  cairo_line_to(cr, cx + r * 0.5, cy + r * 0.45);
  cairo_line_to(cr, cx, cy + r * 0.1);
  cairo_close_path(cr);
  cairo_fill(cr);
  Glow(cr, cx, cy - r * 0.2, r * (0.9 + 0.1 * std::sin(t * 3)), kAmber, 0.25 * a);
  cairo_restore(cr);
}

// tarvish.mpg: the logo at start-up.
void Logo(cairo_t* cr, double t, double length) {
  Steel(cr);
  Emblem(cr, W / 2, 95, 42, t / 2.2, t);
  Text(cr, "LANEFARER", 30, 190, kAmber, Smooth((t - 1.6) / 0.8));
  // A band of light sweeps across the name.
  const double sweep = (t - 2.6) / 1.2;
  if (sweep > 0 && sweep < 1) {
    const double x = -40 + sweep * (W + 80);
    cairo_pattern_t* p = cairo_pattern_create_linear(x - 30, 0, x + 30, 0);
    cairo_pattern_add_color_stop_rgba(p, 0, 1, 1, 1, 0);
    cairo_pattern_add_color_stop_rgba(p, 0.5, 1, 1, 1, 0.25);
    cairo_pattern_add_color_stop_rgba(p, 1, 1, 1, 1, 0);
    cairo_set_source(cr, p);
    cairo_rectangle(cr, 0, 160, W, 40);
    cairo_fill(cr);
    cairo_pattern_destroy(p);
  }
  FadeToBlack(cr, 1 - Smooth(t / 0.5) + Smooth((t - (length - 0.7)) / 0.7));
}

// quelmar.mpg: the second logo: rings of light turning about the name.
void SecondLogo(cairo_t* cr, double t, double length) {
  Black(cr);
  Stars(cr, t, 41, 4, 60);
  for (int ring = 0; ring < 3; ++ring) {
    const double r = 40 + 22 * ring;
    const int dots = 12 + 6 * ring;
    for (int k = 0; k < dots; ++k) {
      const double a = kTwoPi * k / dots + t * (ring % 2 ? -0.6 : 0.8);
      const double lit = 0.5 + 0.5 * std::sin(a * 3 + t * 4);
      Colour(cr, ring == 1 ? kAmber : kCyan, 0.3 + 0.7 * lit);
      cairo_arc(cr, W / 2 + r * std::cos(a), 105 + r * 0.55 * std::sin(a), 1.5 + ring * 0.4, 0, kTwoPi);
      cairo_fill(cr);
    }
  }
  Glow(cr, W / 2, 105, 50, kCyan, 0.3 * Smooth(t / 1.5));
  Text(cr, "LANEFARER", 24, 112, kCyan, Smooth((t - 0.8) / 0.8));
  FadeToBlack(cr, 1 - Smooth(t / 0.5) + Smooth((t - (length - 0.7)) / 0.7));
}

void Planet(cairo_t* cr, double cx, double cy, double r, Rgb body, Rgb light) {
  cairo_pattern_t* p = cairo_pattern_create_radial(cx - r * 0.45, cy - r * 0.45, r * 0.1, cx, cy, r);
  cairo_pattern_add_color_stop_rgb(p, 0, light.r, light.g, light.b);
  cairo_pattern_add_color_stop_rgb(p, 0.55, body.r, body.g, body.b);
  cairo_pattern_add_color_stop_rgb(p, 1, body.r * 0.1, body.g * 0.1, body.b * 0.1);
  cairo_set_source(cr, p);
  cairo_arc(cr, cx, cy, r, 0, kTwoPi);
  cairo_fill(cr);
  cairo_pattern_destroy(p);
  // Bands across the face.
  cairo_save(cr);
  cairo_arc(cr, cx, cy, r, 0, kTwoPi);
  cairo_clip(cr);
  for (int k = -3; k <= 3; ++k) {
    cairo_set_source_rgba(cr, 0, 0, 0, 0.08 + 0.04 * (k % 2));
    cairo_rectangle(cr, cx - r, cy + k * r * 0.27, 2 * r, r * 0.09);
    cairo_fill(cr);
  }
  cairo_restore(cr);
  Glow(cr, cx, cy, r * 1.15, light, 0.12);
}

// A ship seen from the side, nose to the right, engines lit.
void Ship(cairo_t* cr, double x, double y, double scale, double t) {
  cairo_save(cr);
  cairo_translate(cr, x, y);
  cairo_scale(cr, scale, scale);
  Glow(cr, -34, 0, 16 + 2 * std::sin(t * 20), kCyan, 0.8);
  cairo_move_to(cr, 40, 0);
  cairo_line_to(cr, 10, -9);
  cairo_line_to(cr, -18, -10);
  cairo_line_to(cr, -30, -20);
  cairo_line_to(cr, -36, -20);
  cairo_line_to(cr, -32, -6);
  cairo_line_to(cr, -32, 6);
  cairo_line_to(cr, -36, 20);
  cairo_line_to(cr, -30, 20);
  cairo_line_to(cr, -18, 10);
  cairo_line_to(cr, 10, 9);
  cairo_close_path(cr);
  cairo_pattern_t* hull = cairo_pattern_create_linear(0, -20, 0, 20);
  cairo_pattern_add_color_stop_rgb(hull, 0, 0.55, 0.58, 0.62);
  cairo_pattern_add_color_stop_rgb(hull, 1, 0.14, 0.15, 0.17);
  cairo_set_source(cr, hull);
  cairo_fill_preserve(cr);
  cairo_pattern_destroy(hull);
  cairo_set_line_width(cr, 1);
  cairo_set_source_rgba(cr, 0.05, 0.05, 0.06, 1);
  cairo_stroke(cr);
  Colour(cr, kAmber, 0.9);
  cairo_rectangle(cr, 14, -3, 8, 2);
  cairo_fill(cr);
  cairo_restore(cr);
}

// intro.mpg: the setting in three pictures.
void Intro(cairo_t* cr, double t, double length) {
  Black(cr);
  Stars(cr, t, 7, 10, 160);
  if (t > 5.5) {
    const double rise = Smooth((t - 5.5) / 6.0);
    Planet(cr, 215, 330 - 170 * rise, 120, {0.55, 0.32, 0.12}, kAmber);
  }
  if (t > 12.5) {
    const double u = (t - 12.5) / (length - 12.5);
    Ship(cr, -60 + u * (W + 120), 150 - 40 * u, 1.0 + 0.4 * u, t);
  }
  Text(cr, "FOUR QUADRANTS OF SPACE", 17, 120, kCyan, Window(t, 0.8, 5.5, 0.8));
  Text(cr, "ONE SHIP. SIX OFFICERS.", 17, 60, kAmber, Window(t, 7.0, 12.0, 0.8));
  Text(cr, "FIND THE STAR LANE", 20, 215, kCyan, Window(t, 14.0, length - 0.3, 0.8));
  FadeToBlack(cr, 1 - Smooth(t / 0.8) + Smooth((t - (length - 0.8)) / 0.8));
}

// credits.mpg: the names of the work, rising over the stars.
void Credits(cairo_t* cr, double t, double length) {
  static const struct {
    const char* text;
    double size;
    bool heading;
  } kLines[] = {
      {"LANEFARER", 30, true},
      {"", 14, false},
      {"A SPACE-CAPTAIN GAME", 13, false},
      {"", 14, false},
      {"", 14, false},
      {"GAME", 13, true},
      {"the Lanefarer project", 14, false},
      {"", 14, false},
      {"PICTURES, SOUNDS, MUSIC, CLIPS", 13, true},
      {"made by the Lanefarer asset generator", 12, false},
      {"", 14, false},
      {"", 14, false},
      {"THANK YOU FOR PLAYING", 18, true},
  };
  Black(cr);
  Stars(cr, t, 99, 6, 100);
  const double lineHeight = 26;
  const double total = lineHeight * (sizeof kLines / sizeof kLines[0]);
  const double top = H + 10 - (t / length) * (H + total + 20);
  for (std::size_t i = 0; i < sizeof kLines / sizeof kLines[0]; ++i) {
    const double y = top + static_cast<double>(i) * lineHeight;
    if (y < -10 || y > H + 30 || !*kLines[i].text) continue;
    const double edge = Smooth(std::min(y - 10, H - y) / 40);
    Text(cr, kLines[i].text, kLines[i].size, y, kLines[i].heading ? kAmber : kCyan, edge);
  }
  FadeToBlack(cr, 1 - Smooth(t / 0.6) + Smooth((t - (length - 0.6)) / 0.6));
}

// star_lane.mpg: the ship in the lane, a tunnel of light.
void StarLane(cairo_t* cr, double t, double length) {
  Black(cr);
  const double cx = W / 2 + 18 * std::sin(t * 0.7);
  const double cy = H / 2 + 12 * std::sin(t * 0.9);
  const double speed = 1.0 + t * 0.25;
  Glow(cr, cx, cy, 60 + 10 * std::sin(t * 5), kCyan, 0.5);
  // Rings rushing towards the viewer.
  for (int k = 0; k < 24; ++k) {
    double z = std::fmod(k * 0.5 - t * speed * 1.2, 12.0);
    if (z < 0) z += 12.0;
    z += 0.25;
    const double r = 60 / z;
    const double alpha = std::min(1.0, 0.15 + 1.2 / z) * Smooth(12.0 - z);
    Colour(cr, k % 3 == 0 ? kAmber : kCyan, alpha * 0.8);
    cairo_set_line_width(cr, std::min(6.0, 3.0 / z + 0.5));
    cairo_save(cr);
    cairo_translate(cr, cx + (W / 2 - cx) / z, cy + (H / 2 - cy) / z);
    cairo_scale(cr, 1.3, 1.0);
    cairo_arc(cr, 0, 0, r, 0, kTwoPi);
    cairo_restore(cr);
    cairo_stroke(cr);
  }
  // Streaks along the walls.
  Noise n(31);
  for (int k = 0; k < 90; ++k) {
    const double a = n.Unit() * kTwoPi;
    double z = std::fmod(n.Unit() * 10 - t * speed * 2.0, 10.0);
    if (z < 0) z += 10;
    z += 0.3;
    const double r0 = 70 / z, r1 = 70 / (z + 0.6 / speed);
    Colour(cr, n.Unit() < 0.3 ? kAmber : Rgb{0.85, 0.95, 1.0}, std::min(1.0, 1.5 / z));
    cairo_set_line_width(cr, 1.2);
    cairo_move_to(cr, cx + r0 * 1.3 * std::cos(a), cy + r0 * std::sin(a));
    cairo_line_to(cr, cx + r1 * 1.3 * std::cos(a), cy + r1 * std::sin(a));
    cairo_stroke(cr);
  }
  // The lane opens into white at its end.
  const double flash = Smooth((t - (length - 1.2)) / 0.8);
  if (flash > 0) {
    cairo_set_source_rgba(cr, 1, 0.97, 0.9, flash);
    cairo_paint(cr);
  }
  FadeToBlack(cr, 1 - Smooth(t / 0.5));
}

// Clouds of gas from seeded soft blobs.
void Nebula(cairo_t* cr, double t, std::uint32_t seed, Rgb a, Rgb b, double alpha) {
  Noise n(seed);
  for (int k = 0; k < 14; ++k) {
    const double x = n.Unit() * W + 6 * std::sin(t * 0.3 + k);
    const double y = n.Unit() * H + 4 * std::cos(t * 0.25 + k);
    const double r = 40 + n.Unit() * 90;
    const Rgb c = n.Unit() < 0.5 ? a : b;
    Glow(cr, x, y, r, c, alpha * (0.15 + 0.15 * n.Unit()));
  }
}

// dees.mpg: out of the lane into a new quadrant, a great ring station ahead.
void NewQuadrant(cairo_t* cr, double t, double length) {
  Black(cr);
  Nebula(cr, t, 12, {0.45, 0.2, 0.6}, kCyan, Smooth(t / 2.5));
  Stars(cr, t, 13, 3, 140);
  const double come = Smooth((t - 1.5) / (length - 2.5));
  const double r = 20 + 70 * come;
  cairo_save(cr);
  cairo_translate(cr, W / 2, H / 2);
  cairo_rotate(cr, t * 0.15);
  cairo_scale(cr, 1.0, 0.45);
  cairo_set_line_width(cr, 3 + 6 * come);
  cairo_set_source_rgba(cr, 0.5, 0.54, 0.6, 0.9 * Smooth((t - 1.0) / 1.0));
  cairo_arc(cr, 0, 0, r, 0, kTwoPi);
  cairo_stroke(cr);
  for (int k = 0; k < 8; ++k) {
    const double a = kTwoPi * k / 8;
    Colour(cr, k % 2 ? kAmber : kCyan, (0.5 + 0.5 * std::sin(t * 4 + k)) * Smooth((t - 1.5) / 1.0));
    cairo_arc(cr, r * std::cos(a), r * std::sin(a), 2 + 2 * come, 0, kTwoPi);
    cairo_fill(cr);
  }
  cairo_restore(cr);
  const double flash = 1 - Smooth(t / 1.0);
  if (flash > 0) {
    cairo_set_source_rgba(cr, 1, 0.97, 0.9, flash);
    cairo_paint(cr);
  }
  FadeToBlack(cr, Smooth((t - (length - 0.7)) / 0.7));
}

// artefact.mpg: a turning crystal of the old makers, pulsing with light.
void Artefact(cairo_t* cr, double t, double length) {
  Black(cr);
  Nebula(cr, t, 21, {0.1, 0.3, 0.5}, {0.5, 0.35, 0.1}, 0.6);
  Stars(cr, t, 22, 2, 80);
  const double pulse = 0.5 + 0.5 * std::sin(t * 3);
  for (int k = 0; k < 12; ++k) {
    const double a = kTwoPi * k / 12 + t * 0.2;
    Colour(cr, kAmber, 0.12 + 0.1 * pulse);
    cairo_move_to(cr, W / 2, H / 2);
    cairo_line_to(cr, W / 2 + 300 * std::cos(a - 0.04), H / 2 + 300 * std::sin(a - 0.04));
    cairo_line_to(cr, W / 2 + 300 * std::cos(a + 0.04), H / 2 + 300 * std::sin(a + 0.04));
    cairo_close_path(cr);
    cairo_fill(cr);
  }
  Glow(cr, W / 2, H / 2, 70 + 20 * pulse, kCyan, 0.5);
  // An octahedron turning about its upright axis.
  const double pts[6][3] = {{0, -1, 0}, {0, 1, 0}, {1, 0, 0}, {-1, 0, 0}, {0, 0, 1}, {0, 0, -1}};
  const int faces[8][3] = {{0, 2, 4}, {0, 4, 3}, {0, 3, 5}, {0, 5, 2}, {1, 4, 2}, {1, 3, 4}, {1, 5, 3}, {1, 2, 5}};
  const double spin = t * 0.9;
  double sx[6], sy[6], sz[6];
  for (int i = 0; i < 6; ++i) {
    const double x = pts[i][0] * std::cos(spin) + pts[i][2] * std::sin(spin);
    const double z = -pts[i][0] * std::sin(spin) + pts[i][2] * std::cos(spin);
    const double y = pts[i][1] * 1.5;
    const double tilt = 0.35;
    sx[i] = W / 2 + 45 * x;
    sy[i] = H / 2 + 45 * (y * std::cos(tilt) - z * std::sin(tilt));
    sz[i] = y * std::sin(tilt) + z * std::cos(tilt);
  }
  for (const auto& f : faces) {
    // Only faces turned towards the viewer.
    const double ax = sx[f[1]] - sx[f[0]], ay = sy[f[1]] - sy[f[0]];
    const double bx = sx[f[2]] - sx[f[0]], by = sy[f[2]] - sy[f[0]];
    const double facing = ax * by - ay * bx;
    if (facing <= 0) continue;
    const double light = 0.35 + 0.65 * std::clamp((sz[f[0]] + sz[f[1]] + sz[f[2]]) / 3 + 0.5, 0.0, 1.0);
    cairo_move_to(cr, sx[f[0]], sy[f[0]]);
    cairo_line_to(cr, sx[f[1]], sy[f[1]]);
    cairo_line_to(cr, sx[f[2]], sy[f[2]]);
    cairo_close_path(cr);
    cairo_set_source_rgba(cr, kCyan.r * light, kCyan.g * light, kCyan.b * light, 0.85);
    cairo_fill_preserve(cr);
    cairo_set_source_rgba(cr, 0.9, 1, 1, 0.6 + 0.4 * pulse);
    cairo_set_line_width(cr, 1);
    cairo_stroke(cr);
  }
  FadeToBlack(cr, 1 - Smooth(t / 0.8) + Smooth((t - (length - 0.8)) / 0.8));
}

// end.mpg: the last lane opens into light, and the journey ends.
void End(cairo_t* cr, double t, double length) {
  Black(cr);
  Stars(cr, t, 50, 14, 150);
  const double grow = Smooth(t / 7.0);
  Glow(cr, W / 2, H / 2, 20 + 260 * grow, {1.0, 0.92, 0.75}, 0.4 + 0.6 * grow);
  for (int k = 0; k < 16; ++k) {
    const double a = kTwoPi * k / 16 + t * 0.1;
    Colour(cr, k % 2 ? kAmber : kCyan, 0.25 * grow);
    cairo_set_line_width(cr, 2);
    cairo_move_to(cr, W / 2, H / 2);
    cairo_line_to(cr, W / 2 + 400 * std::cos(a), H / 2 + 400 * std::sin(a));
    cairo_stroke(cr);
  }
  if (t < 7.0) Ship(cr, W / 2 - 90 + 90 * grow, H / 2 + 30 - 30 * grow, 1.2 * (1 - grow) + 0.05, t);
  const double white = Smooth((t - 6.5) / 1.5);
  if (white > 0) {
    cairo_set_source_rgba(cr, 1, 0.97, 0.9, white);
    cairo_paint(cr);
  }
  Text(cr, "THE JOURNEY ENDS", 20, 125, {0.35, 0.2, 0.05}, Window(t, 8.0, length - 0.2, 1.0));
  FadeToBlack(cr, 1 - Smooth(t / 0.5) + Smooth((t - (length - 1.0)) / 1.0));
}

struct Clip {
  ClipInfo info;
  void (*draw)(cairo_t*, double t, double length);
};

// Every clip the game shows, with its length.
const Clip kClips[] = {
    {{"tarvish.mpg", 125}, Logo},        {{"quelmar.mpg", 100}, SecondLogo},  {{"intro.mpg", 500}, Intro},
    {{"credits.mpg", 550}, Credits},     {{"star_lane.mpg", 200}, StarLane},  {{"dees.mpg", 200}, NewQuadrant},
    {{"artefact.mpg", 200}, Artefact},   {{"end.mpg", 300}, End},
};

bool WriteClip(const std::string& folder, const Clip& clip) {
  const std::string file = folder + "/" + clip.info.file;
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kClipWidth, kClipHeight);
  cairo_t* cr = cairo_create(surface);
  MpegWriter out(file, kClipWidth, kClipHeight, kClipFps);
  bool ok = out.Ok();
  const double length = static_cast<double>(clip.info.frames) / kClipFps;
  for (int f = 0; ok && f < clip.info.frames; ++f) {
    cairo_save(cr);
    clip.draw(cr, static_cast<double>(f) / kClipFps, length);
    cairo_restore(cr);
    cairo_surface_flush(surface);
    ok = out.Add(cairo_image_surface_get_data(surface), cairo_image_surface_get_stride(surface));
  }
  ok = ok && out.Finish();
  cairo_destroy(cr);
  cairo_surface_destroy(surface);
  if (!ok) std::fprintf(stderr, "assetgen: cannot write %s\n", file.c_str());
  return ok;
}

}  // namespace

bool GenerateClips(const std::string& folder) {
  for (const Clip& clip : kClips)
    if (!WriteClip(folder, clip)) return false;
  return true;
}

}  // namespace assetgen
