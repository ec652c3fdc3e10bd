// Story pictures: the event screen, one scene for every node of every event,
// and the full-screen credits and story pictures.
#include <algorithm>
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"
#include "sprites.h"

namespace assetgen {
namespace {

// What each event is about, to choose the pieces of its scenes.
enum class Theme { Transport, Plague, Pod, Decoy, LifeForm, Anomaly, Ribbon, Meteor, Landing, Crash, Unknown, Distress,
  Lander, Freighter, Convoy, Joint };

Theme ThemeOf(int e) {
  static constexpr Theme kThemes[19] = {Theme::Transport, Theme::Transport, Theme::Plague, Theme::Pod, Theme::Decoy,
    Theme::LifeForm, Theme::Anomaly, Theme::Ribbon, Theme::Meteor, Theme::Landing, Theme::Crash, Theme::Unknown,
    Theme::Distress, Theme::Lander, Theme::Freighter, Theme::Pod, Theme::Convoy, Theme::Pod, Theme::Joint};
  return kThemes[e >= 1 && e <= 18 ? e : 0];
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

void Scene(Canvas& cv, int event, int node) {
  cairo_t* cr = cv.cr();
  const uint32_t seed = Hash(uint32_t(event), uint32_t(node), 77);
  Rng rng(seed);
  const Theme theme = ThemeOf(event);
  FillRect(cr, 0, 0, cv.width(), cv.height(), {0.01, 0.01, 0.03});
  static constexpr Rgb kTints[] = {{0.5, 0.2, 0.6}, {0.2, 0.4, 0.7}, {0.7, 0.3, 0.2}, {0.2, 0.6, 0.4}};
  Nebula(cv, seed, kTints[(event + node) % 4], 0.9);
  Stars(cv, seed + 5, 700, 0.9);
  const double W = cv.width(), H = cv.height();
  // a body in most scenes, placed by the node
  if (rng.Unit() < 0.6 || theme == Theme::Landing || theme == Theme::Lander || theme == Theme::Plague) {
    const int kind = 1 + int(Hash(uint32_t(event), 3) % 10);
    const SurfaceMap map = MakeSurface(kind, uint32_t(event) * 31u, 256, 128);
    const double r = rng.Range(90, 220);
    Sphere(cv, map, kind, rng.Unit() < 0.5 ? rng.Range(-40, 160) : rng.Range(480, 680), H * rng.Range(0.6, 1.2), r,
           rng.Unit(), 0.35);
  }
  const double sx = rng.Range(180, 460), sy = rng.Range(100, 220), angle = rng.Range(-1.2, 1.2) + M_PI / 2;
  switch (theme) {
    case Theme::Transport: case Theme::Freighter: case Theme::Distress:
      ShipShape(cr, sx, sy, 170, angle, 1 + int(event % 6), 2);
      if (node % 3 == 1) Fireball(cr, sx + 30, sy, 40, 0.4, seed);
      break;
    case Theme::Plague:
      StationShape(cr, sx, sy, 110, rng.Unit(), 1 + node % 3);
      cairo_set_source_rgba(cr, 0.4, 0.9, 0.2, 0.25);
      cairo_arc(cr, sx, sy, 130, 0, 2 * M_PI);
      cairo_fill(cr);
      break;
    case Theme::Pod:
      for (int i = 0; i < 6; ++i) {
        cairo_save(cr);
        cairo_translate(cr, rng.Range(60, 580), rng.Range(40, 280));
        cairo_rotate(cr, rng.Range(0, 6.28));
        cairo_rectangle(cr, -12, -6, 24, 12);
        SetColor(cr, {0.4, 0.38, 0.35});
        cairo_fill(cr);
        cairo_restore(cr);
      }
      cairo_save(cr);
      cairo_translate(cr, sx, sy);
      cairo_scale(cr, 1.8, 1.0);
      cairo_arc(cr, 0, 0, 28, 0, 2 * M_PI);
      cairo_restore(cr);
      SetColor(cr, {0.8, 0.82, 0.86});
      cairo_fill(cr);
      if (node % 2) { cairo_arc(cr, sx, sy, 10, 0, 2 * M_PI); SetColor(cr, kAmber); cairo_fill(cr); }
      break;
    case Theme::Decoy: case Theme::Convoy: case Theme::Joint:
      for (int i = 0; i < 2 + node % 3; ++i)
        ShipShape(cr, sx + i * 70 - 70, sy + (i % 2) * 50 - 25, 110, angle, i == 0 && theme != Theme::Joint ? 7 : 1 + i % 6,
                  i == 0 ? 5 : 3);
      if (node % 2 == 0) {
        cairo_set_line_width(cr, 3);
        cairo_set_source_rgba(cr, 1, 0.3, 0.2, 0.9);
        cairo_move_to(cr, sx - 70, sy - 25);
        cairo_line_to(cr, sx + 70, sy + 25);
        cairo_stroke(cr);
      }
      break;
    case Theme::LifeForm: case Theme::Ribbon: case Theme::Anomaly:
      for (int arm = 0; arm < 5; ++arm) {
        cairo_set_line_width(cr, 6 - arm);
        const Rgb c = theme == Theme::Anomaly ? kCyan : theme == Theme::Ribbon ? Rgb{1.0, 0.5, 0.9} : Rgb{0.6, 1.0, 0.6};
        cairo_set_source_rgba(cr, c.r, c.g, c.b, 0.6);
        cairo_move_to(cr, 0, sy + arm * 10);
        for (int i = 1; i <= 8; ++i) cairo_line_to(cr, i * W / 8, sy + std::sin(i * 0.9 + arm + node) * 60 + arm * 10);
        cairo_stroke(cr);
      }
      ShipShape(cr, rng.Range(100, 540), rng.Range(60, 260), 80, angle, 1, 3);
      break;
    case Theme::Meteor:
      for (int i = 0; i < 12; ++i) {
        const double x = rng.Range(0, W), y = rng.Range(0, H), r = rng.Range(4, 30);
        cairo_arc(cr, x, y, r, 0, 2 * M_PI);
        SetColor(cr, {0.45, 0.4, 0.35});
        cairo_fill(cr);
      }
      Fireball(cr, sx, sy, 50, 0.3 + 0.05 * node, seed);
      break;
    case Theme::Landing: case Theme::Lander: case Theme::Crash:
      // a surface horizon with the ship or lander over it
      cairo_move_to(cr, 0, H);
      for (int i = 0; i <= 16; ++i) cairo_line_to(cr, i * W / 16, H * 0.72 + rng.Range(-25, 25));
      cairo_line_to(cr, W, H);
      cairo_close_path(cr);
      SetColor(cr, Mix({0.35, 0.25, 0.2}, {0.2, 0.35, 0.25}, rng.Unit()));
      cairo_fill(cr);
      ShipShape(cr, sx, sy * 0.8, 90, angle, theme == Theme::Crash ? 1 + event % 6 : 1, theme == Theme::Crash ? 3 : 1);
      if (theme == Theme::Crash && node % 2) Fireball(cr, sx, H * 0.75, 45, 0.45, seed);
      break;
    case Theme::Unknown:
      ShipShape(cr, sx, sy, 200, angle, 1 + node % 6, 4);
      cairo_set_source_rgba(cr, 0.4, 0.6, 1.0, 0.2);
      cairo_arc(cr, sx, sy, 120, 0, 2 * M_PI);
      cairo_fill(cr);
      break;
  }
  // a viewport frame
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
