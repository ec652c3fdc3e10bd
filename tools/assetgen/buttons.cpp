// Bridge buttons: eight 50x50 frames side by side; frame 0 at rest, the
// others animate the button's pictogram while it runs or is hovered.
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"
#include "sprites.h"

namespace assetgen {
namespace {

enum class Glyph { Blank, Navigate, Autopilot, Dock, Launch, Orbit, LeaveOrbit, Lander, Tractor, Stop, Hail, Break,
  Ignore, Scanner, Emergency, Software, CommOptions, Weapons, Shield, Power, Combat, Backup, MedStatus, MedScan,
  MedTreat, SciScan, Research, Diplomacy, Missions, Database, Save, ShipStatus, Guild, Maintenance, Cargo, Special,
  Unfitted };

struct Entry {
  const char* path;
  Glyph glyph;
  const char* label;
};

constexpr Entry kButtons[] = {
    {"gfx/nav/01.bmp", Glyph::Navigate, "NAV"},     {"gfx/nav/02.bmp", Glyph::Autopilot, "AUTO"},
    {"gfx/nav/03.bmp", Glyph::Dock, "DOCK"},        {"gfx/nav/04.bmp", Glyph::Launch, "LAUNCH"},
    {"gfx/nav/05.bmp", Glyph::Orbit, "ORBIT"},      {"gfx/nav/06.bmp", Glyph::LeaveOrbit, "LEAVE"},
    {"gfx/nav/07.bmp", Glyph::Lander, "LANDER"},    {"gfx/nav/08.bmp", Glyph::Tractor, "TRACTOR"},
    {"gfx/nav/09.bmp", Glyph::Stop, "STOP"},        {"gfx/comm/01.bmp", Glyph::Hail, "HAIL"},
    {"gfx/comm/02.bmp", Glyph::Break, "BREAK"},     {"gfx/comm/03.bmp", Glyph::Ignore, "IGNORE"},
    {"gfx/comm/04.bmp", Glyph::Scanner, "SCAN"},    {"gfx/comm/05.bmp", Glyph::Emergency, "SOS"},
    {"gfx/comm/06.bmp", Glyph::Software, "SOFT"},   {"gfx/comm/08.bmp", Glyph::CommOptions, "OPTIONS"},
    {"gfx/tac/01.bmp", Glyph::Weapons, "WEAPONS"},  {"gfx/tac/02.bmp", Glyph::Shield, "SHIELD"},
    {"gfx/tac/03.bmp", Glyph::Power, "POWER"},      {"gfx/tac/04.bmp", Glyph::Combat, "COMBAT"},
    {"gfx/tac/06.bmp", Glyph::Backup, "BACKUP"},    {"gfx/med/01.bmp", Glyph::MedStatus, "STATUS"},
    {"gfx/med/02.bmp", Glyph::MedScan, "SCAN"},     {"gfx/med/04.bmp", Glyph::MedTreat, "TREAT"},
    {"gfx/sci/01.bmp", Glyph::SciScan, "SCAN"},     {"gfx/sci/02.bmp", Glyph::Research, "RESEARCH"},
    {"gfx/sci/03.bmp", Glyph::Diplomacy, "DIPLO"},  {"gfx/sci/04.bmp", Glyph::Missions, "MISSION"},
    {"gfx/sci/05.bmp", Glyph::Database, "CREW"},    {"gfx/sci/06.bmp", Glyph::Save, "SAVE"},
    {"gfx/sci/07.bmp", Glyph::ShipStatus, "STATUS"}, {"gfx/sci/08.bmp", Glyph::Guild, "GUILD"},
    {"gfx/eng/01.bmp", Glyph::Maintenance, "REPAIR"}, {"gfx/eng/02.bmp", Glyph::Cargo, "CARGO"},
    {"gfx/eng/03.bmp", Glyph::Special, "SPECIAL"},  {"gfx/eng/04.bmp", Glyph::Unfitted, "UNFIT"},
    {"gfx/bb.bmp", Glyph::Blank, ""},
};

void Line(cairo_t* cr, double x0, double y0, double x1, double y1) {
  cairo_move_to(cr, x0, y0);
  cairo_line_to(cr, x1, y1);
  cairo_stroke(cr);
}

// The pictogram in a 36x26 area centred at (0,0), animation phase t 0..1.
void Pictogram(cairo_t* cr, Glyph g, double t, Rgb c) {
  const double a = 2 * M_PI * t;
  SetColor(cr, c);
  cairo_set_line_width(cr, 1.6);
  switch (g) {
    case Glyph::Blank: break;
    case Glyph::Navigate: cairo_arc(cr, 0, 0, 9, 0, 2 * M_PI); cairo_stroke(cr); Line(cr, 0, -12, 0, 12); Line(cr, -12, 0, 12, 0);
      cairo_arc(cr, std::cos(a) * 9, std::sin(a) * 9, 2, 0, 2 * M_PI); cairo_fill(cr); break;
    case Glyph::Autopilot: cairo_rectangle(cr, -12, -9, 24, 18); cairo_stroke(cr);
      for (int i = 0; i < 3; ++i) {
        Line(cr, -9, -5 + i * 5, 9 - ((i + int(t * 8)) % 3) * 4, -5 + i * 5);
      }
      break;
    case Glyph::Dock: case Glyph::Launch: {
      cairo_rectangle(cr, -4, -11, 8, 22); cairo_stroke(cr);
      const double d = (g == Glyph::Dock ? 1 - t : t) * 8;
      Line(cr, 6 + d, 0, 14 + d, 0); Line(cr, 6 + d, 0, 10 + d, -4); Line(cr, 6 + d, 0, 10 + d, 4); break;
    }
    case Glyph::Orbit: case Glyph::LeaveOrbit:
      cairo_arc(cr, 0, 0, 6, 0, 2 * M_PI); cairo_fill(cr);
      cairo_save(cr); cairo_scale(cr, 1, 0.45); cairo_arc(cr, 0, 0, 15, 0, 2 * M_PI); cairo_restore(cr); cairo_stroke(cr);
      cairo_arc(cr, std::cos(a) * 15, std::sin(a) * 6.75 * (g == Glyph::Orbit ? 1 : -1), 2, 0, 2 * M_PI); cairo_fill(cr); break;
    case Glyph::Lander: Line(cr, -10, 10, 10, 10); cairo_move_to(cr, 0, -10 + t * 12); cairo_line_to(cr, -5, -2 + t * 12);
      cairo_line_to(cr, 5, -2 + t * 12); cairo_close_path(cr); cairo_fill(cr); break;
    case Glyph::Tractor: for (int i = 0; i < 3; ++i) { const double r = 4 + std::fmod(i * 5 + t * 15, 15);
      cairo_arc(cr, -10, 0, r, -0.6, 0.6); cairo_stroke(cr); } cairo_rectangle(cr, 8, -3, 6, 6); cairo_fill(cr); break;
    case Glyph::Stop: cairo_rectangle(cr, -9, -9, 18, 18); cairo_stroke(cr); cairo_rectangle(cr, -5, -5, 10, 10); cairo_fill(cr); break;
    case Glyph::Hail: case Glyph::Break: case Glyph::Ignore:
      for (int i = 1; i <= 3; ++i) { cairo_arc(cr, -10, 0, i * 5 + t * 4, -0.7, 0.7); cairo_stroke(cr); }
      cairo_arc(cr, -10, 0, 2.5, 0, 2 * M_PI); cairo_fill(cr);
      if (g != Glyph::Hail) { SetColor(cr, kRed); Line(cr, -12, -12, 12, 12); if (g == Glyph::Ignore) Line(cr, -12, 12, 12, -12); } break;
    case Glyph::Scanner: case Glyph::SciScan: case Glyph::MedScan:
      cairo_arc(cr, 0, 0, 11, 0, 2 * M_PI); cairo_stroke(cr);
      Line(cr, 0, 0, std::cos(a) * 11, std::sin(a) * 11);
      if (g == Glyph::MedScan) { FillRect(cr, -1.5, -6, 3, 12, kRed); FillRect(cr, -6, -1.5, 12, 3, kRed); } break;
    case Glyph::Emergency: cairo_move_to(cr, 0, -12); cairo_line_to(cr, 12, 10); cairo_line_to(cr, -12, 10); cairo_close_path(cr);
      SetColor(cr, t < 0.5 ? kRed : kAmber); cairo_stroke(cr); FillRect(cr, -1, -4, 2, 8, kRed); FillRect(cr, -1, 6, 2, 2, kRed); break;
    case Glyph::Software: case Glyph::Database: cairo_rectangle(cr, -12, -9, 24, 18); cairo_stroke(cr);
      for (int i = 0; i < 4; ++i) {
        FillRect(cr, -9, -6 + i * 4, (i + int(t * 8)) % 4 * 4 + 4, 2, c);
      }
      break;
    case Glyph::CommOptions: for (int i = 0; i < 3; ++i) { Line(cr, -11, -7 + i * 7, 11, -7 + i * 7);
      cairo_arc(cr, -6 + ((i * 5 + int(t * 8) * 2) % 12), -7 + i * 7, 2.5, 0, 2 * M_PI); cairo_fill(cr); } break;
    case Glyph::Weapons: Line(cr, -12, 6, 8, -6); cairo_arc(cr, 10, -7, 2 + 2 * std::sin(a), 0, 2 * M_PI); SetColor(cr, kRed); cairo_fill(cr);
      SetColor(cr, c); cairo_rectangle(cr, -14, 4, 8, 6); cairo_fill(cr); break;
    case Glyph::Shield: cairo_move_to(cr, 0, -12); cairo_curve_to(cr, 12, -10, 12, 2, 0, 12); cairo_curve_to(cr, -12, 2, -12, -10, 0, -12);
      SetColor(cr, Mix(c, kCyan, 0.5 + 0.5 * std::sin(a))); cairo_stroke(cr); break;
    case Glyph::Power: case Glyph::Backup: cairo_move_to(cr, 3, -12); cairo_line_to(cr, -6, 1); cairo_line_to(cr, 0, 1); cairo_line_to(cr, -3, 12);
      cairo_line_to(cr, 7, -2); cairo_line_to(cr, 1, -2); cairo_close_path(cr); SetColor(cr, Mix(c, kWhite, 0.5 * std::sin(a) + 0.5));
      cairo_fill(cr); if (g == Glyph::Backup) { SetColor(cr, c); cairo_rectangle(cr, -13, -12, 26, 24); cairo_stroke(cr); } break;
    case Glyph::Combat: cairo_arc(cr, 0, 0, 10, 0, 2 * M_PI); cairo_stroke(cr); cairo_arc(cr, 0, 0, 4 + 3 * std::sin(a), 0, 2 * M_PI);
      cairo_stroke(cr); Line(cr, -14, 0, -8, 0); Line(cr, 8, 0, 14, 0); Line(cr, 0, -13, 0, -8); Line(cr, 0, 8, 0, 13); break;
    case Glyph::MedStatus: case Glyph::MedTreat: FillRect(cr, -3, -11, 6, 22, kRed); FillRect(cr, -11, -3, 22, 6, kRed);
      if (g == Glyph::MedStatus) {
        SetColor(cr, c);
        cairo_move_to(cr, -14, 8);
        for (int i = 0; i < 8; ++i) cairo_line_to(cr, -14 + i * 4, 8 - ((i + int(t * 8)) % 4 == 0 ? 6 : 0));
        cairo_stroke(cr);
      }
      break;
    case Glyph::Research: cairo_arc(cr, -3, -3, 7, 0, 2 * M_PI); cairo_stroke(cr); Line(cr, 2, 2, 11, 11);
      cairo_arc(cr, -3 + std::cos(a) * 3, -3 + std::sin(a) * 3, 1.5, 0, 2 * M_PI); cairo_fill(cr); break;
    case Glyph::Diplomacy: cairo_arc(cr, -6, 0, 6, 0, 2 * M_PI); cairo_stroke(cr); cairo_arc(cr, 6, 0, 6, 0, 2 * M_PI); cairo_stroke(cr);
      cairo_arc(cr, 0, 0, 2 + std::sin(a), 0, 2 * M_PI); cairo_fill(cr); break;
    case Glyph::Missions: cairo_move_to(cr, -8, 12); cairo_line_to(cr, -8, -12); cairo_stroke(cr);
      cairo_move_to(cr, -8, -12); cairo_line_to(cr, 10, -8 + 2 * std::sin(a)); cairo_line_to(cr, -8, -3); cairo_fill(cr); break;
    case Glyph::Save: cairo_rectangle(cr, -11, -11, 22, 22); cairo_stroke(cr); FillRect(cr, -6, -11, 12, 8, c);
      FillRect(cr, -7, 3, 14, 8 * (0.3 + 0.7 * t), kAmber); break;
    case Glyph::ShipStatus: ShipShape(cr, 0, 0, 24, 0, 1, 3); SetColor(cr, c);
      cairo_arc(cr, 0, 0, 14, -M_PI / 2, -M_PI / 2 + a); cairo_stroke(cr); break;
    case Glyph::Guild: cairo_move_to(cr, 0, -12); for (int i = 1; i <= 10; ++i) { const double r = i % 2 ? 5 : 12;
      cairo_line_to(cr, std::sin(i * M_PI / 5) * r, -std::cos(i * M_PI / 5) * r); } cairo_close_path(cr);
      SetColor(cr, Mix(c, kAmber, 0.5 + 0.5 * std::sin(a))); cairo_fill(cr); break;
    case Glyph::Maintenance: cairo_save(cr); cairo_rotate(cr, a / 4); for (int i = 0; i < 8; ++i) {
      cairo_rotate(cr, M_PI / 4); cairo_rectangle(cr, -2, -12, 4, 5); cairo_fill(cr); } cairo_restore(cr);
      cairo_arc(cr, 0, 0, 7, 0, 2 * M_PI); cairo_stroke(cr); break;
    case Glyph::Cargo: for (int i = 0; i < 3; ++i) { cairo_rectangle(cr, -12 + i * 8, 2 - (i == 1 ? 9 : 0) - (i == int(t * 3) ? 2 : 0), 8, 8);
      cairo_stroke(cr); } Line(cr, -14, 11, 14, 11); break;
    case Glyph::Special: cairo_move_to(cr, 0, -12); cairo_line_to(cr, 10, 0); cairo_line_to(cr, 0, 12); cairo_line_to(cr, -10, 0);
      cairo_close_path(cr); SetColor(cr, Mix(c, kWhite, 0.5 + 0.5 * std::sin(a))); cairo_fill(cr); break;
    case Glyph::Unfitted: cairo_rectangle(cr, -10, -6, 20, 14); cairo_stroke(cr); Line(cr, -10, -6, 0, -12 + 2 * std::sin(a));
      Line(cr, 10, -6, 0, -12 + 2 * std::sin(a)); break;
  }
}

}  // namespace

bool DrawButtons(const BitmapSpec& spec, Canvas& cv) {
  const Entry* e = nullptr;
  for (const Entry& b : kButtons) {
    if (std::string_view(b.path) == spec.path) e = &b;
  }
  if (!e) return false;
  cairo_t* cr = cv.cr();
  for (int f = 0; f < spec.frames; ++f) {
    const double x = f * 50;
    // a bevelled key with a dark glass face
    Bevel(cr, x + 1, 1, 48, 48, {0.30, 0.34, 0.40}, 2);
    Bevel(cr, x + 5, 5, 40, 32, {0.04, 0.08, 0.10}, -1);
    const Rgb c = f == 0 ? Rgb{0.55, 0.85, 0.95} : Mix(kCyan, kWhite, 0.3 + 0.3 * std::sin(f * M_PI / 4));
    cairo_save(cr);
    cairo_rectangle(cr, x + 6, 6, 38, 30);
    cairo_clip(cr);
    cairo_translate(cr, x + 25, 21);
    cairo_scale(cr, 0.95, 0.95);
    Pictogram(cr, e->glyph, double(f) / spec.frames, c);
    cairo_restore(cr);
    if (*e->label) Text(cr, e->label, x + 25, 46, 7, f == 0 ? Rgb{0.85, 0.62, 0.25} : kAmber, Align::Center, true, true);
  }
  return true;
}

}  // namespace assetgen
