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

namespace {

// A closed ellipse path.
void Ellipse(cairo_t* cr, double cx, double cy, double rx, double ry) {
  cairo_save(cr);
  cairo_translate(cr, cx, cy);
  cairo_scale(cr, rx, ry);
  cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
  cairo_restore(cr);
}

// Fills the current path with a light falling from the upper left: bright
// at (lx, ly), falling off to `shade` at radius r.
void LitFill(cairo_t* cr, double lx, double ly, double r, Rgb base, double shade = 0.45) {
  cairo_pattern_t* g = cairo_pattern_create_radial(lx, ly, r * 0.05, lx, ly, r);
  const Rgb hi = Mix(base, kWhite, 0.22), lo = Scale(base, shade);
  cairo_pattern_add_color_stop_rgb(g, 0, hi.r, hi.g, hi.b);
  cairo_pattern_add_color_stop_rgb(g, 0.55, base.r, base.g, base.b);
  cairo_pattern_add_color_stop_rgb(g, 1, lo.r, lo.g, lo.b);
  cairo_set_source(cr, g);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
}

// The face outline: cranium, temples, cheeks, jaw and chin.
void HeadPath(cairo_t* cr, double cx, double cy, double hw, double hh, double jaw, double crown) {
  cairo_move_to(cr, cx, cy - hh * crown);
  cairo_curve_to(cr, cx + hw * 0.75, cy - hh * crown, cx + hw, cy - hh * 0.55, cx + hw, cy - hh * 0.1);
  cairo_curve_to(cr, cx + hw, cy + hh * 0.3, cx + hw * (0.55 + jaw * 0.3), cy + hh * 0.75, cx + hw * 0.3, cy + hh * 0.95);
  cairo_curve_to(cr, cx + hw * 0.15, cy + hh * 1.02, cx - hw * 0.15, cy + hh * 1.02, cx - hw * 0.3, cy + hh * 0.95);
  cairo_curve_to(cr, cx - hw * (0.55 + jaw * 0.3), cy + hh * 0.75, cx - hw, cy + hh * 0.3, cx - hw, cy - hh * 0.1);
  cairo_curve_to(cr, cx - hw, cy - hh * 0.55, cx - hw * 0.75, cy - hh * crown, cx, cy - hh * crown);
  cairo_close_path(cr);
}

// An almond eye: white, iris, pupil, a glint and the upper lid.
void Eye(cairo_t* cr, double ex, double ey, double r, Rgb sclera, Rgb iris, Rgb lid, double slant, double s,
         bool pupilSlit = false) {
  cairo_save(cr);
  cairo_translate(cr, ex, ey);
  cairo_rotate(cr, slant);
  cairo_move_to(cr, -r, 0);
  cairo_curve_to(cr, -r * 0.4, -r * 0.75, r * 0.4, -r * 0.75, r, 0);
  cairo_curve_to(cr, r * 0.4, r * 0.6, -r * 0.4, r * 0.6, -r, 0);
  cairo_close_path(cr);
  SetColor(cr, sclera);
  cairo_fill_preserve(cr);
  cairo_clip(cr);
  cairo_arc(cr, 0, 0, r * 0.5, 0, 2 * M_PI);
  SetColor(cr, iris);
  cairo_fill(cr);
  if (pupilSlit)
    Ellipse(cr, 0, 0, r * 0.1, r * 0.42);
  else
    cairo_arc(cr, 0, 0, r * 0.22, 0, 2 * M_PI);
  SetColor(cr, {0.04, 0.04, 0.05});
  cairo_fill(cr);
  cairo_arc(cr, -r * 0.18, -r * 0.18, r * 0.12, 0, 2 * M_PI);
  SetColor(cr, kWhite);
  cairo_fill(cr);
  cairo_reset_clip(cr);
  cairo_move_to(cr, -r * 1.05, r * 0.05);
  cairo_curve_to(cr, -r * 0.4, -r * 0.8, r * 0.4, -r * 0.8, r * 1.05, r * 0.05);
  cairo_set_line_width(cr, 1.3 * s);
  SetColor(cr, lid);
  cairo_stroke(cr);
  cairo_restore(cr);
}

Rgb SkinOf(int race, Rng& rng) {
  switch (race) {
    case 1: {
      static constexpr Rgb kTones[] = {{0.96, 0.80, 0.68}, {0.88, 0.66, 0.50}, {0.72, 0.50, 0.34},
                                       {0.52, 0.35, 0.23}, {0.38, 0.25, 0.17}};
      return kTones[rng.Int(5)];
    }
    case 2: return Mix({0.62, 0.42, 0.28}, {0.78, 0.55, 0.34}, rng.Unit());
    case 3: return Mix({0.34, 0.62, 0.42}, {0.50, 0.78, 0.52}, rng.Unit());
    case 4: return Mix({0.55, 0.40, 0.72}, {0.70, 0.55, 0.84}, rng.Unit());
    case 5: return Mix({0.76, 0.66, 0.34}, {0.90, 0.78, 0.44}, rng.Unit());
    case 6: return Mix({0.30, 0.48, 0.74}, {0.44, 0.62, 0.86}, rng.Unit());
    case 7: return Mix({0.78, 0.58, 0.46}, {0.55, 0.42, 0.36}, rng.Unit());
    default: return {0.6, 0.62, 0.66};
  }
}

}  // namespace

void Portrait(cairo_t* cr, double x, double y, double w, double h, int race, uint32_t seed) {
  Rng rng(seed);
  const double s = w / 80.0, cx = x + w / 2, cy = y + h * 0.42;
  const Rgb skin = SkinOf(race, rng);
  const Rgb dark = Scale(skin, 0.42), accent = RaceAccent(race);
  const bool humanoid = race == 1 || race == 2 || race == 7;
  const double hw = (race == 6 ? 24 : race == 3 ? 23 : race == 2 ? 21.5 : 19.5) * s * rng.Range(0.93, 1.07);
  const double hh = (race == 4 ? 29 : race == 5 ? 25 : 26) * s * rng.Range(0.95, 1.05);
  const double jaw = race == 2 ? 0.9 : race == 5 ? 0.1 : rng.Range(0.3, 0.8);
  const double lx = cx - hw * 0.45, ly = cy - hh * 0.5;  // where the light falls

  // Long hair falls behind the shoulders.
  static constexpr Rgb kHair[] = {{0.10, 0.08, 0.06}, {0.30, 0.18, 0.09}, {0.72, 0.56, 0.28},
                                  {0.58, 0.24, 0.10}, {0.66, 0.66, 0.68}, {0.20, 0.14, 0.10}};
  const Rgb hair = kHair[rng.Int(6)];
  const int hairStyle = race == 1 ? rng.Int(5) : -1;  // 0 short, 1 parted, 2 long, 3 bald, 4 cropped
  if (hairStyle == 2) {
    cairo_move_to(cr, cx - hw * 1.15, cy - hh * 0.3);
    cairo_curve_to(cr, cx - hw * 1.3, cy + hh * 0.6, cx - hw * 1.2, cy + hh * 1.3, cx - hw * 0.9, cy + hh * 1.45);
    cairo_line_to(cr, cx + hw * 0.9, cy + hh * 1.45);
    cairo_curve_to(cr, cx + hw * 1.2, cy + hh * 1.3, cx + hw * 1.3, cy + hh * 0.6, cx + hw * 1.15, cy - hh * 0.3);
    cairo_close_path(cr);
    LitFill(cr, lx, ly, hh * 2.2, hair, 0.35);
  }

  // Shoulders in a uniform with a high collar.
  const Rgb uniform = Mix({0.14, 0.17, 0.24}, Scale(accent, 0.5), 0.25);
  cairo_move_to(cr, x, y + h);
  cairo_curve_to(cr, x + 2 * s, y + h * 0.80, cx - 24 * s, y + h * 0.76, cx - 12 * s, y + h * 0.745);
  cairo_line_to(cr, cx + 12 * s, y + h * 0.745);
  cairo_curve_to(cr, cx + 24 * s, y + h * 0.76, x + w - 2 * s, y + h * 0.80, x + w, y + h);
  cairo_close_path(cr);
  LitFill(cr, cx - 20 * s, y + h * 0.78, 60 * s, uniform, 0.5);
  // collar and shoulder boards
  cairo_move_to(cr, cx - 13 * s, y + h * 0.75);
  cairo_line_to(cr, cx, y + h * 0.90);
  cairo_line_to(cr, cx + 13 * s, y + h * 0.75);
  cairo_set_line_width(cr, 2.2 * s);
  SetColor(cr, Mix(uniform, kWhite, 0.35));
  cairo_stroke(cr);
  for (int sgn : {-1, 1}) FillRect(cr, cx + sgn * 24 * s - 6 * s, y + h * 0.785, 12 * s, 2.2 * s, Scale(accent, 0.85));

  // Neck, darker under the chin.
  cairo_move_to(cr, cx - 8 * s, cy + hh * 0.6);
  cairo_line_to(cr, cx - 9.5 * s, y + h * 0.77);
  cairo_line_to(cr, cx + 9.5 * s, y + h * 0.77);
  cairo_line_to(cr, cx + 8 * s, cy + hh * 0.6);
  cairo_close_path(cr);
  {
    cairo_pattern_t* g = cairo_pattern_create_linear(0, cy + hh * 0.7, 0, y + h * 0.77);
    const Rgb a = Scale(skin, 0.55), b = Scale(skin, 0.8);
    cairo_pattern_add_color_stop_rgb(g, 0, a.r, a.g, a.b);
    cairo_pattern_add_color_stop_rgb(g, 1, b.r, b.g, b.b);
    cairo_set_source(cr, g);
    cairo_fill(cr);
    cairo_pattern_destroy(g);
  }

  // Ears, fins and tendrils behind the head.
  if (humanoid) {
    for (int sgn : {-1, 1}) {
      Ellipse(cr, cx + sgn * hw * 0.98, cy + hh * 0.05, 4 * s, 7 * s);
      LitFill(cr, lx, ly, hh * 2, Scale(skin, 0.92));
    }
  } else if (race == 3) {  // Lagew: cheek fins
    for (int sgn : {-1, 1}) {
      cairo_move_to(cr, cx + sgn * hw * 0.9, cy - hh * 0.25);
      cairo_curve_to(cr, cx + sgn * hw * 1.5, cy - hh * 0.45, cx + sgn * hw * 1.55, cy + hh * 0.2,
                     cx + sgn * hw * 0.85, cy + hh * 0.45);
      cairo_close_path(cr);
      LitFill(cr, lx, ly, hh * 2.2, Mix(skin, accent, 0.35));
      cairo_set_line_width(cr, 0.8 * s);
      SetColor(cr, dark);
      for (int k = 1; k <= 3; ++k) {
        cairo_move_to(cr, cx + sgn * hw * 0.95, cy - hh * 0.2 + k * hh * 0.14);
        cairo_line_to(cr, cx + sgn * hw * 1.4, cy - hh * 0.35 + k * hh * 0.16);
      }
      cairo_stroke(cr);
    }
  } else if (race == 6) {  // Woot-Am: tendrils
    for (int i = -2; i <= 2; ++i) {
      cairo_move_to(cr, cx + i * 7 * s, cy - hh * 0.8);
      cairo_curve_to(cr, cx + i * 13 * s, cy - hh * 1.25, cx + i * 20 * s, cy - hh * 0.9, cx + i * 22 * s,
                     cy - hh * (1.25 + 0.1 * std::abs(i)));
      cairo_set_line_width(cr, (5 - std::abs(i)) * 1.1 * s);
      SetColor(cr, Scale(skin, 0.75));
      cairo_stroke_preserve(cr);
      cairo_set_line_width(cr, 1.2 * s);
      SetColor(cr, Mix(skin, kWhite, 0.3));
      cairo_stroke(cr);
    }
  } else if (race == 5) {  // Markeen: antennae
    for (int sgn : {-1, 1}) {
      cairo_move_to(cr, cx + sgn * hw * 0.3, cy - hh * 0.85);
      cairo_curve_to(cr, cx + sgn * hw * 0.5, cy - hh * 1.4, cx + sgn * hw * 1.1, cy - hh * 1.35, cx + sgn * hw * 1.2,
                     cy - hh * 1.5);
      cairo_set_line_width(cr, 1.6 * s);
      SetColor(cr, dark);
      cairo_stroke(cr);
      cairo_arc(cr, cx + sgn * hw * 1.2, cy - hh * 1.5, 2.2 * s, 0, 2 * M_PI);
      SetColor(cr, accent);
      cairo_fill(cr);
    }
  }

  // The head, lit from the upper left with a shadowed right side.
  const double crown = race == 4 ? 1.25 : 1.0;
  HeadPath(cr, cx, cy, hw, hh, jaw, crown);
  LitFill(cr, lx, ly, hh * 2.1, skin);
  HeadPath(cr, cx, cy, hw, hh, jaw, crown);
  {
    cairo_pattern_t* g = cairo_pattern_create_linear(cx - hw, 0, cx + hw, 0);
    cairo_pattern_add_color_stop_rgba(g, 0.55, 0, 0, 0, 0);
    cairo_pattern_add_color_stop_rgba(g, 1, 0, 0, 0.05, 0.35);
    cairo_set_source(cr, g);
    cairo_fill(cr);
    cairo_pattern_destroy(g);
  }
  // cheekbone shadows
  for (int sgn : {-1, 1}) {
    Ellipse(cr, cx + sgn * hw * 0.7, cy + hh * 0.42, hw * 0.2, hh * 0.08);
    SetColor(cr, dark, 0.1);
    cairo_fill(cr);
  }

  // Race marks on the head.
  if (race == 2) {  // Hagel: bony brow plates
    for (int i = 0; i < 3; ++i) {
      const double yy = cy - hh * (0.78 - i * 0.17);
      cairo_move_to(cr, cx - hw * (0.75 - i * 0.05), yy + 3 * s);
      cairo_curve_to(cr, cx - hw * 0.3, yy - 2 * s, cx + hw * 0.3, yy - 2 * s, cx + hw * (0.75 - i * 0.05), yy + 3 * s);
      cairo_set_line_width(cr, 3.2 * s);
      SetColor(cr, dark);
      cairo_stroke_preserve(cr);
      cairo_set_line_width(cr, 1 * s);
      SetColor(cr, Mix(skin, kWhite, 0.35));
      cairo_stroke(cr);
    }
  } else if (race == 4) {  // Jaytees: a crest along the skull and cheek stripes
    cairo_move_to(cr, cx - 5 * s, cy - hh * 1.05);
    cairo_curve_to(cr, cx - 3 * s, cy - hh * 1.5, cx + 3 * s, cy - hh * 1.55, cx + 6 * s, cy - hh * 1.6);
    cairo_line_to(cr, cx + 5 * s, cy - hh * 1.05);
    cairo_close_path(cr);
    LitFill(cr, lx, ly, hh * 2, Mix(skin, accent, 0.6));
    for (int sgn : {-1, 1})
      for (int k = 0; k < 2; ++k) {
        cairo_move_to(cr, cx + sgn * hw * 0.55, cy + hh * (0.12 + 0.12 * k));
        cairo_line_to(cr, cx + sgn * hw * 0.85, cy + hh * (0.05 + 0.12 * k));
        cairo_set_line_width(cr, 1.4 * s);
        SetColor(cr, Mix(skin, accent, 0.7));
        cairo_stroke(cr);
      }
  } else if (race == 5) {  // Markeen: chitin seams
    cairo_set_line_width(cr, 0.9 * s);
    SetColor(cr, dark, 0.7);
    cairo_move_to(cr, cx, cy - hh);
    cairo_line_to(cr, cx, cy - hh * 0.2);
    for (int sgn : {-1, 1}) {
      cairo_move_to(cr, cx, cy - hh * 0.6);
      cairo_curve_to(cr, cx + sgn * hw * 0.5, cy - hh * 0.7, cx + sgn * hw * 0.8, cy - hh * 0.4, cx + sgn * hw * 0.95,
                     cy - hh * 0.1);
    }
    cairo_stroke(cr);
  }

  // Hair of the Humans.
  if (hairStyle == 0 || hairStyle == 1 || hairStyle == 2 || hairStyle == 4) {
    const double low = hairStyle == 4 ? 0.55 : 0.42;
    cairo_move_to(cr, cx - hw * 1.04, cy - hh * low + 4 * s);
    cairo_curve_to(cr, cx - hw * 1.1, cy - hh * 1.2, cx + hw * 1.1, cy - hh * 1.2, cx + hw * 1.04, cy - hh * low + 4 * s);
    if (hairStyle == 1) {
      cairo_curve_to(cr, cx + hw * 0.6, cy - hh * 0.75, cx - hw * 0.1, cy - hh * 0.8, cx - hw * 0.25, cy - hh * 0.7);
      cairo_curve_to(cr, cx - hw * 0.6, cy - hh * 0.6, cx - hw * 0.9, cy - hh * 0.5, cx - hw * 1.04, cy - hh * low + 4 * s);
    } else {
      cairo_curve_to(cr, cx + hw * 0.5, cy - hh * 0.78, cx - hw * 0.5, cy - hh * 0.78, cx - hw * 1.04, cy - hh * low + 4 * s);
    }
    cairo_close_path(cr);
    LitFill(cr, lx, ly - hh * 0.4, hh * 1.8, hair, 0.4);
    cairo_set_line_width(cr, 0.8 * s);
    SetColor(cr, Mix(hair, kWhite, 0.3), 0.6);
    for (int k = 0; k < 5; ++k) {
      const double px = cx - hw * 0.6 + k * hw * 0.25;
      cairo_move_to(cr, px, cy - hh * 1.0);
      cairo_curve_to(cr, px - 3 * s, cy - hh * 0.9, px - 4 * s, cy - hh * 0.8, px - 5 * s, cy - hh * 0.72);
    }
    cairo_stroke(cr);
  }

  // Eyes and brows.
  const double ey = cy - hh * 0.08, ex = hw * 0.42;
  if (race == 5) {  // compound eyes
    for (int sgn : {-1, 1}) {
      Ellipse(cr, cx + sgn * ex * 1.05, ey, 8 * s, 6.5 * s);
      cairo_pattern_t* g = cairo_pattern_create_radial(cx + sgn * ex - 2 * s, ey - 2 * s, 1, cx + sgn * ex, ey, 9 * s);
      cairo_pattern_add_color_stop_rgb(g, 0, 0.9, 0.4, 0.2);
      cairo_pattern_add_color_stop_rgb(g, 1, 0.25, 0.05, 0.02);
      cairo_set_source(cr, g);
      cairo_fill(cr);
      cairo_pattern_destroy(g);
      for (int k = 0; k < 6; ++k) {
        cairo_arc(cr, cx + sgn * ex * 1.05 + (k % 3 - 1) * 4 * s, ey + (k / 3 - 0.5) * 4 * s, 0.9 * s, 0, 2 * M_PI);
        SetColor(cr, {1.0, 0.75, 0.4}, 0.6);
        cairo_fill(cr);
      }
    }
  } else {
    const double er = (race == 3 ? 7 : race == 6 ? 6 : race == 4 ? 5.5 : 4.6) * s;
    const Rgb sclera = race == 3 ? Rgb{0.06, 0.08, 0.07} : race == 6 ? Mix(accent, kWhite, 0.4) : Rgb{0.93, 0.92, 0.88};
    const Rgb iris = race == 1 || race == 7 ? (rng.Unit() < 0.5 ? Rgb{0.22, 0.40, 0.65} : Rgb{0.36, 0.24, 0.12})
                     : race == 3 ? Mix(accent, kWhite, 0.2)
                                 : accent;
    const double slant = race == 4 ? 0.25 : race == 3 ? 0.1 : 0;
    for (int sgn : {-1, 1})
      Eye(cr, cx + sgn * ex, ey, er, sclera, iris, Scale(skin, 0.3), sgn * slant, s, race == 4 || race == 2);
    if (humanoid || race == 4) {
      const Rgb brow = race == 1 ? Scale(hair, 0.8) : dark;
      const double lift = rng.Range(-1.5, 1.5) * s;
      cairo_set_line_width(cr, (race == 2 ? 2.8 : 2.0) * s);
      cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
      SetColor(cr, brow);
      for (int sgn : {-1, 1}) {
        cairo_move_to(cr, cx + sgn * ex * 0.45, ey - er * 1.25 + lift);
        cairo_curve_to(cr, cx + sgn * ex * 0.8, ey - er * 1.7, cx + sgn * ex * 1.2, ey - er * 1.6,
                       cx + sgn * ex * 1.55, ey - er * 1.1 - lift);
      }
      cairo_stroke(cr);
      cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
    }
  }

  // Nose.
  if (humanoid) {
    cairo_move_to(cr, cx + 1 * s, ey + 2 * s);
    cairo_curve_to(cr, cx + 3.5 * s, cy + hh * 0.2, cx + 4 * s, cy + hh * 0.3, cx + 1.5 * s, cy + hh * 0.36);
    cairo_set_line_width(cr, 1.3 * s);
    SetColor(cr, Scale(skin, 0.62));
    cairo_stroke(cr);
    for (int sgn : {-1, 1}) {
      cairo_arc(cr, cx + sgn * 2.6 * s, cy + hh * 0.35, 1.0 * s, 0, 2 * M_PI);
      SetColor(cr, Scale(skin, 0.4));
      cairo_fill(cr);
    }
  } else if (race != 5) {
    for (int sgn : {-1, 1}) {
      Ellipse(cr, cx + sgn * 2 * s, cy + hh * 0.28, 0.9 * s, 1.8 * s);
      SetColor(cr, dark);
      cairo_fill(cr);
    }
  }

  // Mouth: mandibles for the Markeen, lips for the rest.
  if (race == 5) {
    for (int sgn : {-1, 1}) {
      cairo_move_to(cr, cx + sgn * hw * 0.45, cy + hh * 0.45);
      cairo_curve_to(cr, cx + sgn * hw * 0.6, cy + hh * 0.8, cx + sgn * hw * 0.35, cy + hh * 1.05, cx + sgn * hw * 0.12,
                     cy + hh * 1.1);
      cairo_curve_to(cr, cx + sgn * hw * 0.3, cy + hh * 0.85, cx + sgn * hw * 0.3, cy + hh * 0.65, cx + sgn * hw * 0.2,
                     cy + hh * 0.5);
      cairo_close_path(cr);
      LitFill(cr, lx, ly, hh * 2.2, Scale(skin, 0.75));
    }
  } else {
    const double mw = rng.Range(5, 8) * s * (race == 3 ? 1.6 : 1.0), smile = rng.Range(-1.5, 2.5) * s;
    const double my = cy + hh * 0.58;
    cairo_move_to(cr, cx - mw, my);
    cairo_curve_to(cr, cx - mw / 2, my + smile - 1 * s, cx + mw / 2, my + smile - 1 * s, cx + mw, my);
    cairo_set_line_width(cr, 1.5 * s);
    SetColor(cr, Scale(skin, 0.32));
    cairo_stroke(cr);
    if (humanoid) {
      cairo_move_to(cr, cx - mw * 0.7, my + 1.2 * s);
      cairo_curve_to(cr, cx - mw * 0.3, my + smile + 3 * s, cx + mw * 0.3, my + smile + 3 * s, cx + mw * 0.7, my + 1.2 * s);
      cairo_set_line_width(cr, 1.6 * s);
      SetColor(cr, Mix(skin, {0.7, 0.3, 0.3}, 0.3));
      cairo_stroke(cr);
    }
  }

  // Pirates: a bandana, a patch over one eye and a scar.
  if (race == 7) {
    cairo_move_to(cr, cx - hw * 1.05, cy - hh * 0.45);
    cairo_curve_to(cr, cx - hw * 1.1, cy - hh * 1.2, cx + hw * 1.1, cy - hh * 1.2, cx + hw * 1.05, cy - hh * 0.45);
    cairo_curve_to(cr, cx + hw * 0.5, cy - hh * 0.65, cx - hw * 0.5, cy - hh * 0.65, cx - hw * 1.05, cy - hh * 0.45);
    cairo_close_path(cr);
    LitFill(cr, lx, ly, hh * 2, {0.7, 0.12, 0.1});
    cairo_arc(cr, cx + ex, ey, 6.5 * s, 0, 2 * M_PI);
    SetColor(cr, {0.06, 0.06, 0.06});
    cairo_fill(cr);
    cairo_move_to(cr, cx + ex - 6 * s, ey - 4 * s);
    cairo_line_to(cr, cx - hw, cy - hh * 0.55);
    cairo_move_to(cr, cx + ex + 6 * s, ey - 4 * s);
    cairo_line_to(cr, cx + hw, cy - hh * 0.45);
    cairo_set_line_width(cr, 1.2 * s);
    cairo_stroke(cr);
    cairo_move_to(cr, cx - ex - 6 * s, ey + 5 * s);
    cairo_line_to(cr, cx - ex + 2 * s, ey + 15 * s);
    SetColor(cr, {0.65, 0.28, 0.26});
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
