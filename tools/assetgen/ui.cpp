// The bridge: its backdrop, panel backs, cursor, small gauges and icons.
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"

namespace assetgen {
namespace {

void BridgeBack(Canvas& cv, uint32_t seed) {
  cairo_t* cr = cv.cr();
  SteelPlate(cr, 0, 0, 640, 480, seed);
  // top strip: clock, icons
  Bevel(cr, 0, 0, 640, 22, kSteel, 2);
  Recess(cr, 150, 3, 160, 16, 3);
  Text(cr, "DATE", 120, 15, 8, kAmberDim, Align::Left, true, true);
  Recess(cr, 372, 3, 104, 16, 3);
  // faces with their health bars
  for (int side = 0; side < 2; ++side) {
    const double x = side ? 538 : 24;
    for (double y : {29.0, 155.0, 289.0}) {
      Recess(cr, x, y, 80, 100, 3);
      Recess(cr, x, y + 105, 80, 10, 3);
    }
  }
  // the view and the panel area
  Recess(cr, 121, 25, 400, 240, 3);
  Recess(cr, 130, 277, 246, 134, 3);
  Recess(cr, 380, 277, 130, 130, 3);
  // the prompt strip
  Recess(cr, 14, 416, 612, 52, 3);
  // help icon
  Bevel(cr, 517, 264, 13, 10, kSteelLight, 1);
  Text(cr, "?", 523.5, 273, 9, kAmber, Align::Center);
  // decorative lamps and labels
  Rng rng(seed);
  for (int i = 0; i < 12; ++i) {
    const Rgb c = rng.Unit() < 0.5 ? kAmber : kCyan;
    cairo_arc(cr, 132 + i * 8, 272, 2, 0, 2 * M_PI);
    SetColor(cr, Scale(c, rng.Range(0.4, 1.0)));
    cairo_fill(cr);
  }
  for (int i = 0; i < 6; ++i) FillRect(cr, 4, 60 + i * 60, 14, 40, Scale(kSteelLight, 0.6));
  for (int i = 0; i < 6; ++i) FillRect(cr, 622, 60 + i * 60, 14, 40, Scale(kSteelLight, 0.6));
}

void PanelBack(Canvas& cv, const std::string& title, uint32_t seed) {
  cairo_t* cr = cv.cr();
  FillRect(cr, 0, 0, 130, 130, {0.04, 0.07, 0.09});
  for (int y = 0; y < 130; y += 2) FillRect(cr, 0, y, 130, 1, {0.06, 0.10, 0.12});
  cairo_set_line_width(cr, 1);
  SetColor(cr, Scale(kCyan, 0.35));
  cairo_rectangle(cr, 2.5, 2.5, 125, 125);
  cairo_stroke(cr);
  Bevel(cr, 0, 0, 130, 130, kSteel, 0);
  // corner ticks
  SetColor(cr, kCyan);
  for (int c = 0; c < 4; ++c) {
    const double x = c & 1 ? 127 : 3, y = c & 2 ? 127 : 3, sx = c & 1 ? -1 : 1, sy = c & 2 ? -1 : 1;
    cairo_move_to(cr, x + sx * 8, y);
    cairo_line_to(cr, x, y);
    cairo_line_to(cr, x, y + sy * 8);
  }
  cairo_stroke(cr);
  // The caption stands at the foot, except where the panel's own lines
  // fill it: the power panel's generator lines (it goes to the top, where
  // the panel is free), the crew's salary line and the research list's
  // skill line (no caption: the lists run from the top).
  if (title != "CREW" && title != "RESEARCH") {
    const double captionY = title == "ENERGY" ? 12 : 126;
    Text(cr, title, 65, captionY, 6, Scale(kCyan, 0.45), Align::Center, true, true);
  }
  (void)seed;
}

// The trade list fills the whole panel: the ship's goods and the hold stand
// on its left and right edges, so it has no frame lines or caption there,
// only faint bands behind the arrow and name columns.
void TradePanelBack(Canvas& cv) {
  cairo_t* cr = cv.cr();
  FillRect(cr, 0, 0, 130, 130, {0.04, 0.07, 0.09});
  for (int y = 0; y < 130; y += 2) FillRect(cr, 0, y, 130, 1, {0.06, 0.10, 0.12});
  Bevel(cr, 0, 0, 130, 130, kSteel, 0);
  // Rows 286 + 7r on the screen lie at 9 + 7r in the panel.
  for (int r = 0; r < 14; r += 2) FillRect(cr, 2, 8 + 7 * r, 126, 7, {0.07, 0.12, 0.15});
  FillRect(cr, 18, 8, 1, 98, Scale(kCyan, 0.25));
  FillRect(cr, 111, 8, 1, 98, Scale(kCyan, 0.25));
  FillRect(cr, 8, 107, 114, 1, Scale(kCyan, 0.35));
}

std::string Upper(std::string_view s) {
  std::string r(s);
  for (char& c : r) c = char(std::toupper(static_cast<unsigned char>(c)));
  return r;
}

void Arrow(cairo_t* cr, double x, double y, double w, double h, int dir, Rgb c) {
  // dir: 0 up, 1 down, 2 left, 3 right
  cairo_new_path(cr);
  switch (dir) {
    case 0: cairo_move_to(cr, x + w / 2, y); cairo_line_to(cr, x + w, y + h); cairo_line_to(cr, x, y + h); break;
    case 1: cairo_move_to(cr, x, y); cairo_line_to(cr, x + w, y); cairo_line_to(cr, x + w / 2, y + h); break;
    case 2: cairo_move_to(cr, x + w, y); cairo_line_to(cr, x + w, y + h); cairo_line_to(cr, x, y + h / 2); break;
    default: cairo_move_to(cr, x, y); cairo_line_to(cr, x, y + h); cairo_line_to(cr, x + w, y + h / 2); break;
  }
  cairo_close_path(cr);
  SetColor(cr, c);
  cairo_fill(cr);
}

void Cursor(Canvas& cv) {
  cairo_t* cr = cv.cr();
  auto arrowPointer = [&](double x, Rgb c) {
    cairo_move_to(cr, x + 1, 1);
    cairo_line_to(cr, x + 1, 17);
    cairo_line_to(cr, x + 5, 13);
    cairo_line_to(cr, x + 8, 20);
    cairo_line_to(cr, x + 11, 19);
    cairo_line_to(cr, x + 8, 12);
    cairo_line_to(cr, x + 13, 12);
    cairo_close_path(cr);
    SetColor(cr, c);
    cairo_fill_preserve(cr);
    SetColor(cr, {0.1, 0.1, 0.12});
    cairo_set_line_width(cr, 1);
    cairo_stroke(cr);
  };
  auto crosshair = [&](double x, Rgb c) {
    SetColor(cr, c);
    cairo_set_line_width(cr, 1.2);
    cairo_arc(cr, x + 11.5, 11.5, 6, 0, 2 * M_PI);
    cairo_stroke(cr);
    cairo_move_to(cr, x + 11.5, 1);
    cairo_line_to(cr, x + 11.5, 8);
    cairo_move_to(cr, x + 11.5, 15);
    cairo_line_to(cr, x + 11.5, 22);
    cairo_move_to(cr, x + 1, 11.5);
    cairo_line_to(cr, x + 8, 11.5);
    cairo_move_to(cr, x + 15, 11.5);
    cairo_line_to(cr, x + 22, 11.5);
    cairo_stroke(cr);
  };
  arrowPointer(0, kWhite);                   // 0: plain arrow
  arrowPointer(23, {0.6, 1.0, 0.8});         // 23: in the view
  crosshair(46, kAmber);                     // 46: navigate to a point
  crosshair(69, kCyan);                      // 69: spare
  crosshair(92, kGreen);                     // 92: a body under the cursor
  Arrow(cr, 115 + 4, 4, 14, 15, 2, kAmber);  // 115: scroll left
  Arrow(cr, 138 + 5, 4, 14, 15, 3, kAmber);  // 138: scroll right
  Arrow(cr, 161 + 4, 5, 15, 14, 1, kAmber);  // 161: scroll down
  Arrow(cr, 183 + 4, 4, 15, 14, 0, kAmber);  // 183: scroll up
}

}  // namespace

bool DrawBridgeUi(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  const uint32_t seed = HashString(spec.path);
  cairo_t* cr = cv.cr();
  if (p == "gfx/back.bmp") {
    BridgeBack(cv, seed);
    return true;
  }
  if (p == "gfx/backs/trade.bmp") {
    TradePanelBack(cv);
    return true;
  }
  if (StartsWith(p, "gfx/backs/")) {
    std::string_view name = p.substr(10);
    name = name.substr(0, name.size() - 4);
    // Lists whose summary line stands at the foot carry no title there.
    const bool footer = name == "maint" || name == "cargo" || name == "crew" || name == "medical" ||
                        name == "research";
    PanelBack(cv, footer ? std::string() : Upper(name), seed);
    return true;
  }
  if (p == "gfx/cursor.bmp") {
    Cursor(cv);
    return true;
  }
  if (p == "gfx/yes.bmp" || p == "gfx/no.bmp") {
    const bool yes = p == "gfx/yes.bmp";
    cairo_arc(cr, 20, 20, 18, 0, 2 * M_PI);
    SetColor(cr, yes ? Rgb{0.1, 0.45, 0.2} : Rgb{0.5, 0.12, 0.1});
    cairo_fill_preserve(cr);
    SetColor(cr, yes ? kGreen : kRed);
    cairo_set_line_width(cr, 2);
    cairo_stroke(cr);
    Text(cr, yes ? "OK" : "NO", 20, 25, 13, kWhite, Align::Center);
    return true;
  }
  if (p == "gfx/health.bmp" || p == "gfx/health2.bmp") {
    if (p == "gfx/health2.bmp") {
      FillRect(cr, 0, 0, 80, 10, {0.12, 0.05, 0.05});
      cairo_set_line_width(cr, 1);
      SetColor(cr, kSteelLight);
      cairo_rectangle(cr, 0.5, 0.5, 79, 9);
      cairo_stroke(cr);
    } else {
      cairo_pattern_t* g = cairo_pattern_create_linear(0, 0, 80, 0);
      cairo_pattern_add_color_stop_rgb(g, 0, 0.9, 0.2, 0.1);
      cairo_pattern_add_color_stop_rgb(g, 0.5, 1.0, 0.8, 0.2);
      cairo_pattern_add_color_stop_rgb(g, 1, 0.3, 1.0, 0.4);
      cairo_set_source(cr, g);
      cairo_rectangle(cr, 1, 1, 78, 8);
      cairo_fill(cr);
      cairo_pattern_destroy(g);
      FillRect(cr, 0, 0, 1, 10, {0.3, 0.3, 0.3});
      FillRect(cr, 1, 1, 78, 2, kWhite, 0.3);
    }
    return true;
  }
  if (p == "gfx/slider.bmp") {
    // the two door leaves, 200 each, meeting in the middle
    for (int leaf = 0; leaf < 2; ++leaf) {
      const double x = leaf * 200;
      SteelPlate(cr, x, 0, 200, 240, seed + uint32_t(leaf));
      for (int i = 0; i < 6; ++i) {
        cairo_move_to(cr, x + (leaf ? 0 : 200), 20 + i * 40);
        cairo_line_to(cr, x + (leaf ? 30 : 170), 40 + i * 40);
        cairo_line_to(cr, x + (leaf ? 0 : 200), 60 + i * 40);
        SetColor(cr, kAmber, 0.85);
        cairo_fill(cr);
      }
      Bevel(cr, x + 20, 100, 160, 40, kSteel, -2);
    }
    Text(cr, "ORBIT", 100, 127, 18, kAmberDim, Align::Center);
    Text(cr, "BAY", 300, 127, 18, kAmberDim, Align::Center);
    return true;
  }
  if (p == "gfx/mask.bmp") {
    FillRect(cr, 0, 0, 81, 32, {0.03, 0.07, 0.08});
    Bevel(cr, 0, 0, 81, 32, {0.03, 0.07, 0.08}, -1);
    return true;
  }
  if (p == "gfx/scroll_up.bmp" || p == "gfx/scroll_down.bmp") {
    Bevel(cr, 0, 0, 14, 10, kSteel, 1);
    Arrow(cr, 3, 2, 8, 6, p == "gfx/scroll_up.bmp" ? 0 : 1, kCyan);
    return true;
  }
  if (p == "gfx/buttstate.bmp") {
    // state 0: nothing; 1: a green "on" ring; 2: red "unavailable" hatch
    cairo_set_line_width(cr, 2);
    SetColor(cr, kGreen);
    cairo_rectangle(cr, 60 + 6, 6, 48, 48);
    cairo_stroke(cr);
    for (double c : {7.0, 53.0}) {
      FillRect(cr, 60 + c - 1, 2, 2, 3, kGreen);
      FillRect(cr, 60 + c - 1, 55, 2, 3, kGreen);
    }
    cairo_save(cr);
    cairo_rectangle(cr, 128, 8, 44, 44);
    cairo_clip(cr);
    SetColor(cr, {0.7, 0.12, 0.1});
    for (int i = -40; i < 60; i += 8) {
      cairo_move_to(cr, 120 + 8 + i, 8);
      cairo_line_to(cr, 120 + 8 + i + 44, 52);
    }
    cairo_stroke(cr);
    cairo_restore(cr);
    SetColor(cr, kRed);
    cairo_rectangle(cr, 126, 6, 48, 48);
    cairo_stroke(cr);
    return true;
  }
  if (StartsWith(p, "gfx/misc/")) {
    const std::string_view n = p.substr(9);
    if (n == "heart.bmp") {
      FillRect(cr, 0, 1, 2, 2, kRed); FillRect(cr, 4, 1, 2, 2, kRed); FillRect(cr, 0, 2, 6, 2, kRed);
      FillRect(cr, 1, 4, 4, 1, kRed); FillRect(cr, 2, 5, 2, 1, kRed);
      return true;
    }
    if (n == "rcross.bmp") {
      FillRect(cr, 2, 0, 2, 6, kRed); FillRect(cr, 0, 2, 6, 2, kRed);
      return true;
    }
    if (n == "upgrade.bmp") {
      // Four 15x7 icons: available, available under the cursor, not
      // upgradable, upgraded.
      const Rgb plate[4] = {{0.08, 0.25, 0.15}, {0.15, 0.45, 0.25}, {0.18, 0.18, 0.2}, {0.1, 0.22, 0.3}};
      for (int i = 0; i < 4; ++i) {
        const double x = 15 * i;
        FillRect(cr, x, 0, 15, 7, plate[i]);
        FillRect(cr, x, 0, 15, 1, Scale(plate[i], 1.6));
        if (i < 2) {
          Arrow(cr, x + 4, 1, 7, 3, 0, i == 1 ? kWhite : kGreen);
          FillRect(cr, x + 6, 4, 3, 2, i == 1 ? kWhite : kGreen);
        } else if (i == 2) {
          FillRect(cr, x + 4, 3, 7, 1, {0.55, 0.55, 0.58});
        } else {
          cairo_set_line_width(cr, 1.2);
          SetColor(cr, kCyan);
          cairo_move_to(cr, x + 4, 3.5);
          cairo_line_to(cr, x + 6.5, 5.5);
          cairo_line_to(cr, x + 11, 1.5);
          cairo_stroke(cr);
        }
      }
      return true;
    }
    if (StartsWith(n, "icon_")) {
      const int i = NumberAfter(n, "icon_");
      Bevel(cr, 0, 0, 12, 15, {0.1, 0.3, 0.35}, 1);
      SetColor(cr, kCyan);
      cairo_set_line_width(cr, 1);
      if (i == 1) { cairo_arc(cr, 6, 7.5, 4, 0, 2 * M_PI); cairo_stroke(cr); }
      if (i == 2) { for (double v : {4.5, 7.5}) { FillRect(cr, v, 2, 1, 11, kCyan); } FillRect(cr, 2, 5, 8, 1, kCyan); FillRect(cr, 2, 9, 8, 1, kCyan); }
      if (i == 3) { FillRect(cr, 4, 5, 4, 4, kCyan); FillRect(cr, 5.5, 2, 1, 11, kCyan); }
      if (i == 4) { cairo_arc(cr, 6, 7.5, 3, 0, 2 * M_PI); cairo_stroke(cr); FillRect(cr, 5.5, 7, 1, 1, kAmber); }
      return true;
    }
    if (StartsWith(n, "quarantine_") || StartsWith(n, "treatment_")) {
      const bool down = n.find("down") != std::string_view::npos;
      Bevel(cr, 0, 0, spec.width, 8, down ? Rgb{0.5, 0.35, 0.1} : Rgb{0.15, 0.3, 0.35}, down ? -1 : 1);
      FillRect(cr, 2, 3, 2, 2, down ? kAmber : kCyan);
      return true;
    }
    if (StartsWith(n, "a_j_")) {
      const int i = NumberAfter(n, "a_j_");
      // 1 buy one, 2 buy ten, 3 sell ten, 4 sell one
      const Rgb c = i <= 2 ? kGreen : kAmber;
      if (i == 1 || i == 4) Arrow(cr, 2, 0, 5, 6, i == 1 ? 3 : 2, c);
      else { Arrow(cr, 0, 0, 4, 6, i == 2 ? 3 : 2, c); Arrow(cr, 4, 0, 4, 6, i == 2 ? 3 : 2, c); }
      return true;
    }
    if (n == "a_e_1.bmp") { FillRect(cr, 0, 0, 3, 2, kWhite); return true; }
    if (n == "a_e_2.bmp") { FillRect(cr, 0, 0, 3, 2, kAmber); return true; }
    if (n == "maint_slider.bmp") {
      cairo_pattern_t* g = cairo_pattern_create_linear(0, 0, 105, 0);
      cairo_pattern_add_color_stop_rgb(g, 0, 0.1, 0.6, 0.7);
      cairo_pattern_add_color_stop_rgb(g, 1, 0.5, 1.0, 0.9);
      cairo_set_source(cr, g);
      cairo_paint(cr);
      cairo_pattern_destroy(g);
      return true;
    }
    if (n == "maint_slider2.bmp") {
      FillRect(cr, 0, 0, 105, 4, {0.08, 0.16, 0.18});
      FillRect(cr, 0, 0, 105, 1, {0.15, 0.3, 0.32});
      return true;
    }
  }
  return false;
}

}  // namespace assetgen
