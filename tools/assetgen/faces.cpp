// Faces: stylised portraits, two 80x100 frames (closed page, open page),
// told apart by race (head, skin, eyes) and by person (hair, features,
// background), and the small prompt portraits of the officers.
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"
#include "sprites.h"

namespace assetgen {
namespace {

constexpr const char* kPostNames[7] = {"", "NAV", "COM", "TAC", "MED", "SCI", "ENG"};
constexpr Rgb kPostColour[7] = {{0.5, 0.5, 0.5}, {0.3, 0.6, 1.0}, {0.4, 0.9, 0.5}, {1.0, 0.35, 0.3},
                                {0.95, 0.95, 0.95}, {0.7, 0.5, 1.0}, {1.0, 0.7, 0.2}};

void ComputerFace(cairo_t* cr, double x, double y, double w, double h, int post) {
  FillRect(cr, x, y, w, h, {0.03, 0.06, 0.08});
  for (int yy = 0; yy < int(h); yy += 3) FillRect(cr, x, y + yy, w, 1, {0.05, 0.12, 0.14});
  const Rgb c = kPostColour[post];
  cairo_set_line_width(cr, 2);
  SetColor(cr, c);
  cairo_arc(cr, x + w / 2, y + h * 0.42, w * 0.28, 0, 2 * M_PI);
  cairo_stroke(cr);
  cairo_arc(cr, x + w / 2, y + h * 0.42, w * 0.1, 0, 2 * M_PI);
  cairo_fill(cr);
  Text(cr, kPostNames[post], x + w / 2, y + h * 0.85, w * 0.16, c, Align::Center, true, true);
}

// Frame 0: page closed, dim; frame 1: page open, lit with an amber rim.
void TwoFrames(Canvas& cv, auto&& drawFace) {
  cairo_t* cr = cv.cr();
  for (int f = 0; f < 2; ++f) {
    const double x = f * 80;
    cairo_save(cr);
    cairo_rectangle(cr, x, 0, 80, 100);
    cairo_clip(cr);
    drawFace(cr, x);
    if (f == 0) {
      FillRect(cr, x, 0, 80, 100, {0, 0, 0.02}, 0.35);
      Bevel(cr, x, 0, 80, 2, kSteel, 0);
    }
    cairo_restore(cr);
    const Rgb rim = f == 1 ? kAmber : kSteelLight;
    cairo_set_line_width(cr, f == 1 ? 2 : 1);
    SetColor(cr, rim);
    cairo_rectangle(cr, x + (f == 1 ? 1 : 0.5), f == 1 ? 1 : 0.5, f == 1 ? 78 : 79, f == 1 ? 98 : 99);
    cairo_stroke(cr);
  }
}

void Backdrop(cairo_t* cr, double x, double w, double h, uint32_t seed, int post) {
  Rng rng(seed);
  const Rgb base = Mix({0.08, 0.10, 0.14}, kPostColour[post], 0.18 + 0.1 * rng.Unit());
  cairo_pattern_t* g = cairo_pattern_create_linear(x, 0, x, h);
  cairo_pattern_add_color_stop_rgb(g, 0, base.r * 1.4, base.g * 1.4, base.b * 1.4);
  cairo_pattern_add_color_stop_rgb(g, 1, base.r * 0.5, base.g * 0.5, base.b * 0.5);
  cairo_set_source(cr, g);
  cairo_rectangle(cr, x, 0, w, h);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
}

}  // namespace

void Portrait(cairo_t* cr, double x, double y, double w, double h, int race, uint32_t seed) {
  Rng rng(seed);
  const double cx = x + w / 2, cy = y + h * 0.45, s = w / 80.0;
  Rgb skin{0.85, 0.65, 0.5};
  switch (race) {
    case 1: {
      static constexpr Rgb kTones[] = {{0.95, 0.78, 0.65}, {0.85, 0.62, 0.45}, {0.62, 0.42, 0.28}, {0.42, 0.28, 0.18}};
      skin = kTones[rng.Int(4)];
      break;
    }
    case 2: skin = Mix({0.65, 0.45, 0.30}, {0.80, 0.55, 0.35}, rng.Unit()); break;
    case 3: skin = Mix({0.35, 0.65, 0.40}, {0.50, 0.80, 0.55}, rng.Unit()); break;
    case 4: skin = Mix({0.55, 0.40, 0.75}, {0.70, 0.55, 0.85}, rng.Unit()); break;
    case 5: skin = Mix({0.80, 0.70, 0.35}, {0.90, 0.80, 0.45}, rng.Unit()); break;
    case 6: skin = Mix({0.30, 0.50, 0.75}, {0.45, 0.65, 0.85}, rng.Unit()); break;
    case 7: skin = Mix({0.75, 0.55, 0.45}, {0.55, 0.45, 0.40}, rng.Unit()); break;
    default: skin = {0.6, 0.62, 0.66}; break;
  }
  // shoulders in a uniform
  const Rgb uniform = Mix({0.15, 0.18, 0.25}, Scale(skin, 0.4), 0.2);
  cairo_move_to(cr, x + 4 * s, y + h);
  cairo_curve_to(cr, x + 8 * s, y + h * 0.72, x + w - 8 * s, y + h * 0.72, x + w - 4 * s, y + h);
  SetColor(cr, uniform);
  cairo_fill(cr);
  // neck
  FillRect(cr, cx - 8 * s, cy + 18 * s, 16 * s, 14 * s, Scale(skin, 0.8));
  // head shape by race
  const double hw = (race == 6 ? 26 : race == 3 ? 24 : 20) * s * rng.Range(0.92, 1.08);
  const double hh = (race == 4 ? 30 : race == 5 ? 25 : 27) * s * rng.Range(0.95, 1.05);
  cairo_save(cr);
  cairo_translate(cr, cx, cy);
  cairo_scale(cr, hw, hh);
  cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
  cairo_restore(cr);
  cairo_pattern_t* g = cairo_pattern_create_radial(cx - hw * 0.4, cy - hh * 0.4, 1, cx, cy, hh * 1.2);
  const Rgb hi = Mix(skin, kWhite, 0.3), lo = Scale(skin, 0.5);
  cairo_pattern_add_color_stop_rgb(g, 0, hi.r, hi.g, hi.b);
  cairo_pattern_add_color_stop_rgb(g, 1, lo.r, lo.g, lo.b);
  cairo_set_source(cr, g);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
  // race marks
  const Rgb dark = Scale(skin, 0.45);
  if (race == 2) {  // hagel: brow ridges
    for (int i = 0; i < 3; ++i) FillRect(cr, cx - hw * 0.7, cy - hh * (0.75 - i * 0.14), hw * 1.4, 2 * s, dark);
  } else if (race == 4) {  // jaytees: a crest
    cairo_move_to(cr, cx - 6 * s, cy - hh * 0.8);
    cairo_line_to(cr, cx, cy - hh * 1.35);
    cairo_line_to(cr, cx + 6 * s, cy - hh * 0.8);
    SetColor(cr, Mix(skin, {1, 0.3, 0.8}, 0.5));
    cairo_fill(cr);
  } else if (race == 5) {  // markeen: mandibles
    for (int sgn : {-1, 1}) {
      cairo_move_to(cr, cx + sgn * hw * 0.5, cy + hh * 0.5);
      cairo_line_to(cr, cx + sgn * hw * 0.2, cy + hh * 1.1);
      cairo_line_to(cr, cx + sgn * hw * 0.1, cy + hh * 0.7);
      SetColor(cr, dark);
      cairo_fill(cr);
    }
  } else if (race == 6) {  // woot-am: head tendrils
    cairo_set_line_width(cr, 3 * s);
    SetColor(cr, dark);
    for (int i = -2; i <= 2; ++i) {
      cairo_move_to(cr, cx + i * 7 * s, cy - hh * 0.9);
      cairo_curve_to(cr, cx + i * 12 * s, cy - hh * 1.3, cx + i * 18 * s, cy - hh * 1.0, cx + i * 20 * s, cy - hh * 1.4);
    }
    cairo_stroke(cr);
  }
  // hair for humans, markings for others
  if (race == 1) {
    static constexpr Rgb kHair[] = {{0.1, 0.08, 0.06}, {0.35, 0.2, 0.1}, {0.75, 0.6, 0.3}, {0.6, 0.25, 0.1}, {0.7, 0.7, 0.7}};
    const int style = rng.Int(4);
    SetColor(cr, kHair[rng.Int(5)]);
    if (style != 3) {
      cairo_save(cr);
      cairo_translate(cr, cx, cy - hh * 0.35);
      cairo_scale(cr, hw * 1.05, hh * (style == 2 ? 0.85 : 0.7));
      cairo_arc(cr, 0, 0, 1, M_PI, 2 * M_PI);
      cairo_restore(cr);
      cairo_fill(cr);
      if (style == 2) {
        FillRect(cr, cx - hw * 1.05, cy - hh * 0.35, hw * 0.35, hh * 1.1, kHair[1]);
        FillRect(cr, cx + hw * 0.7, cy - hh * 0.35, hw * 0.35, hh * 1.1, kHair[1]);
      }
    }
  } else {
    const int marks = rng.Int(3);
    for (int i = 0; i < marks; ++i) {
      FillRect(cr, cx - hw * 0.6 + i * 4 * s, cy + hh * 0.1, 2 * s, 6 * s, Mix(skin, RaceAccent(race), 0.6));
    }
  }
  // eyes
  const double ey = cy - hh * 0.05, ex = hw * 0.42;
  const double er = (race == 3 ? 6.5 : race == 6 ? 5 : 3.8) * s;
  const Rgb iris = race == 1 ? (rng.Unit() < 0.5 ? Rgb{0.2, 0.35, 0.6} : Rgb{0.35, 0.22, 0.1}) : RaceAccent(race);
  for (int sgn : {-1, 1}) {
    cairo_save(cr);
    cairo_translate(cr, cx + sgn * ex, ey);
    cairo_scale(cr, er, er * (race == 4 ? 0.5 : 0.75));
    cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr);
    SetColor(cr, race == 3 || race == 6 ? Scale(iris, 0.35) : kWhite);
    cairo_fill(cr);
    cairo_arc(cr, cx + sgn * ex, ey, er * 0.5, 0, 2 * M_PI);
    SetColor(cr, iris);
    cairo_fill(cr);
  }
  if (race == 7) {  // pirates: a patch over one eye and a scar
    cairo_arc(cr, cx + ex, ey, er * 1.4, 0, 2 * M_PI);
    SetColor(cr, {0.08, 0.08, 0.08});
    cairo_fill(cr);
    cairo_set_line_width(cr, 1.2 * s);
    cairo_move_to(cr, cx - hw, ey - hh * 0.5);
    cairo_line_to(cr, cx + hw, ey - hh * 0.2);
    cairo_stroke(cr);
    cairo_move_to(cr, cx - ex - 5 * s, ey + 6 * s);
    cairo_line_to(cr, cx - ex + 3 * s, ey + 14 * s);
    SetColor(cr, {0.6, 0.25, 0.25});
    cairo_stroke(cr);
  }
  // mouth and nose
  cairo_set_line_width(cr, 1.5 * s);
  SetColor(cr, Scale(skin, 0.4));
  const double mw = rng.Range(5, 9) * s, smile = rng.Range(-2, 3) * s;
  cairo_move_to(cr, cx - mw, cy + hh * 0.5);
  cairo_curve_to(cr, cx - mw / 2, cy + hh * 0.5 + smile, cx + mw / 2, cy + hh * 0.5 + smile, cx + mw, cy + hh * 0.5);
  cairo_stroke(cr);
  if (race == 1 || race == 2) {
    cairo_move_to(cr, cx, ey + 3 * s);
    cairo_line_to(cr, cx - 2 * s, cy + hh * 0.3);
    cairo_line_to(cr, cx + 1 * s, cy + hh * 0.32);
    cairo_stroke(cr);
  }
}

bool DrawFaces(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  if (!StartsWith(p, "gfx/faces/")) return false;
  const std::string_view name = p.substr(10);
  const uint32_t seed = HashString(spec.path);
  cairo_t* cr = cv.cr();
  if (StartsWith(name, "0_")) {
    const int post = NumberAfter(name, "0_");
    TwoFrames(cv, [&](cairo_t* c, double x) { ComputerFace(c, x, 0, 80, 100, post); });
    return true;
  }
  if (StartsWith(name, "lik") && name.find('b') != std::string_view::npos) {
    // the prompt portrait of officer post n, 34x42
    const int post = NumberAfter(name, "lik");
    FillRect(cr, 0, 0, 34, 42, Scale(kPostColour[post], 0.25));
    Portrait(cr, 0, 0, 34, 42, 1, seed);
    cairo_set_line_width(cr, 1);
    SetColor(cr, kPostColour[post]);
    cairo_rectangle(cr, 0.5, 0.5, 33, 41);
    cairo_stroke(cr);
    return true;
  }
  int race = 1, post = 1;
  if (StartsWith(name, "lik")) {
    post = NumberAfter(name, "lik");
  } else if (StartsWith(name, "hero_")) {
    race = 1;
    post = 3;
  } else {
    const int n = NumberAfter(name, "");
    race = (n - 1) / 24 + 1;
    post = ((n - 1) % 24) / 4 + 1;
  }
  TwoFrames(cv, [&](cairo_t* c, double x) {
    Backdrop(c, x, 80, 100, seed, post);
    Portrait(c, x, 0, 80, 100, race, seed);
    // post badge
    FillRect(c, x + 3, 88, 18, 9, Scale(kPostColour[post], 0.8));
    Text(c, kPostNames[post], x + 12, 95.5, 7, {0.05, 0.05, 0.08}, Align::Center, true, true);
  });
  return true;
}

}  // namespace assetgen
