// The station: screen backgrounds, service pictures, map markers, buttons,
// guild and news pictures, and the dealer's turntables of components and hulls.
#include <cmath>
#include <string>

#include "families.h"
#include "noise.h"
#include "sprites.h"
#include "turntable.h"

namespace assetgen {
namespace {

void Frame(cairo_t* cr, double x, double y, double w, double h, Rgb c) {
  Bevel(cr, x - 2, y - 2, w + 4, h + 4, kSteel, -2);
  FillRect(cr, x, y, w, h, {0.03, 0.05, 0.06});
  cairo_set_line_width(cr, 1);
  SetColor(cr, Scale(c, 0.4));
  cairo_rectangle(cr, x + 0.5, y + 0.5, w - 1, h - 1);
  cairo_stroke(cr);
}

// The terminal's map of the station of quadrant q: a hub and seven modules
// where the game blinks its marker over the service under the cursor
// (marker positions by quadrant, the marker 60x45 for the exchange and the
// dealer, 40x30 for the others).
void StationMap(cairo_t* cr, int q) {
  struct Module { int x[4], y[4]; bool big; };
  static constexpr Module kModules[7] = {
      {{62, 110, 30, 70}, {140, 160, 220, 200}, false},     // lounge
      {{140, 180, 70, 130}, {117, 170, 240, 260}, true},    // exchange
      {{250, 150, 150, 40}, {144, 230, 230, 140}, true},    // dealer
      {{143, 70, 230, 230}, {100, 240, 230, 220}, false},   // fleet office
      {{90, 100, 100, 160}, {260, 280, 160, 190}, false},   // exploration
      {{210, 150, 200, 130}, {240, 300, 160, 150}, false},  // merchant
      {{148, 200, 150, 240}, {264, 250, 290, 290}, false},  // mercenary
  };
  const int k = (q - 1) % 4;
  // A faint schematic grid.
  for (int x = 30; x < 340; x += 20) FillRect(cr, x, 90, 1, 296, {0.05, 0.12, 0.14});
  for (int y = 100; y < 386; y += 20) FillRect(cr, 22, y, 316, 1, {0.05, 0.12, 0.14});
  double hx = 0, hy = 0;
  for (const Module& m : kModules) {
    hx += m.x[k] + (m.big ? 30 : 20);
    hy += m.y[k] + (m.big ? 22 : 15);
  }
  hx /= 7;
  hy /= 7;
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  for (const Module& m : kModules) {
    const double cx = m.x[k] + (m.big ? 30 : 20), cy = m.y[k] + (m.big ? 22 : 15);
    cairo_set_line_width(cr, 7);
    SetColor(cr, kSteel);
    cairo_move_to(cr, hx, hy);
    cairo_line_to(cr, cx, cy);
    cairo_stroke(cr);
    cairo_set_line_width(cr, 1);
    SetColor(cr, kCyanDim);
    cairo_move_to(cr, hx, hy);
    cairo_line_to(cr, cx, cy);
    cairo_stroke(cr);
  }
  for (const Module& m : kModules) {
    const double w = m.big ? 30 : 22, h = m.big ? 22 : 16;
    const double cx = m.x[k] + (m.big ? 30 : 20), cy = m.y[k] + (m.big ? 22 : 15);
    Bevel(cr, cx - w / 2, cy - h / 2, w, h, kSteelLight, 2);
    FillRect(cr, cx - w / 2 + 4, cy - 1.5, w - 8, 3, kCyan, 0.8);
  }
  cairo_arc(cr, hx, hy, 16, 0, 2 * M_PI);
  SetColor(cr, kSteelLight);
  cairo_fill(cr);
  cairo_arc(cr, hx, hy, 7, 0, 2 * M_PI);
  SetColor(cr, kCyan);
  cairo_fill(cr);
}

// The small headings of the dealer's and the lounge's panels.
constexpr Rgb kLabel{0.26, 0.66, 0.76};
constexpr Rgb kAmberLabel{0.80, 0.55, 0.16};

void StationScreen(Canvas& cv, std::string_view name, uint32_t seed) {
  cairo_t* cr = cv.cr();
  SteelPlate(cr, 0, 0, 640, 480, seed);
  std::string title = "TERMINAL";
  if (name == "bar") title = "MEETING LOUNGE";
  if (name == "commodity") title = "COMMODITY EXCHANGE";
  if (name == "ship_dealer") title = "SHIP DEALER";
  if (name == "fleet_office") title = "FLEET OFFICE";
  if (name == "exploration") title = "EXPLORATION GUILD";
  if (name == "merchant") title = "MERCHANT GUILD";
  if (name == "mercenary") title = "MERCENARY GUILD";
  Text(cr, title, 320, 18, 12, kAmber, Align::Center, true, true);
  if (StartsWith(name, "terminal")) {
    // The game writes "WELCOME TO" and the station's name above the map at
    // y 40..76, types its text centred on y 120 from x 366, lists the
    // services right-aligned at x 593 from y 208, shows the chosen
    // service's picture at (484, 338), its answer buttons at x 605..640,
    // y 103..169, and leaves the station through x 39..293, y 396..440.
    Frame(cr, 20, 88, 320, 300, kCyan);           // station map
    StationMap(cr, NumberAfter(name, "terminal_"));
    Frame(cr, 354, 54, 248, 134, kCyan);          // log-on text
    Text(cr, "STATION MAINFRAME", 478, 47, 8, Scale(kCyan, 0.75), Align::Center, true, true);
    Frame(cr, 364, 200, 242, 132, kAmber);        // services
    Frame(cr, 484, 338, 100, 100, kAmber);        // service picture
    Frame(cr, 606, 100, 32, 72, kCyan);           // yes / no, OK
    Bevel(cr, 40, 397, 252, 42, kSteel, 2);       // the way out
    Text(cr, "DEPART STATION", 166, 424, 13, kAmber, Align::Center, true, true);
  } else if (name == "commodity") {
    // Rows of 19 from y 113; the game writes the stock right-aligned at
    // 74, what the station pays at 199, the name centred on 320, what it
    // asks at 458 and the hold at 588. The buttons: sell ten x 98..117,
    // sell one 125..139, buy one 494..508, buy ten 516..535.
    Frame(cr, 10, 110, 620, 276, kCyan);
    for (int i = 0; i < 14; ++i) {
      const double top = 113 + 19 * i;
      if (i % 2 == 1) FillRect(cr, 12, top + 1, 616, 18, {0.05, 0.09, 0.11});
      struct Button { double x, w; const char* label; Rgb c; };
      for (const Button& b : {Button{99, 18, "10", kAmber}, Button{126, 13, "1", kAmber},
                              Button{495, 13, "1", kGreen}, Button{517, 18, "10", kGreen}}) {
        Bevel(cr, b.x, top + 3, b.w, 15, kSteel, 1);
        Text(cr, b.label, b.x + b.w / 2, top + 14, 7, Scale(b.c, 0.85), Align::Center, true, true);
      }
    }
    Text(cr, "STOCK", 52, 104, 9, Scale(kCyan, 0.75), Align::Center, true, true);
    Text(cr, "SELL", 118, 104, 9, Scale(kAmber, 0.8), Align::Center, true, true);
    Text(cr, "PAYS", 186, 104, 9, Scale(kCyan, 0.75), Align::Center, true, true);
    Text(cr, "GOODS", 320, 104, 9, Scale(kCyan, 0.75), Align::Center, true, true);
    Text(cr, "ASKS", 445, 104, 9, Scale(kCyan, 0.75), Align::Center, true, true);
    Text(cr, "BUY", 515, 104, 9, Scale(kGreen, 0.75), Align::Center, true, true);
    Text(cr, "HOLD", 575, 104, 9, Scale(kCyan, 0.75), Align::Center, true, true);
    Text(cr, "CREDITS", 58, 418, 8, Scale(kAmber, 0.8), Align::Center, true, true);
    Text(cr, "FREE HOLD", 185, 418, 8, Scale(kAmber, 0.8), Align::Center, true, true);
    Frame(cr, 10, 424, 220, 34, kAmber);
    Frame(cr, 505, 424, 109, 34, kAmber);
    Text(cr, "EXIT", 560, 446, 12, kAmber, Align::Center);
  } else if (name == "ship_dealer") {
    // The game turns the chosen item at (14, 20), writes its figures from
    // (278, 63), marks the chosen group with select.bmp, lists the ship's
    // hull and fifteen hardpoints from y 248 (x 46..230), the goods from
    // y 275 every 27 (x 358..), stands its tall buttons at x 252, 278, 554
    // and 580 from y 245, and writes the cash at 88 and the free carry
    // amount at 212 on y 435.
    Frame(cr, 14, 20, 200, 200, kCyan);
    Frame(cr, 262, 30, 360, 130, kCyan);
    Text(cr, "SPECIFICATIONS", 612, 44, 8, kLabel, Align::Right, true, true);
    static constexpr const char* kGroups[] = {"HULLS", "BEAMS", "LAUNCHERS", "SHIELDS", "GENERATORS", "PROPULSION",
                                              "SENSORS", "COMPUTERS", "UNFITTED"};
    for (int i = 0; i < 9; ++i) {
      const double x = 240 + (i / 3) * 127, y = 168 + (i % 3) * 23;
      Bevel(cr, x, y, 113, 16, kSteel, 1);
      Text(cr, kGroups[i], x + 56, y + 12, 8, kCyan, Align::Center, true, true);
    }
    Frame(cr, 20, 244, 230, 150, kCyan);
    Text(cr, "YOUR SHIP", 30, 238, 8, kLabel, Align::Left, true, true);
    Text(cr, "CONDITION", 240, 238, 8, kLabel, Align::Right, true, true);
    FillRect(cr, 22, 257, 226, 1, {0.08, 0.22, 0.26});  // under the hull line
    Frame(cr, 350, 244, 200, 150, kCyan);
    Text(cr, "FOR SALE", 450, 238, 8, kLabel, Align::Center, true, true);
    for (int n = 1; n <= 4; ++n) FillRect(cr, 356, 248 + 27 * n + 12, 188, 1, {0.06, 0.16, 0.19});
    Frame(cr, 10, 424, 220, 34, kAmber);
    FillRect(cr, 120, 428, 1, 26, kAmberDim);
    Text(cr, "CREDITS", 60, 470, 8, kAmberLabel, Align::Center, true, true);
    Text(cr, "FREE MASS", 175, 470, 8, kAmberLabel, Align::Center, true, true);
    Frame(cr, 505, 424, 109, 34, kAmber);
    Text(cr, "EXIT", 560, 446, 12, kAmber, Align::Center);
  } else if (name == "bar") {
    // The game lists the people waiting from (256, 70) every 14 lines, the
    // crew posts from (451, 70) every 24 with a dismiss button at x
    // 430..450, shows the chosen one's picture at (58, 270) and page from
    // (176, 285) every 15, the confirm button at (570, 367), and the cash
    // right-aligned at 88 on y 435.
    Frame(cr, 240, 50, 172, 196, kCyan);
    Text(cr, "AT THE BAR", 326, 44, 8, kLabel, Align::Center, true, true);
    Frame(cr, 424, 50, 196, 158, kCyan);
    Text(cr, "YOUR CREW", 522, 44, 8, kLabel, Align::Center, true, true);
    for (int post = 1; post <= 6; ++post) {
      const double top = 70 + 24 * (post - 1);
      Bevel(cr, 431, top, 18, 9, {0.45, 0.12, 0.10}, 1);
      cairo_set_line_width(cr, 1.2);
      SetColor(cr, {1.0, 0.75, 0.7});
      cairo_move_to(cr, 437, top + 2);
      cairo_line_to(cr, 443, top + 7);
      cairo_move_to(cr, 443, top + 2);
      cairo_line_to(cr, 437, top + 7);
      cairo_stroke(cr);
      FillRect(cr, 452, top + 14, 164, 1, {0.06, 0.16, 0.19});
    }
    Text(cr, "DISMISS", 440, 222, 7, kLabel, Align::Center, true, true);
    Frame(cr, 58, 270, 80, 100, kAmber);           // picture
    Frame(cr, 160, 262, 460, 150, kCyan);          // text
    Frame(cr, 10, 424, 220, 34, kAmber);
    Text(cr, "CREDITS", 60, 470, 8, kAmberLabel, Align::Center, true, true);
    Frame(cr, 505, 424, 109, 34, kAmber);
    Text(cr, "EXIT", 560, 446, 12, kAmber, Align::Center);
  } else {
    Frame(cr, 58, 270, 80, 100, kAmber);           // picture
    Frame(cr, 160, 50, 460, 195, kCyan);           // menu
    Frame(cr, 160, 262, 460, 150, kCyan);          // text
    Frame(cr, 505, 424, 109, 34, kAmber);
    Text(cr, "EXIT", 560, 446, 12, kAmber, Align::Center);
  }
}

void ServicePicture(Canvas& cv, std::string_view name, uint32_t seed) {
  cairo_t* cr = cv.cr();
  FillRect(cr, 0, 0, 100, 100, {0.03, 0.05, 0.08});
  Stars(cv, seed, 30, 0.5);
  std::string label;
  if (name == "_denied") {
    cairo_set_line_width(cr, 6);
    SetColor(cr, kRed);
    cairo_arc(cr, 50, 45, 26, 0, 2 * M_PI);
    cairo_stroke(cr);
    cairo_move_to(cr, 32, 27); cairo_line_to(cr, 68, 63); cairo_stroke(cr);
    label = "DENIED";
  } else if (name == "_bar") {
    for (int i = 0; i < 3; ++i) {
      cairo_move_to(cr, 25 + i * 20, 25); cairo_line_to(cr, 37 + i * 20, 25); cairo_line_to(cr, 31 + i * 20, 45); cairo_close_path(cr);
      SetColor(cr, i == 1 ? kAmber : kCyan); cairo_fill(cr); FillRect(cr, 30 + i * 20, 45, 2, 15, kSteelLight);
    }
    label = "LOUNGE";
  } else if (name == "_commodity") {
    for (int i = 0; i < 6; ++i) { cairo_rectangle(cr, 20 + (i % 3) * 21, 25 + (i / 3) * 18, 18, 15); SetColor(cr, Mix(kAmberDim, kAmber, i / 6.0)); cairo_fill(cr); }
    label = "EXCHANGE";
  } else if (name == "_dealer") {
    ShipShape(cr, 50, 45, 55, M_PI / 2, 1, 3);
    label = "DEALER";
  } else if (name == "_explor") {
    const SurfaceMap map = MakeSurface(kTerran, seed, 64, 32);
    Sphere(cv, map, kTerran, 50, 45, 24, 0.3);
    label = "EXPLORERS";
  } else if (name == "_fed") {
    cairo_move_to(cr, 50, 15); for (int i = 1; i <= 10; ++i) { const double r = i % 2 ? 12 : 28;
      cairo_line_to(cr, 50 + std::sin(i * M_PI / 5) * r, 45 - std::cos(i * M_PI / 5) * r); }
    cairo_close_path(cr); SetColor(cr, kAmber); cairo_fill(cr);
    label = "FLEET";
  } else if (name == "_mercenary") {
    cairo_set_line_width(cr, 5); SetColor(cr, kSteelLight);
    cairo_move_to(cr, 25, 70); cairo_line_to(cr, 75, 20); cairo_move_to(cr, 25, 20); cairo_line_to(cr, 75, 70); cairo_stroke(cr);
    label = "MERCENARY";
  } else {
    cairo_arc(cr, 50, 45, 22, 0, 2 * M_PI); SetColor(cr, kAmber); cairo_fill(cr);
    Text(cr, "$", 50, 55, 28, {0.3, 0.2, 0.05}, Align::Center);
    label = "MERCHANTS";
  }
  Text(cr, label, 50, 92, 10, kCyan, Align::Center, true, true);
  Bevel(cr, 0, 0, 100, 2, kSteel, 0);
}

}  // namespace

bool DrawStation(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  if (!StartsWith(p, "gfx/station/")) return false;
  const uint32_t seed = HashString(spec.path);
  cairo_t* cr = cv.cr();
  if (StartsWith(p, "gfx/station/a_backs/")) {
    std::string_view n = p.substr(20);
    StationScreen(cv, n.substr(0, n.size() - 4), seed);
    return true;
  }
  if (StartsWith(p, "gfx/station/small/")) {
    std::string_view n = p.substr(18);
    ServicePicture(cv, n.substr(0, n.size() - 4), seed);
    return true;
  }
  if (StartsWith(p, "gfx/station/comps/10_")) {
    const std::string_view n = p.substr(21);
    DrawTurntable(cv, 10, 0, n[0] - '0', n[2] - '0', spec.frames);
    return true;
  }
  if (StartsWith(p, "gfx/station/comps/")) {
    const std::string_view n = p.substr(18);
    const int g = NumberAfter(n, "");
    const int m = NumberAfter(n.substr(n.find('_') + 1), "");
    DrawTurntable(cv, g, m, 0, 0, spec.frames);
    return true;
  }
  const std::string_view n = p.substr(19);  // after a_misc/
  if (n == "marker.bmp" || n == "marker2.bmp") {
    for (int f = 0; f < spec.frames; ++f) {
      const double cx = f * spec.frameW + spec.frameW / 2.0, cy = spec.frameH / 2.0;
      const double r = spec.frameH * (0.15 + 0.3 * f / spec.frames);
      cairo_set_line_width(cr, 2);
      SetColor(cr, Mix(kAmber, kRed, double(f) / spec.frames));
      cairo_arc(cr, cx, cy, r, 0, 2 * M_PI);
      cairo_stroke(cr);
      FillRect(cr, cx - 2, cy - 2, 4, 4, kAmber);
    }
    return true;
  }
  if (n == "yes.bmp" || n == "no.bmp" || n == "yes2.bmp" || n == "yes3.bmp") {
    const bool no = n == "no.bmp";
    const char* label = n == "yes.bmp" ? "YES" : no ? "NO" : "OK";
    for (int f = 0; f < 2; ++f) {
      const double x = f * spec.frameW;
      Bevel(cr, x, 0, spec.frameW, spec.frameH, f ? Rgb{0.35, 0.40, 0.45} : kSteel, f ? -2 : 2);
      const Rgb c = no ? kRed : kGreen;
      if (n == "yes3.bmp") {
        cairo_set_line_width(cr, 2.5);
        SetColor(cr, f ? kWhite : c);
        cairo_move_to(cr, x + 5, 11);
        cairo_line_to(cr, x + 9, 15);
        cairo_line_to(cr, x + 16, 6);
        cairo_stroke(cr);
      } else {
        Text(cr, label, x + spec.frameW / 2.0, spec.frameH / 2.0 + 4, 10, f ? kWhite : c, Align::Center);
      }
    }
    return true;
  }
  if (n == "dealer_butts.bmp") {
    static constexpr const char* kLabels[] = {"BUY", "FIT", "SELL", "REPAIR"};
    for (int b = 0; b < 4; ++b) {
      for (int hot = 0; hot < 2; ++hot) {
        const double x = b * 20, y = hot * 150;
        Bevel(cr, x, y, 20, 150, hot ? Rgb{0.5, 0.35, 0.1} : kSteel, 2);
        cairo_save(cr);
        cairo_translate(cr, x + 14, y + 75);
        cairo_rotate(cr, -M_PI / 2);
        Text(cr, kLabels[b], 0, 0, 11, hot ? kWhite : kAmber, Align::Center);
        cairo_restore(cr);
      }
    }
    return true;
  }
  if (n == "guilds.bmp") {
    static constexpr const char* kBoards[] = {"EXPLORE", "MERCHANT", "MERCENARY", "FLEET", "SPECIAL"};
    for (int b = 0; b < 5; ++b) {
      const double x = b * 80;
      FillRect(cr, x, 0, 80, 100, Mix(kSteelDark, RaceAccent(b + 1), 0.2));
      cairo_move_to(cr, x + 40, 15);
      for (int i = 1; i <= 12; ++i) {
        const double r = i % 2 ? 12 : 26;
        cairo_line_to(cr, x + 40 + std::sin(i * M_PI / 6) * r, 45 - std::cos(i * M_PI / 6) * r);
      }
      cairo_close_path(cr);
      SetColor(cr, b == 4 ? kRed : RaceAccent(b + 1));
      cairo_fill(cr);
      Text(cr, kBoards[b], x + 40, 90, 9, kWhite, Align::Center, true, true);
      Bevel(cr, x, 0, 80, 100, kSteel, 0);
    }
    return true;
  }
  if (n == "select.bmp") {
    cairo_set_line_width(cr, 2);
    SetColor(cr, kAmber);
    cairo_rectangle(cr, 1, 1, 120, 12);
    cairo_stroke(cr);
    return true;
  }
  if (n == "news.bmp") {
    for (int row = 0; row < 2; ++row) {
      for (int i = 0; i < 7; ++i) {
        const double x = i * 80, y = row * 100;
        Rng rng(seed + uint32_t(row * 7 + i));
        FillRect(cr, x, y, 80, 100, row ? Rgb{0.15, 0.04, 0.04} : Rgb{0.04, 0.08, 0.15});
        ShipShape(cr, x + 40, y + 45, 40, rng.Range(0, 6.28), row ? 7 : 1 + rng.Int(6), 1 + rng.Int(4));
        Text(cr, row ? "PIRATE NEWS" : "NEWS", x + 40, y + 90, 8, row ? kRed : kCyan, Align::Center, true, true);
        Bevel(cr, x, y, 80, 100, kSteel, 0);
      }
    }
    return true;
  }
  return false;
}

}  // namespace assetgen
